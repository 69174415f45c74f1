// y = alpha A x + beta y, A symmetric or Hermitian and packed.
#include "blas/kernel/level2/symv.h"
#include "orb/blas_level2.h"

#define SPMV(name, T)                                                                           \
  ORB_EXPORT void name(const char* uplo, const int* n, const T* alpha, const T* ap, const T* x, \
                       const int* incx, const T* beta, T* y, const int* incy) {                 \
    orb::blas::symv(uplo, *n, *alpha, x, *incx, *beta, y, *incy, [=](auto upper) {              \
      return orb::blas::Packed<upper, const T>{ap, *n};                                         \
    });                                                                                         \
  }
SPMV(orb_blas_sspmv, float)
SPMV(orb_blas_dspmv, double)
SPMV(orb_blas_chpmv, orb_complex_float)
SPMV(orb_blas_zhpmv, orb_complex_double)
