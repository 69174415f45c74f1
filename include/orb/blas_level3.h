/** @file
 *  Level-3 kernels of liborb_t7.so beside the real products: complex and mixed matrix products, and the
 *  products and updates with symmetric and Hermitian matrices. All arguments by reference; nothing is
 *  checked. Column-major, leading dimensions in elements. Option letters in either case.
 *
 *  In a complex routine C or c in a transpose argument takes the conjugate transpose, any other letter but N
 *  or n the transpose; in a real routine every letter but N or n is the transpose. A triangle argument U or u
 *  names the upper triangle, any other letter the lower one; a side argument L or l the left, any other the
 *  right. The other triangle of a symmetric or Hermitian matrix is neither read nor written. beta == 0 does
 *  not read C. C may not overlap the other matrices.
 */
#ifndef ORB_BLAS_LEVEL3_H
#define ORB_BLAS_LEVEL3_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/* Complex products */

/** @{ */
/** C = alpha op(A) op(B) + beta C, op(A) m by k, op(B) k by n, C m by n. m <= 0 or n <= 0 returns at once;
 *  alpha == 0 or k <= 0 does not read A and B, and with beta == 1 touches nothing. Scratch is one block of
 *  orb_serv_allocate() at alignment 128, none where op(A) is small: m min(k, 128) numbers within 16 KiB.
 *
 *  The terms come in slices of 128 in rising k. Within a slice an element is two running sums in rising k,
 *  of products with the real and with the imaginary part of op(B); the two are joined, multiplied by alpha
 *  and added to beta C, or to C after the first slice. So the bits of an element do not depend on how the
 * rows and columns of C are divided among calls. The one exception: if m, n and k are all 64 or more and B is
 * not conjugated, `xzgemm` makes one call of the upward orb_blas_zgemv() for each of the last n mod 3
 * columns; such a product is to be divided at columns that are multiples of 3, into pieces of 64 and more.
 *
 *  Columns are taken 240 at a time, by `xcgemm` 480 if orb_serv_l2cache() is 3.
 *
 *  Source: K. Goto, R. van de Geijn, Anatomy of high-performance matrix multiplication, ACM TOMS 34 (2008).
 * */
void orb_blas_xcgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                     const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                     const orb_complex_float* b, const int* ldb, const orb_complex_float* beta,
                     orb_complex_float* c, const int* ldc);
void orb_blas_xzgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                     const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                     const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
                     orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** The same by three real products instead of four: Ar Br, Ai Bi and (Ar + Ai) (Br + Bi). Faster for large
 *  matrices; with fewer than 64 rows, columns or terms it is the plain product. The error is bounded relative
 *  to the moduli |A| |B|, not for each part by itself: a small imaginary part beside a large real one may
 * lose its digits.
 *
 *  Source: N. J. Higham, Accuracy and Stability of Numerical Algorithms, 2nd ed., SIAM (2002), section
 *  23.2.4. */
void orb_blas_xcgemm3m(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                       const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                       const orb_complex_float* b, const int* ldb, const orb_complex_float* beta,
                       orb_complex_float* c, const int* ldc);
void orb_blas_xzgemm3m(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                       const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                       const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
                       orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** C = alpha op(A) op(B) + beta C with a real A and complex B and C, shapes and quick returns as in
 *  orb_blas_xzgemm(). Half the work of the complex product. */
void orb_blas_xscgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                      const orb_complex_float* alpha, const float* a, const int* lda,
                      const orb_complex_float* b, const int* ldb, const orb_complex_float* beta,
                      orb_complex_float* c, const int* ldc);
void orb_blas_xdzgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                      const orb_complex_double* alpha, const double* a, const int* lda,
                      const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
                      orb_complex_double* c, const int* ldc);
/** @} */

/* Products with a symmetric or Hermitian matrix */

/** @{ */
/** C = alpha A B + beta C (side L, A symmetric, m by m) or C = alpha B A + beta C (side R, A n by n); B and C
 *  are m by n. `uplo` tells which triangle of A is stored. m <= 0 or n <= 0 returns at once; alpha == 0 does
 *  not read A and B, and with beta == 1 touches nothing. Scratch: one block of orb_serv_allocate() at
 *  alignment 64 for a diagonal block of A in full, of at most 256 rows, beside that of the products; for an A
 *  of at most 32 rows none where B is small. */
void orb_blas_xssymm(const char* side, const char* uplo, const int* m, const int* n, const float* alpha,
                     const float* a, const int* lda, const float* b, const int* ldb, const float* beta,
                     float* c, const int* ldc);
void orb_blas_xdsymm(const char* side, const char* uplo, const int* m, const int* n, const double* alpha,
                     const double* a, const int* lda, const double* b, const int* ldb, const double* beta,
                     double* c, const int* ldc);
void orb_blas_xcsymm(const char* side, const char* uplo, const int* m, const int* n,
                     const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                     const orb_complex_float* b, const int* ldb, const orb_complex_float* beta,
                     orb_complex_float* c, const int* ldc);
void orb_blas_xzsymm(const char* side, const char* uplo, const int* m, const int* n,
                     const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                     const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
                     orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** The same with a Hermitian A, whose diagonal is taken as real: its imaginary parts are not read. */
void orb_blas_xchemm(const char* side, const char* uplo, const int* m, const int* n,
                     const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                     const orb_complex_float* b, const int* ldb, const orb_complex_float* beta,
                     orb_complex_float* c, const int* ldc);
void orb_blas_xzhemm(const char* side, const char* uplo, const int* m, const int* n,
                     const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                     const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
                     orb_complex_double* c, const int* ldc);
/** @} */

/* Updates of a symmetric or Hermitian matrix */

/** @{ */
/** C = alpha A A^T + beta C (`trans` N, A n by k) or C = alpha A^T A + beta C (otherwise, A k by n), C
 *  symmetric, n by n, of which the triangle `uplo` is updated. n <= 0 returns at once, and so does beta == 1
 *  with alpha == 0 or k <= 0; alpha == 0 does not read A. Scratch: one block of orb_serv_allocate() at
 *  alignment 64, none where op(A) is small: n min(k, 128) numbers within 16 KiB.
 *
 *  The terms of an element are summed in slices of 128 in rising k as in orb_blas_xzgemm(), a real element in
 *  one running sum: its bits depend neither on n nor on the triangle. */
void orb_blas_xssyrk(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
                     const float* a, const int* lda, const float* beta, float* c, const int* ldc);
void orb_blas_xdsyrk(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
                     const double* a, const int* lda, const double* beta, double* c, const int* ldc);
void orb_blas_xcsyrk(const char* uplo, const char* trans, const int* n, const int* k,
                     const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                     const orb_complex_float* beta, orb_complex_float* c, const int* ldc);
void orb_blas_xzsyrk(const char* uplo, const char* trans, const int* n, const int* k,
                     const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                     const orb_complex_double* beta, orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** C = alpha A A^H + beta C (`trans` N, A n by k) or C = alpha A^H A + beta C (otherwise, A k by n) with real
 *  alpha and beta, C Hermitian; else as orb_blas_xzsyrk(). The imaginary parts of C's diagonal are not read,
 *  and are 0 afterwards unless the call returned at once. */
void orb_blas_xcherk(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
                     const orb_complex_float* a, const int* lda, const float* beta, orb_complex_float* c,
                     const int* ldc);
void orb_blas_xzherk(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
                     const orb_complex_double* a, const int* lda, const double* beta, orb_complex_double* c,
                     const int* ldc);
/** @} */

/** @{ */
/** C = alpha A B^T + alpha B A^T + beta C (`trans` N, A and B n by k) or C = alpha A^T B + alpha B^T A +
 *  beta C (otherwise, A and B k by n), C symmetric; else as orb_blas_xdsyrk(), first with the one product and
 *  then with the other. */
void orb_blas_xssyr2k(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
                      const float* a, const int* lda, const float* b, const int* ldb, const float* beta,
                      float* c, const int* ldc);
void orb_blas_xdsyr2k(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
                      const double* a, const int* lda, const double* b, const int* ldb, const double* beta,
                      double* c, const int* ldc);
void orb_blas_xcsyr2k(const char* uplo, const char* trans, const int* n, const int* k,
                      const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                      const orb_complex_float* b, const int* ldb, const orb_complex_float* beta,
                      orb_complex_float* c, const int* ldc);
void orb_blas_xzsyr2k(const char* uplo, const char* trans, const int* n, const int* k,
                      const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                      const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
                      orb_complex_double* c, const int* ldc);
/** @} */

/** @{ */
/** C = alpha A B^H + conj(alpha) B A^H + beta C (`trans` N, A and B n by k) or C = alpha A^H B + conj(alpha)
 *  B^H A + beta C (otherwise, A and B k by n) with a real beta, C Hermitian; else as orb_blas_xzherk(). */
void orb_blas_xcher2k(const char* uplo, const char* trans, const int* n, const int* k,
                      const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                      const orb_complex_float* b, const int* ldb, const float* beta, orb_complex_float* c,
                      const int* ldc);
void orb_blas_xzher2k(const char* uplo, const char* trans, const int* n, const int* k,
                      const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                      const orb_complex_double* b, const int* ldb, const double* beta, orb_complex_double* c,
                      const int* ldc);
/** @} */

/** @{ */
/** The same updates of *count columns of C from column *first on, a multiple of 48, for a caller that divides
 * the work: parts that make up all columns give the bits of the whole. */
void orb_blas_ssyrk_part(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
                         const float* a, const int* lda, const float* beta, float* c, const int* ldc,
                         const int* first, const int* count);
void orb_blas_dsyrk_part(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
                         const double* a, const int* lda, const double* beta, double* c, const int* ldc,
                         const int* first, const int* count);
void orb_blas_csyrk_part(const char* uplo, const char* trans, const int* n, const int* k,
                         const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                         const orb_complex_float* beta, orb_complex_float* c, const int* ldc,
                         const int* first, const int* count);
void orb_blas_zsyrk_part(const char* uplo, const char* trans, const int* n, const int* k,
                         const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                         const orb_complex_double* beta, orb_complex_double* c, const int* ldc,
                         const int* first, const int* count);
void orb_blas_cherk_part(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
                         const orb_complex_float* a, const int* lda, const float* beta, orb_complex_float* c,
                         const int* ldc, const int* first, const int* count);
void orb_blas_zherk_part(const char* uplo, const char* trans, const int* n, const int* k, const double* alpha,
                         const orb_complex_double* a, const int* lda, const double* beta,
                         orb_complex_double* c, const int* ldc, const int* first, const int* count);
void orb_blas_ssyr2k_part(const char* uplo, const char* trans, const int* n, const int* k, const float* alpha,
                          const float* a, const int* lda, const float* b, const int* ldb, const float* beta,
                          float* c, const int* ldc, const int* first, const int* count);
void orb_blas_dsyr2k_part(const char* uplo, const char* trans, const int* n, const int* k,
                          const double* alpha, const double* a, const int* lda, const double* b,
                          const int* ldb, const double* beta, double* c, const int* ldc, const int* first,
                          const int* count);
void orb_blas_csyr2k_part(const char* uplo, const char* trans, const int* n, const int* k,
                          const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                          const orb_complex_float* b, const int* ldb, const orb_complex_float* beta,
                          orb_complex_float* c, const int* ldc, const int* first, const int* count);
void orb_blas_zsyr2k_part(const char* uplo, const char* trans, const int* n, const int* k,
                          const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                          const orb_complex_double* b, const int* ldb, const orb_complex_double* beta,
                          orb_complex_double* c, const int* ldc, const int* first, const int* count);
void orb_blas_cher2k_part(const char* uplo, const char* trans, const int* n, const int* k,
                          const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                          const orb_complex_float* b, const int* ldb, const float* beta, orb_complex_float* c,
                          const int* ldc, const int* first, const int* count);
void orb_blas_zher2k_part(const char* uplo, const char* trans, const int* n, const int* k,
                          const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                          const orb_complex_double* b, const int* ldb, const double* beta,
                          orb_complex_double* c, const int* ldc, const int* first, const int* count);
/** @} */

ORB_END_DECLS

#endif
