/** @file
 *  The engine of the power-of-two signal transforms in liborb_t7.so: its passes, tables and reversals, each
 *  callable alone. Nothing is checked. The parts of a name: `c` complex interleaved, `cr` complex in two
 * arrays; `Fwd` and `Inv` the sign of the exponent. n is a power of two; tables and buffers stand on 32-byte
 * boundaries (16 serve), data may start anywhere.
 *
 *  Method: radix-4 decimation in time on bit-reversed numbers; large orders as rows and columns, so that the
 * work stays in the caches. Sources: J. W. Cooley, J. W. Tukey, Math. Comp. 19 (1965); D. H. Bailey, FFTs in
 * external or hierarchical memory, J. Supercomputing 4 (1990).
 */
#ifndef ORB_SIGNAL_POWER_OF_TWO_H
#define ORB_SIGNAL_POWER_OF_TWO_H

#include "orb/signal.h"

ORB_BEGIN_DECLS

/* Tables */

/** @{ */
/** sines[k] = sin(2 pi k / n) for k from 0 to n/4, n = 2^order, order 2 at least: n/4 + 1 values. Up to order
 * 10 a table of constants is read; above it each value is sin(k 2 pi/n) up to k = n/8 and cos((n/4 - k) 2
 * pi/n) beyond, computed in double precision and rounded. Returns the next 32-byte boundary behind the table.
 */
float* t7_vsps_initTabTwdBase_32f(int order, float* sines);
double* t7_vsps_initTabTwdBase_64f(int order, double* sines);
/** @} */

/** @{ */
/** Twiddles of the radix-4 loop for n = 2^order from the sines of an order not below it: for groups of 2^s
 * numbers, s = 4, 6, ... up to the order, four butterflies at a time: four each of cos w, -sin w, cos 2w,
 * -sin 2w, cos 3w, -sin 3w with w = 2 pi j / 2^s for j = 0, 1, ...; an odd order ends with a radix-2 stage of
 * four cos w and four -sin w for every four butterflies. Nothing is written for n below 9. Returns the first
 * 32-byte boundary behind 2 n values. */
void* t7_vsps_initTabTwd_L1_32f(int order, const float* sines, int sine_order, float* table);
void* t7_vsps_initTabTwd_L1_64f(int order, const double* sines, int sine_order, double* table);
/** @} */

/** @{ */
/** Bit-reversal for the fused first level, n/4 + 1 words: 0, then for k from 1 to n/4 - 1 twice the
 * bit-reversal of k over order - 2 bits, then 0. Returns the next 32-byte boundary behind it. */
void* t7_vsps_initTabBitRevNorm(int order, int* table);
/** @} */

/** @{ */
/** Bit-reversal by exchanges, n/4 + 1 words. With i below n/4 and j its bit-reversal over order - 2 bits:
 * pairs (i, j) with i below j in rising order of i, then 0; from the last word downwards the fixed points i =
 * j, the first of which is 0. Each index is stored as 8 i, the byte offset of 2 i elements of 4 bytes. n is 4
 * at least. Returns the next 32-byte boundary behind it. */
void* t7_vsps_initTabBitRev(int order, int* table);
/** @} */

/** @{ */
/** Bit-reversal in blocks: 2^(order - 2 block_order) words, the bit-reversal of each index shifted left by
 *  block_order; behind them the table of t7_vsps_initTabBitRev() for 2 block_order bits. Returns the next
 * 32-byte boundary behind it. */
void* t7_vsps_initTabBitRevLarge(int order, int block_order, int* table);
/** @} */

/** @{ */
/** Bytes for a large order (single precision 17, double precision 15 at least): of the twiddle tables, of
 * memory that is used during the init, and of the work of a compute call. */
void t7_vsps_getSizesTwd_Large_32f(int order, int* spec_size, int* init_size, int* buf_size);
void t7_vsps_getSizeTwd_Large_64f(int order, int* spec_size, int* init_size, int* buf_size);
/** @} */

/** @{ */
/** Builds reversal and twiddle tables of a large order from `address` on, a 32-byte boundary, from sines of
 * an order not below it, and sets the record's pointers to them. Returns the next 32-byte boundary behind
 * them. */
void* t7_vsps_initTabTwd_Large_32f(VspsFFTSpec* spec, int order, const float* sines, int sine_order,
                                   void* address);
void* t7_vsps_initTabTwd_Large_64f(VspsFFTSpec* spec, int order, const double* sines, int sine_order,
                                   void* address);
/** @} */

/* Transforms */

/** @{ */
/** Transform of n numbers, 8 at least, from natural to natural order, with the tables of
 * t7_vsps_initTabTwd_L1 and t7_vsps_initTabBitRevNorm (n = 8 reads none). `buffer` has room for n numbers; it
 * is used in place, for an unaligned output, and for split arrays. */
void t7_vsps_cRadix4FwdNorm_32fc(const orb_complex_float* in, orb_complex_float* out, int n,
                                 const float* twiddles, const int* reversed, void* buffer);
void t7_vsps_cRadix4InvNorm_32fc(const orb_complex_float* in, orb_complex_float* out, int n,
                                 const float* twiddles, const int* reversed, void* buffer);
void t7_vsps_cRadix4FwdNorm_64fc(const orb_complex_double* in, orb_complex_double* out, int n,
                                 const double* twiddles, const int* reversed, void* buffer);
void t7_vsps_cRadix4InvNorm_64fc(const orb_complex_double* in, orb_complex_double* out, int n,
                                 const double* twiddles, const int* reversed, void* buffer);
void t7_vsps_crRadix4FwdNorm_32f(const float* in_re, const float* in_im, float* out_re, float* out_im, int n,
                                 const float* twiddles, const int* reversed, void* buffer);
void t7_vsps_crRadix4InvNorm_32f(const float* in_re, const float* in_im, float* out_re, float* out_im, int n,
                                 const float* twiddles, const int* reversed, void* buffer);
void t7_vsps_crRadix4FwdNorm_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                 int n, const double* twiddles, const int* reversed, void* buffer);
void t7_vsps_crRadix4InvNorm_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                 int n, const double* twiddles, const int* reversed, void* buffer);
/** @} */

/** @{ */
/** The same in place on numbers in bit-reversed order, n 16 at least. Data on a 16-byte boundary is its own
 * work area; other data and split arrays go through `buffer`. `flag` is not used. */
void t7_vsps_cRadix4Fwd_32fc(orb_complex_float* data, int n, const float* twiddles, void* buffer, int flag);
void t7_vsps_cRadix4Inv_32fc(orb_complex_float* data, int n, const float* twiddles, void* buffer, int flag);
void t7_vsps_cRadix4Fwd_64fc(orb_complex_double* data, int n, const double* twiddles, void* buffer, int flag);
void t7_vsps_cRadix4Inv_64fc(orb_complex_double* data, int n, const double* twiddles, void* buffer, int flag);
void t7_vsps_crRadix4Fwd_32f(float* re, float* im, int n, const float* twiddles, void* buffer, int flag);
void t7_vsps_crRadix4Inv_32f(float* re, float* im, int n, const float* twiddles, void* buffer, int flag);
void t7_vsps_crRadix4Fwd_64f(double* re, double* im, int n, const double* twiddles, void* buffer, int flag);
void t7_vsps_crRadix4Inv_64f(double* re, double* im, int n, const double* twiddles, void* buffer, int flag);
/** @} */

/** @{ */
/** Transform of a large order with the record's tables; `buffer` has the record's work bytes. Scales as the
 * record says. */
void t7_vsps_cFftFwd_Large_32fc(const VspsFFTSpec* spec, const orb_complex_float* in, orb_complex_float* out,
                                int order, void* buffer);
void t7_vsps_cFftInv_Large_32fc(const VspsFFTSpec* spec, const orb_complex_float* in, orb_complex_float* out,
                                int order, void* buffer);
void t7_vsps_cFftFwd_Large_64fc(const VspsFFTSpec* spec, const orb_complex_double* in,
                                orb_complex_double* out, int order, void* buffer);
void t7_vsps_cFftInv_Large_64fc(const VspsFFTSpec* spec, const orb_complex_double* in,
                                orb_complex_double* out, int order, void* buffer);
void t7_vsps_crFftFwd_Large_32f(const VspsFFTSpec* spec, const float* in_re, const float* in_im,
                                float* out_re, float* out_im, int order, void* buffer);
void t7_vsps_crFftInv_Large_32f(const VspsFFTSpec* spec, const float* in_re, const float* in_im,
                                float* out_re, float* out_im, int order, void* buffer);
void t7_vsps_crFftFwd_Large_64f(const VspsFFTSpec* spec, const double* in_re, const double* in_im,
                                double* out_re, double* out_im, int order, void* buffer);
void t7_vsps_crFftInv_Large_64f(const VspsFFTSpec* spec, const double* in_re, const double* in_im,
                                double* out_re, double* out_im, int order, void* buffer);
/** @} */

/** @{ */
/** One pass over `blocks` blocks of four (two) rows of `count` numbers, a multiple of 4: butterflies across
 * the rows with twiddles laid out as by t7_vsps_initTabTwd_L1, the same for each block. `in` and `out` may be
 * one array. */
void t7_vsps_cFftFwd_Fact4_32fc(const orb_complex_float* in, orb_complex_float* out, int count, int blocks,
                                const float* twiddles);
void t7_vsps_cFftFwd_Fact2_32fc(const orb_complex_float* in, orb_complex_float* out, int count, int blocks,
                                const float* twiddles);
void t7_vsps_cFftInv_Fact4_32fc(const orb_complex_float* in, orb_complex_float* out, int count, int blocks,
                                const float* twiddles);
void t7_vsps_cFftInv_Fact2_32fc(const orb_complex_float* in, orb_complex_float* out, int count, int blocks,
                                const float* twiddles);
void t7_vsps_cFftFwd_Fact4_64fc(const orb_complex_double* in, orb_complex_double* out, int count, int blocks,
                                const double* twiddles);
void t7_vsps_cFftFwd_Fact2_64fc(const orb_complex_double* in, orb_complex_double* out, int count, int blocks,
                                const double* twiddles);
void t7_vsps_cFftInv_Fact4_64fc(const orb_complex_double* in, orb_complex_double* out, int count, int blocks,
                                const double* twiddles);
void t7_vsps_cFftInv_Fact2_64fc(const orb_complex_double* in, orb_complex_double* out, int count, int blocks,
                                const double* twiddles);
void t7_vsps_crFftFwd_Fact4_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                int count, int blocks, const float* twiddles);
void t7_vsps_crFftFwd_Fact2_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                int count, int blocks, const float* twiddles);
void t7_vsps_crFftInv_Fact4_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                int count, int blocks, const float* twiddles);
void t7_vsps_crFftInv_Fact2_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                int count, int blocks, const float* twiddles);
void t7_vsps_crFftFwd_Fact4_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                int count, int blocks, const double* twiddles);
void t7_vsps_crFftFwd_Fact2_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                int count, int blocks, const double* twiddles);
void t7_vsps_crFftInv_Fact4_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                int count, int blocks, const double* twiddles);
void t7_vsps_crFftInv_Fact2_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                int count, int blocks, const double* twiddles);
/** @} */

/* Moves */

/** @{ */
/** Copies `rows` rows of `columns` numbers that start `stride` numbers apart to `buffer`, one behind the
 * other. For split arrays the buffer holds all real parts and then all imaginary parts. */
void t7_vsps_cFft_BlkMerge_32fc(const orb_complex_float* source, orb_complex_float* buffer, int stride,
                                int rows, int columns);
void t7_vsps_cFft_BlkMerge_64fc(const orb_complex_double* source, orb_complex_double* buffer, int stride,
                                int rows, int columns);
void t7_vsps_crFft_BlkMerge_32f(const float* source_re, const float* source_im, float* buffer, int stride,
                                int rows, int columns);
void t7_vsps_crFft_BlkMerge_64f(const double* source_re, const double* source_im, double* buffer, int stride,
                                int rows, int columns);
/** @} */

/** @{ */
/** The way back. `flag` is not used. */
void t7_vsps_cFft_BlkSplit_32fc(orb_complex_float* target, const orb_complex_float* buffer, int stride,
                                int rows, int columns, int flag);
void t7_vsps_cFft_BlkSplit_64fc(orb_complex_double* target, const orb_complex_double* buffer, int stride,
                                int rows, int columns, int flag);
void t7_vsps_crFft_BlkSplit_32f(float* target_re, float* target_im, const float* buffer, int stride, int rows,
                                int columns, int flag);
void t7_vsps_crFft_BlkSplit_64f(double* target_re, double* target_im, const double* buffer, int stride,
                                int rows, int columns, int flag);
/** @} */

/** @{ */
/** Puts n elements in bit-reversed order in place, with the table of t7_vsps_initTabBitRev(). Elements: S
 * floats, D doubles, C single complex, Z double complex; n below 4 is in that order already. */
void t7_vsps_BitRev1_S(float* data, int n, const int* table);
void t7_vsps_BitRev1_D(double* data, int n, const int* table);
void t7_vsps_BitRev1_C(orb_complex_float* data, int n, const int* table);
void t7_vsps_BitRev1_Z(orb_complex_double* data, int n, const int* table);
/** @} */

/** @{ */
/** The same from one array to another. */
void t7_vsps_BitRev2_S(const float* in, float* out, int n, const int* table);
void t7_vsps_BitRev2_D(const double* in, double* out, int n, const int* table);
void t7_vsps_BitRev2_C(const orb_complex_float* in, orb_complex_float* out, int n, const int* table);
void t7_vsps_BitRev2_Z(const orb_complex_double* in, orb_complex_double* out, int n, const int* table);
/** @} */

/** @{ */
/** The same for short arrays of any elements of 4 and 8 bytes, one by one. */
void t7_vsps_BitRev1_4(void* data, int n, const int* table);
void t7_vsps_BitRev1_8(void* data, int n, const int* table);
void t7_vsps_BitRev2_4(const void* in, void* out, int n, const int* table);
void t7_vsps_BitRev2_8(const void* in, void* out, int n, const int* table);
/** @} */

/** @{ */
/** The same in place on one block in the buffer of a blocked reversal, which stands on a 16-byte boundary. */
void t7_vsps_sBitRev1_Blk(float* block, int n, const int* table);
void t7_vsps_dBitRev1_Blk(double* block, int n, const int* table);
void t7_vsps_cBitRev1_Blk(orb_complex_float* block, int n, const int* table);
void t7_vsps_zBitRev1_Blk(orb_complex_double* block, int n, const int* table);
/** @} */

ORB_END_DECLS

#endif
