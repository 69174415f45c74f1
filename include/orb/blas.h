/** @file
 *  The Fortran BLAS as liborb.so offers it: all arguments by reference, names with an underscore behind, in
 * the calling convention of the platform's Fortran compiler. Links where a BLAS library is asked for.
 *
 *  Vectors. A vector is a pointer, a count n of elements and an increment in elements, negative ones walking
 *  from the far end: element i (from 0) stands at x[i * incx], or at x[(i + 1 - n) * incx] for incx < 0. n <=
 * 0 returns at once. Routines on two vectors take any increments, 0 too. Routines on one vector (scal, asum,
 *  nrm2, i?amax, i?amin) take an increment below 1 as an empty vector, as the BLAS has always defined them:
 * the vector stays as it is, and the result is 0. None of these routines checks or reports anything else.
 *  They run on the calling thread: a sum divided among threads would change with their number.
 *
 *  The arithmetic is that of the kernels in orb/blas_level1.h. Two things differ from other BLAS libraries:
 *  nrm2 does not scale but sums wider (in 80 bits, or in double), and in i?amax and i?amin a NaN takes over
 * as the best element until the next element takes over from it.
 *
 *  Fortran passes the length of each character argument as a hidden value behind the others. Nothing but
 *  xerbla_() reads it, and the prototypes leave it out.
 */
#ifndef ORB_BLAS_H
#define ORB_BLAS_H

#include <stddef.h>

#include "orb/fortran_level2.h"
#include "orb/fortran_level3.h"
#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** What complex functions return: the compiler's own complex type, since the platform returns it in a way of
 *  its own. */
__extension__ typedef float _Complex orb_fortran_complex_float;
__extension__ typedef double _Complex orb_fortran_complex_double;
/** @} */

/* Vectors */

/** @{ */
/** y += alpha x; alpha == 0 returns at once. */
void saxpy_(const int* n, const float* alpha, const float* x, const int* incx, float* y, const int* incy);
void daxpy_(const int* n, const double* alpha, const double* x, const int* incx, double* y, const int* incy);
void caxpy_(const int* n, const orb_complex_float* alpha, const orb_complex_float* x, const int* incx,
            orb_complex_float* y, const int* incy);
void zaxpy_(const int* n, const orb_complex_double* alpha, const orb_complex_double* x, const int* incx,
            orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** y = alpha x + beta y; a factor of 0 means that its vector is not read. */
void saxpby_(const int* n, const float* alpha, const float* x, const int* incx, const float* beta, float* y,
             const int* incy);
void daxpby_(const int* n, const double* alpha, const double* x, const int* incx, const double* beta,
             double* y, const int* incy);
void caxpby_(const int* n, const orb_complex_float* alpha, const orb_complex_float* x, const int* incx,
             const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void zaxpby_(const int* n, const orb_complex_double* alpha, const orb_complex_double* x, const int* incx,
             const orb_complex_double* beta, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** Sum of x[i] y[i]. */
float sdot_(const int* n, const float* x, const int* incx, const float* y, const int* incy);
double ddot_(const int* n, const double* x, const int* incx, const double* y, const int* incy);
/** @} */

/** @{ */
/** Sum of x[i] y[i] (`u`) or of conj(x[i]) y[i] (`c`). */
orb_fortran_complex_float cdotu_(const int* n, const orb_complex_float* x, const int* incx,
                                 const orb_complex_float* y, const int* incy);
orb_fortran_complex_float cdotc_(const int* n, const orb_complex_float* x, const int* incx,
                                 const orb_complex_float* y, const int* incy);
orb_fortran_complex_double zdotu_(const int* n, const orb_complex_double* x, const int* incx,
                                  const orb_complex_double* y, const int* incy);
orb_fortran_complex_double zdotc_(const int* n, const orb_complex_double* x, const int* incx,
                                  const orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** Sum of x[i] y[i] with products and sums in double; sdsdot_() adds sb and rounds to single at the end. */
double dsdot_(const int* n, const float* x, const int* incx, const float* y, const int* incy);
float sdsdot_(const int* n, const float* sb, const float* x, const int* incx, const float* y,
              const int* incy);
/** @} */

/** @{ */
/** x = alpha x. An alpha of 0 is multiplied like any other: NaN stays NaN. */
void sscal_(const int* n, const float* alpha, float* x, const int* incx);
void dscal_(const int* n, const double* alpha, double* x, const int* incx);
void cscal_(const int* n, const orb_complex_float* alpha, orb_complex_float* x, const int* incx);
void zscal_(const int* n, const orb_complex_double* alpha, orb_complex_double* x, const int* incx);
void csscal_(const int* n, const float* alpha, orb_complex_float* x, const int* incx);
void zdscal_(const int* n, const double* alpha, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** y = x. */
void scopy_(const int* n, const float* x, const int* incx, float* y, const int* incy);
void dcopy_(const int* n, const double* x, const int* incx, double* y, const int* incy);
void ccopy_(const int* n, const orb_complex_float* x, const int* incx, orb_complex_float* y, const int* incy);
void zcopy_(const int* n, const orb_complex_double* x, const int* incx, orb_complex_double* y,
            const int* incy);
/** @} */

/** @{ */
/** Exchanges x and y. */
void sswap_(const int* n, float* x, const int* incx, float* y, const int* incy);
void dswap_(const int* n, double* x, const int* incx, double* y, const int* incy);
void cswap_(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y, const int* incy);
void zswap_(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** Sum of |x[i]|, for complex elements of |re| + |im|. */
float sasum_(const int* n, const float* x, const int* incx);
double dasum_(const int* n, const double* x, const int* incx);
float scasum_(const int* n, const orb_complex_float* x, const int* incx);
double dzasum_(const int* n, const orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Euclidean norm. */
float snrm2_(const int* n, const float* x, const int* incx);
double dnrm2_(const int* n, const double* x, const int* incx);
float scnrm2_(const int* n, const orb_complex_float* x, const int* incx);
double dznrm2_(const int* n, const orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Place, from 1, of the first of the largest (`amax`) or smallest (`amin`) |x[i]|, complex |re| + |im|; 0 if
 *  there is none. `amin` is a usual extension. */
int isamax_(const int* n, const float* x, const int* incx);
int idamax_(const int* n, const double* x, const int* incx);
int icamax_(const int* n, const orb_complex_float* x, const int* incx);
int izamax_(const int* n, const orb_complex_double* x, const int* incx);
int isamin_(const int* n, const float* x, const int* incx);
int idamin_(const int* n, const double* x, const int* incx);
int icamin_(const int* n, const orb_complex_float* x, const int* incx);
int izamin_(const int* n, const orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** |re z| + |im z|. */
float scabs1_(const orb_complex_float* z);
double dcabs1_(const orb_complex_double* z);
/** @} */

/** @{ */
/** x[i], y[i] = c x[i] + s y[i], c y[i] - s x[i]. */
void srot_(const int* n, float* x, const int* incx, float* y, const int* incy, const float* c,
           const float* s);
void drot_(const int* n, double* x, const int* incx, double* y, const int* incy, const double* c,
           const double* s);
void csrot_(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y, const int* incy,
            const float* c, const float* s);
void zdrot_(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y, const int* incy,
            const double* c, const double* s);
/** @} */

/** @{ */
/** Make a plane rotation that clears b: reads a and b, writes r to a, c and s; the real ones write to b the
 * value from which c and s can be told. See orb_blas_drotg(), orb_blas_zrotg(). */
void srotg_(float* a, float* b, float* c, float* s);
void drotg_(double* a, double* b, double* c, double* s);
void crotg_(orb_complex_float* a, const orb_complex_float* b, float* c, orb_complex_float* s);
void zrotg_(orb_complex_double* a, const orb_complex_double* b, double* c, orb_complex_double* s);
/** @} */

/** @{ */
/** Applies the modified rotation of param[0 .. 4] to the rows x and y. See orb_blas_drotm(). */
void srotm_(const int* n, float* x, const int* incx, float* y, const int* incy, const float* param);
void drotm_(const int* n, double* x, const int* incx, double* y, const int* incy, const double* param);
/** @} */

/** @{ */
/** Makes a modified rotation. See orb_blas_drotmg(). */
void srotmg_(float* d1, float* d2, float* x1, const float* y1, float* param);
void drotmg_(double* d1, double* d2, double* x1, const double* y1, double* param);
/** @} */

/* Sparse vectors, a usual extension
 *  x holds nz packed entries, entry i standing at place indx[i], from 1, of the full vector y. nz <= 0
 * returns at once. The places are trusted. */

/** @{ */
/** y[indx[i]] += alpha x[i]. */
void saxpyi_(const int* nz, const float* alpha, const float* x, const int* indx, float* y);
void daxpyi_(const int* nz, const double* alpha, const double* x, const int* indx, double* y);
void caxpyi_(const int* nz, const orb_complex_float* alpha, const orb_complex_float* x, const int* indx,
             orb_complex_float* y);
void zaxpyi_(const int* nz, const orb_complex_double* alpha, const orb_complex_double* x, const int* indx,
             orb_complex_double* y);
/** @} */

/** @{ */
/** Sum of x[i] y[indx[i]], or, in `c`, of conj(x[i]) y[indx[i]]. */
float sdoti_(const int* nz, const float* x, const int* indx, const float* y);
double ddoti_(const int* nz, const double* x, const int* indx, const double* y);
orb_fortran_complex_float cdotui_(const int* nz, const orb_complex_float* x, const int* indx,
                                  const orb_complex_float* y);
orb_fortran_complex_float cdotci_(const int* nz, const orb_complex_float* x, const int* indx,
                                  const orb_complex_float* y);
orb_fortran_complex_double zdotui_(const int* nz, const orb_complex_double* x, const int* indx,
                                   const orb_complex_double* y);
orb_fortran_complex_double zdotci_(const int* nz, const orb_complex_double* x, const int* indx,
                                   const orb_complex_double* y);
/** @} */

/** @{ */
/** x[i] = y[indx[i]]. */
void sgthr_(const int* nz, const float* y, float* x, const int* indx);
void dgthr_(const int* nz, const double* y, double* x, const int* indx);
void cgthr_(const int* nz, const orb_complex_float* y, orb_complex_float* x, const int* indx);
void zgthr_(const int* nz, const orb_complex_double* y, orb_complex_double* x, const int* indx);
/** @} */

/** @{ */
/** x[i] = y[indx[i]], then y[indx[i]] = 0, entry by entry. */
void sgthrz_(const int* nz, float* y, float* x, const int* indx);
void dgthrz_(const int* nz, double* y, double* x, const int* indx);
void cgthrz_(const int* nz, orb_complex_float* y, orb_complex_float* x, const int* indx);
void zgthrz_(const int* nz, orb_complex_double* y, orb_complex_double* x, const int* indx);
/** @} */

/** @{ */
/** y[indx[i]] = x[i]. */
void ssctr_(const int* nz, const float* x, const int* indx, float* y);
void dsctr_(const int* nz, const double* x, const int* indx, double* y);
void csctr_(const int* nz, const orb_complex_float* x, const int* indx, orb_complex_float* y);
void zsctr_(const int* nz, const orb_complex_double* x, const int* indx, orb_complex_double* y);
/** @} */

/** @{ */
/** x[i], y[indx[i]] = c x[i] + s y[indx[i]], c y[indx[i]] - s x[i]. */
void sroti_(const int* nz, float* x, const int* indx, float* y, const float* c, const float* s);
void droti_(const int* nz, double* x, const int* indx, double* y, const double* c, const double* s);
/** @} */

/* Support */

/** Told of every bad argument: the routine's name in capitals, blank-padded to six characters, and the place
 * of the argument. A program may define its own; it wins over this one, which prints a line to the standard
 * error stream and returns. If it returns, the BLAS routine returns to its caller. */
void xerbla_(const char* name, const int* place, size_t name_length);

/** The same for callers that hold the name as single characters: `length` of them, of which 32 count. */
void xerbla_array_(const char* name, const int* length, const int* place);

/** Non-zero if the characters at `a` and `b` are equal but for case. */
int lsame_(const char* a, const char* b, size_t length_a, size_t length_b);

ORB_END_DECLS

#endif
