/** @file
 *  Sparse matrices of compressed rows: products with vectors and dense matrices, and triangular systems, for
 * C and C++. Scalars go by value.
 *
 *  Matrix. Four arrays, all only read: row i (from 0) has its entries at the places `row_begin[i] -
 * row_begin[0]` up to but not including `row_end[i] - row_begin[0]` of `values` (the numbers) and `columns`
 * (their columns). Row pointers may count from anywhere, and with `row_end = row_begin + 1` the usual array
 * of m + 1 serves as both. For products, entries of a row may stand in any order; for systems they ascend by
 * column, and the diagonal entry is there where it counts.
 *
 *  `matrix` describes it in six characters, in either case:
 *  1. kind: `G` general (m by k), `S` symmetric, `H` Hermitian, `A` antisymmetric, `T` triangular, `D`
 * diagonal;
 *  2. triangle that counts, for S H A T: `L` lower, `U` upper. What is stored in the other one is set aside;
 *  3. diagonal, for S H T D: `N` as stored, `U` all ones, whatever is stored. Antisymmetric: zeros;
 *  4. numbers of columns: `C` from 0, and dense matrices are stored by rows: element (r, j) at `[r * ld +
 * j]`; `F` from 1, and dense matrices are stored by columns: element (r, j) at `[j * ld + r]`; 5., 6. not
 * read.
 *
 *  Letters that do not matter for a kind are not read. What is set aside is added and taken off again in some
 * kinds (see orb/sparse_kernels.h): it shows in the last bits, and a NaN among it in the result.
 *
 *  `op` is `N` for A, `T` for its transpose, `C` for the conjugate transpose, `S` for the conjugate, in
 * either case.
 *
 *  Errors. A bad argument is told to xerbla_() with the routine's name in capitals without its prefix
 * (`DCSRMV`) and the place of the argument, from 1; nothing is touched then. The arrays of the matrix are not
 * looked through.
 *
 *  Threads. Work is divided among up to orb_get_max_threads() threads where it pays: general and triangular
 * products by rows, all products and systems with dense matrices by their columns, with the same bits for any
 * number. The products of kinds S, H and A with a vector are summed by pieces, in an order that depends on
 * the number of threads alone, so their last bits do. Transposed products and systems with a vector are not
 * divided.
 *
 *  Example: y = A x for the symmetric matrix
 *
 *      4 1 0
 *      1 5 2
 *      0 2 6
 *
 *  of which the lower triangle is stored.
 *  @code
 *  const double values[] = {4, 1, 5, 2, 6};
 *  const int columns[] = {0, 0, 1, 1, 2}, rows[] = {0, 1, 3, 5};
 *  const double x[] = {1, 2, 3};
 *  double y[3];
 *  orb_dcsrmv('N', 3, 3, 1.0, "SLNC  ", values, columns, rows, rows + 1, x, 0.0, y);  // y is 6, 17, 22
 *  @endcode
 */
#ifndef ORB_SPARSE_H
#define ORB_SPARSE_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** y = alpha op(A) x + beta y. A has m rows and k columns (k = m for all kinds but G). With beta = 0, y is
 * not read; with alpha = 0, neither A nor x is. x and y do not overlap. */
void orb_scsrmv(char op, int m, int k, float alpha, const char* matrix, const float* values,
                const int* columns, const int* row_begin, const int* row_end, const float* x, float beta,
                float* y);
void orb_dcsrmv(char op, int m, int k, double alpha, const char* matrix, const double* values,
                const int* columns, const int* row_begin, const int* row_end, const double* x, double beta,
                double* y);
void orb_ccsrmv(char op, int m, int k, orb_complex_float alpha, const char* matrix,
                const orb_complex_float* values, const int* columns, const int* row_begin, const int* row_end,
                const orb_complex_float* x, orb_complex_float beta, orb_complex_float* y);
void orb_zcsrmv(char op, int m, int k, orb_complex_double alpha, const char* matrix,
                const orb_complex_double* values, const int* columns, const int* row_begin,
                const int* row_end, const orb_complex_double* x, orb_complex_double beta,
                orb_complex_double* y);
/** @} */

/** @{ */
/** C = alpha op(A) B + beta C, B and C with n columns. Otherwise as for a vector; places 12 and 15 are the
 * leading dimensions. */
void orb_scsrmm(char op, int m, int n, int k, float alpha, const char* matrix, const float* values,
                const int* columns, const int* row_begin, const int* row_end, const float* b, int ldb,
                float beta, float* c, int ldc);
void orb_dcsrmm(char op, int m, int n, int k, double alpha, const char* matrix, const double* values,
                const int* columns, const int* row_begin, const int* row_end, const double* b, int ldb,
                double beta, double* c, int ldc);
void orb_ccsrmm(char op, int m, int n, int k, orb_complex_float alpha, const char* matrix,
                const orb_complex_float* values, const int* columns, const int* row_begin, const int* row_end,
                const orb_complex_float* b, int ldb, orb_complex_float beta, orb_complex_float* c, int ldc);
void orb_zcsrmm(char op, int m, int n, int k, orb_complex_double alpha, const char* matrix,
                const orb_complex_double* values, const int* columns, const int* row_begin,
                const int* row_end, const orb_complex_double* b, int ldb, orb_complex_double beta,
                orb_complex_double* c, int ldc);
/** @} */

/** @{ */
/** Solves op(A) y = alpha x, A of order m and of kind T or D. y may be x itself. A zero on the diagonal
 * divides by zero: no error is told. */
void orb_scsrsv(char op, int m, float alpha, const char* matrix, const float* values, const int* columns,
                const int* row_begin, const int* row_end, const float* x, float* y);
void orb_dcsrsv(char op, int m, double alpha, const char* matrix, const double* values, const int* columns,
                const int* row_begin, const int* row_end, const double* x, double* y);
void orb_ccsrsv(char op, int m, orb_complex_float alpha, const char* matrix, const orb_complex_float* values,
                const int* columns, const int* row_begin, const int* row_end, const orb_complex_float* x,
                orb_complex_float* y);
void orb_zcsrsv(char op, int m, orb_complex_double alpha, const char* matrix,
                const orb_complex_double* values, const int* columns, const int* row_begin,
                const int* row_end, const orb_complex_double* x, orb_complex_double* y);
/** @} */

/** @{ */
/** Solves op(A) C = alpha B for n right-hand sides. Otherwise as for one; C may be B itself, with the same
 * leading dimension. */
void orb_scsrsm(char op, int m, int n, float alpha, const char* matrix, const float* values,
                const int* columns, const int* row_begin, const int* row_end, const float* b, int ldb,
                float* c, int ldc);
void orb_dcsrsm(char op, int m, int n, double alpha, const char* matrix, const double* values,
                const int* columns, const int* row_begin, const int* row_end, const double* b, int ldb,
                double* c, int ldc);
void orb_ccsrsm(char op, int m, int n, orb_complex_float alpha, const char* matrix,
                const orb_complex_float* values, const int* columns, const int* row_begin, const int* row_end,
                const orb_complex_float* b, int ldb, orb_complex_float* c, int ldc);
void orb_zcsrsm(char op, int m, int n, orb_complex_double alpha, const char* matrix,
                const orb_complex_double* values, const int* columns, const int* row_begin,
                const int* row_end, const orb_complex_double* b, int ldb, orb_complex_double* c, int ldc);
/** @} */

ORB_END_DECLS

#endif
