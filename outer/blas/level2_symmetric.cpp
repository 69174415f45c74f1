// Fortran faces of the symmetric and Hermitian matrix-vector routines. S is the type of alpha.
#include "outer/blas/checks.h"
#include "outer/blas/refuse.h"
#include "outer/kernels.h"

namespace {
using orb::c32;
using orb::c64;
using orb::call;
using orb::refuse;
}  // namespace

#define SYMV(name, NAME, entry, T)                                                                           \
  ORB_FACE void name(const char* uplo, const int* n, const T* alpha, const T* a, const int* lda, const T* x, \
                     const int* incx, const T* beta, T* y, const int* incy) {                                \
    if (const int place = orb::bad_symv(uplo, *n, *lda, *incx, *incy)) return refuse(NAME, place);           \
    call<entry>(uplo, n, alpha, a, lda, x, incx, beta, y, incy);                                             \
  }
SYMV(ssymv_, "SSYMV ", orb_blas_xssymv, float)
SYMV(dsymv_, "DSYMV ", orb_blas_xdsymv, double)
SYMV(chemv_, "CHEMV ", orb_blas_chemv, c32)
SYMV(zhemv_, "ZHEMV ", orb_blas_zhemv, c64)

#define SBMV(name, NAME, entry, T)                                                                        \
  ORB_FACE void name(const char* uplo, const int* n, const int* k, const T* alpha, const T* a,            \
                     const int* lda, const T* x, const int* incx, const T* beta, T* y, const int* incy) { \
    if (const int place = orb::bad_sbmv(uplo, *n, *k, *lda, *incx, *incy)) return refuse(NAME, place);    \
    call<entry>(uplo, n, k, alpha, a, lda, x, incx, beta, y, incy);                                       \
  }
SBMV(ssbmv_, "SSBMV ", orb_blas_ssbmv, float)
SBMV(dsbmv_, "DSBMV ", orb_blas_dsbmv, double)
SBMV(chbmv_, "CHBMV ", orb_blas_chbmv, c32)
SBMV(zhbmv_, "ZHBMV ", orb_blas_zhbmv, c64)

#define SPMV(name, NAME, entry, T)                                                            \
  ORB_FACE void name(const char* uplo, const int* n, const T* alpha, const T* ap, const T* x, \
                     const int* incx, const T* beta, T* y, const int* incy) {                 \
    if (const int place = orb::bad_spmv(uplo, *n, *incx, *incy)) return refuse(NAME, place);  \
    call<entry>(uplo, n, alpha, ap, x, incx, beta, y, incy);                                  \
  }
SPMV(sspmv_, "SSPMV ", orb_blas_sspmv, float)
SPMV(dspmv_, "DSPMV ", orb_blas_dspmv, double)
SPMV(chpmv_, "CHPMV ", orb_blas_chpmv, c32)
SPMV(zhpmv_, "ZHPMV ", orb_blas_zhpmv, c64)

#define SYR(name, NAME, entry, S, T)                                                                    \
  ORB_FACE void name(const char* uplo, const int* n, const S* alpha, const T* x, const int* incx, T* a, \
                     const int* lda) {                                                                  \
    if (const int place = orb::bad_syr(uplo, *n, *incx, *lda)) return refuse(NAME, place);              \
    call<entry>(uplo, n, alpha, x, incx, a, lda);                                                       \
  }
SYR(ssyr_, "SSYR  ", orb_blas_xssyr, float, float)
SYR(dsyr_, "DSYR  ", orb_blas_xdsyr, double, double)
SYR(cher_, "CHER  ", orb_blas_cher, float, c32)
SYR(zher_, "ZHER  ", orb_blas_zher, double, c64)

#define SPR(name, NAME, entry, S, T)                                                                       \
  ORB_FACE void name(const char* uplo, const int* n, const S* alpha, const T* x, const int* incx, T* ap) { \
    if (const int place = orb::bad_spr(uplo, *n, *incx)) return refuse(NAME, place);                       \
    call<entry>(uplo, n, alpha, x, incx, ap);                                                              \
  }
SPR(sspr_, "SSPR  ", orb_blas_sspr, float, float)
SPR(dspr_, "DSPR  ", orb_blas_dspr, double, double)
SPR(chpr_, "CHPR  ", orb_blas_chpr, float, c32)
SPR(zhpr_, "ZHPR  ", orb_blas_zhpr, double, c64)

#define SYR2(name, NAME, entry, T)                                                                 \
  ORB_FACE void name(const char* uplo, const int* n, const T* alpha, const T* x, const int* incx,  \
                     const T* y, const int* incy, T* a, const int* lda) {                          \
    if (const int place = orb::bad_syr2(uplo, *n, *incx, *incy, *lda)) return refuse(NAME, place); \
    call<entry>(uplo, n, alpha, x, incx, y, incy, a, lda);                                         \
  }
SYR2(ssyr2_, "SSYR2 ", orb_blas_xssyr2, float)
SYR2(dsyr2_, "DSYR2 ", orb_blas_xdsyr2, double)
SYR2(cher2_, "CHER2 ", orb_blas_cher2, c32)
SYR2(zher2_, "ZHER2 ", orb_blas_zher2, c64)

#define SPR2(name, NAME, entry, T)                                                                \
  ORB_FACE void name(const char* uplo, const int* n, const T* alpha, const T* x, const int* incx, \
                     const T* y, const int* incy, T* ap) {                                        \
    if (const int place = orb::bad_spr2(uplo, *n, *incx, *incy)) return refuse(NAME, place);      \
    call<entry>(uplo, n, alpha, x, incx, y, incy, ap);                                            \
  }
SPR2(sspr2_, "SSPR2 ", orb_blas_sspr2, float)
SPR2(dspr2_, "DSPR2 ", orb_blas_dspr2, double)
SPR2(chpr2_, "CHPR2 ", orb_blas_chpr2, c32)
SPR2(zhpr2_, "ZHPR2 ", orb_blas_zhpr2, c64)
