// C faces of the matrix products. A row-major product is the column-major product of the transposes, read off
// the same memory: C^T = op(B)^T op(A)^T.
#include "outer/blas/gemm.h"

#include <utility>

#include "outer/blas/checks.h"
#include "outer/blas/gemmt.h"
#include "outer/cblas/arguments.h"

namespace orb {
namespace {

constexpr const char *bad_transa = "Illegal TransA setting, %d\n",
                     *bad_transb = "Illegal TransB setting, %d\n";

template <auto* entry, class T>
ORB_INLINE void cblas_gemm(const char* name, CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa,
                           CBLAS_TRANSPOSE transb, int m, int n, int k, T alpha, const T* a, int lda,
                           const T* b, int ldb, T beta, T* c, int ldc) {
  Options options(name, layout);
  char opa = options.transpose(transa, 2, bad_transa), opb = options.transpose(transb, 3, bad_transb);
  if (options.refused()) return;
  if (options.row_major) {
    std::swap(opa, opb);
    std::swap(m, n);
    std::swap(a, b);
    std::swap(lda, ldb);
  }
  if (options.refused(bad_gemm(&opa, &opb, m, n, k, lda, ldb, ldc))) return;
  Gemm<entry>::run(&opa, &opb, &m, &n, &k, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);
}

template <class T>
ORB_INLINE void cblas_gemmt(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                            CBLAS_TRANSPOSE transb, int n, int k, T alpha, const T* a, int lda, const T* b,
                            int ldb, T beta, T* c, int ldc) {
  Options options(name, layout);
  char triangle = options.triangle(uplo, 2);
  char opa = options.transpose(transa, 3, bad_transa), opb = options.transpose(transb, 4, bad_transb);
  if (options.refused()) return;
  if (options.row_major) {
    triangle = other_triangle(triangle);
    std::swap(opa, opb);
    std::swap(a, b);
    std::swap(lda, ldb);
  }
  if (options.refused(bad_gemmt(&triangle, &opa, &opb, n, k, lda, ldb, ldc))) return;
  TriangularProduct<T>{&triangle, &opa, &opb, &n, &k, &alpha, a, &lda, b, &ldb, &beta, c, &ldc}.run();
}

}  // namespace
}  // namespace orb

#define CBLAS_GEMM(name, entry, S, V, T)                                                                     \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n,    \
                       int k, S alpha, const V* a, int lda, const V* b, int ldb, S beta, V* c, int ldc) {    \
    orb::cblas_gemm<entry>(#name, layout, transa, transb, m, n, k, orb::value<T>(alpha), orb::as<T>(a), lda, \
                           orb::as<T>(b), ldb, orb::value<T>(beta), orb::as<T>(c), ldc);                     \
  }
CBLAS_GEMM(cblas_sgemm, orb_blas_xsgemm, float, float, float)
CBLAS_GEMM(cblas_dgemm, orb_blas_xdgemm, double, double, double)
CBLAS_GEMM(cblas_cgemm, orb_blas_xcgemm, const void*, void, orb::c32)
CBLAS_GEMM(cblas_zgemm, orb_blas_xzgemm, const void*, void, orb::c64)
CBLAS_GEMM(cblas_cgemm3m, orb_blas_xcgemm3m, const void*, void, orb::c32)
CBLAS_GEMM(cblas_zgemm3m, orb_blas_xzgemm3m, const void*, void, orb::c64)

#define CBLAS_GEMMT(name, S, V, T)                                                                           \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, \
                       int n, int k, S alpha, const V* a, int lda, const V* b, int ldb, S beta, V* c,        \
                       int ldc) {                                                                            \
    orb::cblas_gemmt(#name, layout, uplo, transa, transb, n, k, orb::value<T>(alpha), orb::as<T>(a), lda,    \
                     orb::as<T>(b), ldb, orb::value<T>(beta), orb::as<T>(c), ldc);                           \
  }
CBLAS_GEMMT(cblas_sgemmt, float, float, float)
CBLAS_GEMMT(cblas_dgemmt, double, double, double)
CBLAS_GEMMT(cblas_cgemmt, const void*, void, orb::c32)
CBLAS_GEMMT(cblas_zgemmt, const void*, void, orb::c64)
