/** @file
 *  Matrix-matrix routines of the C BLAS: those of orb/fortran_level3.h with scalars by value and a layout. Part of
 *  orb/cblas.h.
 */
#ifndef ORB_CBLAS_LEVEL3_H
#define ORB_CBLAS_LEVEL3_H

#include "orb/cblas_types.h"

ORB_BEGIN_DECLS

/* General products */

/** @{ */
/** C = alpha op(A) op(B) + beta C; op(A) m by k, op(B) k by n, C m by n. */
void cblas_sgemm(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n, int k,
                 float alpha, const float* a, int lda, const float* b, int ldb, float beta, float* c,
                 int ldc);
void cblas_dgemm(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n, int k,
                 double alpha, const double* a, int lda, const double* b, int ldb, double beta, double* c,
                 int ldc);
void cblas_cgemm(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n, int k,
                 const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta, void* c,
                 int ldc);
void cblas_zgemm(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n, int k,
                 const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta, void* c,
                 int ldc);
/** @} */

/** @{ */
/** The same by three real products instead of four: faster, with an error bound for the matrix as a whole and
 *  not for each element (Higham, Accuracy and Stability of Numerical Algorithms, 2002, section 23.2.4). */
void cblas_cgemm3m(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n, int k,
                   const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta,
                   void* c, int ldc);
void cblas_zgemm3m(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int m, int n, int k,
                   const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta,
                   void* c, int ldc);
/** @} */

/** @{ */
/** The same for the triangle of C that uplo tells, C n by n; the other one is not touched. */
void cblas_sgemmt(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int n,
                  int k, float alpha, const float* a, int lda, const float* b, int ldb, float beta, float* c,
                  int ldc);
void cblas_dgemmt(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int n,
                  int k, double alpha, const double* a, int lda, const double* b, int ldb, double beta,
                  double* c, int ldc);
void cblas_cgemmt(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int n,
                  int k, const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta,
                  void* c, int ldc);
void cblas_zgemmt(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa, CBLAS_TRANSPOSE transb, int n,
                  int k, const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta,
                  void* c, int ldc);
/** @} */

/* Symmetric and Hermitian matrices */

/** @{ */
/** C = alpha A B + beta C (side `L`) or alpha B A + beta C (side `R`); A symmetric (`sy`) or Hermitian (`he`), B and
 *  C m by n. */
void cblas_ssymm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m, int n, float alpha,
                 const float* a, int lda, const float* b, int ldb, float beta, float* c, int ldc);
void cblas_dsymm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m, int n, double alpha,
                 const double* a, int lda, const double* b, int ldb, double beta, double* c, int ldc);
void cblas_csymm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m, int n, const void* alpha,
                 const void* a, int lda, const void* b, int ldb, const void* beta, void* c, int ldc);
void cblas_zsymm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m, int n, const void* alpha,
                 const void* a, int lda, const void* b, int ldb, const void* beta, void* c, int ldc);
void cblas_chemm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m, int n, const void* alpha,
                 const void* a, int lda, const void* b, int ldb, const void* beta, void* c, int ldc);
void cblas_zhemm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, int m, int n, const void* alpha,
                 const void* a, int lda, const void* b, int ldb, const void* beta, void* c, int ldc);
/** @} */

/** @{ */
/** C = alpha A A^T + beta C (trans `N`, A n by k) or alpha A^T A + beta C (`T`, A k by n); `herk`: A^H for A^T (`C`),
 *  alpha and beta real. C n by n, one triangle. */
void cblas_ssyrk(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, float alpha,
                 const float* a, int lda, float beta, float* c, int ldc);
void cblas_dsyrk(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, double alpha,
                 const double* a, int lda, double beta, double* c, int ldc);
void cblas_csyrk(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, const void* alpha,
                 const void* a, int lda, const void* beta, void* c, int ldc);
void cblas_zsyrk(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, const void* alpha,
                 const void* a, int lda, const void* beta, void* c, int ldc);
void cblas_cherk(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, float alpha,
                 const void* a, int lda, float beta, void* c, int ldc);
void cblas_zherk(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, double alpha,
                 const void* a, int lda, double beta, void* c, int ldc);
/** @} */

/** @{ */
/** C = alpha A B^T + alpha B A^T + beta C, or with A^T B and B^T A (trans `T`); `her2k`: alpha A B^H + conj(alpha) B
 *  A^H, beta real. C n by n, one triangle. */
void cblas_ssyr2k(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, float alpha,
                  const float* a, int lda, const float* b, int ldb, float beta, float* c, int ldc);
void cblas_dsyr2k(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k, double alpha,
                  const double* a, int lda, const double* b, int ldb, double beta, double* c, int ldc);
void cblas_csyr2k(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k,
                  const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta,
                  void* c, int ldc);
void cblas_zsyr2k(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k,
                  const void* alpha, const void* a, int lda, const void* b, int ldb, const void* beta,
                  void* c, int ldc);
void cblas_cher2k(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k,
                  const void* alpha, const void* a, int lda, const void* b, int ldb, float beta, void* c,
                  int ldc);
void cblas_zher2k(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, int n, int k,
                  const void* alpha, const void* a, int lda, const void* b, int ldb, double beta, void* c,
                  int ldc);
/** @} */

/* Triangular matrices */

/** @{ */
/** B = alpha op(A) B (side `L`) or alpha B op(A) (side `R`); B m by n. */
void cblas_strmm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, float alpha, const float* a, int lda, float* b, int ldb);
void cblas_dtrmm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, double alpha, const double* a, int lda, double* b, int ldb);
void cblas_ctrmm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, const void* alpha, const void* a, int lda, void* b, int ldb);
void cblas_ztrmm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, const void* alpha, const void* a, int lda, void* b, int ldb);
/** @} */

/** @{ */
/** B = alpha op(A)^-1 B or alpha B op(A)^-1. No check for a zero on the diagonal. */
void cblas_strsm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, float alpha, const float* a, int lda, float* b, int ldb);
void cblas_dtrsm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, double alpha, const double* a, int lda, double* b, int ldb);
void cblas_ctrsm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, const void* alpha, const void* a, int lda, void* b, int ldb);
void cblas_ztrsm(CBLAS_LAYOUT layout, CBLAS_SIDE side, CBLAS_UPLO uplo, CBLAS_TRANSPOSE transa,
                 CBLAS_DIAG diag, int m, int n, const void* alpha, const void* a, int lda, void* b, int ldb);
/** @} */

ORB_END_DECLS

#endif
