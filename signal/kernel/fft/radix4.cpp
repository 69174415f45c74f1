// Exported: the radix-4 loop. Source: J. W. Cooley, J. W. Tukey, Math. Comp. 19 (1965) 297-301; the split
// registers follow the usual practice of short-vector transforms.
#include "signal/kernel/fft/radix4.h"

#include "orb/signal_power_of_two.h"
#include "signal/kernel/arrays.h"

using namespace orb::signal;
using orb::signal::forward;

#define RADIX4_INTERLEAVED(norm, loop, direction, C, T)                                                    \
  ORB_EXPORT void norm(const C* in, C* out, int n, const T* twiddles, const int* reversed, void* buffer) { \
    norm_fft<direction>(view(in), view(out), n, twiddles, reversed, static_cast<T*>(buffer));              \
  }                                                                                                        \
  ORB_EXPORT void loop(C* data, int n, const T* twiddles, void* buffer, int) {                             \
    reversed_fft<direction>(view(data), n, twiddles, static_cast<T*>(buffer));                             \
  }
RADIX4_INTERLEAVED(t7_vsps_cRadix4FwdNorm_32fc, t7_vsps_cRadix4Fwd_32fc, forward, orb_complex_float, float)
RADIX4_INTERLEAVED(t7_vsps_cRadix4InvNorm_32fc, t7_vsps_cRadix4Inv_32fc, inverse, orb_complex_float, float)
RADIX4_INTERLEAVED(t7_vsps_cRadix4FwdNorm_64fc, t7_vsps_cRadix4Fwd_64fc, forward, orb_complex_double, double)
RADIX4_INTERLEAVED(t7_vsps_cRadix4InvNorm_64fc, t7_vsps_cRadix4Inv_64fc, inverse, orb_complex_double, double)

#define RADIX4_APART(norm, loop, direction, T)                                                         \
  ORB_EXPORT void norm(const T* in_re, const T* in_im, T* out_re, T* out_im, int n, const T* twiddles, \
                       const int* reversed, void* buffer) {                                            \
    norm_fft<direction>(Apart<const T>{in_re, in_im}, Apart<T>{out_re, out_im}, n, twiddles, reversed, \
                        static_cast<T*>(buffer));                                                      \
  }                                                                                                    \
  ORB_EXPORT void loop(T* re, T* im, int n, const T* twiddles, void* buffer, int) {                    \
    reversed_fft<direction>(Apart<T>{re, im}, n, twiddles, static_cast<T*>(buffer));                   \
  }
RADIX4_APART(t7_vsps_crRadix4FwdNorm_32f, t7_vsps_crRadix4Fwd_32f, forward, float)
RADIX4_APART(t7_vsps_crRadix4InvNorm_32f, t7_vsps_crRadix4Inv_32f, inverse, float)
RADIX4_APART(t7_vsps_crRadix4FwdNorm_64f, t7_vsps_crRadix4Fwd_64f, forward, double)
RADIX4_APART(t7_vsps_crRadix4InvNorm_64f, t7_vsps_crRadix4Inv_64f, inverse, double)
