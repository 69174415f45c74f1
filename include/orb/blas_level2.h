/** @file
 *  Level-2 kernels of liborb_t7.so: matrix and vector. All arguments by reference, no hidden lengths;
 *  nothing is checked.
 *
 *  Matrices are column-major: a(i, j), from 0, stands at a[i + j * lda]. Vectors are as in
 *  orb/blas_level1.h: a pointer and an increment in elements, a negative one walking from the far end.
 *  Addresses need no alignment beyond 4 bytes. Matrices and vectors may not overlap.
 *
 *  Option letters count in either case. trans: N takes op(A) = A, T and C the transpose, which in complex
 *  types C conjugates; any other letter counts as C. uplo: U the upper triangle, any other letter the
 *  lower; the other triangle is neither read nor written. diag: U a unit diagonal, which is not read, any
 *  other letter the stored one. A packed upper triangle has a(i, j) at ap[i + j (j + 1) / 2], a packed
 *  lower one at ap[i - j + j (2 n - j + 1) / 2].
 *
 *  A complex alpha or beta is 0 when both of its parts are, and 1 when they are 1 and 0. Where an order of
 *  operations is told, results follow it to the bit; elsewhere every element is within the usual bound,
 *  (terms + 2) roundings of the sum of the magnitudes, 2 sqrt(2) times that for complex ones. Zero factors
 *  are multiplied like any other: NaN and infinity in A and x reach the result. No scratch memory is used.
 *  Source: J. Dongarra, J. Du Croz, S. Hammarling, R. Hanson, An extended set of Fortran basic linear
 *  algebra subprograms, ACM TOMS 14 (1988) 1-17.
 */
#ifndef ORB_BLAS_LEVEL2_H
#define ORB_BLAS_LEVEL2_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/* General matrices */

/** @{ */
/** y = alpha op(A) x + beta y, A m by n. m == 0, n == 0, and alpha == 0 with beta == 1 return at once;
 *  neither may be negative. y is scaled first, beta == 0 storing zeros without reading; alpha == 0 ends
 *  there, A and x unread.
 *  - N: y[i] takes the products (alpha x[j]) a(i, j) of all columns j one after the other in rising
 *    order, each product and each sum rounded, whatever the strides and alignment.
 *  - T or C: y[j] = sum alpha + y[j]. With both strides 1 the sum starts with the product of row 0. If
 *    nine rows or more follow, those up to the first 16-byte boundary of x + 1 are added to it in turn;
 *    then the other rows go to the lanes of one 16-byte accumulator, of which it is the first lane, the
 *    others starting at 0. The lanes are added (l0 + l1 of doubles, (l0 + l2) + (l1 + l3) of singles),
 *    and what rows are left in turn. Fewer rows, an x that meets no boundary and other strides: one sum
 *    in the order of the rows. */
void orb_blas_xsgemv(const char* trans, const int* m, const int* n, const float* alpha, const float* a,
                     const int* lda, const float* x, const int* incx, const float* beta, float* y,
                     const int* incy);
void orb_blas_xdgemv(const char* trans, const int* m, const int* n, const double* alpha, const double* a,
                     const int* lda, const double* x, const int* incx, const double* beta, double* y,
                     const int* incy);
/** @} */

/** @{ */
/** The same for complex types: y = alpha op(A) x + beta y. Quick returns and scaling are the same; T is
 *  the plain transpose, C and every letter but N and T the conjugate one. The products are those of the
 *  bodies below: the ones for unit strides if incx and incy are both 1. */
void orb_blas_xcgemv(const char* trans, const int* m, const int* n, const orb_complex_float* alpha,
                     const orb_complex_float* a, const int* lda, const orb_complex_float* x, const int* incx,
                     const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void orb_blas_xzgemv(const char* trans, const int* m, const int* n, const orb_complex_double* alpha,
                     const orb_complex_double* a, const int* lda, const orb_complex_double* x,
                     const int* incx, const orb_complex_double* beta, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** y += alpha op(A) x, unit strides: the bodies of the routine above, op the identity (`n`), the
 *  transpose (`t`) or the conjugate transpose (`c`). m <= 0 and n <= 0 do nothing; alpha is not tested.
 *  Two columns a round, then an odd last one.
 *  - `n`: with t = alpha x[j] of both columns, p = t0.re a0 + t1.re a1 and q = t0.im a0 + t1.im a1, both
 *    part by part, y += (p.re - q.im, p.im + q.re).
 *  - `t`, `c`: y[j] += alpha s. One sum takes the products of like parts and one the products of crossed
 *    parts, in rising order of the rows, signs being applied once at the end; singles take the even and
 *    the odd rows apart, the last of an odd count joining the even ones, and add the two. */
void orb_blas_cgemvn(const int* m, const int* n, const orb_complex_float* alpha, const orb_complex_float* a,
                     const int* lda, const orb_complex_float* x, orb_complex_float* y);
void orb_blas_cgemvt(const int* m, const int* n, const orb_complex_float* alpha, const orb_complex_float* a,
                     const int* lda, const orb_complex_float* x, orb_complex_float* y);
void orb_blas_cgemvc(const int* m, const int* n, const orb_complex_float* alpha, const orb_complex_float* a,
                     const int* lda, const orb_complex_float* x, orb_complex_float* y);
void orb_blas_zgemvn(const int* m, const int* n, const orb_complex_double* alpha, const orb_complex_double* a,
                     const int* lda, const orb_complex_double* x, orb_complex_double* y);
void orb_blas_zgemvt(const int* m, const int* n, const orb_complex_double* alpha, const orb_complex_double* a,
                     const int* lda, const orb_complex_double* x, orb_complex_double* y);
void orb_blas_zgemvc(const int* m, const int* n, const orb_complex_double* alpha, const orb_complex_double* a,
                     const int* lda, const orb_complex_double* x, orb_complex_double* y);
/** @} */

/** @{ */
/** The same for any strides. The rounds and products are the same; `t` and `c` have one sum of each kind
 *  for all rows. */
void orb_blas_cgemv_n_any(const int* m, const int* n, const orb_complex_float* alpha,
                          const orb_complex_float* a, const int* lda, const orb_complex_float* x,
                          const int* incx, orb_complex_float* y, const int* incy);
void orb_blas_cgemv_t_any(const int* m, const int* n, const orb_complex_float* alpha,
                          const orb_complex_float* a, const int* lda, const orb_complex_float* x,
                          const int* incx, orb_complex_float* y, const int* incy);
void orb_blas_cgemv_c_any(const int* m, const int* n, const orb_complex_float* alpha,
                          const orb_complex_float* a, const int* lda, const orb_complex_float* x,
                          const int* incx, orb_complex_float* y, const int* incy);
void orb_blas_zgemv_n_any(const int* m, const int* n, const orb_complex_double* alpha,
                          const orb_complex_double* a, const int* lda, const orb_complex_double* x,
                          const int* incx, orb_complex_double* y, const int* incy);
void orb_blas_zgemv_t_any(const int* m, const int* n, const orb_complex_double* alpha,
                          const orb_complex_double* a, const int* lda, const orb_complex_double* x,
                          const int* incx, orb_complex_double* y, const int* incy);
void orb_blas_zgemv_c_any(const int* m, const int* n, const orb_complex_double* alpha,
                          const orb_complex_double* a, const int* lda, const orb_complex_double* x,
                          const int* incx, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** A += alpha x y^T, A m by n. m == 0, n == 0 and alpha == 0 return at once: alpha is 0 when all bits of
 *  it but the sign are. With incx 1 the columns of a pair take one rounded product x[i] (alpha y[j]) and
 *  one rounded sum an element. The last column of an odd n, and all columns for other incx, are updated
 *  by orb_blas_sgerin() or orb_blas_dgerin() with alpha y[j], rounded to the type, as its factor. */
void orb_blas_sger(const int* m, const int* n, const float* alpha, const float* x, const int* incx,
                   const float* y, const int* incy, float* a, const int* lda);
void orb_blas_dger(const int* m, const int* n, const double* alpha, const double* x, const int* incx,
                   const double* y, const int* incy, double* a, const int* lda);
/** @} */

/** @{ */
/** a += alpha x, one column of a rank-1 update, a contiguous. Products and sums are formed on the
 *  floating-point stack and rounded there to its precision; the element is rounded once more when it is
 *  stored. The result so differs from what 16-byte registers give. n <= 0 does nothing. */
void orb_blas_sgerin(const int* n, const float* alpha, const float* x, const int* incx, float* a);
void orb_blas_dgerin(const int* n, const double* alpha, const double* x, const int* incx, double* a);
/** @} */

/** @{ */
/** A += alpha x y^T (`u`), A += alpha x conj(y)^T (`c`), A m by n. m == 0, n == 0 and alpha == 0 return
 *  at once. */
void orb_blas_cgeru(const int* m, const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
                    const int* incx, const orb_complex_float* y, const int* incy, orb_complex_float* a,
                    const int* lda);
void orb_blas_cgerc(const int* m, const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
                    const int* incx, const orb_complex_float* y, const int* incy, orb_complex_float* a,
                    const int* lda);
void orb_blas_zgeru(const int* m, const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
                    const int* incx, const orb_complex_double* y, const int* incy, orb_complex_double* a,
                    const int* lda);
void orb_blas_zgerc(const int* m, const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
                    const int* incx, const orb_complex_double* y, const int* incy, orb_complex_double* a,
                    const int* lda);
/** @} */

/** @{ */
/** y = alpha op(A) x + beta y, A m by n with kl diagonals below and ku above the main one: a(i, j) stands
 *  at a[ku + i - j + j lda]. T and C as for the dense product. m == 0, n == 0, and alpha == 0 with beta
 *  == 1 return at once; beta == 0 does not read y. */
void orb_blas_sgbmv(const char* trans, const int* m, const int* n, const int* kl, const int* ku,
                    const float* alpha, const float* a, const int* lda, const float* x, const int* incx,
                    const float* beta, float* y, const int* incy);
void orb_blas_dgbmv(const char* trans, const int* m, const int* n, const int* kl, const int* ku,
                    const double* alpha, const double* a, const int* lda, const double* x, const int* incx,
                    const double* beta, double* y, const int* incy);
void orb_blas_cgbmv(const char* trans, const int* m, const int* n, const int* kl, const int* ku,
                    const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                    const orb_complex_float* x, const int* incx, const orb_complex_float* beta,
                    orb_complex_float* y, const int* incy);
void orb_blas_zgbmv(const char* trans, const int* m, const int* n, const int* kl, const int* ku,
                    const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                    const orb_complex_double* x, const int* incx, const orb_complex_double* beta,
                    orb_complex_double* y, const int* incy);
/** @} */

/* Symmetric and Hermitian matrices */

/** @{ */
/** y = alpha A x + beta y, A symmetric, in `he` Hermitian: the imaginary parts of its diagonal are not
 *  read. One triangle is read. n == 0, and alpha == 0 with beta == 1 return at once; beta == 0 does not
 *  read y. */
void orb_blas_xssymv(const char* uplo, const int* n, const float* alpha, const float* a, const int* lda,
                     const float* x, const int* incx, const float* beta, float* y, const int* incy);
void orb_blas_xdsymv(const char* uplo, const int* n, const double* alpha, const double* a, const int* lda,
                     const double* x, const int* incx, const double* beta, double* y, const int* incy);
void orb_blas_chemv(const char* uplo, const int* n, const orb_complex_float* alpha,
                    const orb_complex_float* a, const int* lda, const orb_complex_float* x, const int* incx,
                    const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void orb_blas_zhemv(const char* uplo, const int* n, const orb_complex_double* alpha,
                    const orb_complex_double* a, const int* lda, const orb_complex_double* x, const int* incx,
                    const orb_complex_double* beta, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** The same, by diagonal blocks of nb columns: the part of the stored triangle beside each block is read
 *  once for both of its halves. nb < 1 counts as n. */
void orb_blas_ssymv_nb(const char* uplo, const int* n, const float* alpha, const float* a, const int* lda,
                       const float* x, const int* incx, const float* beta, float* y, const int* incy,
                       const int* nb);
void orb_blas_dsymv_nb(const char* uplo, const int* n, const double* alpha, const double* a, const int* lda,
                       const double* x, const int* incx, const double* beta, double* y, const int* incy,
                       const int* nb);
void orb_blas_chemv_nb(const char* uplo, const int* n, const orb_complex_float* alpha,
                       const orb_complex_float* a, const int* lda, const orb_complex_float* x,
                       const int* incx, const orb_complex_float* beta, orb_complex_float* y, const int* incy,
                       const int* nb);
void orb_blas_zhemv_nb(const char* uplo, const int* n, const orb_complex_double* alpha,
                       const orb_complex_double* a, const int* lda, const orb_complex_double* x,
                       const int* incx, const orb_complex_double* beta, orb_complex_double* y,
                       const int* incy, const int* nb);
/** @} */

/** @{ */
/** The same for a matrix of k diagonals on either side of the main one, of which one side is stored,
 *  column j in a[j lda]...: the upper one with a(i, j) at a[k + i - j + j lda], the lower one at a[i - j
 *  + j lda]. */
void orb_blas_ssbmv(const char* uplo, const int* n, const int* k, const float* alpha, const float* a,
                    const int* lda, const float* x, const int* incx, const float* beta, float* y,
                    const int* incy);
void orb_blas_dsbmv(const char* uplo, const int* n, const int* k, const double* alpha, const double* a,
                    const int* lda, const double* x, const int* incx, const double* beta, double* y,
                    const int* incy);
void orb_blas_chbmv(const char* uplo, const int* n, const int* k, const orb_complex_float* alpha,
                    const orb_complex_float* a, const int* lda, const orb_complex_float* x, const int* incx,
                    const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void orb_blas_zhbmv(const char* uplo, const int* n, const int* k, const orb_complex_double* alpha,
                    const orb_complex_double* a, const int* lda, const orb_complex_double* x, const int* incx,
                    const orb_complex_double* beta, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** The same for a packed triangle: its columns stand one behind the other. */
void orb_blas_sspmv(const char* uplo, const int* n, const float* alpha, const float* ap, const float* x,
                    const int* incx, const float* beta, float* y, const int* incy);
void orb_blas_dspmv(const char* uplo, const int* n, const double* alpha, const double* ap, const double* x,
                    const int* incx, const double* beta, double* y, const int* incy);
void orb_blas_chpmv(const char* uplo, const int* n, const orb_complex_float* alpha,
                    const orb_complex_float* ap, const orb_complex_float* x, const int* incx,
                    const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void orb_blas_zhpmv(const char* uplo, const int* n, const orb_complex_double* alpha,
                    const orb_complex_double* ap, const orb_complex_double* x, const int* incx,
                    const orb_complex_double* beta, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** A += alpha x x^T, in `he` A += alpha x conj(x)^T with a real alpha, on one triangle. n == 0 and alpha
 *  == 0 return at once. The diagonal of a Hermitian matrix is left with imaginary parts 0. */
void orb_blas_xssyr(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx,
                    float* a, const int* lda);
void orb_blas_xdsyr(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx,
                    double* a, const int* lda);
void orb_blas_cher(const char* uplo, const int* n, const float* alpha, const orb_complex_float* x,
                   const int* incx, orb_complex_float* a, const int* lda);
void orb_blas_zher(const char* uplo, const int* n, const double* alpha, const orb_complex_double* x,
                   const int* incx, orb_complex_double* a, const int* lda);
/** @} */

/** @{ */
/** The same for a packed triangle: `sp` symmetric, `cspr` with a complex matrix and alpha, `hp`
 *  Hermitian. */
void orb_blas_sspr(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx,
                   float* ap);
void orb_blas_dspr(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx,
                   double* ap);
void orb_blas_cspr(const char* uplo, const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
                   const int* incx, orb_complex_float* ap);
void orb_blas_chpr(const char* uplo, const int* n, const float* alpha, const orb_complex_float* x,
                   const int* incx, orb_complex_float* ap);
void orb_blas_zhpr(const char* uplo, const int* n, const double* alpha, const orb_complex_double* x,
                   const int* incx, orb_complex_double* ap);
/** @} */

/** @{ */
/** A += alpha x y^T + alpha y x^T, in `he` A += alpha x conj(y)^T + conj(alpha) y conj(x)^T, on one
 *  triangle. n == 0 and alpha == 0 return at once. The diagonal of a Hermitian matrix is left with
 *  imaginary parts 0. */
void orb_blas_xssyr2(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx,
                     const float* y, const int* incy, float* a, const int* lda);
void orb_blas_xdsyr2(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx,
                     const double* y, const int* incy, double* a, const int* lda);
void orb_blas_cher2(const char* uplo, const int* n, const orb_complex_float* alpha,
                    const orb_complex_float* x, const int* incx, const orb_complex_float* y, const int* incy,
                    orb_complex_float* a, const int* lda);
void orb_blas_zher2(const char* uplo, const int* n, const orb_complex_double* alpha,
                    const orb_complex_double* x, const int* incx, const orb_complex_double* y,
                    const int* incy, orb_complex_double* a, const int* lda);
/** @} */

/** @{ */
/** The same, by blocks of nb rows, so that the pieces of x and y stay near. The elements are the same to
 *  the bit. nb < 1 counts as n. */
void orb_blas_ssyr2_nb(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx,
                       const float* y, const int* incy, float* a, const int* lda, const int* nb);
void orb_blas_dsyr2_nb(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx,
                       const double* y, const int* incy, double* a, const int* lda, const int* nb);
void orb_blas_cher2_nb(const char* uplo, const int* n, const orb_complex_float* alpha,
                       const orb_complex_float* x, const int* incx, const orb_complex_float* y,
                       const int* incy, orb_complex_float* a, const int* lda, const int* nb);
void orb_blas_zher2_nb(const char* uplo, const int* n, const orb_complex_double* alpha,
                       const orb_complex_double* x, const int* incx, const orb_complex_double* y,
                       const int* incy, orb_complex_double* a, const int* lda, const int* nb);
/** @} */

/** @{ */
/** The same as the plain form for a packed triangle. */
void orb_blas_sspr2(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx,
                    const float* y, const int* incy, float* ap);
void orb_blas_dspr2(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx,
                    const double* y, const int* incy, double* ap);
void orb_blas_chpr2(const char* uplo, const int* n, const orb_complex_float* alpha,
                    const orb_complex_float* x, const int* incx, const orb_complex_float* y, const int* incy,
                    orb_complex_float* ap);
void orb_blas_zhpr2(const char* uplo, const int* n, const orb_complex_double* alpha,
                    const orb_complex_double* x, const int* incx, const orb_complex_double* y,
                    const int* incy, orb_complex_double* ap);
/** @} */

/* Triangular matrices */

/** @{ */
/** x = op(A) x. n <= 0 returns at once. The triangle is cut into diagonal blocks of 64; the sweep goes so
 *  that entries of x are used before they are replaced, and a partial block is its last. For each block
 *  the step of that width beside it is one call of orb_blas_x?gemv, where there is any such part, and the
 *  block itself one of orb_blas_?trmv_in. */
void orb_blas_xstrmv(const char* uplo, const char* trans, const char* diag, const int* n, const float* a,
                     const int* lda, float* x, const int* incx);
void orb_blas_xdtrmv(const char* uplo, const char* trans, const char* diag, const int* n, const double* a,
                     const int* lda, double* x, const int* incx);
void orb_blas_xctrmv(const char* uplo, const char* trans, const char* diag, const int* n,
                     const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_xztrmv(const char* uplo, const char* trans, const char* diag, const int* n,
                     const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** The same without blocks. */
void orb_blas_strmv_in(const char* uplo, const char* trans, const char* diag, const int* n, const float* a,
                       const int* lda, float* x, const int* incx);
void orb_blas_dtrmv_in(const char* uplo, const char* trans, const char* diag, const int* n, const double* a,
                       const int* lda, double* x, const int* incx);
void orb_blas_ctrmv_in(const char* uplo, const char* trans, const char* diag, const int* n,
                       const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_ztrmv_in(const char* uplo, const char* trans, const char* diag, const int* n,
                       const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Solves op(A) x = b in place, x holding b on entry. n <= 0 returns at once. A zero on the diagonal is
 *  divided by. Diagonal blocks of 32 in the order of the solve, a partial one last. For each block behind
 *  the first the upward orb_blas_?gemv, with alpha -1 and beta 1, takes off what the solved elements
 *  contribute: ceil(n / 32) - 1 calls in all. The blocks themselves are solved by the routines below. */
void orb_blas_strsv(const char* uplo, const char* trans, const char* diag, const int* n, const float* a,
                    const int* lda, float* x, const int* incx);
void orb_blas_dtrsv(const char* uplo, const char* trans, const char* diag, const int* n, const double* a,
                    const int* lda, double* x, const int* incx);
void orb_blas_ctrsv(const char* uplo, const char* trans, const char* diag, const int* n,
                    const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_ztrsv(const char* uplo, const char* trans, const char* diag, const int* n,
                    const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Solves with one triangle, without blocks: `l` lower or `u` upper; `n` A x = b, `t` A^T x = b, `c` A^H
 *  x = b; `n` the diagonal is read, `u` it counts as 1. n <= 0 does nothing.
 *  - A x = b: each x[i] has the products a(i, j) x[j] taken off one after the other in the order of the
 *    solve (complex ones of two neighbouring columns together), and is divided by the diagonal element.
 *  - Otherwise a dot product along the column is taken off, then the division.
 *
 *  Divisions are true ones; a complex one scales by the larger part of the divisor (R. L. Smith, Algorithm
 *  116, CACM 5 (1962) 435). */
void orb_blas_strsv_lnn(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_strsv_lnu(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_strsv_ltn(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_strsv_ltu(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_strsv_unn(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_strsv_unu(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_strsv_utn(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_strsv_utu(const int* n, const float* a, const int* lda, float* x, const int* incx);
void orb_blas_dtrsv_lnn(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_dtrsv_lnu(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_dtrsv_ltn(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_dtrsv_ltu(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_dtrsv_unn(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_dtrsv_unu(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_dtrsv_utn(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_dtrsv_utu(const int* n, const double* a, const int* lda, double* x, const int* incx);
void orb_blas_ctrsv_lnn(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_lnu(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_ltn(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_ltu(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_lcn(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_lcu(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_unn(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_unu(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_utn(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_utu(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_ucn(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ctrsv_ucu(const int* n, const orb_complex_float* a, const int* lda, orb_complex_float* x,
                        const int* incx);
void orb_blas_ztrsv_lnn(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_lnu(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_ltn(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_ltu(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_lcn(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_lcu(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_unn(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_unu(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_utn(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_utu(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_ucn(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
void orb_blas_ztrsv_ucu(const int* n, const orb_complex_double* a, const int* lda, orb_complex_double* x,
                        const int* incx);
/** @} */

/** @{ */
/** x = op(A) x, A triangular with k diagonals beside the main one, stored as in `sbmv`. n <= 0 returns at
 *  once. The `_f` forms are the bodies. */
void orb_blas_stbmv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const float* a, const int* lda, float* x, const int* incx);
void orb_blas_dtbmv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const double* a, const int* lda, double* x, const int* incx);
void orb_blas_ctbmv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_ztbmv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
void orb_blas_ctbmv_f(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                      const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_ztbmv_f(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                      const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Solves op(A) x = b in place for the same. A zero on the diagonal is divided by. The `_f` forms are the
 *  bodies; the `_vial1` forms do each column by a level-1 kernel: orb_blas_caxpy_a(), orb_blas_cdotu(),
 *  orb_blas_xcdotc() or those of doubles. */
void orb_blas_stbsv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const float* a, const int* lda, float* x, const int* incx);
void orb_blas_dtbsv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const double* a, const int* lda, double* x, const int* incx);
void orb_blas_ctbsv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_ztbsv(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                    const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
void orb_blas_ctbsv_f(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                      const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_ztbsv_f(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                      const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
void orb_blas_ctbsv_vial1(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                          const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void orb_blas_ztbsv_vial1(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
                          const orb_complex_double* a, const int* lda, orb_complex_double* x,
                          const int* incx);
/** @} */

/** @{ */
/** x = op(A) x, A a packed triangle. n <= 0 returns at once. */
void orb_blas_stpmv(const char* uplo, const char* trans, const char* diag, const int* n, const float* ap,
                    float* x, const int* incx);
void orb_blas_dtpmv(const char* uplo, const char* trans, const char* diag, const int* n, const double* ap,
                    double* x, const int* incx);
void orb_blas_ctpmv(const char* uplo, const char* trans, const char* diag, const int* n,
                    const orb_complex_float* ap, orb_complex_float* x, const int* incx);
void orb_blas_ztpmv(const char* uplo, const char* trans, const char* diag, const int* n,
                    const orb_complex_double* ap, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Solves op(A) x = b in place for a packed triangle. A zero on the diagonal is divided by. */
void orb_blas_stpsv(const char* uplo, const char* trans, const char* diag, const int* n, const float* ap,
                    float* x, const int* incx);
void orb_blas_dtpsv(const char* uplo, const char* trans, const char* diag, const int* n, const double* ap,
                    double* x, const int* incx);
void orb_blas_ctpsv(const char* uplo, const char* trans, const char* diag, const int* n,
                    const orb_complex_float* ap, orb_complex_float* x, const int* incx);
void orb_blas_ztpsv(const char* uplo, const char* trans, const char* diag, const int* n,
                    const orb_complex_double* ap, orb_complex_double* x, const int* incx);
/** @} */

ORB_END_DECLS

#endif
