// A += alpha x op(x)^T on a packed triangle.
#include "blas/kernel/level2/rank_update.h"
#include "orb/blas_level2.h"

#define SPR(name, hermitian, A, T)                                                                           \
  ORB_EXPORT void name(const char* uplo, const int* n, const A* alpha, const T* x, const int* incx, T* ap) { \
    orb::blas::rank_one<hermitian>(uplo, *n, *alpha, x, *incx, [=](auto upper) {                             \
      return orb::blas::Packed<upper, T>{ap, *n};                                                            \
    });                                                                                                      \
  }
SPR(orb_blas_sspr, false, float, float)
SPR(orb_blas_dspr, false, double, double)
SPR(orb_blas_cspr, false, orb_complex_float, orb_complex_float)
SPR(orb_blas_chpr, true, float, orb_complex_float)
SPR(orb_blas_zhpr, true, double, orb_complex_double)
