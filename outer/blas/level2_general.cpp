// Fortran faces of the general matrix-vector routines, and the upward entries of gemv.
#include "orb/services.h"
#include "outer/blas/checks.h"
#include "outer/blas/level2_work.h"
#include "outer/blas/refuse.h"

namespace {
using orb::c32;
using orb::c64;
using orb::call;
using orb::refuse;
}  // namespace

#define GEMV(name, NAME, entry, T)                                                                        \
  ORB_FACE void name(const char* trans, const int* m, const int* n, const T* alpha, const T* a,           \
                     const int* lda, const T* x, const int* incx, const T* beta, T* y, const int* incy) { \
    if (const int place = orb::bad_gemv(trans, *m, *n, *lda, *incx, *incy)) return refuse(NAME, place);   \
    orb::Gemv<entry>::run(trans, m, n, alpha, a, lda, x, incx, beta, y, incy);                            \
  }
GEMV(sgemv_, "SGEMV ", orb_blas_xsgemv, float)
GEMV(dgemv_, "DGEMV ", orb_blas_xdgemv, double)
GEMV(cgemv_, "CGEMV ", orb_blas_xcgemv, c32)
GEMV(zgemv_, "ZGEMV ", orb_blas_xzgemv, c64)

// Called by kernels: edge columns of products, steps of triangular solves.
#define UPWARD_GEMV(name, entry, T)                                                                       \
  ORB_FACE void name(const char* trans, const int* m, const int* n, const T* alpha, const T* a,           \
                     const int* lda, const T* x, const int* incx, const T* beta, T* y, const int* incy) { \
    orb::Gemv<entry>::run(trans, m, n, alpha, a, lda, x, incx, beta, y, incy);                            \
  }
UPWARD_GEMV(orb_blas_sgemv, orb_blas_xsgemv, float)
UPWARD_GEMV(orb_blas_dgemv, orb_blas_xdgemv, double)
UPWARD_GEMV(orb_blas_cgemv, orb_blas_xcgemv, c32)
UPWARD_GEMV(orb_blas_zgemv, orb_blas_xzgemv, c64)

#define GBMV(name, NAME, entry, T)                                                                           \
  ORB_FACE void name(const char* trans, const int* m, const int* n, const int* kl, const int* ku,            \
                     const T* alpha, const T* a, const int* lda, const T* x, const int* incx, const T* beta, \
                     T* y, const int* incy) {                                                                \
    if (const int place = orb::bad_gbmv(trans, *m, *n, *kl, *ku, *lda, *incx, *incy))                        \
      return refuse(NAME, place);                                                                            \
    call<entry>(trans, m, n, kl, ku, alpha, a, lda, x, incx, beta, y, incy);                                 \
  }
GBMV(sgbmv_, "SGBMV ", orb_blas_sgbmv, float)
GBMV(dgbmv_, "DGBMV ", orb_blas_dgbmv, double)
GBMV(cgbmv_, "CGBMV ", orb_blas_cgbmv, c32)
GBMV(zgbmv_, "ZGBMV ", orb_blas_zgbmv, c64)

#define GER(name, NAME, entry, T)                                                                         \
  ORB_FACE void name(const int* m, const int* n, const T* alpha, const T* x, const int* incx, const T* y, \
                     const int* incy, T* a, const int* lda) {                                             \
    if (const int place = orb::bad_ger(*m, *n, *incx, *incy, *lda)) return refuse(NAME, place);           \
    orb::Ger<entry>::run(m, n, alpha, x, incx, y, incy, a, lda);                                          \
  }
GER(sger_, "SGER  ", orb_blas_sger, float)
GER(dger_, "DGER  ", orb_blas_dger, double)
GER(cgeru_, "CGERU ", orb_blas_cgeru, c32)
GER(zgeru_, "ZGERU ", orb_blas_zgeru, c64)
GER(cgerc_, "CGERC ", orb_blas_cgerc, c32)
GER(zgerc_, "ZGERC ", orb_blas_zgerc, c64)
