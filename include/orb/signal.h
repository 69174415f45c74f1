/** @file
 *  Signal transforms of liborb_t7.so: the discrete Fourier transform of one array, addressed by a
 *  specification record that holds the tables.
 *
 *  Forward means X[k] = sum over j of x[j] exp(-2 pi i j k / N), inverse the same with +i; both are
 * multiplied by the scale that the record's flag asks for. `FFT` entries take the power-of-two lengths N =
 * 2^order, `DFT` entries any length. The kinds, by the end of a name:
 *
 *  | ending         | data                                                                         |
 *  |----------------|------------------------------------------------------------------------------|
 *  | C_32fc, C_64fc | N complex numbers, parts interleaved                                         |
 *  | C_32f, C_64f   | N complex numbers, real and imaginary parts in an array each                 |
 *  | R_32f, R_64f   | N real numbers; their transform in one of the formats below                  |
 *
 *  Formats of the transform X of real data, which X[0] to X[N/2] determine (for odd N up to X[(N-1)/2]):
 *
 *  | format | reals | order                                                                           |
 *  |--------|-------|---------------------------------------------------------------------------------|
 *  | Perm   | N     | Re X[0], Re X[N/2], Re X[1], Im X[1], Re X[2], Im X[2], ...                      |
 *  | Pack   | N     | Re X[0], Re X[1], Im X[1], ..., Re X[N/2]                                        |
 *  | CCS    | N + 2 | Re X[0], 0, Re X[1], Im X[1], ..., Re X[N/2], 0                                  |
 *
 *  For odd N Perm equals Pack (Re X[0], Re X[1], Im X[1], ...) and CCS has N + 1 reals.
 *
 *  Input and output may be one array (for split parts, each input with its own output), and the result then
 *  has the same bits as out of place; other overlaps are not allowed. Arrays may start at any address at
 *  which their elements may stand (doubles: any multiple of 4); results do not depend on it. Records are only
 *  read by the compute calls, so threads may share one, each with a buffer of its own.
 *
 *  Method: radix-4 decimation in time; mixed radix; direct sum; chirp convolution. Sources: J. W. Cooley,
 *  J. W. Tukey, Math. Comp. 19 (1965); L. I. Bluestein, IEEE Trans. AU-18 (1970).
 */
#ifndef ORB_SIGNAL_H
#define ORB_SIGNAL_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** Status of every call: 0, or what was wrong. */
typedef int VspStatus;
enum {
  VSP_OK = 0,
  VSP_SIZE_ERROR = -6,       /**< a length below 1 or above the limit */
  VSP_NULL_POINTER = -8,     /**< a pointer that may not be null is */
  VSP_NO_MEMORY = -9,        /**< memory could not be had */
  VSP_FFT_ORDER_ERROR = -15, /**< the order is below 0 or too large */
  VSP_FFT_FLAG_ERROR = -16,  /**< the flag is none of the four */
  VSP_CONTEXT_MISMATCH = -17 /**< the record is of another kind, or was freed */
};

/** What is multiplied by what: the accepted values of `flag`. */
enum {
  VSP_FFT_DIV_FWD_BY_N = 1, /**< the forward transform divides by N */
  VSP_FFT_DIV_INV_BY_N = 2, /**< the inverse transform divides by N */
  VSP_FFT_DIV_BY_SQRTN = 4, /**< both divide by sqrt(N) */
  VSP_FFT_NODIV_BY_ANY = 8  /**< neither divides */
};

/** @{ */
/** Specification records. Their first word tells the kind (a number of each kind's own, 0 when freed), the
 *  second the order or the length; the rest is private. */
typedef struct VspsFFTSpec VspsFFTSpec;
typedef struct VspsDFTSpec VspsDFTSpec;
/** @} */

/* Memory */

/** `size` bytes on a 32-byte boundary from the allocator that `i_malloc` points to; null for a size below 1
 *  and when there is no memory. 36 more bytes are asked for: the allocator's own pointer stands in the word
 * in front of the result. */
void* t7_vspMalloc(int size);

/** Gives back what t7_vspMalloc() or a t7_vspsMalloc returned, through `i_free`. Null is allowed. */
void t7_vspFree(void* block);

/** @{ */
/** The same for n bytes, floats and doubles; null for n below 1. */
unsigned char* t7_vspsMalloc_8u(int n);
float* t7_vspsMalloc_32f(int n);
double* t7_vspsMalloc_64f(int n);
/** @} */

/** The same as t7_vspFree(). */
void t7_vspsFree(void* block);

/* Power-of-two lengths */

/** @{ */
/** Bytes that t7_vspsFFTInit needs for an order: of the record with its tables, of memory that is used during
 * the init alone, and of the buffer of a compute call. Each includes what alignment to 32 bytes may cost, so
 * any addresses serve. 0 means that none is needed and null may be passed. `hint` has no effect. Checked in
 * this order: the order (0 to 30; VSP_FFT_ORDER_ERROR), the pointers (VSP_NULL_POINTER), the flag
 * (VSP_FFT_FLAG_ERROR), the length (orders up to 27, in double precision 26; VSP_FFT_ORDER_ERROR). */
VspStatus t7_vspsFFTGetSize_C_32fc(int order, int flag, int hint, int* spec_size, int* init_size,
                                   int* buf_size);
VspStatus t7_vspsFFTGetSize_C_64fc(int order, int flag, int hint, int* spec_size, int* init_size,
                                   int* buf_size);
VspStatus t7_vspsFFTGetSize_C_32f(int order, int flag, int hint, int* spec_size, int* init_size,
                                  int* buf_size);
VspStatus t7_vspsFFTGetSize_C_64f(int order, int flag, int hint, int* spec_size, int* init_size,
                                  int* buf_size);
VspStatus t7_vspsFFTGetSize_R_32f(int order, int flag, int hint, int* spec_size, int* init_size,
                                  int* buf_size);
VspStatus t7_vspsFFTGetSize_R_64f(int order, int flag, int hint, int* spec_size, int* init_size,
                                  int* buf_size);
/** @} */

/** @{ */
/** Builds a record in `spec_memory` and writes its address, the first 32-byte boundary there, through `spec`.
 *  The record keeps pointers into this memory and owns none of it. `init_memory` may be given back
 * afterwards. A null `spec`, `spec_memory` or needed `init_memory` gives VSP_NULL_POINTER; a bad order
 * VSP_FFT_ORDER_ERROR; a bad flag VSP_FFT_FLAG_ERROR, with the kind word of the record 0. `spec` is written
 * on success only. */
VspStatus t7_vspsFFTInit_C_32fc(VspsFFTSpec** spec, int order, int flag, int hint, void* spec_memory,
                                void* init_memory);
VspStatus t7_vspsFFTInit_C_64fc(VspsFFTSpec** spec, int order, int flag, int hint, void* spec_memory,
                                void* init_memory);
VspStatus t7_vspsFFTInit_C_32f(VspsFFTSpec** spec, int order, int flag, int hint, void* spec_memory,
                               void* init_memory);
VspStatus t7_vspsFFTInit_C_64f(VspsFFTSpec** spec, int order, int flag, int hint, void* spec_memory,
                               void* init_memory);
VspStatus t7_vspsFFTInit_R_32f(VspsFFTSpec** spec, int order, int flag, int hint, void* spec_memory,
                               void* init_memory);
VspStatus t7_vspsFFTInit_R_64f(VspsFFTSpec** spec, int order, int flag, int hint, void* spec_memory,
                               void* init_memory);
/** @} */

/** @{ */
/** The same in memory of its own, which t7_vspsFFTFree gives back. After a failure nothing is kept and `spec`
 * is as it was. */
VspStatus t7_vspsFFTInitAlloc_C_32fc(VspsFFTSpec** spec, int order, int flag, int hint);
VspStatus t7_vspsFFTInitAlloc_C_64fc(VspsFFTSpec** spec, int order, int flag, int hint);
VspStatus t7_vspsFFTInitAlloc_C_32f(VspsFFTSpec** spec, int order, int flag, int hint);
VspStatus t7_vspsFFTInitAlloc_C_64f(VspsFFTSpec** spec, int order, int flag, int hint);
VspStatus t7_vspsFFTInitAlloc_R_32f(VspsFFTSpec** spec, int order, int flag, int hint);
VspStatus t7_vspsFFTInitAlloc_R_64f(VspsFFTSpec** spec, int order, int flag, int hint);
/** @} */

/** @{ */
/** Ends a record: its kind word becomes 0, so that later calls refuse it, and its memory is given back if
 *  t7_vspsFFTInitAlloc took it. Null gives VSP_NULL_POINTER, a record of another kind VSP_CONTEXT_MISMATCH.
 */
VspStatus t7_vspsFFTFree_C_32fc(VspsFFTSpec* spec);
VspStatus t7_vspsFFTFree_C_64fc(VspsFFTSpec* spec);
VspStatus t7_vspsFFTFree_C_32f(VspsFFTSpec* spec);
VspStatus t7_vspsFFTFree_C_64f(VspsFFTSpec* spec);
VspStatus t7_vspsFFTFree_R_32f(VspsFFTSpec* spec);
VspStatus t7_vspsFFTFree_R_64f(VspsFFTSpec* spec);
/** @} */

/** @{ */
/** Bytes of the buffer that a compute call can use; 0 if it needs none. Any address serves. */
VspStatus t7_vspsFFTGetBufSize_C_32fc(const VspsFFTSpec* spec, int* size);
VspStatus t7_vspsFFTGetBufSize_C_64fc(const VspsFFTSpec* spec, int* size);
VspStatus t7_vspsFFTGetBufSize_C_32f(const VspsFFTSpec* spec, int* size);
VspStatus t7_vspsFFTGetBufSize_C_64f(const VspsFFTSpec* spec, int* size);
VspStatus t7_vspsFFTGetBufSize_R_32f(const VspsFFTSpec* spec, int* size);
VspStatus t7_vspsFFTGetBufSize_R_64f(const VspsFFTSpec* spec, int* size);
/** @} */

/** @{ */
/** Complex transforms of N = 2^order numbers. `buffer` has the bytes that the record's GetBufSize tells; with
 * null the call allocates them itself, and fails with VSP_NO_MEMORY, nothing written, if it cannot. A null
 * record gives VSP_NULL_POINTER, one of another kind VSP_CONTEXT_MISMATCH, null data VSP_NULL_POINTER, in
 * this order; there is no other failure. */
VspStatus t7_vspsFFTFwd_CToC_32fc(const orb_complex_float* in, orb_complex_float* out,
                                  const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_CToC_32fc(const orb_complex_float* in, orb_complex_float* out,
                                  const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTFwd_CToC_64fc(const orb_complex_double* in, orb_complex_double* out,
                                  const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_CToC_64fc(const orb_complex_double* in, orb_complex_double* out,
                                  const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTFwd_CToC_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                 const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_CToC_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                 const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTFwd_CToC_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                 const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_CToC_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                 const VspsFFTSpec* spec, void* buffer);
/** @} */

/** @{ */
/** Real transforms of N = 2^order numbers and back. `buffer` and statuses as above. */
VspStatus t7_vspsFFTFwd_RToPack_32f(const float* in, float* out, const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_PackToR_32f(const float* in, float* out, const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTFwd_RToPerm_32f(const float* in, float* out, const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_PermToR_32f(const float* in, float* out, const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTFwd_RToPack_64f(const double* in, double* out, const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_PackToR_64f(const double* in, double* out, const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTFwd_RToPerm_64f(const double* in, double* out, const VspsFFTSpec* spec, void* buffer);
VspStatus t7_vspsFFTInv_PermToR_64f(const double* in, double* out, const VspsFFTSpec* spec, void* buffer);
/** @} */

/* Any length */

/** @{ */
/** Builds a record for `length` numbers in memory of its own. Null `spec`: VSP_NULL_POINTER; a length below
 * 1, or above what the method that it takes can do (2^27, 2^26 for lengths with a prime factor above 150):
 *  VSP_SIZE_ERROR; a bad flag: VSP_FFT_FLAG_ERROR; VSP_NO_MEMORY. After a failure nothing is kept and `spec`
 * is as it was. `hint` has no effect.
 *
 *  Methods: straight code up to 16; the power-of-two engine; butterflies over the factors when no prime
 * factor is above 150; a direct sum for other lengths up to 150 (real: 180); else a convolution with a chirp.
 */
VspStatus t7_vspsDFTInitAlloc_C_32fc(VspsDFTSpec** spec, int length, int flag, int hint);
VspStatus t7_vspsDFTInitAlloc_C_64fc(VspsDFTSpec** spec, int length, int flag, int hint);
VspStatus t7_vspsDFTInitAlloc_C_32f(VspsDFTSpec** spec, int length, int flag, int hint);
VspStatus t7_vspsDFTInitAlloc_C_64f(VspsDFTSpec** spec, int length, int flag, int hint);
VspStatus t7_vspsDFTInitAlloc_R_32f(VspsDFTSpec** spec, int length, int flag, int hint);
VspStatus t7_vspsDFTInitAlloc_R_64f(VspsDFTSpec** spec, int length, int flag, int hint);
/** @} */

/** @{ */
/** Frees a record and its tables. Null gives VSP_NULL_POINTER, a record of another kind VSP_CONTEXT_MISMATCH.
 */
VspStatus t7_vspsDFTFree_C_32fc(VspsDFTSpec* spec);
VspStatus t7_vspsDFTFree_C_64fc(VspsDFTSpec* spec);
VspStatus t7_vspsDFTFree_C_32f(VspsDFTSpec* spec);
VspStatus t7_vspsDFTFree_C_64f(VspsDFTSpec* spec);
VspStatus t7_vspsDFTFree_R_32f(VspsDFTSpec* spec);
VspStatus t7_vspsDFTFree_R_64f(VspsDFTSpec* spec);
/** @} */

/** @{ */
/** Bytes of the buffer that a compute call can use; 0 if it needs none. Any address serves. */
VspStatus t7_vspsDFTGetBufSize_C_32fc(const VspsDFTSpec* spec, int* size);
VspStatus t7_vspsDFTGetBufSize_C_64fc(const VspsDFTSpec* spec, int* size);
VspStatus t7_vspsDFTGetBufSize_C_32f(const VspsDFTSpec* spec, int* size);
VspStatus t7_vspsDFTGetBufSize_C_64f(const VspsDFTSpec* spec, int* size);
VspStatus t7_vspsDFTGetBufSize_R_32f(const VspsDFTSpec* spec, int* size);
VspStatus t7_vspsDFTGetBufSize_R_64f(const VspsDFTSpec* spec, int* size);
/** @} */

/** @{ */
/** Complex transforms of `length` numbers. `buffer` has the bytes that the record's GetBufSize tells; with
 * null the call allocates them itself, and fails with VSP_NO_MEMORY, nothing written, if it cannot. A null
 * record gives VSP_NULL_POINTER, one of another kind VSP_CONTEXT_MISMATCH, null data VSP_NULL_POINTER, in
 * this order; there is no other failure. */
VspStatus t7_vspsDFTFwd_CToC_32fc(const orb_complex_float* in, orb_complex_float* out,
                                  const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_CToC_32fc(const orb_complex_float* in, orb_complex_float* out,
                                  const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_CToC_64fc(const orb_complex_double* in, orb_complex_double* out,
                                  const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_CToC_64fc(const orb_complex_double* in, orb_complex_double* out,
                                  const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_CToC_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                 const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_CToC_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                 const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_CToC_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                 const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_CToC_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                 const VspsDFTSpec* spec, void* buffer);
/** @} */

/** @{ */
/** Real transforms of `length` numbers and back. `buffer` and statuses as above. Forward into CCS, N + 2
 * reals (odd N: N + 1) are written. */
VspStatus t7_vspsDFTFwd_RToCCS_32f(const float* in, float* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_CCSToR_32f(const float* in, float* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_RToPack_32f(const float* in, float* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_PackToR_32f(const float* in, float* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_RToPerm_32f(const float* in, float* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_PermToR_32f(const float* in, float* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_RToCCS_64f(const double* in, double* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_CCSToR_64f(const double* in, double* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_RToPack_64f(const double* in, double* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_PackToR_64f(const double* in, double* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTFwd_RToPerm_64f(const double* in, double* out, const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTInv_PermToR_64f(const double* in, double* out, const VspsDFTSpec* spec, void* buffer);
/** @} */

/** @{ */
/** Complex transforms whose spectrum is left in an order of the record's own, which only the inverse
 * transform of the same record reads; it saves a pass over the data. Init, free, buffer and statuses as
 * above. */
VspStatus t7_vspsDFTOutOrdInitAlloc_C_32fc(VspsDFTSpec** spec, int length, int flag, int hint);
VspStatus t7_vspsDFTOutOrdInitAlloc_C_64fc(VspsDFTSpec** spec, int length, int flag, int hint);
VspStatus t7_vspsDFTOutOrdFree_C_32fc(VspsDFTSpec* spec);
VspStatus t7_vspsDFTOutOrdFree_C_64fc(VspsDFTSpec* spec);
VspStatus t7_vspsDFTOutOrdGetBufSize_C_32fc(const VspsDFTSpec* spec, int* size);
VspStatus t7_vspsDFTOutOrdGetBufSize_C_64fc(const VspsDFTSpec* spec, int* size);
VspStatus t7_vspsDFTOutOrdFwd_CToC_32fc(const orb_complex_float* in, orb_complex_float* out,
                                        const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTOutOrdInv_CToC_32fc(const orb_complex_float* in, orb_complex_float* out,
                                        const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTOutOrdFwd_CToC_64fc(const orb_complex_double* in, orb_complex_double* out,
                                        const VspsDFTSpec* spec, void* buffer);
VspStatus t7_vspsDFTOutOrdInv_CToC_64fc(const orb_complex_double* in, orb_complex_double* out,
                                        const VspsDFTSpec* spec, void* buffer);
/** @} */

ORB_END_DECLS

#endif
