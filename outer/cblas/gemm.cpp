// cblas_sgemm and cblas_dgemm. A row-major product is the column-major product of the transposes, read off
// the same memory: C^T = op(B)^T op(A)^T.
#include "outer/blas/gemm.h"
#include "orb/cblas.h"

#include <utility>

namespace orb {
namespace {

char letter(CBLAS_TRANSPOSE t) {
  return t == CblasNoTrans ? 'N' : t == CblasTrans ? 'T' : t == CblasConjTrans ? 'C' : 0;
}

// The caller's count of a bad argument that the column-major check found at `place`. The layout is one
// argument more; after the exchange m stands for n and A for B.
int callers_place(bool row_major, int place) {
  if (row_major) switch (place) {
      case 3:
        return 5;
      case 4:
        return 4;
      case 8:
        return 11;
      case 10:
        return 9;
    }
  return place + 1;
}

template <class T>
ORB_INLINE void cblas_gemm(const char* name, CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa,
                           CBLAS_TRANSPOSE transb, int m, int n, int k, T alpha, const T* a, int lda,
                           const T* b, int ldb, T beta, T* c, int ldc) {
  const bool row_major = layout == CblasRowMajor;
  if (!row_major && layout != CblasColMajor)
    return cblas_xerbla(1, name, "Illegal layout setting, %d\n", int(layout));
  char opa = letter(transa), opb = letter(transb);
  if (!opa) return cblas_xerbla(2, name, "Illegal TransA setting, %d\n", int(transa));
  if (!opb) return cblas_xerbla(3, name, "Illegal TransB setting, %d\n", int(transb));
  if (row_major) {
    std::swap(opa, opb);
    std::swap(m, n);
    std::swap(a, b);
    std::swap(lda, ldb);
  }
  if (const int place = bad_gemm_argument(&opa, &opb, m, n, k, lda, ldb, ldc))
    return cblas_xerbla(callers_place(row_major, place), name, "");
  gemm(&opa, &opb, &m, &n, &k, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);
}

}  // namespace
}  // namespace orb

#define CBLAS_GEMM(name, T)                                                                               \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n, \
                       int k, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc) { \
    orb::cblas_gemm(#name, layout, transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);         \
  }
CBLAS_GEMM(cblas_sgemm, float)
CBLAS_GEMM(cblas_dgemm, double)
