// A complex transform by a record's tables, whatever the order.
#pragma once

#include "orb/signal_power_of_two.h"
#include "signal/kernel/arrays.h"
#include "signal/kernel/fft/small_tables.h"
#include "signal/kernel/fft/spec.h"
#include "signal/kernel/scale.h"

namespace orb::signal {

// The exported routines of one element type and direction under common names, on views.
template <Direction d, class T>
struct Engine;

#define ENGINE(way, direction, bits, letter, T)                                                            \
  template <>                                                                                              \
  struct Engine<direction, T> {                                                                            \
    using C = complex_of<T>;                                                                               \
    using In = Interleaved<const T>;                                                                       \
    using Out = Interleaved<T>;                                                                            \
    static const C* numbers(In v) { return reinterpret_cast<const C*>(v.p); }                              \
    static C* numbers(Out v) { return reinterpret_cast<C*>(v.p); }                                         \
    static void norm(In in, Out out, int n, const T* w, const int* reversed, T* buffer) {                  \
      t7_vsps_cRadix4##way##Norm_##bits##fc(numbers(in), numbers(out), n, w, reversed, buffer);            \
    }                                                                                                      \
    static void norm(Apart<const T> in, Apart<T> out, int n, const T* w, const int* reversed, T* buffer) { \
      t7_vsps_crRadix4##way##Norm_##bits##f(in.re, in.im, out.re, out.im, n, w, reversed, buffer);         \
    }                                                                                                      \
    static void loop(Out data, int n, const T* w, T* buffer) {                                             \
      t7_vsps_cRadix4##way##_##bits##fc(numbers(data), n, w, buffer, 0);                                   \
    }                                                                                                      \
    static void loop(Apart<T> data, int n, const T* w, T* buffer) {                                        \
      t7_vsps_crRadix4##way##_##bits##f(data.re, data.im, n, w, buffer, 0);                                \
    }                                                                                                      \
    static void large(const VspsFFTSpec* spec, In in, Out out, int order, T* buffer) {                     \
      t7_vsps_cFft##way##_Large_##bits##fc(spec, numbers(in), numbers(out), order, buffer);                \
    }                                                                                                      \
    static void large(const VspsFFTSpec* spec, Apart<const T> in, Apart<T> out, int order, T* buffer) {    \
      t7_vsps_crFft##way##_Large_##bits##f(spec, in.re, in.im, out.re, out.im, order, buffer);             \
    }                                                                                                      \
  };
ENGINE(Fwd, forward, 32, C, float)
ENGINE(Inv, inverse, 32, C, float)
ENGINE(Fwd, forward, 64, Z, double)
ENGINE(Inv, inverse, 64, Z, double)
#undef ENGINE

template <Direction d, class T>
void straight_fft(int order, Interleaved<const T> in, Interleaved<T> out, const T* scale) {
  using E = Engine<d, T>;
  const auto& routines = tbl_cFFT_small<d, T>;
  if (scale)
    routines.scaled[order](E::numbers(in), E::numbers(out), *scale);
  else
    routines.plain[order](E::numbers(in), E::numbers(out));
}
template <Direction d, class T>
void straight_fft(int order, Apart<const T> in, Apart<T> out, const T* scale) {
  const auto& routines = tbl_crFFT_small<d, T>;
  if (scale)
    routines.scaled[order](in.re, in.im, out.re, out.im, *scale);
  else
    routines.plain[order](in.re, in.im, out.re, out.im);
}

inline void reverse_into(Interleaved<const float> in, Interleaved<float> out, int n, const int* table) {
  const auto* const from = reinterpret_cast<const c32*>(in.p);
  auto* const to = reinterpret_cast<c32*>(out.p);
  in.p == out.p ? t7_vsps_BitRev1_C(to, n, table) : t7_vsps_BitRev2_C(from, to, n, table);
}
inline void reverse_into(Apart<const float> in, Apart<float> out, int n, const int* table) {
  in.re == out.re ? t7_vsps_BitRev1_S(out.re, n, table) : t7_vsps_BitRev2_S(in.re, out.re, n, table);
  in.im == out.im ? t7_vsps_BitRev1_S(out.im, n, table) : t7_vsps_BitRev2_S(in.im, out.im, n, table);
}

// 2^order numbers from `in` to `out`, scaled as the record says; `buffer` has the record's work bytes.
template <Direction d, class T, class In, class Out>
void transform(const FftSpec<T>& spec, int order, In in, Out out, T* buffer) {
  using E = Engine<d, T>;
  using Limits = FftLimits<T>;
  const T* const scale = (d == forward ? spec.do_fwd_scale : spec.do_inv_scale) ? &spec.scale : nullptr;
  const int n = 1 << order;
  if (order <= straight_order) return straight_fft<d>(order, in, out, scale);
  if (order > Limits::loop_order)
    return E::large(reinterpret_cast<const VspsFFTSpec*>(&spec), in, out, order, buffer);
  if constexpr (Limits::norm_order < Limits::loop_order) {
    if (order > Limits::norm_order) {
      reverse_into(in, out, n, spec.bit_rev);
      E::loop(out, n, spec.twiddles, buffer);
    } else {
      E::norm(in, out, n, spec.twiddles, spec.bit_rev, buffer);
    }
  } else {
    E::norm(in, out, n, spec.twiddles, spec.bit_rev, buffer);
  }
  if (scale) multiply(out, n, *scale);
}

}  // namespace orb::signal
