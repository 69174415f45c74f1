/** @file
 *  The methods of the any-length signal transforms in liborb_t7.so: passes over factors, direct sum, chirp
 *  convolution, and their tables, each callable alone. Nothing is checked but what is said. `c` stands for
 * complex, `r` for real data. Records come from signal.h. Arrays may start anywhere; tables that an entry
 * creates come from t7_vspMalloc() and go back by t7_vspFree(); they are null without memory.
 *
 *  Sources: C. Van Loan, Computational Frameworks for the Fast Fourier Transform, SIAM 1992; L. I. Bluestein,
 * IEEE Trans. AU-18 (1970).
 */
#ifndef ORB_SIGNAL_ANY_LENGTH_H
#define ORB_SIGNAL_ANY_LENGTH_H

#include "orb/signal.h"

ORB_BEGIN_DECLS

/* Tables */

/** @{ */
/** exp(-2 pi i k/n) for k below n, computed in double precision for an eighth of the circle (a quarter for n
 * = 2 mod 4, a half for odd n) and mirrored. */
orb_complex_float* t7_vsps_createTabDftBase_32f(int n);
orb_complex_double* t7_vsps_createTabDftBase_64f(int n);
/** @} */

/** @{ */
/** Every (base_length/n)-th of a base table: the table of the direct sum of n numbers. */
orb_complex_float* t7_vsps_createTabDftDir_32f(int n, const orb_complex_float* base, int base_length);
orb_complex_double* t7_vsps_createTabDftDir_64f(int n, const orb_complex_double* base, int base_length);
/** @} */

/** @{ */
/** Tables of the recombination of a real transform of even length n: for k = 1 to n/4, forward cos(2 pi
 * k/n)/2 and 1/2 - sin(2 pi k/n)/2, inverse cos and -sin. As far as fours of k go they stand in groups of two
 * k, both first values and then both second ones. */
float* t7_vsps_createTabDftFwdRec_32f(int n, const orb_complex_float* base, int base_length);
float* t7_vsps_createTabDftInvRec_32f(int n, const orb_complex_float* base, int base_length);
double* t7_vsps_createTabDftFwdRec_64f(int n, const orb_complex_double* base, int base_length);
double* t7_vsps_createTabDftInvRec_64f(int n, const orb_complex_double* base, int base_length);
/** @} */

/* Recombination of even real lengths, as in signal_real.h for any half_n */

/** @{ */
/** From the complex forward transform of half_n numbers to numbers 1 to half_n - 1 of the real one, in place.
 */
void t7_vsps_rDftFwdRecombine_32f(orb_complex_float* data, int half_n, int sign, const float* table);
void t7_vsps_rDftFwdRecombine_64f(orb_complex_double* data, int half_n, int sign, const double* table);
/** @} */

/** @{ */
/** From a real transform in Perm format to the half_n complex numbers whose inverse transform holds the
 * samples. */
void t7_vsps_rDftInvRecombine_32f(const float* in, orb_complex_float* out, int half_n, int sign,
                                  const float* table);
void t7_vsps_rDftInvRecombine_64f(const double* in, orb_complex_double* out, int half_n, int sign,
                                  const double* table);
/** @} */

/* Whole methods */

/** @{ */
/** Direct sum of an odd n: forward for `sign` 1, inverse for -1, with the table of t7_vsps_createTabDftDir.
 * `buffer` has room for n numbers. `in` and `out` may be one array. The real form gives the forward transform
 * in Perm format. */
void t7_vsps_cDft_Dir_32fc(const orb_complex_float* in, orb_complex_float* out, int n, int sign,
                           const orb_complex_float* table, void* buffer);
void t7_vsps_cDft_Dir_64fc(const orb_complex_double* in, orb_complex_double* out, int n, int sign,
                           const orb_complex_double* table, void* buffer);
void t7_vsps_rDftFwd_Dir_32f(const float* in, float* out, int n, const orb_complex_float* table,
                             void* buffer);
void t7_vsps_rDftFwd_Dir_64f(const double* in, double* out, int n, const orb_complex_double* table,
                             void* buffer);
/** @} */

/** @{ */
/** Convolution with the chirp of a record that takes this method; `sign` as above, unscaled. The status is
 * that of the power-of-two transforms. Real forms: odd n, the transform in Perm format. `buffer` has the
 * record's work bytes. */
VspStatus t7_vsps_cDft_Conv_32fc(const VspsDFTSpec* spec, const orb_complex_float* in, orb_complex_float* out,
                                 int n, int sign, void* buffer);
VspStatus t7_vsps_cDft_Conv_64fc(const VspsDFTSpec* spec, const orb_complex_double* in,
                                 orb_complex_double* out, int n, int sign, void* buffer);
VspStatus t7_vsps_rDftFwd_Conv_32f(const VspsDFTSpec* spec, const float* in, float* out, int n, void* buffer);
VspStatus t7_vsps_rDftInv_Conv_32f(const VspsDFTSpec* spec, const float* in, float* out, int n, void* buffer);
VspStatus t7_vsps_rDftFwd_Conv_64f(const VspsDFTSpec* spec, const double* in, double* out, int n,
                                   void* buffer);
VspStatus t7_vsps_rDftInv_Conv_64f(const VspsDFTSpec* spec, const double* in, double* out, int n,
                                   void* buffer);
/** @} */

/** @{ */
/** The factor plan of a record that takes this method, unscaled. The order of the out-of-order forms is the
 * natural one: the passes sort on their way. `buffer` has the record's work bytes. */
void t7_vsps_cDftFwd_PrimeFact_32fc(const VspsDFTSpec* spec, const orb_complex_float* in,
                                    orb_complex_float* out, void* buffer);
void t7_vsps_cDftFwd_OutOrd_32fc(const VspsDFTSpec* spec, const orb_complex_float* in, orb_complex_float* out,
                                 void* buffer);
void t7_vsps_cDftInv_PrimeFact_32fc(const VspsDFTSpec* spec, const orb_complex_float* in,
                                    orb_complex_float* out, void* buffer);
void t7_vsps_cDftInv_OutOrd_32fc(const VspsDFTSpec* spec, const orb_complex_float* in, orb_complex_float* out,
                                 void* buffer);
void t7_vsps_cDftFwd_PrimeFact_64fc(const VspsDFTSpec* spec, const orb_complex_double* in,
                                    orb_complex_double* out, void* buffer);
void t7_vsps_cDftFwd_OutOrd_64fc(const VspsDFTSpec* spec, const orb_complex_double* in,
                                 orb_complex_double* out, void* buffer);
void t7_vsps_cDftInv_PrimeFact_64fc(const VspsDFTSpec* spec, const orb_complex_double* in,
                                    orb_complex_double* out, void* buffer);
void t7_vsps_cDftInv_OutOrd_64fc(const VspsDFTSpec* spec, const orb_complex_double* in,
                                 orb_complex_double* out, void* buffer);
/** @} */

/** @{ */
/** out[k] = a[k] b[k] for k below n. `out` may be `a` or `b`. */
void t7_vsps_cbMpy3_32fc(const orb_complex_float* a, const orb_complex_float* b, orb_complex_float* out,
                         int n);
void t7_vsps_cbMpy3_64fc(const orb_complex_double* a, const orb_complex_double* b, orb_complex_double* out,
                         int n);
/** @} */

/** @{ */
/** Zeros n numbers. */
void t7_vsps_cbZero_32fc(orb_complex_float* data, int n);
void t7_vsps_cbZero_64fc(orb_complex_double* data, int n);
/** @} */

/* Passes
 *  A pass with factor p takes `done` rows of p count numbers to p done rows of count numbers: number i of the
 *  pieces r = 0 to p - 1 of row k, times exp(-+2 pi i k r/(done p)), transformed, gives number i of the rows
 *  k + done t. `in` and `out` do not overlap. Real data: done is odd, and only rows 0 to done/2 (p done/2)
 * are there. L is the numbers of a register, 4 singles or 2 doubles, or 1 for a count below that. Tables on
 * 16-byte boundaries: twiddles, for each k, for r from 1 to p - 1, L times the cosine and L times the negated
 * sine; the table of a general factor, for k below p, L times cos(2 pi k/p) and L times sin(2 pi k/p). */

/** @{ */
/** First passes, done = 1, for the factor in the name; without one for any odd factor up to 149. */
void t7_vsps_cDftOutOrdFwd_Prime3_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime5_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime7_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime11_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdInv_Prime3_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdInv_Prime5_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdInv_Prime7_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdInv_Prime11_32fc(const orb_complex_float* in, orb_complex_float* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime3_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime5_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime7_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime11_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdInv_Prime3_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdInv_Prime5_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdInv_Prime7_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdInv_Prime11_64fc(const orb_complex_double* in, orb_complex_double* out, int count);
void t7_vsps_cDftOutOrdFwd_Prime_32fc(const orb_complex_float* in, orb_complex_float* out, int factor,
                                      int count, const float* table);
void t7_vsps_cDftOutOrdInv_Prime_32fc(const orb_complex_float* in, orb_complex_float* out, int factor,
                                      int count, const float* table);
void t7_vsps_cDftOutOrdFwd_Prime_64fc(const orb_complex_double* in, orb_complex_double* out, int factor,
                                      int count, const double* table);
void t7_vsps_cDftOutOrdInv_Prime_64fc(const orb_complex_double* in, orb_complex_double* out, int factor,
                                      int count, const double* table);
void t7_vsps_rDftFwd_Prime3_32f(const float* in, orb_complex_float* out, int count);
void t7_vsps_rDftFwd_Prime5_32f(const float* in, orb_complex_float* out, int count);
void t7_vsps_rDftFwd_Prime7_32f(const float* in, orb_complex_float* out, int count);
void t7_vsps_rDftFwd_Prime11_32f(const float* in, orb_complex_float* out, int count);
void t7_vsps_rDftFwd_Prime3_64f(const double* in, orb_complex_double* out, int count);
void t7_vsps_rDftFwd_Prime5_64f(const double* in, orb_complex_double* out, int count);
void t7_vsps_rDftFwd_Prime7_64f(const double* in, orb_complex_double* out, int count);
void t7_vsps_rDftFwd_Prime11_64f(const double* in, orb_complex_double* out, int count);
void t7_vsps_rDftFwd_Prime_32f(const float* in, orb_complex_float* out, int factor, int count,
                               const float* table);
void t7_vsps_rDftFwd_Prime_64f(const double* in, orb_complex_double* out, int factor, int count,
                               const double* table);
/** @} */

/** @{ */
/** Later passes, likewise. */
void t7_vsps_cDftOutOrdFwd_Fact2_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact3_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact4_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact5_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact7_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact11_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                       int count, const float* twiddles);
void t7_vsps_cDftOutOrdInv_Fact2_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdInv_Fact3_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdInv_Fact4_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdInv_Fact5_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdInv_Fact7_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                      int count, const float* twiddles);
void t7_vsps_cDftOutOrdInv_Fact11_32fc(const orb_complex_float* in, orb_complex_float* out, int done,
                                       int count, const float* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact2_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact3_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact4_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact5_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact7_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact11_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                       int count, const double* twiddles);
void t7_vsps_cDftOutOrdInv_Fact2_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdInv_Fact3_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdInv_Fact4_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdInv_Fact5_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdInv_Fact7_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                      int count, const double* twiddles);
void t7_vsps_cDftOutOrdInv_Fact11_64fc(const orb_complex_double* in, orb_complex_double* out, int done,
                                       int count, const double* twiddles);
void t7_vsps_cDftOutOrdFwd_Fact_32fc(const orb_complex_float* in, orb_complex_float* out, int factor,
                                     int done, int count, const float* twiddles, const float* table);
void t7_vsps_cDftOutOrdInv_Fact_32fc(const orb_complex_float* in, orb_complex_float* out, int factor,
                                     int done, int count, const float* twiddles, const float* table);
void t7_vsps_cDftOutOrdFwd_Fact_64fc(const orb_complex_double* in, orb_complex_double* out, int factor,
                                     int done, int count, const double* twiddles, const double* table);
void t7_vsps_cDftOutOrdInv_Fact_64fc(const orb_complex_double* in, orb_complex_double* out, int factor,
                                     int done, int count, const double* twiddles, const double* table);
void t7_vsps_rDftFwd_Fact3_32f(const orb_complex_float* in, orb_complex_float* out, int done, int count,
                               const float* twiddles);
void t7_vsps_rDftFwd_Fact5_32f(const orb_complex_float* in, orb_complex_float* out, int done, int count,
                               const float* twiddles);
void t7_vsps_rDftFwd_Fact7_32f(const orb_complex_float* in, orb_complex_float* out, int done, int count,
                               const float* twiddles);
void t7_vsps_rDftFwd_Fact11_32f(const orb_complex_float* in, orb_complex_float* out, int done, int count,
                                const float* twiddles);
void t7_vsps_rDftFwd_Fact3_64f(const orb_complex_double* in, orb_complex_double* out, int done, int count,
                               const double* twiddles);
void t7_vsps_rDftFwd_Fact5_64f(const orb_complex_double* in, orb_complex_double* out, int done, int count,
                               const double* twiddles);
void t7_vsps_rDftFwd_Fact7_64f(const orb_complex_double* in, orb_complex_double* out, int done, int count,
                               const double* twiddles);
void t7_vsps_rDftFwd_Fact11_64f(const orb_complex_double* in, orb_complex_double* out, int done, int count,
                                const double* twiddles);
void t7_vsps_rDftFwd_Fact_32f(const orb_complex_float* in, orb_complex_float* out, int factor, int done,
                              int count, const float* twiddles, const float* table);
void t7_vsps_rDftFwd_Fact_64f(const orb_complex_double* in, orb_complex_double* out, int factor, int done,
                              int count, const double* twiddles, const double* table);
/** @} */

ORB_END_DECLS

#endif
