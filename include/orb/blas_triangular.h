/** @file
 *  Triangular systems with many right-hand sides and triangular products of liborb_t7.so. All arguments by
 *  reference; nothing is checked.
 *
 *  A is a triangle in a square column-major array with leading dimension lda, B an m by n matrix with leading
 *  dimension ldb, which the result replaces; they may not overlap. A has order m on the left side and n on
 * the right. `side` L or `uplo` U, in either case, is told apart from every other character; `transa` N reads
 * A as it stands and everything else its transpose, which is the conjugate transpose for C in the complex
 *  routines. With `diag` U the diagonal counts as ones and is not read; the other triangle is never read. A
 * zero on the diagonal of a system gives infinities and NaN, without a report. B is written nowhere outside
 * its m by n elements; m <= 0 or n <= 0 does nothing.
 */
#ifndef ORB_BLAS_TRIANGULAR_H
#define ORB_BLAS_TRIANGULAR_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/* Systems */

/** @{ */
/** Solves op(A) X = alpha B (side L) or X op(A) = alpha B (any other side) and leaves X in B. alpha == 0
 * clears B, and neither A nor B is read; any other alpha but 1 is multiplied into B before anything else.
 *
 *  The left side divides by the diagonal; the right side multiplies by its reciprocals, one division each.
 * The left side of `xdtrsm` goes through orb_blas_dtrsm_lln_r() and its like, every other case through blocks
 * of 256 columns (rows on the left): a block is solved by the `l1` step in strips of 1024 of the other
 *  dimension and then leaves the unsolved part by one product of the whole height. `xztrsm` has no steps
 *  between: it solves blocks of 64 directly. Scratch is that of the products.
 *
 *  Source: J. Dongarra, J. Du Croz, S. Hammarling, I. Duff, A set of level 3 basic linear algebra
 *  subprograms, ACM TOMS 16 (1990) 1-17. */
void orb_blas_xstrsm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const float* alpha, const float* a, const int* lda, float* b,
                     const int* ldb);
void orb_blas_xdtrsm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const double* alpha, const double* a, const int* lda, double* b,
                     const int* ldb);
void orb_blas_xctrsm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                     orb_complex_float* b, const int* ldb);
void orb_blas_xztrsm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const orb_complex_double* alpha, const orb_complex_double* a,
                     const int* lda, orb_complex_double* b, const int* ldb);
/** @} */

/* Left side of `xdtrsm`, and its blocks
 *  In the names: ll and lu are the lower and the upper triangle, n and t the triangle as it stands and its
 *  transpose. lln and lut go forward through the rows, lun and llt backward. All divide by the diagonal. */

/** @{ */
/** Top: blocks of 512 rows in the order of the sweep, the partial one last, each solved by the `rec` form;
 *  one orb_blas_xdgemm() then takes it out of all rows still to come. `one` is 1. */
void orb_blas_dtrsm_lln_r(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb, const int* one);
void orb_blas_dtrsm_llt_r(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb, const int* one);
void orb_blas_dtrsm_lun_r(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb, const int* one);
void orb_blas_dtrsm_lut_r(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb, const int* one);
/** @} */
/** @{ */
/** Above 256 rows: 256 rows in the order of the sweep, one orb_blas_xdgemm() that takes them out of the
 *  others, and those again. Up to 256 rows it is the plain form below. */
void orb_blas_dtrsm_lln_rec(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                            double* b, const int* ldb);
void orb_blas_dtrsm_llt_rec(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                            double* b, const int* ldb);
void orb_blas_dtrsm_lun_rec(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                            double* b, const int* ldb);
void orb_blas_dtrsm_lut_rec(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                            double* b, const int* ldb);
/** @} */
/** @{ */
/** Any number of rows, meant for 256 at most: the rows in whole fours by the `by_4` form, from 16 rows on in
 *  strips of 128 columns, then orb_blas_xdgemm() and the straight solve for the one to three rows left, which
 *  are the last ones of the sweep. */
void dtrsm_lln(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
               const int* ldb);
void dtrsm_llt(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
               const int* ldb);
void dtrsm_lun(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
               const int* ldb);
void dtrsm_lut(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
               const int* ldb);
/** @} */
/** @{ */
/** m a multiple of 4: 32 rows at a time, then 16, 8 and 4 as the rest needs, each solved by the form of its
 * size and then subtracted from the rows still to come by tiles. Every sum that a tile subtracts is the one
 * over even k plus the one over odd k. `_a` wants b on a 16-byte boundary and ldb even, `_u` takes any. */
void dtrsm_lln_by_4_a(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
void dtrsm_lln_by_4_u(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
void dtrsm_llt_by_4_a(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
void dtrsm_llt_by_4_u(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
void dtrsm_lun_by_4_a(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
void dtrsm_lun_by_4_u(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
void dtrsm_lut_by_4_a(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
void dtrsm_lut_by_4_u(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                      double* b, const int* ldb);
/** @} */
/** @{ */
/** Exactly the number of rows in the name, by halves: one half, a tile, the other half. `m` is not read. */
void dtrsm_lln_8_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_lln_8_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_lln_16_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lln_16_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lln_32_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lln_32_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_llt_8_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_llt_8_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_llt_16_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_llt_16_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_llt_32_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_llt_32_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lun_8_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_lun_8_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_lun_16_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lun_16_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lun_32_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lun_32_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lut_8_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_lut_8_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                   const int* ldb);
void dtrsm_lut_16_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lut_16_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lut_32_a(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lut_32_u(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
/** @} */
/** @{ */
/** Exactly four rows, solved straight: each unknown is its right-hand side less its terms, one by one in the
 *  order in which the unknowns are found, divided by the diagonal. B may have any alignment. */
void dtrsm_lln_4(const char* diag, const int* n, const double* a, const int* lda, double* b, const int* ldb);
void dtrsm_llt_4(const char* diag, const int* n, const double* a, const int* lda, double* b, const int* ldb);
void dtrsm_lun_4(const char* diag, const int* n, const double* a, const int* lda, double* b, const int* ldb);
void dtrsm_lut_4(const char* diag, const int* n, const double* a, const int* lda, double* b, const int* ldb);
/** @} */
/** @{ */
/** The same for m = 1, 2 or 3 rows. */
void dtrsm_lln_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_llt_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lun_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
void dtrsm_lut_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda, double* b,
                    const int* ldb);
/** @} */

/* Steps of the other systems
 *  `alpha` is not read by any of them. */

/** @{ */
/** A block of the right side: columns of B in blocks of 128 (`l1`) or 64 (`l2`), each solved by the next step
 *  in strips of 1024 or 256 rows and then taken out of the columns still to come by one product. Single
 *  precision takes the left side too, with rows and columns of B exchanged. The double steps do not read
 *  `side`. */
void orb_blas_dtrsm_l1(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const double* alpha, const double* a, const int* lda, double* b,
                       const int* ldb);
void orb_blas_dtrsm_l2(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const double* alpha, const double* a, const int* lda, double* b,
                       const int* ldb);
void orb_blas_strsm_l1(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const float* alpha, const float* a, const int* lda, float* b,
                       const int* ldb);
void orb_blas_strsm_l2(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const float* alpha, const float* a, const int* lda, float* b,
                       const int* ldb);
void orb_blas_ctrsm_l1(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const orb_complex_float* alpha, const orb_complex_float* a,
                       const int* lda, orb_complex_float* b, const int* ldb);
void orb_blas_ctrsm_l2(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const orb_complex_float* alpha, const orb_complex_float* a,
                       const int* lda, orb_complex_float* b, const int* ldb);
/** @} */
/** @{ */
/** The unblocked right side, any size; meant for 64 columns at most. A column of X is that of B less its
 * terms, one by one in the order in which the columns are found, times the reciprocal of the diagonal. `side`
 * is not read. */
void orb_blas_dtrsm_i(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                      const int* n, const double* alpha, const double* a, const int* lda, double* b,
                      const int* ldb);
void orb_blas_strsm_i(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                      const int* n, const float* alpha, const float* a, const int* lda, float* b,
                      const int* ldb);
/** @} */
/** @{ */
/** The unblocked left side, any size; meant for 64 rows at most: lower triangle, upper triangle, and either
 * one transposed (by `transa` conjugated too). An unknown is its right-hand side less its terms, one by one
 * in the order in which the unknowns are found, divided by the diagonal. */
void orb_blas_strsmlln(const char* diag, const int* m, const int* n, const float* a, const int* lda, float* b,
                       const int* ldb);
void orb_blas_strsmlun(const char* diag, const int* m, const int* n, const float* a, const int* lda, float* b,
                       const int* ldb);
void orb_blas_strsmlt(const char* uplo, const char* diag, const int* m, const int* n, const float* a,
                      const int* lda, float* b, const int* ldb);
void orb_blas_ctrsmlln(const char* diag, const int* m, const int* n, const orb_complex_float* a,
                       const int* lda, orb_complex_float* b, const int* ldb);
void orb_blas_ctrsmlun(const char* diag, const int* m, const int* n, const orb_complex_float* a,
                       const int* lda, orb_complex_float* b, const int* ldb);
void orb_blas_ctrsmlt(const char* uplo, const char* transa, const char* diag, const int* m, const int* n,
                      const orb_complex_float* a, const int* lda, orb_complex_float* b, const int* ldb);
void orb_blas_ztrsmlln(const char* diag, const int* m, const int* n, const orb_complex_double* a,
                       const int* lda, orb_complex_double* b, const int* ldb);
void orb_blas_ztrsmlun(const char* diag, const int* m, const int* n, const orb_complex_double* a,
                       const int* lda, orb_complex_double* b, const int* ldb);
void orb_blas_ztrsmlt(const char* uplo, const char* transa, const char* diag, const int* m, const int* n,
                      const orb_complex_double* a, const int* lda, orb_complex_double* b, const int* ldb);
/** @} */
/** @{ */
/** The unblocked right side of the complex systems, like orb_blas_dtrsm_i(): A as it stands, and transposed
 *  (by `transa` conjugated too). */
void orb_blas_ctrsmrn(const char* uplo, const char* diag, const int* m, const int* n,
                      const orb_complex_float* a, const int* lda, orb_complex_float* b, const int* ldb);
void orb_blas_ctrsmrt(const char* uplo, const char* transa, const char* diag, const int* m, const int* n,
                      const orb_complex_float* a, const int* lda, orb_complex_float* b, const int* ldb);
void orb_blas_ztrsmrn(const char* uplo, const char* diag, const int* m, const int* n,
                      const orb_complex_double* a, const int* lda, orb_complex_double* b, const int* ldb);
void orb_blas_ztrsmrt(const char* uplo, const char* transa, const char* diag, const int* m, const int* n,
                      const orb_complex_double* a, const int* lda, orb_complex_double* b, const int* ldb);
/** @} */

/* Products */

/** @{ */
/** B = alpha op(A) B (side L) or B = alpha B op(A) (any other side). alpha == 0 clears B, and neither A nor B
 *  is read. The triangle is halved until it is small enough for the `l1` step; what lies between the halves
 *  goes through the matrix products, whose scratch is all that is used.
 *
 *  Source: J. Dongarra, J. Du Croz, S. Hammarling, I. Duff, A set of level 3 basic linear algebra
 *  subprograms, ACM TOMS 16 (1990) 1-17. */
void orb_blas_xstrmm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const float* alpha, const float* a, const int* lda, float* b,
                     const int* ldb);
void orb_blas_xdtrmm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const double* alpha, const double* a, const int* lda, double* b,
                     const int* ldb);
void orb_blas_xctrmm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
                     orb_complex_float* b, const int* ldb);
void orb_blas_xztrmm(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                     const int* n, const orb_complex_double* alpha, const orb_complex_double* a,
                     const int* lda, orb_complex_double* b, const int* ldb);
/** @} */
/** @{ */
/** The same for a diagonal block, any size, without the matrix products. alpha == 0 is no special case. */
void orb_blas_strmm_l1(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const float* alpha, const float* a, const int* lda, float* b,
                       const int* ldb);
void orb_blas_dtrmm_l1(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const double* alpha, const double* a, const int* lda, double* b,
                       const int* ldb);
void orb_blas_ctrmm_l1(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const orb_complex_float* alpha, const orb_complex_float* a,
                       const int* lda, orb_complex_float* b, const int* ldb);
void orb_blas_ztrmm_l1(const char* side, const char* uplo, const char* transa, const char* diag, const int* m,
                       const int* n, const orb_complex_double* alpha, const orb_complex_double* a,
                       const int* lda, orb_complex_double* b, const int* ldb);
/** @} */

ORB_END_DECLS

#endif
