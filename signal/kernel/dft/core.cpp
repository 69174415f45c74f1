// The complex transform behind any record.
#include "signal/kernel/dft/core.h"

#include "orb/signal_straight.h"
#include "signal/kernel/arrays.h"
#include "signal/kernel/dft/chirp.h"
#include "signal/kernel/dft/direct.h"
#include "signal/kernel/dft/straight.h"
#include "signal/kernel/fft/transform.h"

namespace orb::signal {
namespace {

// The exported straight routines of the lengths that are no powers of two, by length.
template <Direction d, class T>
using StraightTable = void (*const[16])(const complex_of<T>*, complex_of<T>*);
template <Direction d, class T>
constexpr StraightTable<d, T> tbl_cDFT_small = {};

#define STRAIGHT_TABLE(way, type)                                                                          \
  {                                                                                                        \
    nullptr, nullptr, nullptr, t7_vsps_cDFT##way##_3_##type, nullptr, t7_vsps_cDFT##way##_5_##type,        \
        t7_vsps_cDFT##way##_6_##type, t7_vsps_cDFT##way##_7_##type, nullptr, t7_vsps_cDFT##way##_9_##type, \
        t7_vsps_cDFT##way##_10_##type, t7_vsps_cDFT##way##_11_##type, t7_vsps_cDFT##way##_12_##type,       \
        t7_vsps_cDFT##way##_13_##type, t7_vsps_cDFT##way##_14_##type, t7_vsps_cDFT##way##_15_##type        \
  }
template <>
constexpr StraightTable<forward, float> tbl_cDFT_small<forward, float> = STRAIGHT_TABLE(fwd, 32fc);
template <>
constexpr StraightTable<inverse, float> tbl_cDFT_small<inverse, float> = STRAIGHT_TABLE(inv, 32fc);
template <>
constexpr StraightTable<forward, double> tbl_cDFT_small<forward, double> = STRAIGHT_TABLE(fwd, 64fc);
template <>
constexpr StraightTable<inverse, double> tbl_cDFT_small<inverse, double> = STRAIGHT_TABLE(inv, 64fc);

template <Direction d, class T>
void straight_any(int n, Interleaved<const T> in, Interleaved<T> out) {
  using E = Engine<d, T>;
  tbl_cDFT_small<d, T>[n](E::numbers(in), E::numbers(out));
}
// Two arrays go through one of pairs.
template <Direction d, class T>
void straight_any(int n, Apart<const T> in, Apart<T> out) {
  T pairs[2 * straight_length] = {};
  for (int i = 0; i < n; ++i) pairs[2 * i] = in.re[i], pairs[2 * i + 1] = in.im[i];
  straight_any<d>(n, Interleaved<const T>{pairs}, Interleaved<T>{pairs});
  for (int i = 0; i < n; ++i) out.re[i] = pairs[2 * i], out.im[i] = pairs[2 * i + 1];
}

template <Direction d, class T, class In, class Out>
VspStatus transform_core(const DftSpec<T>& spec, In in, Out out, T* buffer) {
  using C = complex_of<T>;
  const int n = spec.inner;
  if (n <= straight_length) {
    if ((n & (n - 1)) == 0)
      straight_fft<d, T>(__builtin_ctz(unsigned(n)), in, out, nullptr);
    else
      straight_any<d>(n, in, out);
    return VSP_OK;
  }
  if (spec.has_factors) {
    run_plan<d>(spec, n, in, out, buffer);
    return VSP_OK;
  }
  if (spec.direct) {
    direct_sum<d, T>(in, out, n, reinterpret_cast<const C*>(spec.direct), reinterpret_cast<C*>(buffer));
    return VSP_OK;
  }
  return convolve<d>(spec, in, out, n, buffer);
}

}  // namespace

template <class T>
int core_bytes(const DftSpec<T>& spec) {
  if (spec.inner <= straight_length) return 0;
  if (spec.has_factors) return plan_bytes<T>(spec.inner) + 32;
  if (spec.direct) return int(2 * sizeof(T)) * spec.inner + 32;
  return spec.buf_size;  // make_convolution has set it
}
template int core_bytes(const DftSpec<float>&);
template int core_bytes(const DftSpec<double>&);

template <Direction d, class T>
VspStatus core_transform(const DftSpec<T>& spec, Interleaved<const T> in, Interleaved<T> out, T* buffer) {
  return transform_core<d>(spec, in, out, buffer);
}
template <Direction d, class T>
VspStatus core_transform(const DftSpec<T>& spec, Apart<const T> in, Apart<T> out, T* buffer) {
  return transform_core<d>(spec, in, out, buffer);
}
#define CORES(direction, T)                                                                                  \
  template VspStatus core_transform<direction>(const DftSpec<T>&, Interleaved<const T>, Interleaved<T>, T*); \
  template VspStatus core_transform<direction>(const DftSpec<T>&, Apart<const T>, Apart<T>, T*);
CORES(forward, float)
CORES(inverse, float)
CORES(forward, double)
CORES(inverse, double)

}  // namespace orb::signal
