// Fortran faces of the triangular matrix-vector routines.
#include "outer/blas/checks.h"
#include "outer/blas/refuse.h"
#include "outer/kernels.h"

namespace {
using orb::c32;
using orb::c64;
using orb::call;
using orb::refuse;
}  // namespace

#define TRMV(name, NAME, entry, T)                                                                       \
  ORB_FACE void name(const char* uplo, const char* trans, const char* diag, const int* n, const T* a,    \
                     const int* lda, T* x, const int* incx) {                                            \
    if (const int place = orb::bad_trmv(uplo, trans, diag, *n, *lda, *incx)) return refuse(NAME, place); \
    call<entry>(uplo, trans, diag, n, a, lda, x, incx);                                                  \
  }
TRMV(strmv_, "STRMV ", orb_blas_xstrmv, float)
TRMV(dtrmv_, "DTRMV ", orb_blas_xdtrmv, double)
TRMV(ctrmv_, "CTRMV ", orb_blas_xctrmv, c32)
TRMV(ztrmv_, "ZTRMV ", orb_blas_xztrmv, c64)
TRMV(strsv_, "STRSV ", orb_blas_strsv, float)
TRMV(dtrsv_, "DTRSV ", orb_blas_dtrsv, double)
TRMV(ctrsv_, "CTRSV ", orb_blas_ctrsv, c32)
TRMV(ztrsv_, "ZTRSV ", orb_blas_ztrsv, c64)

#define TBMV(name, NAME, entry, T)                                                                           \
  ORB_FACE void name(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,      \
                     const T* a, const int* lda, T* x, const int* incx) {                                    \
    if (const int place = orb::bad_tbmv(uplo, trans, diag, *n, *k, *lda, *incx)) return refuse(NAME, place); \
    call<entry>(uplo, trans, diag, n, k, a, lda, x, incx);                                                   \
  }
TBMV(stbmv_, "STBMV ", orb_blas_stbmv, float)
TBMV(dtbmv_, "DTBMV ", orb_blas_dtbmv, double)
TBMV(ctbmv_, "CTBMV ", orb_blas_ctbmv, c32)
TBMV(ztbmv_, "ZTBMV ", orb_blas_ztbmv, c64)
TBMV(stbsv_, "STBSV ", orb_blas_stbsv, float)
TBMV(dtbsv_, "DTBSV ", orb_blas_dtbsv, double)
TBMV(ctbsv_, "CTBSV ", orb_blas_ctbsv, c32)
TBMV(ztbsv_, "ZTBSV ", orb_blas_ztbsv, c64)

#define TPMV(name, NAME, entry, T)                                                                           \
  ORB_FACE void name(const char* uplo, const char* trans, const char* diag, const int* n, const T* ap, T* x, \
                     const int* incx) {                                                                      \
    if (const int place = orb::bad_tpmv(uplo, trans, diag, *n, *incx)) return refuse(NAME, place);           \
    call<entry>(uplo, trans, diag, n, ap, x, incx);                                                          \
  }
TPMV(stpmv_, "STPMV ", orb_blas_stpmv, float)
TPMV(dtpmv_, "DTPMV ", orb_blas_dtpmv, double)
TPMV(ctpmv_, "CTPMV ", orb_blas_ctpmv, c32)
TPMV(ztpmv_, "ZTPMV ", orb_blas_ztpmv, c64)
TPMV(stpsv_, "STPSV ", orb_blas_stpsv, float)
TPMV(dtpsv_, "DTPSV ", orb_blas_dtpsv, double)
TPMV(ctpsv_, "CTPSV ", orb_blas_ctpsv, c32)
TPMV(ztpsv_, "ZTPSV ", orb_blas_ztpsv, c64)
