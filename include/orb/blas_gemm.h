/** @file
 *  Real matrix products of liborb_t7.so: the serial drivers behind dgemm and sgemm, the small path, and the
 *  scaling of a block. All arguments by reference; nothing is checked. Column-major, leading dimensions in
 *  elements.
 */
#ifndef ORB_BLAS_GEMM_H
#define ORB_BLAS_GEMM_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** C = alpha op(A) op(B) + beta C, op(A) m by k, op(B) k by n, C m by n. N or n in `transa`, `transb` takes
 *  a matrix as it stands, any other letter its transpose. C may not overlap A or B. m <= 0 or n <= 0 returns
 *  at once; alpha == 0 does not read A and B, and with beta == 1 touches nothing; beta == 0 does not read C.
 *  Scratch is one block of orb_serv_allocate(), none for small products.
 *
 *  `xdgemm` takes m < 4, n < 8 or k < 8 to the small path. Otherwise an element of C is first beta C + the
 *  sum of the last k mod 128 terms (128 if that is 0), and then takes the sum of each 128 terms in rising k;
 *  a sum runs in rising k over (alpha A(i, k)) B(k, j). The last row of an odd m goes through the small path
 *  in the same panels, and each of the last n mod 4 columns is one call of the upward orb_blas_dgemv(). The
 *  block has 1024 min(n, 2000) + 551168 bytes, at alignment 128.
 *
 *  Source: K. Goto, R. van de Geijn, Anatomy of high-performance matrix multiplication, ACM TOMS 34 (2008).
 * */
void orb_blas_xdgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                     const double* alpha, const double* a, const int* lda, const double* b, const int* ldb,
                     const double* beta, double* c, const int* ldc);
void orb_blas_xsgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                     const float* alpha, const float* a, const int* lda, const float* b, const int* ldb,
                     const float* beta, float* c, const int* ldc);
/** @} */

/** @{ */
/** The small path: the same product for any shape, straight from the unpacked matrices, without scratch.
 *  Negative k acts as 0. alpha == 0 is no special case. beta == 0 does not read C.
 *
 *  A as it stands: C becomes beta C, or 0 for beta == 0, and takes the terms A(i, k) (alpha op(B)(k, j)) one
 *  by one in rising k.
 *
 *  A transposed: C becomes alpha * dot + beta C. Below nine terms the dot product is one sum in rising k.
 *  From nine on, eight terms a round go to the sums s0 to s7, added in the end as
 *  ((s0 + s4) + (s2 + s6)) + ((s1 + s5) + (s3 + s7)), and the terms left over follow in rising k. If B stands
 *  plain, the terms in front of its column's first 16-byte boundary come before the rounds, in rising k, and
 *  start s0; a column whose elements meet no boundary is one sum in rising k. */
void orb_blas_dgemmpst(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                       const double* alpha, const double* a, const int* lda, const double* b, const int* ldb,
                       const double* beta, double* c, const int* ldc);
void orb_blas_sgemmpst(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                       const float* alpha, const float* a, const int* lda, const float* b, const int* ldb,
                       const float* beta, float* c, const int* ldc);
/** @} */

/** C = 0, C m by n; C is not read. */
void orb_blas_dzerom(const int* m, const int* n, double* c, const int* ldc);
/** C = beta C, C m by n; a beta of 0 keeps NaN and infinity as NaN. */
void orb_blas_dscalm(const int* m, const int* n, const double* beta, double* c, const int* ldc);
/** @{ */
/** C = beta C, C m by n; for beta == 0, C = 0 without reading C. */
void orb_blas_dgemm_mscale(const int* m, const int* n, const double* beta, double* c, const int* ldc);
void orb_blas_sgemm_mscale(const int* m, const int* n, const float* beta, float* c, const int* ldc);
/** @} */

ORB_END_DECLS

#endif
