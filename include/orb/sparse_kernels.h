/** @file
 *  Sparse matrix kernels of liborb_t7.so: 704 for compressed rows, each doing exactly one thing, and five
 * plain products. Programs are better served by orb/sparse.h, which picks the kernel, checks and uses
 * threads.
 *
 *  A kernel's name says what it does: `orb_spblas_<t>csr<b><op><kind><uplo><diag><lay>__<job>out_<form>`.
 *
 *  | part   | letters       | meaning |
 *  |--------|---------------|----------------------------------------------------------------------------------|
 *  | `t`    | s d c z       | element type | | `b`    | 0 1           | number of the first column in
 * `columns`                                          | | `op`   | n t c s       | A itself, transposed,
 * transposed and conjugated, conjugated                      | | `kind` | g s h t a d   | general, symmetric,
 * Hermitian, triangular, antisymmetric, diagonal               | | `uplo` | l u _         | the triangle that
 * counts                                                         | | `diag` | n u _         | diagonal
 * stored, or all ones whatever is stored                                  | | `lay`  | c f           | dense
 * matrices by rows (with b = 0) or by columns (with b = 1)                   | | `job`  | mv mm sv sm   |
 * product with a vector or a dense matrix, solution of one or many triangular systems | | `form` | par seq |
 * on a range of rows or of dense columns, or on the whole                          |
 *
 *  All names stand in the lists `orb/sparse_kernels/csr_<job>_<t>.def`, one a line. With op = s the kinds are
 * g and t; for a symmetric matrix transposed and conjugated (`cs`) as well as for an antisymmetric one (`ca`)
 * and a diagonal one (`cd`) the matrix meant is conj(A); `th` is the transposed Hermitian matrix, conj(A)
 * too.
 *
 *  Matrix. Row i, from 1, holds the entries `row_begin[i-1] - row_begin[0]` up to but not including
 *  `row_end[i-1] - row_begin[0]` of `values` and `columns`: row pointers may count from anywhere. Everything
 * but the results is only read. Dense element (r, j) stands at `[r * ld + j]` (lay c) or at `[j * ld + r]`
 * (lay f). Scalars and sizes go by reference. Nothing is checked and nothing reported; `last < first`, and `m
 * < 1` in a kernel without a range, return at once. Kernels keep no state: ranges that write to disjoint
 * places may run at once. The kinds s, h, a write to y outside their range, so each range needs a y of its
 * own.
 *
 *  Order of additions, the same for every type; p(k) is the k-th entry of a row times its element of x:
 *  - Row dot: p(k) of whole groups of four goes to sum k mod 4, then ((s0 + s1) + s2) + s3, then the last one
 * to three by one. Products with a vector: y = dot * alpha + y.
 *  - Mirror, kinds s and h with a stored diagonal: one running sum over the triangle, t = alpha x_i scattered
 * to y as y_col += t v on the way. With a diagonal of ones and in kind a: the row dot over all that is
 * stored, then a second pass sums what does not belong there as (v alpha) x_col and takes it off. Kind t
 * likewise: with a stored diagonal the strange entries leave the sum one by one, with ones they have a sum of
 * their own.
 *  - Products with a dense matrix: `ng`, `sg` as above. Kinds s, h, a, t: a group of four products joins the
 *    element of C as (((p3 + p2) + p1) + p0) * alpha and the last ones as p * alpha, over all that is stored;
 * then a second sweep adds the mirror images and subtracts the sum of what does not belong there, (v alpha) b
 * each.
 *  - Transposed: entries are scattered in stored order, y_col += v t with t = x_i alpha; kind t scatters
 *    (v alpha) x_i over the whole row and takes the strange ones off again.
 *  Results of entries that do not belong to the triangle so cancel but for rounding, and a NaN among them
 * shows. Complex numbers add in the same order, their parts apart.
 *
 *  Method: S. C. Eisenstat, M. C. Gursky, M. H. Schultz, A. H. Sherman, Yale sparse matrix package, Int. J.
 *  Numer. Meth. Engng 18 (1982) 1145-1151.
 */
#ifndef ORB_SPARSE_KERNELS_H
#define ORB_SPARSE_KERNELS_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** y += alpha op(A) x over the rows `first` to `last`. `m` is not read. x and y are based at row 1, but in
 * the kernels `nsln` and `nsun` at row `first`: row i stands at x[i - first] there, and columns before the
 * range lie in front of x and y. */
#define ORB_CSR_MV_PAR(name)                                                                             \
  void name(const int* first, const int* last, const int* m, const ORB_CSR_ELEMENT* alpha,               \
            const ORB_CSR_ELEMENT* values, const int* columns, const int* row_begin, const int* row_end, \
            const ORB_CSR_ELEMENT* x, ORB_CSR_ELEMENT* y);

/** y += alpha op(A) x over all m rows. `nd_u` calls the upward axpy and reads no matrix. */
#define ORB_CSR_MV_SEQ(name)                                                                               \
  void name(const int* m, const ORB_CSR_ELEMENT* alpha, const ORB_CSR_ELEMENT* values, const int* columns, \
            const int* row_begin, const int* row_end, const ORB_CSR_ELEMENT* x, ORB_CSR_ELEMENT* y);

/** C += alpha op(A) B for the columns `first` to `last` of B and C. A has m rows; `k`, its number of columns,
 * is read only by `ng` and `sg` of lay f, to choose between two orders of work with the same results. */
#define ORB_CSR_MM_PAR(name)                                                                             \
  void name(const int* first, const int* last, const int* m, const int* k, const ORB_CSR_ELEMENT* alpha, \
            const ORB_CSR_ELEMENT* values, const int* columns, const int* row_begin, const int* row_end, \
            const ORB_CSR_ELEMENT* b, const int* ldb, ORB_CSR_ELEMENT* c, const int* ldc);

/** C += alpha D B, D diagonal of order m, B and C with n columns. `nd_u` calls the upward axpy for each row
 * (lay c) or column (lay f) and reads no matrix. */
#define ORB_CSR_MM_SEQ(name)                                                                         \
  void name(const int* m, const int* n, const ORB_CSR_ELEMENT* alpha, const ORB_CSR_ELEMENT* values, \
            const int* columns, const int* row_begin, const int* row_end, const ORB_CSR_ELEMENT* b,  \
            const int* ldb, ORB_CSR_ELEMENT* c, const int* ldc);

/** Solves op(A) y = y in place. Each row is stored in ascending order of columns, with its diagonal entry
 * where that counts; a zero there divides by zero. Kind d: y = (alpha / D) y, the only one to read alpha.
 * Complex quotients are ((n conj(d)) * (1 / |d|^2)), in 80 bits until they are stored, unscaled. */
#define ORB_CSR_SV(name)                                                                                   \
  void name(const int* m, const ORB_CSR_ELEMENT* alpha, const ORB_CSR_ELEMENT* values, const int* columns, \
            const int* row_begin, const int* row_end, ORB_CSR_ELEMENT* y);

/** The same for the columns `first` to `last` of C. Kinds `ntl` and `stl` ask orb_serv_allocate() for n
 * elements at 128; refused, they go column by column and divide where they multiplied by a reciprocal, which
 * may change the last bits. */
#define ORB_CSR_SM(name)                                                                                 \
  void name(const int* first, const int* last, const int* m, const int* n, const ORB_CSR_ELEMENT* alpha, \
            const ORB_CSR_ELEMENT* values, const int* columns, const int* row_begin, const int* row_end, \
            ORB_CSR_ELEMENT* c, const int* ldc);

/** @cond the lists, type by type */
#define ORB_CSR_ELEMENT float
#include "orb/sparse_kernels/csr_mm_s.def"
#include "orb/sparse_kernels/csr_mv_s.def"
#include "orb/sparse_kernels/csr_sm_s.def"
#include "orb/sparse_kernels/csr_sv_s.def"
#undef ORB_CSR_ELEMENT
#define ORB_CSR_ELEMENT double
#include "orb/sparse_kernels/csr_mm_d.def"
#include "orb/sparse_kernels/csr_mv_d.def"
#include "orb/sparse_kernels/csr_sm_d.def"
#include "orb/sparse_kernels/csr_sv_d.def"
#undef ORB_CSR_ELEMENT
#define ORB_CSR_ELEMENT orb_complex_float
#include "orb/sparse_kernels/csr_mm_c.def"
#include "orb/sparse_kernels/csr_mv_c.def"
#include "orb/sparse_kernels/csr_sm_c.def"
#include "orb/sparse_kernels/csr_sv_c.def"
#undef ORB_CSR_ELEMENT
#define ORB_CSR_ELEMENT orb_complex_double
#include "orb/sparse_kernels/csr_mm_z.def"
#include "orb/sparse_kernels/csr_mv_z.def"
#include "orb/sparse_kernels/csr_sm_z.def"
#include "orb/sparse_kernels/csr_sv_z.def"
#undef ORB_CSR_ELEMENT
/** @endcond */

#undef ORB_CSR_MV_PAR
#undef ORB_CSR_MV_SEQ
#undef ORB_CSR_MM_PAR
#undef ORB_CSR_MM_SEQ
#undef ORB_CSR_SV
#undef ORB_CSR_SM

/** y = A x for the rows `first` to `last`, columns counting from 1: y is overwritten, and a row without
 * entries gives 0. Row i holds the entries `row_pointers[i-1]` to before `row_pointers[i]`, both less
 * row_pointers[0]. The terms join one sum in stored order, but the last one to three (their number mod 4) are
 * first added by themselves. The arguments that the form of the call asks for and nobody needs are not read.
 */
void orb_spblas_dcsr1ng__f__gemvout_par(const int* first, const int* last, const void* unread1,
                                        const void* unread2, const double* values, const int* columns,
                                        const int* row_pointers, const void* unread3, const double* x,
                                        double* y);

/** @{ */
/** The same for a matrix of square blocks of order `block`: `first` and `last` count rows of blocks,
 * `columns` columns of blocks, `row_pointers` blocks. `values` holds the blocks one after the other, each by
 * columns; x and y are plain vectors. The terms of one row of the matrix run through its blocks in stored
 * order and through each block by columns, and add as above: blocks of order 1 give the bits of the product
 * above. */
void orb_spblas_sbsr1ng__f__gemvout_par(const int* first, const int* last, const void* unread1,
                                        const int* block, const float* values, const int* columns,
                                        const int* row_pointers, const void* unread2, const float* x,
                                        float* y);
void orb_spblas_dbsr1ng__f__gemvout_par(const int* first, const int* last, const void* unread1,
                                        const int* block, const double* values, const int* columns,
                                        const int* row_pointers, const void* unread2, const double* x,
                                        double* y);
void orb_spblas_cbsr1ng__f__gemvout_par(const int* first, const int* last, const void* unread1,
                                        const int* block, const orb_complex_float* values, const int* columns,
                                        const int* row_pointers, const void* unread2,
                                        const orb_complex_float* x, orb_complex_float* y);
void orb_spblas_zbsr1ng__f__gemvout_par(const int* first, const int* last, const void* unread1,
                                        const int* block, const orb_complex_double* values,
                                        const int* columns, const int* row_pointers, const void* unread2,
                                        const orb_complex_double* x, orb_complex_double* y);
/** @} */

ORB_END_DECLS

#endif
