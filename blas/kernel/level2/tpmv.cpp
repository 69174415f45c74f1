// x = op(A) x, A a packed triangle.
#include "blas/kernel/level2/trmv.h"
#include "orb/blas_level2.h"

#define TPMV(name, T)                                                                                    \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const T* ap, \
                       T* x, const int* incx) {                                                          \
    orb::blas::trmv(uplo, trans, diag, *n, x, *incx, [=](auto upper) {                                   \
      return orb::blas::Packed<upper, const T>{ap, *n};                                                  \
    });                                                                                                  \
  }
TPMV(orb_blas_stpmv, float)
TPMV(orb_blas_dtpmv, double)
TPMV(orb_blas_ctpmv, orb_complex_float)
TPMV(orb_blas_ztpmv, orb_complex_double)
