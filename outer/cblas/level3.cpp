// C faces of the symmetric, Hermitian and triangular matrix-matrix routines. A row-major call is the
// column-major call on the transposes: sides, triangles, m and n change places; A^T of syrk becomes A and the
// other way round; her2k's two products change places, and with them alpha and its conjugate.
#include <utility>

#include "outer/blas/checks.h"
#include "outer/blas/level3_work.h"
#include "outer/cblas/arguments.h"

namespace orb {
namespace {

template <auto* entry, class T>
ORB_INLINE void cblas_symm(const char* name, CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m,
                           int n, T alpha, const T* a, int lda, const T* b, int ldb, T beta, T* c, int ldc) {
  Options options(name, layout);
  char at = options.side(side, 2), triangle = options.triangle(uplo, 3);
  if (options.refused()) return;
  if (options.row_major) {
    at = other_side(at);
    triangle = other_triangle(triangle);
    std::swap(m, n);
  }
  if (options.refused(bad_symm(&at, &triangle, m, n, lda, ldb, ldc))) return;
  Symm<entry>::run(&at, &triangle, &m, &n, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);
}

// The letter of a rank-k update in column-major order. `turned` is the one that is no 'N'. What the routine
// does not know stays as it is, for the check to find.
ORB_INLINE char rank_k_letter(bool row_major, char trans, char turned) {
  return !row_major ? trans : trans == 'N' ? turned : trans == turned || turned == 'T' ? 'N' : trans;
}

template <auto* whole, auto* part, bool hermitian, class S, class T>
ORB_INLINE void cblas_syrk(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans,
                           int n, int k, S alpha, const T* a, int lda, S beta, T* c, int ldc) {
  Options options(name, layout);
  char triangle = options.triangle(uplo, 2), op = options.transpose(trans, 3);
  if (options.refused()) return;
  const bool good = hermitian ? is_hermitian_transpose(&op) : is_symmetric_transpose<T>(&op);
  if (options.row_major) {
    triangle = other_triangle(triangle);
    op = rank_k_letter(true, op, hermitian ? 'C' : 'T');
  }
  if (options.refused(bad_syrk(&triangle, &op, good, n, k, lda, ldc))) return;
  update<T, whole, part>(&triangle, &op, &n, &k, &alpha, a, &lda, &beta, c, &ldc);
}

template <auto* whole, auto* part, bool hermitian, class S, class T>
ORB_INLINE void cblas_syr2k(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans,
                            int n, int k, T alpha, const T* a, int lda, const T* b, int ldb, S beta, T* c,
                            int ldc) {
  Options options(name, layout);
  char triangle = options.triangle(uplo, 2), op = options.transpose(trans, 3);
  if (options.refused()) return;
  const bool good = hermitian ? is_hermitian_transpose(&op) : is_symmetric_transpose<T>(&op);
  if (options.row_major) {
    triangle = other_triangle(triangle);
    op = rank_k_letter(true, op, hermitian ? 'C' : 'T');
    if constexpr (hermitian) alpha = conj(alpha);
  }
  if (options.refused(bad_syr2k(&triangle, &op, good, n, k, lda, ldb, ldc))) return;
  update<T, whole, part>(&triangle, &op, &n, &k, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);
}

template <auto* entry, class T>
ORB_INLINE void cblas_trmm(const char* name, CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo,
                           CBLAS_TRANSPOSE transa, CBLAS_DIAG diag, int m, int n, T alpha, const T* a,
                           int lda, T* b, int ldb) {
  Options options(name, layout);
  char at = options.side(side, 2), triangle = options.triangle(uplo, 3);
  const char op = options.transpose(transa, 4), diagonal = options.diagonal(diag, 5);
  if (options.refused()) return;
  if (options.row_major) {
    at = other_side(at);
    triangle = other_triangle(triangle);
    std::swap(m, n);
  }
  if (options.refused(bad_trmm(&at, &triangle, &op, &diagonal, m, n, lda, ldb))) return;
  Trmm<entry>::run(&at, &triangle, &op, &diagonal, &m, &n, &alpha, a, &lda, b, &ldb);
}

}  // namespace
}  // namespace orb

#define CBLAS_SYMM(name, entry, S, V, T)                                                              \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m, int n, S alpha,  \
                       const V* a, int lda, const V* b, int ldb, S beta, V* c, int ldc) {             \
    orb::cblas_symm<entry>(#name, layout, side, uplo, m, n, orb::value<T>(alpha), orb::as<T>(a), lda, \
                           orb::as<T>(b), ldb, orb::value<T>(beta), orb::as<T>(c), ldc);              \
  }
CBLAS_SYMM(cblas_ssymm, orb_blas_xssymm, float, float, float)
CBLAS_SYMM(cblas_dsymm, orb_blas_xdsymm, double, double, double)
CBLAS_SYMM(cblas_csymm, orb_blas_xcsymm, const void*, void, orb::c32)
CBLAS_SYMM(cblas_zsymm, orb_blas_xzsymm, const void*, void, orb::c64)
CBLAS_SYMM(cblas_chemm, orb_blas_xchemm, const void*, void, orb::c32)
CBLAS_SYMM(cblas_zhemm, orb_blas_xzhemm, const void*, void, orb::c64)

// S is the type of alpha and beta, R their type in the kernel.
#define CBLAS_SYRK(name, whole, part, hermitian, S, R, V, T)                                               \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, S alpha, \
                       const V* a, int lda, S beta, V* c, int ldc) {                                       \
    orb::cblas_syrk<whole, part, hermitian>(#name, layout, uplo, trans, n, k, orb::value<R>(alpha),        \
                                            orb::as<T>(a), lda, orb::value<R>(beta), orb::as<T>(c), ldc);  \
  }
CBLAS_SYRK(cblas_ssyrk, orb_blas_xssyrk, orb_blas_ssyrk_part, false, float, float, float, float)
CBLAS_SYRK(cblas_dsyrk, orb_blas_xdsyrk, orb_blas_dsyrk_part, false, double, double, double, double)
CBLAS_SYRK(cblas_csyrk, orb_blas_xcsyrk, orb_blas_csyrk_part, false, const void*, orb::c32, void, orb::c32)
CBLAS_SYRK(cblas_zsyrk, orb_blas_xzsyrk, orb_blas_zsyrk_part, false, const void*, orb::c64, void, orb::c64)
CBLAS_SYRK(cblas_cherk, orb_blas_xcherk, orb_blas_cherk_part, true, float, float, void, orb::c32)
CBLAS_SYRK(cblas_zherk, orb_blas_xzherk, orb_blas_zherk_part, true, double, double, void, orb::c64)

// A is the type of alpha, B that of beta and R that of beta in the kernel.
#define CBLAS_SYR2K(name, whole, part, hermitian, A, B, R, V, T)                                           \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, A alpha, \
                       const V* a, int lda, const V* b, int ldb, B beta, V* c, int ldc) {                  \
    orb::cblas_syr2k<whole, part, hermitian>(#name, layout, uplo, trans, n, k, orb::value<T>(alpha),       \
                                             orb::as<T>(a), lda, orb::as<T>(b), ldb, orb::value<R>(beta),  \
                                             orb::as<T>(c), ldc);                                          \
  }
CBLAS_SYR2K(cblas_ssyr2k, orb_blas_xssyr2k, orb_blas_ssyr2k_part, false, float, float, float, float, float)
CBLAS_SYR2K(cblas_dsyr2k, orb_blas_xdsyr2k, orb_blas_dsyr2k_part, false, double, double, double, double,
            double)
CBLAS_SYR2K(cblas_csyr2k, orb_blas_xcsyr2k, orb_blas_csyr2k_part, false, const void*, const void*, orb::c32,
            void, orb::c32)
CBLAS_SYR2K(cblas_zsyr2k, orb_blas_xzsyr2k, orb_blas_zsyr2k_part, false, const void*, const void*, orb::c64,
            void, orb::c64)
CBLAS_SYR2K(cblas_cher2k, orb_blas_xcher2k, orb_blas_cher2k_part, true, const void*, float, float, void,
            orb::c32)
CBLAS_SYR2K(cblas_zher2k, orb_blas_xzher2k, orb_blas_zher2k_part, true, const void*, double, double, void,
            orb::c64)

#define CBLAS_TRMM(name, entry, S, V, T)                                                              \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa, \
                       CBLAS_DIAG diag, int m, int n, S alpha, const V* a, int lda, V* b, int ldb) {  \
    orb::cblas_trmm<entry>(#name, layout, side, uplo, transa, diag, m, n, orb::value<T>(alpha),       \
                           orb::as<T>(a), lda, orb::as<T>(b), ldb);                                   \
  }
CBLAS_TRMM(cblas_strmm, orb_blas_xstrmm, float, float, float)
CBLAS_TRMM(cblas_dtrmm, orb_blas_xdtrmm, double, double, double)
CBLAS_TRMM(cblas_ctrmm, orb_blas_xctrmm, const void*, void, orb::c32)
CBLAS_TRMM(cblas_ztrmm, orb_blas_xztrmm, const void*, void, orb::c64)
CBLAS_TRMM(cblas_strsm, orb_blas_xstrsm, float, float, float)
CBLAS_TRMM(cblas_dtrsm, orb_blas_xdtrsm, double, double, double)
CBLAS_TRMM(cblas_ctrsm, orb_blas_xctrsm, const void*, void, orb::c32)
CBLAS_TRMM(cblas_ztrsm, orb_blas_xztrsm, const void*, void, orb::c64)
