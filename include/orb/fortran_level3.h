/** @file
 *  Matrix-matrix routines of the Fortran BLAS. Part of orb/blas.h; matrices, letters and bad arguments as in
 *  orb/fortran_level2.h.
 *
 *  beta == 0 does not read C; alpha == 0 reads neither A nor B. Nothing is touched for m == 0 or n == 0, nor for
 *  beta == 1 with alpha == 0 or k == 0.
 *
 *  Large products are divided among threads (orb_set_num_threads()). The result has the same bits for every
 *  number of threads.
 */
#ifndef ORB_FORTRAN_LEVEL3_H
#define ORB_FORTRAN_LEVEL3_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/* General products */

/** @{ */
/** C = alpha op(A) op(B) + beta C; op(A) m by k, op(B) k by n, C m by n. */
void sgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k,
            const float* alpha, const float* a, const int* lda, const float* b, const int* ldb,
            const float* beta, float* c, const int* ldc);
void dgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k,
            const double* alpha, const double* a, const int* lda, const double* b, const int* ldb,
            const double* beta, double* c, const int* ldc);
void cgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k,
            const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
            const orb_complex_float* b, const int* ldb, const orb_complex_float* beta, orb_complex_float* c,
            const int* ldc);
void zgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k,
            const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
            const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
            orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** The same by three real products instead of four: faster, with an error bound for the matrix as a whole and
 *  not for each element (Higham, Accuracy and Stability of Numerical Algorithms, 2002, section 23.2.4). */
void cgemm3m_(const char* transa, const char* transb, const int* m, const int* n, const int* k,
              const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
              const orb_complex_float* b, const int* ldb, const orb_complex_float* beta, orb_complex_float* c,
              const int* ldc);
void zgemm3m_(const char* transa, const char* transb, const int* m, const int* n, const int* k,
              const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
              const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
              orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** The same for the triangle of C that uplo tells, C n by n; the other one is not touched. */
void sgemmt_(const char* uplo, const char* transa, const char* transb, const int* n, const int* k,
             const float* alpha, const float* a, const int* lda, const float* b, const int* ldb,
             const float* beta, float* c, const int* ldc);
void dgemmt_(const char* uplo, const char* transa, const char* transb, const int* n, const int* k,
             const double* alpha, const double* a, const int* lda, const double* b, const int* ldb,
             const double* beta, double* c, const int* ldc);
void cgemmt_(const char* uplo, const char* transa, const char* transb, const int* n, const int* k,
             const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
             const orb_complex_float* b, const int* ldb, const orb_complex_float* beta, orb_complex_float* c,
             const int* ldc);
void zgemmt_(const char* uplo, const char* transa, const char* transb, const int* n, const int* k,
             const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
             const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
             orb_complex_double* c, const int* ldc);
/** @} */

/* Symmetric and Hermitian matrices */

/** @{ */
/** C = alpha A B + beta C (side `L`) or alpha B A + beta C (side `R`); A symmetric (`sy`) or Hermitian (`he`), B and
 *  C m by n. */
void ssymm_(const char* side, const char* uplo, const int* m, const int* n, const float* alpha,
            const float* a, const int* lda, const float* b, const int* ldb, const float* beta, float* c,
            const int* ldc);
void dsymm_(const char* side, const char* uplo, const int* m, const int* n, const double* alpha,
            const double* a, const int* lda, const double* b, const int* ldb, const double* beta, double* c,
            const int* ldc);
void csymm_(const char* side, const char* uplo, const int* m, const int* n, const orb_complex_float* alpha,
            const orb_complex_float* a, const int* lda, const orb_complex_float* b, const int* ldb,
            const orb_complex_float* beta, orb_complex_float* c, const int* ldc);
void zsymm_(const char* side, const char* uplo, const int* m, const int* n, const orb_complex_double* alpha,
            const orb_complex_double* a, const int* lda, const orb_complex_double* b, const int* ldb,
            const orb_complex_double* beta, orb_complex_double* c, const int* ldc);
void chemm_(const char* side, const char* uplo, const int* m, const int* n, const orb_complex_float* alpha,
            const orb_complex_float* a, const int* lda, const orb_complex_float* b, const int* ldb,
            const orb_complex_float* beta, orb_complex_float* c, const int* ldc);
void zhemm_(const char* side, const char* uplo, const int* m, const int* n, const orb_complex_double* alpha,
            const orb_complex_double* a, const int* lda, const orb_complex_double* b, const int* ldb,
            const orb_complex_double* beta, orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** C = alpha A A^T + beta C (trans `N`, A n by k) or alpha A^T A + beta C (`T`, A k by n); `herk`: A^H for A^T (`C`),
 *  alpha and beta real. C n by n, one triangle. */
void ssyrk_(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
            const float* a, const int* lda, const float* beta, float* c, const int* ldc);
void dsyrk_(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
            const double* a, const int* lda, const double* beta, double* c, const int* ldc);
void csyrk_(const char* uplo, const char* trans, const int* n, const int* k, const orb_complex_float* alpha,
            const orb_complex_float* a, const int* lda, const orb_complex_float* beta, orb_complex_float* c,
            const int* ldc);
void zsyrk_(const char* uplo, const char* trans, const int* n, const int* k, const orb_complex_double* alpha,
            const orb_complex_double* a, const int* lda, const orb_complex_double* beta,
            orb_complex_double* c, const int* ldc);
void cherk_(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
            const orb_complex_float* a, const int* lda, const float* beta, orb_complex_float* c,
            const int* ldc);
void zherk_(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
            const orb_complex_double* a, const int* lda, const double* beta, orb_complex_double* c,
            const int* ldc);
/** @} */

/** @{ */
/** C = alpha A B^T + alpha B A^T + beta C, or with A^T B and B^T A (trans `T`); `her2k`: alpha A B^H + conj(alpha) B
 *  A^H, beta real. C n by n, one triangle. */
void ssyr2k_(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
             const float* a, const int* lda, const float* b, const int* ldb, const float* beta, float* c,
             const int* ldc);
void dsyr2k_(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
             const double* a, const int* lda, const double* b, const int* ldb, const double* beta, double* c,
             const int* ldc);
void csyr2k_(const char* uplo, const char* trans, const int* n, const int* k, const orb_complex_float* alpha,
             const orb_complex_float* a, const int* lda, const orb_complex_float* b, const int* ldb,
             const orb_complex_float* beta, orb_complex_float* c, const int* ldc);
void zsyr2k_(const char* uplo, const char* trans, const int* n, const int* k, const orb_complex_double* alpha,
             const orb_complex_double* a, const int* lda, const orb_complex_double* b, const int* ldb,
             const orb_complex_double* beta, orb_complex_double* c, const int* ldc);
void cher2k_(const char* uplo, const char* trans, const int* n, const int* k, const orb_complex_float* alpha,
             const orb_complex_float* a, const int* lda, const orb_complex_float* b, const int* ldb,
             const float* beta, orb_complex_float* c, const int* ldc);
void zher2k_(const char* uplo, const char* trans, const int* n, const int* k, const orb_complex_double* alpha,
             const orb_complex_double* a, const int* lda, const orb_complex_double* b, const int* ldb,
             const double* beta, orb_complex_double* c, const int* ldc);
/** @} */

/* Triangular matrices */

/** @{ */
/** B = alpha op(A) B (side `L`) or alpha B op(A) (side `R`); B m by n. */
void strmm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const float* alpha, const float* a, const int* lda, float* b, const int* ldb);
void dtrmm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const double* alpha, const double* a, const int* lda, double* b, const int* ldb);
void ctrmm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
            orb_complex_float* b, const int* ldb);
void ztrmm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
            orb_complex_double* b, const int* ldb);
/** @} */

/** @{ */
/** B = alpha op(A)^-1 B or alpha B op(A)^-1. No check for a zero on the diagonal. */
void strsm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const float* alpha, const float* a, const int* lda, float* b, const int* ldb);
void dtrsm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const double* alpha, const double* a, const int* lda, double* b, const int* ldb);
void ctrsm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
            orb_complex_float* b, const int* ldb);
void ztrsm_(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
            const int* n, const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
            orb_complex_double* b, const int* ldb);
/** @} */

ORB_END_DECLS

#endif
