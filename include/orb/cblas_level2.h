/** @file
 *  Matrix-vector routines of the C BLAS: those of orb/fortran_level2.h with scalars by value and a layout. Part of
 *  orb/cblas.h.
 *
 *  For row-major matrices read "row" for "column" in the storage of bands and packed triangles.
 */
#ifndef ORB_CBLAS_LEVEL2_H
#define ORB_CBLAS_LEVEL2_H

#include "orb/cblas_types.h"

ORB_BEGIN_DECLS

/* General matrices */

/** @{ */
/** y = alpha op(A) x + beta y; A m by n. */
void cblas_sgemv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, float alpha, const float* a,
                 int lda, const float* x, int incx, float beta, float* y, int incy);
void cblas_dgemv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, double alpha, const double* a,
                 int lda, const double* x, int incx, double beta, double* y, int incy);
void cblas_cgemv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, const void* alpha, const void* a,
                 int lda, const void* x, int incx, const void* beta, void* y, int incy);
void cblas_zgemv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, const void* alpha, const void* a,
                 int lda, const void* x, int incx, const void* beta, void* y, int incy);
/** @} */

/** @{ */
/** The same with a band of kl diagonals below the main one and ku above; element (i, j) stands at
 *  a[ku + i - j + j * lda], lda >= kl + ku + 1. */
void cblas_sgbmv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, int kl, int ku, float alpha,
                 const float* a, int lda, const float* x, int incx, float beta, float* y, int incy);
void cblas_dgbmv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, int kl, int ku, double alpha,
                 const double* a, int lda, const double* x, int incx, double beta, double* y, int incy);
void cblas_cgbmv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, int kl, int ku, const void* alpha,
                 const void* a, int lda, const void* x, int incx, const void* beta, void* y, int incy);
void cblas_zgbmv(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, int kl, int ku, const void* alpha,
                 const void* a, int lda, const void* x, int incx, const void* beta, void* y, int incy);
/** @} */

/** @{ */
/** A += alpha x y^T, for `gerc` alpha x y^H; A m by n. */
void cblas_sger(CBLAS_LAYOUT layout, int m, int n, float alpha, const float* x, int incx, const float* y,
                int incy, float* a, int lda);
void cblas_dger(CBLAS_LAYOUT layout, int m, int n, double alpha, const double* x, int incx, const double* y,
                int incy, double* a, int lda);
void cblas_cgeru(CBLAS_LAYOUT layout, int m, int n, const void* alpha, const void* x, int incx, const void* y,
                 int incy, void* a, int lda);
void cblas_zgeru(CBLAS_LAYOUT layout, int m, int n, const void* alpha, const void* x, int incx, const void* y,
                 int incy, void* a, int lda);
void cblas_cgerc(CBLAS_LAYOUT layout, int m, int n, const void* alpha, const void* x, int incx, const void* y,
                 int incy, void* a, int lda);
void cblas_zgerc(CBLAS_LAYOUT layout, int m, int n, const void* alpha, const void* x, int incx, const void* y,
                 int incy, void* a, int lda);
/** @} */

/* Symmetric and Hermitian matrices */

/** @{ */
/** y = alpha A x + beta y; A symmetric (`sy`) or Hermitian (`he`). */
void cblas_ssymv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const float* a, int lda,
                 const float* x, int incx, float beta, float* y, int incy);
void cblas_dsymv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const double* a, int lda,
                 const double* x, int incx, double beta, double* y, int incy);
void cblas_chemv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* a, int lda,
                 const void* x, int incx, const void* beta, void* y, int incy);
void cblas_zhemv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* a, int lda,
                 const void* x, int incx, const void* beta, void* y, int incy);
/** @} */

/** @{ */
/** The same with k diagonals beside the main one: element (i, j) stands at a[k + i - j + j * lda] in the upper
 *  triangle, at a[i - j + j * lda] in the lower one, lda >= k + 1. */
void cblas_ssbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, int k, float alpha, const float* a, int lda,
                 const float* x, int incx, float beta, float* y, int incy);
void cblas_dsbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, int k, double alpha, const double* a, int lda,
                 const double* x, int incx, double beta, double* y, int incy);
void cblas_chbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, int k, const void* alpha, const void* a,
                 int lda, const void* x, int incx, const void* beta, void* y, int incy);
void cblas_zhbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, int k, const void* alpha, const void* a,
                 int lda, const void* x, int incx, const void* beta, void* y, int incy);
/** @} */

/** @{ */
/** The same with a packed triangle. */
void cblas_sspmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const float* ap, const float* x,
                 int incx, float beta, float* y, int incy);
void cblas_dspmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const double* ap, const double* x,
                 int incx, double beta, double* y, int incy);
void cblas_chpmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* ap,
                 const void* x, int incx, const void* beta, void* y, int incy);
void cblas_zhpmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* ap,
                 const void* x, int incx, const void* beta, void* y, int incy);
/** @} */

/** @{ */
/** A += alpha x x^T, or alpha x x^H with a real alpha; `p`: packed. */
void cblas_ssyr(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const float* x, int incx, float* a,
                int lda);
void cblas_dsyr(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const double* x, int incx,
                double* a, int lda);
void cblas_cher(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const void* x, int incx, void* a,
                int lda);
void cblas_zher(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const void* x, int incx, void* a,
                int lda);
void cblas_sspr(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const float* x, int incx,
                float* ap);
void cblas_dspr(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const double* x, int incx,
                double* ap);
void cblas_chpr(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const void* x, int incx, void* ap);
void cblas_zhpr(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const void* x, int incx, void* ap);
/** @} */

/** @{ */
/** A += alpha x y^T + alpha y x^T, or alpha x y^H + conj(alpha) y x^H; `p`: packed. */
void cblas_ssyr2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const float* x, int incx,
                 const float* y, int incy, float* a, int lda);
void cblas_dsyr2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const double* x, int incx,
                 const double* y, int incy, double* a, int lda);
void cblas_cher2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* x, int incx,
                 const void* y, int incy, void* a, int lda);
void cblas_zher2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* x, int incx,
                 const void* y, int incy, void* a, int lda);
void cblas_sspr2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, float alpha, const float* x, int incx,
                 const float* y, int incy, float* ap);
void cblas_dspr2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, double alpha, const double* x, int incx,
                 const double* y, int incy, double* ap);
void cblas_chpr2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* x, int incx,
                 const void* y, int incy, void* ap);
void cblas_zhpr2(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, const void* alpha, const void* x, int incx,
                 const void* y, int incy, void* ap);
/** @} */

/* Triangular matrices */

/** @{ */
/** x = op(A) x. */
void cblas_strmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const float* a, int lda, float* x, int incx);
void cblas_dtrmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const double* a, int lda, double* x, int incx);
void cblas_ctrmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* a, int lda, void* x, int incx);
void cblas_ztrmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* a, int lda, void* x, int incx);
/** @} */

/** @{ */
/** x = op(A)^-1 x. No check for a zero on the diagonal: it gives infinities and NaN. */
void cblas_strsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const float* a, int lda, float* x, int incx);
void cblas_dtrsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const double* a, int lda, double* x, int incx);
void cblas_ctrsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* a, int lda, void* x, int incx);
void cblas_ztrsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* a, int lda, void* x, int incx);
/** @} */

/** @{ */
/** The same two with k diagonals beside the main one, stored as for sbmv. */
void cblas_stbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const float* a, int lda, float* x, int incx);
void cblas_dtbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const double* a, int lda, double* x, int incx);
void cblas_ctbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const void* a, int lda, void* x, int incx);
void cblas_ztbmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const void* a, int lda, void* x, int incx);
void cblas_stbsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const float* a, int lda, float* x, int incx);
void cblas_dtbsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const double* a, int lda, double* x, int incx);
void cblas_ctbsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const void* a, int lda, void* x, int incx);
void cblas_ztbsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, int k,
                 const void* a, int lda, void* x, int incx);
/** @} */

/** @{ */
/** The same two with a packed triangle. */
void cblas_stpmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const float* ap, float* x, int incx);
void cblas_dtpmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const double* ap, double* x, int incx);
void cblas_ctpmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* ap, void* x, int incx);
void cblas_ztpmv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* ap, void* x, int incx);
void cblas_stpsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const float* ap, float* x, int incx);
void cblas_dtpsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const double* ap, double* x, int incx);
void cblas_ctpsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* ap, void* x, int incx);
void cblas_ztpsv(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,
                 const void* ap, void* x, int incx);
/** @} */

ORB_END_DECLS

#endif
