/** @file
 *  Real matrix products of liborb_t7.so: the serial drivers behind dgemm and sgemm, the small path, and the
 *  scaling of a block. All arguments by reference; nothing is checked. Column-major, leading dimensions in
 *  elements.
 */
#ifndef ORB_BLAS_GEMM_H
#define ORB_BLAS_GEMM_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** C = alpha op(A) op(B) + beta C, op(A) m by k, op(B) k by n, C m by n. N or n in `transa`, `transb` takes a
 *  matrix as it stands, any other letter its transpose. m <= 0 or n <= 0 returns at once; alpha == 0 does not
 *  read A and B; beta == 0 does not read C. Scratch comes from orb_serv_allocate(), none for small products.
 *  Source: K. Goto, R. van de Geijn, Anatomy of high-performance matrix multiplication, ACM TOMS 34 (2008).
 * @{ */
void orb_blas_xdgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                     const double* alpha, const double* a, const int* lda, const double* b, const int* ldb,
                     const double* beta, double* c, const int* ldc);
void orb_blas_xsgemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                     const float* alpha, const float* a, const int* lda, const float* b, const int* ldb,
                     const float* beta, float* c, const int* ldc);
/** @} */

/** The small path: the same product for any shape, straight from the unpacked matrices, without scratch.
 *  Negative k acts as 0, and k <= 0 leaves C = beta C. @{ */
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
/** C = beta C, C m by n; for beta == 0, C = 0 without reading C. @{ */
void orb_blas_dgemm_mscale(const int* m, const int* n, const double* beta, double* c, const int* ldc);
void orb_blas_sgemm_mscale(const int* m, const int* n, const float* beta, float* c, const int* ldc);
/** @} */

ORB_END_DECLS

#endif
