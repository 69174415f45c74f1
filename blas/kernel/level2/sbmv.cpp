// y = alpha A x + beta y, A symmetric or Hermitian with k diagonals on either side of the main one.
#include "blas/kernel/level2/symv.h"
#include "orb/blas_level2.h"

#define SBMV(name, T)                                                                                       \
  ORB_EXPORT void name(const char* uplo, const int* n, const int* k, const T* alpha, const T* a,            \
                       const int* lda, const T* x, const int* incx, const T* beta, T* y, const int* incy) { \
    orb::blas::symv(uplo, *n, *alpha, x, *incx, *beta, y, *incy, [=](auto upper) {                          \
      return orb::blas::Band<upper, const T>{a, *lda, *n, *k};                                              \
    });                                                                                                     \
  }
SBMV(orb_blas_ssbmv, float)
SBMV(orb_blas_dsbmv, double)
SBMV(orb_blas_chbmv, orb_complex_float)
SBMV(orb_blas_zhbmv, orb_complex_double)
