/** @file
 *  The C BLAS as liborb.so offers it. Scalars by value, complex ones and complex vectors through void
 * pointers to pairs of float or double, real part first.
 *
 *  Vectors are those of orb/blas.h, increments below 1 in routines on one vector included; index functions
 * count from 0, and give 0 for an empty vector too.
 *
 *  A matrix is row-major or column-major as its first argument says; the leading dimension is the distance
 *  between rows or between columns. A row-major call is the column-major call on the transposes, which lie in the
 *  same memory. A bad argument is reported to cblas_xerbla(); nothing has been touched then. Of several bad ones, the
 *  layout and the options come first, then the others in the order of the column-major call.
 */
#ifndef ORB_CBLAS_H
#define ORB_CBLAS_H

#include "orb/cblas_level2.h"
#include "orb/cblas_level3.h"
#include "orb/cblas_types.h"

ORB_BEGIN_DECLS

/* Vectors */

/** @{ */
/** y += alpha x; alpha == 0 returns at once. */
void cblas_saxpy(int n, float alpha, const float* x, int incx, float* y, int incy);
void cblas_daxpy(int n, double alpha, const double* x, int incx, double* y, int incy);
void cblas_caxpy(int n, const void* alpha, const void* x, int incx, void* y, int incy);
void cblas_zaxpy(int n, const void* alpha, const void* x, int incx, void* y, int incy);
/** @} */

/** @{ */
/** y = alpha x + beta y; a factor of 0 means that its vector is not read. */
void cblas_saxpby(int n, float alpha, const float* x, int incx, float beta, float* y, int incy);
void cblas_daxpby(int n, double alpha, const double* x, int incx, double beta, double* y, int incy);
void cblas_caxpby(int n, const void* alpha, const void* x, int incx, const void* beta, void* y, int incy);
void cblas_zaxpby(int n, const void* alpha, const void* x, int incx, const void* beta, void* y, int incy);
/** @} */

/** @{ */
/** Sum of x[i] y[i]; dsdot and sdsdot sum in double, sdsdot from sb on. */
float cblas_sdot(int n, const float* x, int incx, const float* y, int incy);
double cblas_ddot(int n, const double* x, int incx, const double* y, int incy);
double cblas_dsdot(int n, const float* x, int incx, const float* y, int incy);
float cblas_sdsdot(int n, float sb, const float* x, int incx, const float* y, int incy);
/** @} */

/** @{ */
/** *result = sum of x[i] y[i] (`u`) or of conj(x[i]) y[i] (`c`). */
void cblas_cdotu_sub(int n, const void* x, int incx, const void* y, int incy, void* result);
void cblas_cdotc_sub(int n, const void* x, int incx, const void* y, int incy, void* result);
void cblas_zdotu_sub(int n, const void* x, int incx, const void* y, int incy, void* result);
void cblas_zdotc_sub(int n, const void* x, int incx, const void* y, int incy, void* result);
/** @} */

/** @{ */
/** x = alpha x. */
void cblas_sscal(int n, float alpha, float* x, int incx);
void cblas_dscal(int n, double alpha, double* x, int incx);
void cblas_cscal(int n, const void* alpha, void* x, int incx);
void cblas_zscal(int n, const void* alpha, void* x, int incx);
void cblas_csscal(int n, float alpha, void* x, int incx);
void cblas_zdscal(int n, double alpha, void* x, int incx);
/** @} */

/** @{ */
/** y = x. */
void cblas_scopy(int n, const float* x, int incx, float* y, int incy);
void cblas_dcopy(int n, const double* x, int incx, double* y, int incy);
void cblas_ccopy(int n, const void* x, int incx, void* y, int incy);
void cblas_zcopy(int n, const void* x, int incx, void* y, int incy);
/** @} */

/** @{ */
/** Exchanges x and y. */
void cblas_sswap(int n, float* x, int incx, float* y, int incy);
void cblas_dswap(int n, double* x, int incx, double* y, int incy);
void cblas_cswap(int n, void* x, int incx, void* y, int incy);
void cblas_zswap(int n, void* x, int incx, void* y, int incy);
/** @} */

/** @{ */
/** Sum of |x[i]|, for complex elements of |re| + |im|. */
float cblas_sasum(int n, const float* x, int incx);
double cblas_dasum(int n, const double* x, int incx);
float cblas_scasum(int n, const void* x, int incx);
double cblas_dzasum(int n, const void* x, int incx);
/** @} */

/** @{ */
/** Euclidean norm. */
float cblas_snrm2(int n, const float* x, int incx);
double cblas_dnrm2(int n, const double* x, int incx);
float cblas_scnrm2(int n, const void* x, int incx);
double cblas_dznrm2(int n, const void* x, int incx);
/** @} */

/** @{ */
/** Place, from 0, of the first of the largest (`amax`) or smallest (`amin`) |x[i]|, complex |re| + |im|. */
CBLAS_INDEX cblas_isamax(int n, const float* x, int incx);
CBLAS_INDEX cblas_idamax(int n, const double* x, int incx);
CBLAS_INDEX cblas_icamax(int n, const void* x, int incx);
CBLAS_INDEX cblas_izamax(int n, const void* x, int incx);
CBLAS_INDEX cblas_isamin(int n, const float* x, int incx);
CBLAS_INDEX cblas_idamin(int n, const double* x, int incx);
CBLAS_INDEX cblas_icamin(int n, const void* x, int incx);
CBLAS_INDEX cblas_izamin(int n, const void* x, int incx);
/** @} */

/** @{ */
/** |re z| + |im z|. */
float cblas_scabs1(const void* z);
double cblas_dcabs1(const void* z);
/** @} */

/** @{ */
/** x[i], y[i] = c x[i] + s y[i], c y[i] - s x[i]. */
void cblas_srot(int n, float* x, int incx, float* y, int incy, float c, float s);
void cblas_drot(int n, double* x, int incx, double* y, int incy, double c, double s);
void cblas_csrot(int n, void* x, int incx, void* y, int incy, float c, float s);
void cblas_zdrot(int n, void* x, int incx, void* y, int incy, double c, double s);
/** @} */

/** @{ */
/** Make a rotation: see srotg_() and crotg_(). */
void cblas_srotg(float* a, float* b, float* c, float* s);
void cblas_drotg(double* a, double* b, double* c, double* s);
void cblas_crotg(void* a, void* b, float* c, void* s);
void cblas_zrotg(void* a, void* b, double* c, void* s);
/** @} */

/** @{ */
/** Apply and make a modified rotation: see srotm_() and srotmg_(). */
void cblas_srotm(int n, float* x, int incx, float* y, int incy, const float* param);
void cblas_drotm(int n, double* x, int incx, double* y, int incy, const double* param);
void cblas_srotmg(float* d1, float* d2, float* x1, float y1, float* param);
void cblas_drotmg(double* d1, double* d2, double* x1, double y1, double* param);
/** @} */

/** Told of every bad argument: its place in the argument list, counted from 1 with the layout, the routine's
 *  name, and a printf text with what more there is to say. A program may define its own; it wins over this one,
 *  which prints to the standard error stream and returns. If it returns, the routine returns to its caller.
 *
 *  In a row-major call a program's own handler hears the place in the column-major call on the transposes, while
 *  RowMajorStrg is not 0, as handlers for the C BLAS have always known it; the one here prints the caller's. */
void cblas_xerbla(int place, const char* routine, const char* form, ...);

/** Not 0 while cblas_xerbla() runs for a row-major call. */
extern int RowMajorStrg;

ORB_END_DECLS

#endif
