/** @file
 *  Small factorisations of liborb.so: Cholesky and symmetric indefinite factorisation, tridiagonal systems,
 *  sequences of rotations, and reflectors, with the arguments and results that LAPACK gives the routines of
 *  these names. The names differ from LAPACK's, so that a LAPACK may stand beside them.
 *
 *  All arguments by reference; matrices are column-major with a leading dimension in elements; option letters
 *  in either case. Each hands its arguments to the kernel of its name (orb/blas_lapack.h), where the results
 *  are told in full, after checking them in their order: a bad one goes to xerbla_() by its place, and, where
 *  there is an info, makes it minus that place; nothing else is touched then. A leading dimension is good
 * from 1 and the number of rows on.
 *
 *  Source: E. Anderson et al., LAPACK Users' Guide, SIAM 1999.
 */
#ifndef ORB_LAPACK_H
#define ORB_LAPACK_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** A = U^H U or A = L L^H of a symmetric or Hermitian positive definite matrix, in the triangle `uplo` (U,
 * L). info = k > 0: the leading minor of order k is not positive definite. Bad: uplo 1, n 2, lda 4. */
void orb_spotrf(const char* uplo, const int* n, float* a, const int* lda, int* info);
void orb_dpotrf(const char* uplo, const int* n, double* a, const int* lda, int* info);
void orb_cpotrf(const char* uplo, const int* n, orb_complex_float* a, const int* lda, int* info);
void orb_zpotrf(const char* uplo, const int* n, orb_complex_double* a, const int* lda, int* info);
/** @} */

/** @{ */
/** A = U D U^T or A = L D L^T of a symmetric matrix with diagonal pivots of order 1 and 2, told by ipiv. info
 *  = k > 0: D(k, k) is exactly 0. lwork = -1 only stores the optimal size in work[0]. Bad: uplo 1, n 2, lda
 * 4, lwork 7. */
void orb_ssytrf(const char* uplo, const int* n, float* a, const int* lda, int* ipiv, float* work,
                const int* lwork, int* info);
void orb_dsytrf(const char* uplo, const int* n, double* a, const int* lda, int* ipiv, double* work,
                const int* lwork, int* info);
void orb_csytrf(const char* uplo, const int* n, orb_complex_float* a, const int* lda, int* ipiv,
                orb_complex_float* work, const int* lwork, int* info);
void orb_zsytrf(const char* uplo, const int* n, orb_complex_double* a, const int* lda, int* ipiv,
                orb_complex_double* work, const int* lwork, int* info);
/** @} */

/** @{ */
/** Solves A X = B for a tridiagonal A by elimination with exchanges of rows. info = k > 0: pivot k is exactly
 *  0. Bad: n 1, nrhs 2, ldb 7. */
void orb_sgtsv(const int* n, const int* nrhs, float* dl, float* d, float* du, float* b, const int* ldb,
               int* info);
void orb_dgtsv(const int* n, const int* nrhs, double* dl, double* d, double* du, double* b, const int* ldb,
               int* info);
void orb_cgtsv(const int* n, const int* nrhs, orb_complex_float* dl, orb_complex_float* d,
               orb_complex_float* du, orb_complex_float* b, const int* ldb, int* info);
void orb_zgtsv(const int* n, const int* nrhs, orb_complex_double* dl, orb_complex_double* d,
               orb_complex_double* du, orb_complex_double* b, const int* ldb, int* info);
/** @} */

/** @{ */
/** Solves A X = B for a factored positive definite tridiagonal A. Bad: n 1, nrhs 2, ldb 6; complex: iuplo (0
 *  or 1) 1, n 2, nrhs 3, ldb 7. */
void orb_sptts2(const int* n, const int* nrhs, const float* d, const float* e, float* b, const int* ldb);
void orb_dptts2(const int* n, const int* nrhs, const double* d, const double* e, double* b, const int* ldb);
void orb_cptts2(const int* iuplo, const int* n, const int* nrhs, const float* d, const orb_complex_float* e,
                orb_complex_float* b, const int* ldb);
void orb_zptts2(const int* iuplo, const int* n, const int* nrhs, const double* d, const orb_complex_double* e,
                orb_complex_double* b, const int* ldb);
/** @} */

/** @{ */
/** Applies a sequence of plane rotations to the rows or columns of A. Bad: side (L, R) 1, pivot (V, T, B) 2,
 *  direct (F, B) 3, m 4, n 5, lda 9. */
void orb_slasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
               const float* c, const float* s, float* a, const int* lda);
void orb_dlasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
               const double* c, const double* s, double* a, const int* lda);
void orb_clasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
               const float* c, const float* s, orb_complex_float* a, const int* lda);
void orb_zlasr(const char* side, const char* pivot, const char* direct, const int* m, const int* n,
               const double* c, const double* s, orb_complex_double* a, const int* lda);
/** @} */

/** @{ */
/** Applies the reflector I - tau v v^H to C from the left or right. Bad: side (L, R) 1, m 2, n 3, ldc 7. */
void orb_slarfx(const char* side, const int* m, const int* n, const float* v, const float* tau, float* c,
                const int* ldc, float* work);
void orb_dlarfx(const char* side, const int* m, const int* n, const double* v, const double* tau, double* c,
                const int* ldc, double* work);
void orb_clarfx(const char* side, const int* m, const int* n, const orb_complex_float* v,
                const orb_complex_float* tau, orb_complex_float* c, const int* ldc, orb_complex_float* work);
void orb_zlarfx(const char* side, const int* m, const int* n, const orb_complex_double* v,
                const orb_complex_double* tau, orb_complex_double* c, const int* ldc,
                orb_complex_double* work);
/** @} */

ORB_END_DECLS

#endif
