// A += alpha x op(y)^T + op(alpha) y op(x)^T on one triangle, whole or by blocks of rows.
#include "blas/kernel/level2/rank_update.h"
#include "orb/blas_level2.h"

#define SYR2(name, T)                                                                               \
  ORB_EXPORT void name(const char* uplo, const int* n, const T* alpha, const T* x, const int* incx, \
                       const T* y, const int* incy, T* a, const int* lda) {                         \
    orb::blas::rank_two(uplo, *n, *alpha, x, *incx, y, *incy, *n, [=](auto) {                       \
      return orb::blas::Dense<T>{a, *lda, *n};                                                      \
    });                                                                                             \
  }
#define SYR2_NB(name, T)                                                                            \
  ORB_EXPORT void name(const char* uplo, const int* n, const T* alpha, const T* x, const int* incx, \
                       const T* y, const int* incy, T* a, const int* lda, const int* nb) {          \
    orb::blas::rank_two(uplo, *n, *alpha, x, *incx, y, *incy, *nb, [=](auto) {                      \
      return orb::blas::Dense<T>{a, *lda, *n};                                                      \
    });                                                                                             \
  }
SYR2(orb_blas_xssyr2, float)
SYR2(orb_blas_xdsyr2, double)
SYR2(orb_blas_cher2, orb_complex_float)
SYR2(orb_blas_zher2, orb_complex_double)
SYR2_NB(orb_blas_ssyr2_nb, float)
SYR2_NB(orb_blas_dsyr2_nb, double)
SYR2_NB(orb_blas_cher2_nb, orb_complex_float)
SYR2_NB(orb_blas_zher2_nb, orb_complex_double)
