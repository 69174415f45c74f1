// x = op(A) x, A triangular with k diagonals beside the main one.
#include "blas/kernel/level2/trmv.h"
#include "orb/blas_level2.h"

#define TBMV(name, T)                                                                                     \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const int* k, \
                       const T* a, const int* lda, T* x, const int* incx) {                               \
    orb::blas::trmv(uplo, trans, diag, *n, x, *incx, [=](auto upper) {                                    \
      return orb::blas::Band<upper, const T>{a, *lda, *n, *k};                                            \
    });                                                                                                   \
  }
TBMV(orb_blas_stbmv, float)
TBMV(orb_blas_dtbmv, double)
TBMV(orb_blas_ctbmv_f, orb_complex_float)
TBMV(orb_blas_ztbmv_f, orb_complex_double)

#define TBMV_THIN(name, T)                                                                                \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const int* k, \
                       const T* a, const int* lda, T* x, const int* incx) {                               \
    if (*n != 0) name##_f(uplo, trans, diag, n, k, a, lda, x, incx);                                      \
  }
TBMV_THIN(orb_blas_ctbmv, orb_complex_float)
TBMV_THIN(orb_blas_ztbmv, orb_complex_double)
