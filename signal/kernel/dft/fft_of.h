// The power-of-two entries behind each kind of any-length record.
#pragma once

#include "signal/kernel/dft/spec.h"

namespace orb::signal {

template <class T, DftKind kind>
struct FftOf;

#define FFT_OF(T, kind, suffix)                                     \
  template <>                                                       \
  struct FftOf<T, DftKind::kind> {                                  \
    static constexpr auto make = t7_vspsFFTInitAlloc_##suffix;      \
    static constexpr auto release = t7_vspsFFTFree_##suffix;        \
    static constexpr auto buf_size = t7_vspsFFTGetBufSize_##suffix; \
  };
FFT_OF(float, interleaved, C_32fc)
FFT_OF(float, out_of_order, C_32fc)
FFT_OF(float, apart, C_32f)
FFT_OF(float, real, R_32f)
FFT_OF(double, interleaved, C_64fc)
FFT_OF(double, out_of_order, C_64fc)
FFT_OF(double, apart, C_64f)
FFT_OF(double, real, R_64f)
#undef FFT_OF

}  // namespace orb::signal
