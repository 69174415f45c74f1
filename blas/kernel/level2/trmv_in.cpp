// x = op(A) x, A triangular: a whole triangle at once.
#include "blas/kernel/level2/trmv.h"
#include "orb/blas_level2.h"

#define TRMV_IN(name, T)                                                                                \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const T* a, \
                       const int* lda, T* x, const int* incx) {                                         \
    orb::blas::trmv(uplo, trans, diag, *n, x, *incx, [=](auto) {                                        \
      return orb::blas::Dense<const T>{a, *lda, *n};                                                    \
    });                                                                                                 \
  }
TRMV_IN(orb_blas_strmv_in, float)
TRMV_IN(orb_blas_dtrmv_in, double)
TRMV_IN(orb_blas_ctrmv_in, orb_complex_float)
TRMV_IN(orb_blas_ztrmv_in, orb_complex_double)
