// Fortran faces of the matrix products.
#include "outer/blas/gemm.h"

#include "outer/blas/checks.h"
#include "outer/blas/refuse.h"

namespace {
using orb::c32;
using orb::c64;
using orb::refuse;
}  // namespace

#define GEMM(name, NAME, entry, T)                                                                          \
  ORB_FACE void name(const char* transa, const char* transb, const int* m, const int* n, const int* k,      \
                     const T* alpha, const T* a, const int* lda, const T* b, const int* ldb, const T* beta, \
                     T* c, const int* ldc) {                                                                \
    if (const int place = orb::bad_gemm(transa, transb, *m, *n, *k, *lda, *ldb, *ldc))                      \
      return refuse(NAME, place);                                                                           \
    orb::Gemm<entry>::run(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);                    \
  }
GEMM(sgemm_, "SGEMM ", orb_blas_xsgemm, float)
GEMM(dgemm_, "DGEMM ", orb_blas_xdgemm, double)
GEMM(cgemm_, "CGEMM ", orb_blas_xcgemm, c32)
GEMM(zgemm_, "ZGEMM ", orb_blas_xzgemm, c64)
GEMM(cgemm3m_, "CGEMM3M", orb_blas_xcgemm3m, c32)
GEMM(zgemm3m_, "ZGEMM3M", orb_blas_xzgemm3m, c64)
