// Exported: complex transforms of lengths 1 to 32.
#include "signal/kernel/fft/straight.h"

#include "orb/signal_straight.h"
#include "signal/kernel/arrays.h"

using namespace orb::signal;
using orb::signal::forward;

#define STRAIGHT(name, name_scale, order, direction, C, T)                                          \
  ORB_EXPORT void name(const C* in, C* out) { straight<order, direction, T>(view(in), view(out)); } \
  ORB_EXPORT void name_scale(const C* in, C* out, T scale) {                                        \
    straight<order, direction, T>(view(in), Scaled<Interleaved<T>>{view(out), scale});              \
  }
STRAIGHT(t7_vsps_cFFT_1_32fc, t7_vsps_cFFT_1_scale_32fc, 0, forward, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFT_2_32fc, t7_vsps_cFFT_2_scale_32fc, 1, forward, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTfwd_4_32fc, t7_vsps_cFFTfwd_4_scale_32fc, 2, forward, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTinv_4_32fc, t7_vsps_cFFTinv_4_scale_32fc, 2, inverse, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTfwd_8_32fc, t7_vsps_cFFTfwd_8_scale_32fc, 3, forward, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTinv_8_32fc, t7_vsps_cFFTinv_8_scale_32fc, 3, inverse, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTfwd_16_32fc, t7_vsps_cFFTfwd_16_scale_32fc, 4, forward, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTinv_16_32fc, t7_vsps_cFFTinv_16_scale_32fc, 4, inverse, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTfwd_32_32fc, t7_vsps_cFFTfwd_32_scale_32fc, 5, forward, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFTinv_32_32fc, t7_vsps_cFFTinv_32_scale_32fc, 5, inverse, orb_complex_float, float)
STRAIGHT(t7_vsps_cFFT_1_64fc, t7_vsps_cFFT_1_scale_64fc, 0, forward, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFT_2_64fc, t7_vsps_cFFT_2_scale_64fc, 1, forward, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTfwd_4_64fc, t7_vsps_cFFTfwd_4_scale_64fc, 2, forward, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTinv_4_64fc, t7_vsps_cFFTinv_4_scale_64fc, 2, inverse, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTfwd_8_64fc, t7_vsps_cFFTfwd_8_scale_64fc, 3, forward, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTinv_8_64fc, t7_vsps_cFFTinv_8_scale_64fc, 3, inverse, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTfwd_16_64fc, t7_vsps_cFFTfwd_16_scale_64fc, 4, forward, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTinv_16_64fc, t7_vsps_cFFTinv_16_scale_64fc, 4, inverse, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTfwd_32_64fc, t7_vsps_cFFTfwd_32_scale_64fc, 5, forward, orb_complex_double, double)
STRAIGHT(t7_vsps_cFFTinv_32_64fc, t7_vsps_cFFTinv_32_scale_64fc, 5, inverse, orb_complex_double, double)

#define STRAIGHT_APART(name, name_scale, order, direction, T)                                               \
  ORB_EXPORT void name(const T* in_re, const T* in_im, T* out_re, T* out_im) {                              \
    straight<order, direction, T>(Apart<const T>{in_re, in_im}, Apart<T>{out_re, out_im});                  \
  }                                                                                                         \
  ORB_EXPORT void name_scale(const T* in_re, const T* in_im, T* out_re, T* out_im, T scale) {               \
    straight<order, direction, T>(Apart<const T>{in_re, in_im}, Scaled<Apart<T>>{{out_re, out_im}, scale}); \
  }
STRAIGHT_APART(t7_vsps_crFFT_1_32f, t7_vsps_crFFT_1_scale_32f, 0, forward, float)
STRAIGHT_APART(t7_vsps_crFFT_2_32f, t7_vsps_crFFT_2_scale_32f, 1, forward, float)
STRAIGHT_APART(t7_vsps_crFFTfwd_4_32f, t7_vsps_crFFTfwd_4_scale_32f, 2, forward, float)
STRAIGHT_APART(t7_vsps_crFFTinv_4_32f, t7_vsps_crFFTinv_4_scale_32f, 2, inverse, float)
STRAIGHT_APART(t7_vsps_crFFTfwd_8_32f, t7_vsps_crFFTfwd_8_scale_32f, 3, forward, float)
STRAIGHT_APART(t7_vsps_crFFTinv_8_32f, t7_vsps_crFFTinv_8_scale_32f, 3, inverse, float)
STRAIGHT_APART(t7_vsps_crFFTfwd_16_32f, t7_vsps_crFFTfwd_16_scale_32f, 4, forward, float)
STRAIGHT_APART(t7_vsps_crFFTinv_16_32f, t7_vsps_crFFTinv_16_scale_32f, 4, inverse, float)
STRAIGHT_APART(t7_vsps_crFFTfwd_32_32f, t7_vsps_crFFTfwd_32_scale_32f, 5, forward, float)
STRAIGHT_APART(t7_vsps_crFFTinv_32_32f, t7_vsps_crFFTinv_32_scale_32f, 5, inverse, float)
STRAIGHT_APART(t7_vsps_crFFT_1_64f, t7_vsps_crFFT_1_scale_64f, 0, forward, double)
STRAIGHT_APART(t7_vsps_crFFT_2_64f, t7_vsps_crFFT_2_scale_64f, 1, forward, double)
STRAIGHT_APART(t7_vsps_crFFTfwd_4_64f, t7_vsps_crFFTfwd_4_scale_64f, 2, forward, double)
STRAIGHT_APART(t7_vsps_crFFTinv_4_64f, t7_vsps_crFFTinv_4_scale_64f, 2, inverse, double)
STRAIGHT_APART(t7_vsps_crFFTfwd_8_64f, t7_vsps_crFFTfwd_8_scale_64f, 3, forward, double)
STRAIGHT_APART(t7_vsps_crFFTinv_8_64f, t7_vsps_crFFTinv_8_scale_64f, 3, inverse, double)
STRAIGHT_APART(t7_vsps_crFFTfwd_16_64f, t7_vsps_crFFTfwd_16_scale_64f, 4, forward, double)
STRAIGHT_APART(t7_vsps_crFFTinv_16_64f, t7_vsps_crFFTinv_16_scale_64f, 4, inverse, double)
STRAIGHT_APART(t7_vsps_crFFTfwd_32_64f, t7_vsps_crFFTfwd_32_scale_64f, 5, forward, double)
STRAIGHT_APART(t7_vsps_crFFTinv_32_64f, t7_vsps_crFFTinv_32_scale_64f, 5, inverse, double)
