/** @file
 *  How the real power-of-two transforms of liborb_t7.so are made of complex ones of half the length, even
 * samples real, odd samples imaginary: the pass behind the forward and the pass before the inverse transform,
 * with their tables. Nothing is checked. n = 2^order; tables stand on 16-byte boundaries.
 */
#ifndef ORB_SIGNAL_REAL_H
#define ORB_SIGNAL_REAL_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** Table of the forward pass from sines of an order not below it, n at least 4: with v = n/4 - k for
 *  k = 1 to n/4, sin(2 pi v/n)/2 and 1/2 - cos(2 pi v/n)/2. For n above 8 in groups of two k, both first
 * values and then both second ones, else the two values of each k. Returns the next 32-byte boundary behind
 * n/2 values. */
void* t7_vsps_initTabTwdRealRec_32f(int order, const float* sines, int sine_order, float* table);
void* t7_vsps_initTabTwdRealRec_64f(int order, const double* sines, int sine_order, double* table);
/** @} */

/** @{ */
/** Table of the inverse pass, likewise: sin(2 pi v/n) and -cos(2 pi v/n). */
void* t7_vsps_initTabTwdCcsRec_32f(int order, const float* sines, int sine_order, float* table);
void* t7_vsps_initTabTwdCcsRec_64f(int order, const double* sines, int sine_order, double* table);
/** @} */

/** @{ */
/** From the complex forward transform of half_n numbers to numbers 1 to half_n - 1 of the real transform, in
 * place. Number 0 is left alone: the sum and the difference of its parts are the two real values at the ends
 * of the spectrum. `sign` is 1. */
void t7_vsps_cRealRecombine_32f(orb_complex_float* data, int half_n, int sign, const float* table);
void t7_vsps_cRealRecombine_64f(orb_complex_double* data, int half_n, int sign, const double* table);
/** @} */

/** @{ */
/** From a real transform in Perm format to the half_n complex numbers whose inverse transform holds the
 * samples. `in` and `out` may be one array. `sign` is -1. */
void t7_vsps_cCcsRecombine_32f(const float* in, orb_complex_float* out, int half_n, int sign,
                               const float* table);
void t7_vsps_cCcsRecombine_64f(const double* in, orb_complex_double* out, int half_n, int sign,
                               const double* table);
/** @} */

ORB_END_DECLS

#endif
