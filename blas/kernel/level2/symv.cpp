// y = alpha A x + beta y, A symmetric or Hermitian.
#include "blas/kernel/level2/symv.h"
#include "orb/blas_level2.h"

#define SYMV(name, T)                                                                              \
  ORB_EXPORT void name(const char* uplo, const int* n, const T* alpha, const T* a, const int* lda, \
                       const T* x, const int* incx, const T* beta, T* y, const int* incy) {        \
    orb::blas::symv(uplo, *n, *alpha, x, *incx, *beta, y, *incy, [=](auto) {                       \
      return orb::blas::Dense<const T>{a, *lda, *n};                                               \
    });                                                                                            \
  }
SYMV(orb_blas_xssymv, float)
SYMV(orb_blas_xdsymv, double)
SYMV(orb_blas_chemv, orb_complex_float)
SYMV(orb_blas_zhemv, orb_complex_double)
