/** @file
 *  Level-1 vector kernels of liborb_t7.so. All arguments by reference; nothing is checked.
 *
 *  A vector is a pointer, a count n of elements and an increment in elements: element i (from 0) stands at
 *  x[i * incx], and for a negative increment at x[(i + 1 - n) * incx]. Elements between are neither read
 *  nor written. Vectors may not overlap unless said; addresses need no alignment beyond 4 bytes, but those
 *  that let both vectors reach a 16-byte boundary together are faster. A complex function stores its value
 *  through its first pointer.
 */
#ifndef ORB_BLAS_LEVEL1_H
#define ORB_BLAS_LEVEL1_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/* Sums and copies of vectors */

/** @{ */
/** y += alpha x. n <= 0 and alpha == 0 return at once: alpha counts as 0 when all bits of it but the signs
 *  are 0, so either zero does and a subnormal never does. Every element takes one rounded product (a
 *  complex one as re * re - im * im, re * im + im * re) and one rounded sum, whatever the strides and
 *  alignment. */
void orb_blas_xsaxpy(const int* n, const float* alpha, const float* x, const int* incx, float* y,
                     const int* incy);
void orb_blas_xdaxpy(const int* n, const double* alpha, const double* x, const int* incx, double* y,
                     const int* incy);
void orb_blas_xcaxpy(const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
                     const int* incx, orb_complex_float* y, const int* incy);
void orb_blas_xzaxpy(const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
                     const int* incx, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** The same without the quick return for alpha == 0: 0 times NaN or infinity reaches y. */
void orb_blas_caxpy_a(const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
                      const int* incx, orb_complex_float* y, const int* incy);
void orb_blas_zaxpy_a(const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
                      const int* incx, orb_complex_double* y, const int* incy);
/** @} */

/** @{ */
/** x = alpha x. Only n <= 0 returns at once: an alpha of 0 is multiplied like any other, so NaN and
 *  infinity leave NaN. */
void orb_blas_sscal(const int* n, const float* alpha, float* x, const int* incx);
void orb_blas_dscal(const int* n, const double* alpha, double* x, const int* incx);
void orb_blas_cscal(const int* n, const orb_complex_float* alpha, orb_complex_float* x, const int* incx);
void orb_blas_zscal(const int* n, const orb_complex_double* alpha, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** x = alpha x with a real alpha: both parts of each element are multiplied by it. n <= 0 returns at once.
 * */
void orb_blas_csscal(const int* n, const float* alpha, orb_complex_float* x, const int* incx);
void orb_blas_zdscal(const int* n, const double* alpha, orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** y = x, bit for bit. n <= 0 returns at once. */
void orb_blas_xscopy(const int* n, const float* x, const int* incx, float* y, const int* incy);
void orb_blas_xdcopy(const int* n, const double* x, const int* incx, double* y, const int* incy);
void orb_blas_xccopy(const int* n, const orb_complex_float* x, const int* incx, orb_complex_float* y,
                     const int* incy);
void orb_blas_xzcopy(const int* n, const orb_complex_double* x, const int* incx, orb_complex_double* y,
                     const int* incy);
/** @} */

/** @{ */
/** Exchanges x and y, bit for bit. n <= 0 returns at once. */
void orb_blas_xsswap(const int* n, float* x, const int* incx, float* y, const int* incy);
void orb_blas_xdswap(const int* n, double* x, const int* incx, double* y, const int* incy);
void orb_blas_xcswap(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                     const int* incy);
void orb_blas_xzswap(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                     const int* incy);
/** @} */

/* Reductions
 *  Each gives 0 for n <= 0. The order of additions is part of the contract: results repeat to the bit for
 *  given lengths, strides and alignment. A vector of unit stride runs in blocks from a 16-byte boundary on;
 *  its 16-byte words go to vector accumulators in rotation, starting anew with each block. Elements by
 *  themselves, those before the boundary and those behind the last block, join the lowest lane of the first
 *  accumulator. At the end the second, third and fourth accumulator are added to the first in turn, then
 *  its lanes: l0 + l1 of doubles, (l0 + l2) + (l1 + l3) of singles. Any other stride or alignment runs one
 *  element a round with one sum, unless said. A stride of -1 (dots: both strides) counts as 1: read forward
 *  from the pointer. */

/** @{ */
/** Sum of x[i] y[i]. Four accumulators; blocks of 16, 8, 4, 2 doubles, of 32, 16, 8, 4 singles. In blocks
 *  when both strides are 1 or both -1 and x and y lie at the same place within 16 bytes. */
float orb_blas_xsdot(const int* n, const float* x, const int* incx, const float* y, const int* incy);
double orb_blas_xddot(const int* n, const double* x, const int* incx, const double* y, const int* incy);
/** @} */

/** @{ */
/** *result = sum of x[i] y[i] (`u`) or of conj(x[i]) y[i] (`c`). Two accumulators for the products of like
 *  parts, two for the crossed ones, in rotation by 16-byte word; signs are applied once at the end, to the
 *  sums of the lanes. Blocks of 8, 4, 2, 1 when both vectors of doubles start on a 16-byte boundary; of 16,
 *  8, 4, 2 singles, with one element before them where both start 8 bytes past one. Other strides or
 *  addresses: one element a round into the first accumulator of each kind. */
void orb_blas_cdotu(orb_complex_float* result, const int* n, const orb_complex_float* x, const int* incx,
                    const orb_complex_float* y, const int* incy);
void orb_blas_xcdotc(orb_complex_float* result, const int* n, const orb_complex_float* x, const int* incx,
                     const orb_complex_float* y, const int* incy);
void orb_blas_zdotu(orb_complex_double* result, const int* n, const orb_complex_double* x, const int* incx,
                    const orb_complex_double* y, const int* incy);
void orb_blas_zdotc(orb_complex_double* result, const int* n, const orb_complex_double* x, const int* incx,
                    const orb_complex_double* y, const int* incy);
/** @} */

/** Sum of x[i] y[i] with exact products and double sums. Equal positive strides: one sum for the elements
 *  at even places and one for those at odd places, the last of an odd count joining the first sum; they are
 *  added at the end. Other strides, -1 included: one sum, in the order of the BLAS. */
double orb_blas_dsdot(const int* n, const float* x, const int* incx, const float* y, const int* incy);

/** sb plus the sum of x[i] y[i], as in orb_blas_dsdot() with the first sum starting at sb, rounded once to
 *  single at the end. n <= 0 gives sb. */
float orb_blas_sdsdot(const int* n, const float* sb, const float* x, const int* incx, const float* y,
                      const int* incy);

/** @{ */
/** Sum of |x[i]|. Four accumulators; blocks of 16, 8, 4, 2 doubles, of 32, 16, 8, 4 singles. Doubles of
 *  other strides or alignment: two sums, for the elements at even and at odd places, the last of an odd
 *  count joining the first. */
float orb_blas_sasum(const int* n, const float* x, const int* incx);
double orb_blas_dasum(const int* n, const double* x, const int* incx);
/** @} */

/** @{ */
/** Sum of |re x[i]| + |im x[i]|. Stride 1: the sum over the 2 n parts as above. Other strides, -1 included:
 *  one sum for the real parts and one for the imaginary parts, added at the end. */
float orb_blas_scasum(const int* n, const orb_complex_float* x, const int* incx);
double orb_blas_dzasum(const int* n, const orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Euclidean norm: square root of a plain sum of squares, kept in range by wider sums instead of scaling.
 *  Doubles: 80-bit sums and square root; stride 1 or -1 has four sums in rotation by place, other strides
 *  two. Singles: squares, sums and square root in double, rounded once at the end; stride 1 or -1 has four
 *  two-wide accumulators, blocks of 32, 16, 8, 4. Complex vectors of stride 1 or -1 count as 2 n reals;
 *  otherwise real and imaginary parts have one sum each. */
float orb_blas_snrm2(const int* n, const float* x, const int* incx);
double orb_blas_dnrm2(const int* n, const double* x, const int* incx);
float orb_blas_scnrm2(const int* n, const orb_complex_float* x, const int* incx);
double orb_blas_dznrm2(const int* n, const orb_complex_double* x, const int* incx);
/** @} */

/** @{ */
/** Place, from 1, of the largest (`amax`) or smallest (`amin`) |x[i]|, complex |re| + |im|; the first among
 *  equals. n <= 0 or incx <= 0 gives 0. An element takes over unless best >= |x[i]| (`amin`: best <=
 *  |x[i]|) holds, so a NaN always takes over, and any element takes over from a NaN. */
int orb_blas_isamax(const int* n, const float* x, const int* incx);
int orb_blas_idamax(const int* n, const double* x, const int* incx);
int orb_blas_icamax(const int* n, const orb_complex_float* x, const int* incx);
int orb_blas_izamax(const int* n, const orb_complex_double* x, const int* incx);
int orb_blas_isamin(const int* n, const float* x, const int* incx);
int orb_blas_idamin(const int* n, const double* x, const int* incx);
int orb_blas_icamin(const int* n, const orb_complex_float* x, const int* incx);
int orb_blas_izamin(const int* n, const orb_complex_double* x, const int* incx);
/** @} */

/** |re z| + |im z|. */
double orb_blas_dcabs1(const orb_complex_double* z);

/* Rotations */

/** @{ */
/** x[i], y[i] = c x[i] + s y[i], c y[i] - conj(s) x[i]; c is real, s of the element type or, in `csrot` and
 *  `zdrot`, real. n <= 0 returns at once. */
void orb_blas_xsrot(const int* n, float* x, const int* incx, float* y, const int* incy, const float* c,
                    const float* s);
void orb_blas_xdrot(const int* n, double* x, const int* incx, double* y, const int* incy, const double* c,
                    const double* s);
void orb_blas_xcrot(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                    const int* incy, const float* c, const orb_complex_float* s);
void orb_blas_xzrot(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                    const int* incy, const double* c, const orb_complex_double* s);
void orb_blas_xcsrot(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                     const int* incy, const float* c, const float* s);
void orb_blas_xzdrot(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                     const int* incy, const double* c, const double* s);
/** @} */

/** @{ */
/** Makes a rotation: c and s with c a + s b = r, c b - s a = 0, c^2 + s^2 = 1. Reads a and b; writes r to
 *  a, c, s and to b the value z from which both can be told: s if |a| > |b|, else 1/c, or 1 if c is 0. a =
 *  b = 0 gives c = 1, s = r = z = 0. Source: Lawson, Hanson, Kincaid, Krogh, ACM TOMS 5 (1979) 308-323. */
void orb_blas_srotg(float* a, float* b, float* c, float* s);
void orb_blas_drotg(double* a, double* b, double* c, double* s);
/** @} */

/** @{ */
/** Makes a complex rotation: c real and s with c a + s b = r, c b - conj(s) a = 0. Reads a and b; writes r
 *  to a, c and s. |a| == 0 gives c = 0, s = 1, a = b. */
void orb_blas_crotg(orb_complex_float* a, const orb_complex_float* b, float* c, orb_complex_float* s);
void orb_blas_zrotg(orb_complex_double* a, const orb_complex_double* b, double* c, orb_complex_double* s);
/** @} */

/** @{ */
/** Applies the modified rotation H to the rows x and y. param[0] is the flag: -1 H = (h11 h12; h21 h22) =
 *  (param[1] param[3]; param[2] param[4]), 0 with h11 = h22 = 1, 1 with h12 = 1, h21 = -1, -2 H = I. n <= 0
 *  and flag -2 return at once. */
void orb_blas_srotm(const int* n, float* x, const int* incx, float* y, const int* incy, const float* param);
void orb_blas_drotm(const int* n, double* x, const int* incx, double* y, const int* incy,
                    const double* param);
/** @} */

/** @{ */
/** Makes a modified rotation that clears the second component of (sqrt(d1) x1, sqrt(d2) y1). Reads and
 *  writes d1, d2, x1, reads y1, writes the flag and the entries of H that it calls for to param[0 .. 4].
 *  d2 y1 == 0 gives flag -2 and changes nothing else. d1 < 0, and a negative d2 that leaves no real rotation,
 *  give flag -1 with d1, d2, x1 and all of H zero. d1 and d2 are kept within 2^-24 ... 2^24 by powers of
 *  2^24, which also makes the flag -1. Ends for every input; NaN and infinities are handed on. Source: as
 *  rotg. */
void orb_blas_srotmg(float* d1, float* d2, float* x1, const float* y1, float* param);
void orb_blas_drotmg(double* d1, double* d2, double* x1, const double* y1, double* param);
/** @} */

/** @{ */
/** A vector of rotations, each applied to its own pair: x[i], y[i] = c[i] x[i] + s[i] y[i], c[i] y[i] -
 *  conj(s[i]) x[i]. incc is the stride of both c (real) and s (of the element type). n <= 0 returns at
 *  once. */
void orb_blas_slartv(const int* n, float* x, const int* incx, float* y, const int* incy, const float* c,
                     const float* s, const int* incc);
void orb_blas_dlartv(const int* n, double* x, const int* incx, double* y, const int* incy, const double* c,
                     const double* s, const int* incc);
void orb_blas_clartv(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                     const int* incy, const float* c, const orb_complex_float* s, const int* incc);
void orb_blas_zlartv(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                     const int* incy, const double* c, const orb_complex_double* s, const int* incc);
/** @} */

/** @{ */
/** Householder reflector on two contiguous rows: t = (w y[i] + x[i]) tau; x[i] -= t; y[i] -= w t. incx and
 *  incy are not read. n <= 0 returns at once. */
void orb_blas_srot2(const int* n, float* x, const int* incx, float* y, const int* incy, const float* tau,
                    const float* w);
void orb_blas_drot2(const int* n, double* x, const int* incx, double* y, const int* incy, const double* tau,
                    const double* w);
void orb_blas_crot2(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                    const int* incy, const orb_complex_float* tau, const orb_complex_float* w);
void orb_blas_zrot2(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                    const int* incy, const orb_complex_double* tau, const orb_complex_double* w);
/** @} */

/** @{ */
/** Householder reflector on three contiguous rows: t = (wy y[i] + x[i] + wz z[i]) tau; x[i] -= t; y[i] -=
 *  wy t; z[i] -= wz t. The increments are not read. n <= 0 returns at once. */
void orb_blas_srot3(const int* n, float* x, const int* incx, float* y, const int* incy, float* z,
                    const int* incz, const float* tau, const float* wy, const float* wz);
void orb_blas_drot3(const int* n, double* x, const int* incx, double* y, const int* incy, double* z,
                    const int* incz, const double* tau, const double* wy, const double* wz);
void orb_blas_crot3(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                    const int* incy, orb_complex_float* z, const int* incz, const orb_complex_float* tau,
                    const orb_complex_float* wy, const orb_complex_float* wz);
void orb_blas_zrot3(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                    const int* incy, orb_complex_double* z, const int* incz, const orb_complex_double* tau,
                    const orb_complex_double* wy, const orb_complex_double* wz);
/** @} */

/* Sparse vectors
 *  x holds nz packed entries of a sparse vector, entry i standing at place indx[i], from 1, of the full
 *  vector y. nz <= 0 returns at once. The places are trusted: no bounds are checked, nor repeats. Source:
 *  Dodson, Grimes, Lewis, ACM TOMS 17 (1991) 253-272. */

/** @{ */
/** y[indx[i]] += alpha x[i]. alpha == 0 returns at once. */
void orb_blas_saxpyi(const int* nz, const float* alpha, const float* x, const int* indx, float* y);
void orb_blas_daxpyi(const int* nz, const double* alpha, const double* x, const int* indx, double* y);
void orb_blas_caxpyi(const int* nz, const orb_complex_float* alpha, const orb_complex_float* x,
                     const int* indx, orb_complex_float* y);
void orb_blas_zaxpyi(const int* nz, const orb_complex_double* alpha, const orb_complex_double* x,
                     const int* indx, orb_complex_double* y);
/** @} */

/** @{ */
/** Sum of x[i] y[indx[i]]: one sum for the entries at even and one for those at odd places, added together
 *  before the last entry of an odd count. nz <= 0 gives 0. */
float orb_blas_sdoti(const int* nz, const float* x, const int* indx, const float* y);
double orb_blas_ddoti(const int* nz, const double* x, const int* indx, const double* y);
/** @} */

/** @{ */
/** *result = sum of x[i] y[indx[i]] (`u`) or of conj(x[i]) y[indx[i]] (`c`). nz <= 0 stores 0. */
void orb_blas_cdotui(orb_complex_float* result, const int* nz, const orb_complex_float* x, const int* indx,
                     const orb_complex_float* y);
void orb_blas_cdotci(orb_complex_float* result, const int* nz, const orb_complex_float* x, const int* indx,
                     const orb_complex_float* y);
void orb_blas_zdotui(orb_complex_double* result, const int* nz, const orb_complex_double* x, const int* indx,
                     const orb_complex_double* y);
void orb_blas_zdotci(orb_complex_double* result, const int* nz, const orb_complex_double* x, const int* indx,
                     const orb_complex_double* y);
/** @} */

/** @{ */
/** x[i] = y[indx[i]]. */
void orb_blas_sgthr(const int* nz, const float* y, float* x, const int* indx);
void orb_blas_dgthr(const int* nz, const double* y, double* x, const int* indx);
void orb_blas_cgthr(const int* nz, const orb_complex_float* y, orb_complex_float* x, const int* indx);
void orb_blas_zgthr(const int* nz, const orb_complex_double* y, orb_complex_double* x, const int* indx);
/** @} */

/** @{ */
/** x[i] = y[indx[i]], then y[indx[i]] = 0, entry by entry: a repeated place gives 0 on its second visit. */
void orb_blas_sgthrz(const int* nz, float* y, float* x, const int* indx);
void orb_blas_dgthrz(const int* nz, double* y, double* x, const int* indx);
void orb_blas_cgthrz(const int* nz, orb_complex_float* y, orb_complex_float* x, const int* indx);
void orb_blas_zgthrz(const int* nz, orb_complex_double* y, orb_complex_double* x, const int* indx);
/** @} */

/** @{ */
/** y[indx[i]] = x[i], in rising i. */
void orb_blas_ssctr(const int* nz, const float* x, const int* indx, float* y);
void orb_blas_dsctr(const int* nz, const double* x, const int* indx, double* y);
void orb_blas_csctr(const int* nz, const orb_complex_float* x, const int* indx, orb_complex_float* y);
void orb_blas_zsctr(const int* nz, const orb_complex_double* x, const int* indx, orb_complex_double* y);
/** @} */

/** @{ */
/** x[i], y[indx[i]] = c x[i] + s y[indx[i]], c y[indx[i]] - s x[i]. c == 1 with s == 0 returns at once. */
void orb_blas_sroti(const int* nz, float* x, const int* indx, float* y, const float* c, const float* s);
void orb_blas_droti(const int* nz, double* x, const int* indx, double* y, const double* c, const double* s);
/** @} */

ORB_END_DECLS

#endif
