// Solves op(A) x = b, A a packed triangle.
#include "blas/kernel/level2/trsv.h"
#include "orb/blas_level2.h"

#define TPSV(name, T)                                                                                    \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const T* ap, \
                       T* x, const int* incx) {                                                          \
    orb::blas::trsv(uplo, trans, diag, *n, x, *incx, [=](auto upper) {                                   \
      return orb::blas::Packed<upper, const T>{ap, *n};                                                  \
    });                                                                                                  \
  }
TPSV(orb_blas_stpsv, float)
TPSV(orb_blas_dtpsv, double)
TPSV(orb_blas_ctpsv, orb_complex_float)
TPSV(orb_blas_ztpsv, orb_complex_double)
