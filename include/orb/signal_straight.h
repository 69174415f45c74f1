/** @file
 *  Straight-line transforms of the shortest lengths in liborb_t7.so: no record, no table, no check. The parts
 * of a name: `cFFT`, `cDFT` complex interleaved, `crFFT` complex in two arrays, `rFFT` real (Perm format on
 * the side of the transform); `fwd` and `inv` the sign of the exponent, which lengths 1 and 2 do not feel;
 * the length; `scale` multiplies every result by the last argument. All input is read before the first output
 * is written, so both may be one array. Any address at which the elements may stand serves.
 */
#ifndef ORB_SIGNAL_STRAIGHT_H
#define ORB_SIGNAL_STRAIGHT_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** Complex, powers of two. */
void t7_vsps_cFFT_1_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFT_1_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFT_2_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFT_2_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTfwd_4_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTfwd_4_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTinv_4_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTinv_4_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTfwd_8_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTfwd_8_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTinv_8_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTinv_8_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTfwd_16_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTfwd_16_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTinv_16_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTinv_16_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTfwd_32_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTfwd_32_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFTinv_32_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cFFTinv_32_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cFFT_1_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFT_1_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFT_2_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFT_2_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTfwd_4_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTfwd_4_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTinv_4_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTinv_4_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTfwd_8_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTfwd_8_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTinv_8_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTinv_8_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTfwd_16_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTfwd_16_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTinv_16_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTinv_16_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTfwd_32_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTfwd_32_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cFFTinv_32_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cFFTinv_32_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
/** @} */

/** @{ */
/** Complex, other lengths. */
void t7_vsps_cDFTfwd_3_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_3_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_3_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_3_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_5_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_5_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_5_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_5_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_6_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_6_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_6_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_6_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_7_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_7_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_7_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_7_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_9_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_9_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_9_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_9_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_10_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_10_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_10_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_10_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_11_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_11_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_11_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_11_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_12_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_12_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_12_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_12_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_13_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_13_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_13_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_13_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_14_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_14_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_14_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_14_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_15_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTfwd_15_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTinv_15_32fc(const orb_complex_float* in, orb_complex_float* out);
void t7_vsps_cDFTinv_15_scale_32fc(const orb_complex_float* in, orb_complex_float* out, float scale);
void t7_vsps_cDFTfwd_3_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_3_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_3_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_3_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_5_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_5_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_5_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_5_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_6_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_6_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_6_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_6_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_7_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_7_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_7_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_7_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_9_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_9_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_9_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_9_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_10_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_10_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_10_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_10_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_11_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_11_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_11_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_11_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_12_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_12_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_12_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_12_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_13_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_13_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_13_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_13_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_14_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_14_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_14_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_14_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTfwd_15_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTfwd_15_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
void t7_vsps_cDFTinv_15_64fc(const orb_complex_double* in, orb_complex_double* out);
void t7_vsps_cDFTinv_15_scale_64fc(const orb_complex_double* in, orb_complex_double* out, double scale);
/** @} */

/** @{ */
/** Complex in two arrays, powers of two. */
void t7_vsps_crFFT_1_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFT_1_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                               float scale);
void t7_vsps_crFFT_2_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFT_2_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                               float scale);
void t7_vsps_crFFTfwd_4_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTfwd_4_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                  float scale);
void t7_vsps_crFFTinv_4_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTinv_4_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                  float scale);
void t7_vsps_crFFTfwd_8_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTfwd_8_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                  float scale);
void t7_vsps_crFFTinv_8_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTinv_8_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                  float scale);
void t7_vsps_crFFTfwd_16_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTfwd_16_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                   float scale);
void t7_vsps_crFFTinv_16_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTinv_16_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                   float scale);
void t7_vsps_crFFTfwd_32_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTfwd_32_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                   float scale);
void t7_vsps_crFFTinv_32_32f(const float* in_re, const float* in_im, float* out_re, float* out_im);
void t7_vsps_crFFTinv_32_scale_32f(const float* in_re, const float* in_im, float* out_re, float* out_im,
                                   float scale);
void t7_vsps_crFFT_1_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFT_1_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                               double scale);
void t7_vsps_crFFT_2_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFT_2_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                               double scale);
void t7_vsps_crFFTfwd_4_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTfwd_4_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                  double scale);
void t7_vsps_crFFTinv_4_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTinv_4_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                  double scale);
void t7_vsps_crFFTfwd_8_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTfwd_8_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                  double scale);
void t7_vsps_crFFTinv_8_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTinv_8_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                  double scale);
void t7_vsps_crFFTfwd_16_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTfwd_16_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                   double scale);
void t7_vsps_crFFTinv_16_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTinv_16_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                   double scale);
void t7_vsps_crFFTfwd_32_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTfwd_32_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                   double scale);
void t7_vsps_crFFTinv_32_64f(const double* in_re, const double* in_im, double* out_re, double* out_im);
void t7_vsps_crFFTinv_32_scale_64f(const double* in_re, const double* in_im, double* out_re, double* out_im,
                                   double scale);
/** @} */

/** @{ */
/** Real to Perm (`fwd`) and back (`inv`), powers of two. */
void t7_vsps_rFFT_1_32f(const float* in, float* out);
void t7_vsps_rFFT_1_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFT_2_32f(const float* in, float* out);
void t7_vsps_rFFT_2_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTfwd_4_32f(const float* in, float* out);
void t7_vsps_rFFTfwd_4_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTinv_4_32f(const float* in, float* out);
void t7_vsps_rFFTinv_4_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTfwd_8_32f(const float* in, float* out);
void t7_vsps_rFFTfwd_8_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTinv_8_32f(const float* in, float* out);
void t7_vsps_rFFTinv_8_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTfwd_16_32f(const float* in, float* out);
void t7_vsps_rFFTfwd_16_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTinv_16_32f(const float* in, float* out);
void t7_vsps_rFFTinv_16_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTfwd_32_32f(const float* in, float* out);
void t7_vsps_rFFTfwd_32_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFTinv_32_32f(const float* in, float* out);
void t7_vsps_rFFTinv_32_scale_32f(const float* in, float* out, float scale);
void t7_vsps_rFFT_1_64f(const double* in, double* out);
void t7_vsps_rFFT_1_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFT_2_64f(const double* in, double* out);
void t7_vsps_rFFT_2_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTfwd_4_64f(const double* in, double* out);
void t7_vsps_rFFTfwd_4_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTinv_4_64f(const double* in, double* out);
void t7_vsps_rFFTinv_4_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTfwd_8_64f(const double* in, double* out);
void t7_vsps_rFFTfwd_8_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTinv_8_64f(const double* in, double* out);
void t7_vsps_rFFTinv_8_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTfwd_16_64f(const double* in, double* out);
void t7_vsps_rFFTfwd_16_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTinv_16_64f(const double* in, double* out);
void t7_vsps_rFFTinv_16_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTfwd_32_64f(const double* in, double* out);
void t7_vsps_rFFTfwd_32_scale_64f(const double* in, double* out, double scale);
void t7_vsps_rFFTinv_32_64f(const double* in, double* out);
void t7_vsps_rFFTinv_32_scale_64f(const double* in, double* out, double scale);
/** @} */

ORB_END_DECLS

#endif
