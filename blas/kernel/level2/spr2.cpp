// A += alpha x op(y)^T + op(alpha) y op(x)^T on a packed triangle.
#include "blas/kernel/level2/rank_update.h"
#include "orb/blas_level2.h"

#define SPR2(name, T)                                                                               \
  ORB_EXPORT void name(const char* uplo, const int* n, const T* alpha, const T* x, const int* incx, \
                       const T* y, const int* incy, T* ap) {                                        \
    orb::blas::rank_two(uplo, *n, *alpha, x, *incx, y, *incy, *n, [=](auto upper) {                 \
      return orb::blas::Packed<upper, T>{ap, *n};                                                   \
    });                                                                                             \
  }
SPR2(orb_blas_sspr2, float)
SPR2(orb_blas_dspr2, double)
SPR2(orb_blas_chpr2, orb_complex_float)
SPR2(orb_blas_zhpr2, orb_complex_double)
