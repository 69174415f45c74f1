// The straight-line routines by order, plain and with a scale, forward and inverse.
#pragma once

#include "orb/signal_straight.h"
#include "signal/kernel/split.h"

namespace orb::signal {

template <class C, class T>
struct SmallRoutines {
  void (*plain[6])(const C*, C*);
  void (*scaled[6])(const C*, C*, T);
};
template <class T>
struct SmallApartRoutines {
  void (*plain[6])(const T*, const T*, T*, T*);
  void (*scaled[6])(const T*, const T*, T*, T*, T);
};

template <Direction d, class T>
extern const SmallRoutines<complex_of<T>, T> tbl_cFFT_small;
template <Direction d, class T>
extern const SmallApartRoutines<T> tbl_crFFT_small;
template <Direction d, class T>
extern const SmallRoutines<T, T> tbl_rFFT_small;

#define SMALL_ROUTINES(stem, way, type)                                                                 \
  {                                                                                                     \
    {t7_vsps_##stem##_1_##type,      t7_vsps_##stem##_2_##type,       t7_vsps_##stem##way##_4_##type,   \
     t7_vsps_##stem##way##_8_##type, t7_vsps_##stem##way##_16_##type, t7_vsps_##stem##way##_32_##type}, \
    {                                                                                                   \
      t7_vsps_##stem##_1_scale_##type, t7_vsps_##stem##_2_scale_##type,                                 \
          t7_vsps_##stem##way##_4_scale_##type, t7_vsps_##stem##way##_8_scale_##type,                   \
          t7_vsps_##stem##way##_16_scale_##type, t7_vsps_##stem##way##_32_scale_##type                  \
    }                                                                                                   \
  }
template <>
inline constexpr SmallRoutines<c32, float> tbl_cFFT_small<forward, float> = SMALL_ROUTINES(cFFT, fwd, 32fc);
template <>
inline constexpr SmallRoutines<c32, float> tbl_cFFT_small<inverse, float> = SMALL_ROUTINES(cFFT, inv, 32fc);
template <>
inline constexpr SmallRoutines<c64, double> tbl_cFFT_small<forward, double> = SMALL_ROUTINES(cFFT, fwd, 64fc);
template <>
inline constexpr SmallRoutines<c64, double> tbl_cFFT_small<inverse, double> = SMALL_ROUTINES(cFFT, inv, 64fc);
template <>
inline constexpr SmallApartRoutines<float> tbl_crFFT_small<forward, float> = SMALL_ROUTINES(crFFT, fwd, 32f);
template <>
inline constexpr SmallApartRoutines<float> tbl_crFFT_small<inverse, float> = SMALL_ROUTINES(crFFT, inv, 32f);
template <>
inline constexpr SmallApartRoutines<double> tbl_crFFT_small<forward, double> = SMALL_ROUTINES(crFFT, fwd,
                                                                                              64f);
template <>
inline constexpr SmallApartRoutines<double> tbl_crFFT_small<inverse, double> = SMALL_ROUTINES(crFFT, inv,
                                                                                              64f);
template <>
inline constexpr SmallRoutines<float, float> tbl_rFFT_small<forward, float> = SMALL_ROUTINES(rFFT, fwd, 32f);
template <>
inline constexpr SmallRoutines<float, float> tbl_rFFT_small<inverse, float> = SMALL_ROUTINES(rFFT, inv, 32f);
template <>
inline constexpr SmallRoutines<double, double> tbl_rFFT_small<forward, double> = SMALL_ROUTINES(rFFT, fwd,
                                                                                                64f);
template <>
inline constexpr SmallRoutines<double, double> tbl_rFFT_small<inverse, double> = SMALL_ROUTINES(rFFT, inv,
                                                                                                64f);
#undef SMALL_ROUTINES

}  // namespace orb::signal
