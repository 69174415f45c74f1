/** @file
 *  Small factorisation kernels of liborb_t7.so: Cholesky and symmetric indefinite factorisation, tridiagonal
 *  systems, sequences of rotations, and reflectors. All arguments by reference; nothing is checked.
 *
 *  Matrices are column-major with a leading dimension in elements. `uplo` U, in either case, takes the upper
 *  triangle and everything else the lower one; the other triangle is neither read nor written. `info` is 0,
 *  or tells of a numerical failure by a place from 1. A count <= 0 means nothing to do. Results are the same
 *  for the same arguments, alignment and blocks; the blocks may change between versions.
 *
 *  Source of the interfaces: E. Anderson et al., LAPACK Users' Guide, SIAM 1999.
 */
#ifndef ORB_BLAS_LAPACK_H
#define ORB_BLAS_LAPACK_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** Cholesky factorisation of a symmetric or Hermitian positive definite matrix of order n: A = U^H U or
 *  A = L L^H; the factor, with a positive diagonal, replaces its triangle of A. Imaginary parts of the
 *  diagonal are not read and become 0.
 *
 *  info = k: the leading minor of order k is not positive definite (its last pivot is not above 0, or is no
 *  number). The factor of the minor of order k - 1 is in place then, and the pivot stands at A(k, k); what
 *  lies beyond is half done.
 *
 *  The matrix is halved down to orders of 32 at most, the halves joined by a triangular solve and a symmetric
 *  update. Scratch is that of those. The factor satisfies |A - L L^H| <= c (n + 4) u |L| |L^H|, c = 1 for
 *  real elements. Sources: F. G. Gustavson, Recursion leads to automatic variable blocking for dense
 *  linear-algebra algorithms, IBM J. Res. Dev. 41 (1997) 737-755; N. J. Higham, Accuracy and Stability of
 *  Numerical Algorithms, section 10.1. */
void orb_blas_spotrf(const char* uplo, const int* n, float* a, const int* lda, int* info);
void orb_blas_dpotrf(const char* uplo, const int* n, double* a, const int* lda, int* info);
void orb_blas_cpotrf(const char* uplo, const int* n, orb_complex_float* a, const int* lda, int* info);
void orb_blas_zpotrf(const char* uplo, const int* n, orb_complex_double* a, const int* lda, int* info);
/** @} */

/** @{ */
/** Factorisation of a symmetric (never Hermitian) matrix of order n with diagonal pivots of order 1 and 2:
 *  A = U D U^T or A = L D L^T, U and L products of exchanges and unit triangles, which replace their triangle
 *  of A together with D.
 *
 *  ipiv[k] = p > 0 (k and p from 1): D(k, k) is a pivot of order 1, rows and columns k and p were exchanged.
 *  ipiv[k] = ipiv[k + 1] = -p < 0 (lower; upper: ipiv[k] = ipiv[k - 1]): D has a pivot of order 2 in k and
 *  k + 1 (k - 1), and k + 1 (k - 1) and p were exchanged. info = k: D(k, k) is exactly 0, or no number: the
 *  factorisation is complete, a solution would divide by it. The first such place in the order of the
 *  elimination, which goes from the first row on (lower) or from the last one back (upper).
 *
 *  `work` holds lwork >= 1 elements. lwork = -1 only stores the optimal size, which every call leaves in
 *  work[0]. Below it a block of orb_serv_allocate() at alignment 64 takes the place of `work`, with the same
 *  result.
 *
 *  Source: J. R. Bunch, L. Kaufman, Some stable methods for calculating inertia and solving symmetric linear
 *  systems, Math. Comp. 31 (1977) 163-179; panels of columns are finished before the rest takes them as one
 *  product. */
void orb_blas_ssytrf(const char* uplo, const int* n, float* a, const int* lda, int* ipiv, float* work,
                     const int* lwork, int* info);
void orb_blas_dsytrf(const char* uplo, const int* n, double* a, const int* lda, int* ipiv, double* work,
                     const int* lwork, int* info);
void orb_blas_csytrf(const char* uplo, const int* n, orb_complex_float* a, const int* lda, int* ipiv,
                     orb_complex_float* work, const int* lwork, int* info);
void orb_blas_zsytrf(const char* uplo, const int* n, orb_complex_double* a, const int* lda, int* ipiv,
                     orb_complex_double* work, const int* lwork, int* info);
/** @} */

/** @{ */
/** Solves A X = B for a tridiagonal A of order n by elimination with exchanges of neighbouring rows; X
 *  replaces the nrhs columns of B. dl, d, du are the n - 1, n, n - 1 elements of the lower, the main and the
 *  upper diagonal; the second superdiagonal (n - 2 elements), the diagonal and the superdiagonal of the
 *  triangular factor replace them. info = k: pivot k of it is exactly 0; no solution was computed, and
 *  elimination stopped there. Source: G. H. Golub, C. F. Van Loan, Matrix Computations, section 4.3. */
void orb_blas_sgtsv(const int* n, const int* nrhs, float* dl, float* d, float* du, float* b, const int* ldb,
                    int* info);
void orb_blas_dgtsv(const int* n, const int* nrhs, double* dl, double* d, double* du, double* b,
                    const int* ldb, int* info);
void orb_blas_cgtsv(const int* n, const int* nrhs, orb_complex_float* dl, orb_complex_float* d,
                    orb_complex_float* du, orb_complex_float* b, const int* ldb, int* info);
void orb_blas_zgtsv(const int* n, const int* nrhs, orb_complex_double* dl, orb_complex_double* d,
                    orb_complex_double* du, orb_complex_double* b, const int* ldb, int* info);
/** @} */

/** @{ */
/** Solves A X = B for a factored positive definite tridiagonal A = L D L^H of order n; X replaces the nrhs
 *  columns of B. d is the diagonal of D, e the n - 1 elements beside the unit diagonal: of L, or, with iuplo
 * = 1 in the complex forms, of U, A = U^H D U (every other iuplo means L).
 *
 *  Element by element x[i] = b[i] - x[i - 1] e[i - 1] downwards, then x[i] = x[i] / d[i] - x[i + 1] e[i]
 *  upwards, with the conjugate of e where it is called for; each product, quotient and difference is rounded
 *  once. Several columns take one block of orb_serv_allocate() at alignment 64, for two registers of elements
 *  a row. */
void orb_blas_sptts2(const int* n, const int* nrhs, const float* d, const float* e, float* b, const int* ldb);
void orb_blas_dptts2(const int* n, const int* nrhs, const double* d, const double* e, double* b,
                     const int* ldb);
void orb_blas_cptts2(const int* iuplo, const int* n, const int* nrhs, const float* d,
                     const orb_complex_float* e, orb_complex_float* b, const int* ldb);
void orb_blas_zptts2(const int* iuplo, const int* n, const int* nrhs, const double* d,
                     const orb_complex_double* e, orb_complex_double* b, const int* ldb);
/** @} */

/** @{ */
/** Applies z - 1 real plane rotations to the m by n matrix A: A = P A for `side` L (z = m), A = A P^T
 *  otherwise (z = n). Rotation k takes the lines x and y (rows or columns) to c[k] x + s[k] y and
 *  c[k] y - s[k] x. `pivot` tells its lines, from 1: V k and k + 1; T 1 and k + 1; any other k and z.
 * `direct` F applies the first rotation first, any other the last one. c = 1 with s = 0 is passed over. Every
 * product and sum is rounded once, whatever the shape. */
void orb_blas_slasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
                    const float* c, const float* s, float* a, const int* lda);
void orb_blas_dlasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
                    const double* c, const double* s, double* a, const int* lda);
void orb_blas_clasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
                    const float* c, const float* s, orb_complex_float* a, const int* lda);
void orb_blas_zlasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
                    const double* c, const double* s, orb_complex_double* a, const int* lda);
/** @} */

/** @{ */
/** Applies the elementary reflector H = I - tau v v^H to the m by n matrix C: C = H C for `side` L (v has m
 *  elements), C = C H otherwise (n elements). tau == 0 means H = I: nothing is touched, nor v read.
 *
 *  `work` has n elements for L, m otherwise; orders of H up to 10 do not touch it. Above, it takes C^H v or
 *  C v from one call of the upward gemv entry of the type, and each column of C is one axpy. Source: A. S.
 *  Householder, Unitary triangularization of a nonsymmetric matrix, J. ACM 5 (1958) 339-342. */
void orb_blas_slarfx(const char* side, const int* m, const int* n, const float* v, const float* tau, float* c,
                     const int* ldc, float* work);
void orb_blas_dlarfx(const char* side, const int* m, const int* n, const double* v, const double* tau,
                     double* c, const int* ldc, double* work);
void orb_blas_clarfx(const char* side, const int* m, const int* n, const orb_complex_float* v,
                     const orb_complex_float* tau, orb_complex_float* c, const int* ldc,
                     orb_complex_float* work);
void orb_blas_zlarfx(const char* side, const int* m, const int* n, const orb_complex_double* v,
                     const orb_complex_double* tau, orb_complex_double* c, const int* ldc,
                     orb_complex_double* work);
/** @} */

ORB_END_DECLS

#endif
