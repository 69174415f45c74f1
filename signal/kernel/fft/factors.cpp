// Exported: single passes of the column stages on users' arrays.
#include "orb/signal_power_of_two.h"
#include "signal/kernel/arrays.h"
#include "signal/kernel/fft/passes.h"

using namespace orb::signal;
using orb::signal::forward;

#define FACTORS_INTERLEAVED(fact4, fact2, direction, C, T)                               \
  ORB_EXPORT void fact4(const C* in, C* out, int count, int blocks, const T* twiddles) { \
    radix4_blocks<direction>(view(in), view(out), count, blocks, twiddles);              \
  }                                                                                      \
  ORB_EXPORT void fact2(const C* in, C* out, int count, int blocks, const T* twiddles) { \
    radix2_blocks<direction>(view(in), view(out), count, blocks, twiddles);              \
  }
FACTORS_INTERLEAVED(t7_vsps_cFftFwd_Fact4_32fc, t7_vsps_cFftFwd_Fact2_32fc, forward, orb_complex_float, float)
FACTORS_INTERLEAVED(t7_vsps_cFftInv_Fact4_32fc, t7_vsps_cFftInv_Fact2_32fc, inverse, orb_complex_float, float)
FACTORS_INTERLEAVED(t7_vsps_cFftFwd_Fact4_64fc, t7_vsps_cFftFwd_Fact2_64fc, forward, orb_complex_double,
                    double)
FACTORS_INTERLEAVED(t7_vsps_cFftInv_Fact4_64fc, t7_vsps_cFftInv_Fact2_64fc, inverse, orb_complex_double,
                    double)

#define FACTORS_APART(fact4, fact2, direction, T)                                                    \
  ORB_EXPORT void fact4(const T* in_re, const T* in_im, T* out_re, T* out_im, int count, int blocks, \
                        const T* twiddles) {                                                         \
    radix4_blocks<direction>(Apart<const T>{in_re, in_im}, Apart<T>{out_re, out_im}, count, blocks,  \
                             twiddles);                                                              \
  }                                                                                                  \
  ORB_EXPORT void fact2(const T* in_re, const T* in_im, T* out_re, T* out_im, int count, int blocks, \
                        const T* twiddles) {                                                         \
    radix2_blocks<direction>(Apart<const T>{in_re, in_im}, Apart<T>{out_re, out_im}, count, blocks,  \
                             twiddles);                                                              \
  }
FACTORS_APART(t7_vsps_crFftFwd_Fact4_32f, t7_vsps_crFftFwd_Fact2_32f, forward, float)
FACTORS_APART(t7_vsps_crFftInv_Fact4_32f, t7_vsps_crFftInv_Fact2_32f, inverse, float)
FACTORS_APART(t7_vsps_crFftFwd_Fact4_64f, t7_vsps_crFftFwd_Fact2_64f, forward, double)
FACTORS_APART(t7_vsps_crFftInv_Fact4_64f, t7_vsps_crFftInv_Fact2_64f, inverse, double)
