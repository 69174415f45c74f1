/** @file
 *  Matrix-vector routines of the Fortran BLAS. Part of orb/blas.h.
 *
 *  Matrices are column-major, leading dimensions in elements. op(A) is A for trans `N`, its transpose for `T`,
 *  its conjugate transpose (the transpose if it is real) for `C`; letters of either case. uplo tells which
 *  triangle of a symmetric, Hermitian or triangular matrix is stored, `U` or `L`: the other one is neither read
 *  nor written; diag `U` takes the diagonal as ones without reading it. A packed triangle (ap) has its columns
 *  one behind the other. Diagonals of Hermitian matrices count as real. Vectors are those of orb/blas.h, but
 *  no increment may be 0. beta == 0 does not read y.
 *
 *  A bad argument is reported to xerbla_() by its place, the first one in the order of the argument list: an
 *  unknown letter, a dimension below 0, a leading dimension that is too small, an increment of 0. The routine then
 *  returns and has touched nothing.
 *
 *  gemv and ger divide large matrices among threads (orb_set_num_threads()) at no change to the bits.
 */
#ifndef ORB_FORTRAN_LEVEL2_H
#define ORB_FORTRAN_LEVEL2_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/* General matrices */

/** @{ */
/** y = alpha op(A) x + beta y; A m by n. */
void sgemv_(const char* trans, const int* m, const int* n, const float* alpha, const float* a, const int* lda,
            const float* x, const int* incx, const float* beta, float* y, const int* incy);
void dgemv_(const char* trans, const int* m, const int* n, const double* alpha, const double* a,
            const int* lda, const double* x, const int* incx, const double* beta, double* y, const int* incy);
void cgemv_(const char* trans, const int* m, const int* n, const orb_complex_float* alpha,
            const orb_complex_float* a, const int* lda, const orb_complex_float* x, const int* incx,
            const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void zgemv_(const char* trans, const int* m, const int* n, const orb_complex_double* alpha,
            const orb_complex_double* a, const int* lda, const orb_complex_double* x, const int* incx,
            const orb_complex_double* beta, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** The same with a band of kl diagonals below the main one and ku above; element (i, j) stands at
 *  a[ku + i - j + j * lda], lda >= kl + ku + 1. */
void sgbmv_(const char* trans, const int* m, const int* n, const int* kl, const int* ku, const float* alpha,
            const float* a, const int* lda, const float* x, const int* incx, const float* beta, float* y,
            const int* incy);
void dgbmv_(const char* trans, const int* m, const int* n, const int* kl, const int* ku, const double* alpha,
            const double* a, const int* lda, const double* x, const int* incx, const double* beta, double* y,
            const int* incy);
void cgbmv_(const char* trans, const int* m, const int* n, const int* kl, const int* ku,
            const orb_complex_float* alpha, const orb_complex_float* a, const int* lda,
            const orb_complex_float* x, const int* incx, const orb_complex_float* beta, orb_complex_float* y,
            const int* incy);
void zgbmv_(const char* trans, const int* m, const int* n, const int* kl, const int* ku,
            const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
            const orb_complex_double* x, const int* incx, const orb_complex_double* beta,
            orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** A += alpha x y^T, for `gerc` alpha x y^H; A m by n. */
void sger_(const int* m, const int* n, const float* alpha, const float* x, const int* incx, const float* y,
           const int* incy, float* a, const int* lda);
void dger_(const int* m, const int* n, const double* alpha, const double* x, const int* incx, const double* y,
           const int* incy, double* a, const int* lda);
void cgeru_(const int* m, const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
            const int* incx, const orb_complex_float* y, const int* incy, orb_complex_float* a,
            const int* lda);
void zgeru_(const int* m, const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
            const int* incx, const orb_complex_double* y, const int* incy, orb_complex_double* a,
            const int* lda);
void cgerc_(const int* m, const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
            const int* incx, const orb_complex_float* y, const int* incy, orb_complex_float* a,
            const int* lda);
void zgerc_(const int* m, const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
            const int* incx, const orb_complex_double* y, const int* incy, orb_complex_double* a,
            const int* lda);
/** @} */

/* Symmetric and Hermitian matrices */

/** @{ */
/** y = alpha A x + beta y; A symmetric (`sy`) or Hermitian (`he`). */
void ssymv_(const char* uplo, const int* n, const float* alpha, const float* a, const int* lda,
            const float* x, const int* incx, const float* beta, float* y, const int* incy);
void dsymv_(const char* uplo, const int* n, const double* alpha, const double* a, const int* lda,
            const double* x, const int* incx, const double* beta, double* y, const int* incy);
void chemv_(const char* uplo, const int* n, const orb_complex_float* alpha, const orb_complex_float* a,
            const int* lda, const orb_complex_float* x, const int* incx, const orb_complex_float* beta,
            orb_complex_float* y, const int* incy);
void zhemv_(const char* uplo, const int* n, const orb_complex_double* alpha, const orb_complex_double* a,
            const int* lda, const orb_complex_double* x, const int* incx, const orb_complex_double* beta,
            orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** The same with k diagonals beside the main one: element (i, j) stands at a[k + i - j + j * lda] in the upper
 *  triangle, at a[i - j + j * lda] in the lower one, lda >= k + 1. */
void ssbmv_(const char* uplo, const int* n, const int* k, const float* alpha, const float* a, const int* lda,
            const float* x, const int* incx, const float* beta, float* y, const int* incy);
void dsbmv_(const char* uplo, const int* n, const int* k, const double* alpha, const double* a,
            const int* lda, const double* x, const int* incx, const double* beta, double* y, const int* incy);
void chbmv_(const char* uplo, const int* n, const int* k, const orb_complex_float* alpha,
            const orb_complex_float* a, const int* lda, const orb_complex_float* x, const int* incx,
            const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void zhbmv_(const char* uplo, const int* n, const int* k, const orb_complex_double* alpha,
            const orb_complex_double* a, const int* lda, const orb_complex_double* x, const int* incx,
            const orb_complex_double* beta, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** The same with a packed triangle. */
void sspmv_(const char* uplo, const int* n, const float* alpha, const float* ap, const float* x,
            const int* incx, const float* beta, float* y, const int* incy);
void dspmv_(const char* uplo, const int* n, const double* alpha, const double* ap, const double* x,
            const int* incx, const double* beta, double* y, const int* incy);
void chpmv_(const char* uplo, const int* n, const orb_complex_float* alpha, const orb_complex_float* ap,
            const orb_complex_float* x, const int* incx, const orb_complex_float* beta, orb_complex_float* y,
            const int* incy);
void zhpmv_(const char* uplo, const int* n, const orb_complex_double* alpha, const orb_complex_double* ap,
            const orb_complex_double* x, const int* incx, const orb_complex_double* beta,
            orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** A += alpha x x^T, or alpha x x^H with a real alpha; `p`: packed. */
void ssyr_(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx, float* a,
           const int* lda);
void dsyr_(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx, double* a,
           const int* lda);
void cher_(const char* uplo, const int* n, const float* alpha, const orb_complex_float* x, const int* incx,
           orb_complex_float* a, const int* lda);
void zher_(const char* uplo, const int* n, const double* alpha, const orb_complex_double* x, const int* incx,
           orb_complex_double* a, const int* lda);
void sspr_(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx, float* ap);
void dspr_(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx, double* ap);
void chpr_(const char* uplo, const int* n, const float* alpha, const orb_complex_float* x, const int* incx,
           orb_complex_float* ap);
void zhpr_(const char* uplo, const int* n, const double* alpha, const orb_complex_double* x, const int* incx,
           orb_complex_double* ap);
/** @} */

/** @{ */
/** A += alpha x y^T + alpha y x^T, or alpha x y^H + conj(alpha) y x^H; `p`: packed. */
void ssyr2_(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx,
            const float* y, const int* incy, float* a, const int* lda);
void dsyr2_(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx,
            const double* y, const int* incy, double* a, const int* lda);
void cher2_(const char* uplo, const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
            const int* incx, const orb_complex_float* y, const int* incy, orb_complex_float* a,
            const int* lda);
void zher2_(const char* uplo, const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
            const int* incx, const orb_complex_double* y, const int* incy, orb_complex_double* a,
            const int* lda);
void sspr2_(const char* uplo, const int* n, const float* alpha, const float* x, const int* incx,
            const float* y, const int* incy, float* ap);
void dspr2_(const char* uplo, const int* n, const double* alpha, const double* x, const int* incx,
            const double* y, const int* incy, double* ap);
void chpr2_(const char* uplo, const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
            const int* incx, const orb_complex_float* y, const int* incy, orb_complex_float* ap);
void zhpr2_(const char* uplo, const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
            const int* incx, const orb_complex_double* y, const int* incy, orb_complex_double* ap);
/** @} */

/* Triangular matrices */

/** @{ */
/** x = op(A) x. */
void strmv_(const char* uplo, const char* trans, const char* diag, const int* n, const float* a,
            const int* lda, float* x, const int* incx);
void dtrmv_(const char* uplo, const char* trans, const char* diag, const int* n, const double* a,
            const int* lda, double* x, const int* incx);
void ctrmv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_float* a,
            const int* lda, orb_complex_float* x, const int* incx);
void ztrmv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_double* a,
            const int* lda, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** x = op(A)^-1 x. No check for a zero on the diagonal: it gives infinities and NaN. */
void strsv_(const char* uplo, const char* trans, const char* diag, const int* n, const float* a,
            const int* lda, float* x, const int* incx);
void dtrsv_(const char* uplo, const char* trans, const char* diag, const int* n, const double* a,
            const int* lda, double* x, const int* incx);
void ctrsv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_float* a,
            const int* lda, orb_complex_float* x, const int* incx);
void ztrsv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_double* a,
            const int* lda, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** The same two with k diagonals beside the main one, stored as for sbmv. */
void stbmv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k, const float* a,
            const int* lda, float* x, const int* incx);
void dtbmv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
            const double* a, const int* lda, double* x, const int* incx);
void ctbmv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
            const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void ztbmv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
            const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
void stbsv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k, const float* a,
            const int* lda, float* x, const int* incx);
void dtbsv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
            const double* a, const int* lda, double* x, const int* incx);
void ctbsv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
            const orb_complex_float* a, const int* lda, orb_complex_float* x, const int* incx);
void ztbsv_(const char* uplo, const char* trans, const char* diag, const int* n, const int* k,
            const orb_complex_double* a, const int* lda, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** The same two with a packed triangle. */
void stpmv_(const char* uplo, const char* trans, const char* diag, const int* n, const float* ap, float* x,
            const int* incx);
void dtpmv_(const char* uplo, const char* trans, const char* diag, const int* n, const double* ap, double* x,
            const int* incx);
void ctpmv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_float* ap,
            orb_complex_float* x, const int* incx);
void ztpmv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_double* ap,
            orb_complex_double* x, const int* incx);
void stpsv_(const char* uplo, const char* trans, const char* diag, const int* n, const float* ap, float* x,
            const int* incx);
void dtpsv_(const char* uplo, const char* trans, const char* diag, const int* n, const double* ap, double* x,
            const int* incx);
void ctpsv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_float* ap,
            orb_complex_float* x, const int* incx);
void ztpsv_(const char* uplo, const char* trans, const char* diag, const int* n, const orb_complex_double* ap,
            orb_complex_double* x, const int* incx);
/** @} */

ORB_END_DECLS

#endif
