// Exported: complex transforms of the lengths 3 to 15 that are no powers of two.
#include "signal/kernel/dft/straight.h"

#include "orb/signal_straight.h"
#include "signal/kernel/arrays.h"

using namespace orb::signal;
using orb::signal::forward;

#define STRAIGHT_DFT(name, name_scale, n, direction, C, T)                                          \
  ORB_EXPORT void name(const C* in, C* out) { straight_dft<n, direction, T>(view(in), view(out)); } \
  ORB_EXPORT void name_scale(const C* in, C* out, T scale) {                                        \
    straight_dft<n, direction, T>(view(in), Scaled<Interleaved<T>>{view(out), scale});              \
  }
STRAIGHT_DFT(t7_vsps_cDFTfwd_3_32fc, t7_vsps_cDFTfwd_3_scale_32fc, 3, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_3_32fc, t7_vsps_cDFTinv_3_scale_32fc, 3, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_5_32fc, t7_vsps_cDFTfwd_5_scale_32fc, 5, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_5_32fc, t7_vsps_cDFTinv_5_scale_32fc, 5, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_6_32fc, t7_vsps_cDFTfwd_6_scale_32fc, 6, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_6_32fc, t7_vsps_cDFTinv_6_scale_32fc, 6, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_7_32fc, t7_vsps_cDFTfwd_7_scale_32fc, 7, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_7_32fc, t7_vsps_cDFTinv_7_scale_32fc, 7, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_9_32fc, t7_vsps_cDFTfwd_9_scale_32fc, 9, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_9_32fc, t7_vsps_cDFTinv_9_scale_32fc, 9, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_10_32fc, t7_vsps_cDFTfwd_10_scale_32fc, 10, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_10_32fc, t7_vsps_cDFTinv_10_scale_32fc, 10, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_11_32fc, t7_vsps_cDFTfwd_11_scale_32fc, 11, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_11_32fc, t7_vsps_cDFTinv_11_scale_32fc, 11, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_12_32fc, t7_vsps_cDFTfwd_12_scale_32fc, 12, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_12_32fc, t7_vsps_cDFTinv_12_scale_32fc, 12, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_13_32fc, t7_vsps_cDFTfwd_13_scale_32fc, 13, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_13_32fc, t7_vsps_cDFTinv_13_scale_32fc, 13, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_14_32fc, t7_vsps_cDFTfwd_14_scale_32fc, 14, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_14_32fc, t7_vsps_cDFTinv_14_scale_32fc, 14, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_15_32fc, t7_vsps_cDFTfwd_15_scale_32fc, 15, forward, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTinv_15_32fc, t7_vsps_cDFTinv_15_scale_32fc, 15, inverse, orb_complex_float, float)
STRAIGHT_DFT(t7_vsps_cDFTfwd_3_64fc, t7_vsps_cDFTfwd_3_scale_64fc, 3, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_3_64fc, t7_vsps_cDFTinv_3_scale_64fc, 3, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_5_64fc, t7_vsps_cDFTfwd_5_scale_64fc, 5, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_5_64fc, t7_vsps_cDFTinv_5_scale_64fc, 5, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_6_64fc, t7_vsps_cDFTfwd_6_scale_64fc, 6, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_6_64fc, t7_vsps_cDFTinv_6_scale_64fc, 6, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_7_64fc, t7_vsps_cDFTfwd_7_scale_64fc, 7, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_7_64fc, t7_vsps_cDFTinv_7_scale_64fc, 7, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_9_64fc, t7_vsps_cDFTfwd_9_scale_64fc, 9, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_9_64fc, t7_vsps_cDFTinv_9_scale_64fc, 9, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_10_64fc, t7_vsps_cDFTfwd_10_scale_64fc, 10, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_10_64fc, t7_vsps_cDFTinv_10_scale_64fc, 10, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_11_64fc, t7_vsps_cDFTfwd_11_scale_64fc, 11, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_11_64fc, t7_vsps_cDFTinv_11_scale_64fc, 11, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_12_64fc, t7_vsps_cDFTfwd_12_scale_64fc, 12, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_12_64fc, t7_vsps_cDFTinv_12_scale_64fc, 12, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_13_64fc, t7_vsps_cDFTfwd_13_scale_64fc, 13, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_13_64fc, t7_vsps_cDFTinv_13_scale_64fc, 13, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_14_64fc, t7_vsps_cDFTfwd_14_scale_64fc, 14, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_14_64fc, t7_vsps_cDFTinv_14_scale_64fc, 14, inverse, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTfwd_15_64fc, t7_vsps_cDFTfwd_15_scale_64fc, 15, forward, orb_complex_double, double)
STRAIGHT_DFT(t7_vsps_cDFTinv_15_64fc, t7_vsps_cDFTinv_15_scale_64fc, 15, inverse, orb_complex_double, double)
