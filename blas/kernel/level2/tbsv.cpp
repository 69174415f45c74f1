// Solves op(A) x = b, A triangular with k diagonals beside the main one.
#include "blas/kernel/level2/trsv.h"
#include "orb/blas_level2.h"

#define TBSV(name, T)                                                                                     \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const int* k, \
                       const T* a, const int* lda, T* x, const int* incx) {                               \
    orb::blas::trsv(uplo, trans, diag, *n, x, *incx, [=](auto upper) {                                    \
      return orb::blas::Band<upper, const T>{a, *lda, *n, *k};                                            \
    });                                                                                                   \
  }
TBSV(orb_blas_stbsv, float)
TBSV(orb_blas_dtbsv, double)
TBSV(orb_blas_ctbsv_f, orb_complex_float)
TBSV(orb_blas_ztbsv_f, orb_complex_double)

#define TBSV_THIN(name, T)                                                                                \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const int* k, \
                       const T* a, const int* lda, T* x, const int* incx) {                               \
    if (*n != 0) name##_f(uplo, trans, diag, n, k, a, lda, x, incx);                                      \
  }
TBSV_THIN(orb_blas_ctbsv, orb_complex_float)
TBSV_THIN(orb_blas_ztbsv, orb_complex_double)
