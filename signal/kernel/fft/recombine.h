// A real transform of n = 2 h numbers from the complex one of h numbers, even samples real, odd samples
// imaginary, and back. Source: W. H. Press et al., Numerical Recipes, section on the FFT of real functions.
//
// With z[k] the complex transform, D = Re z[k] - Re z[h-k] and S = Im z[k] + Im z[h-k], a = cos(2 pi k/n)/2
// and b = 1/2 - sin(2 pi k/n)/2, the numbers k and h-k of the real transform are
//   (Re z[h-k] + p, q - Im z[h-k]) and (Re z[k] - p, q - Im z[k]),  p = b D + a S,  q = b S - a D.
// On the way back, with A = cos, B = -sin, E = z[k] + conj z[h-k]:
//   (Re E + p, q + Im E) and (Re E - p, q - Im E),  p = B D - A S,  q = A D + B S.
// Tables hold k = 1 to h/2: as far as fours of k go, in groups of two k, both first values and then both
// second ones; then the two values of each k. At k = h/2 both numbers are one, and both formulas give it.
#pragma once

#include "signal/kernel/fft/sines.h"

namespace orb::signal {

constexpr int recombined_in_groups(int half) { return half / 2 & ~3; }  // of the half/2 values of k

// value(k) is the pair for k.
template <class T, class Value>
constexpr T* write_recombination(T* table, int half, Value value) {
  for (int k = 1; k <= half / 2; ++k, table += 2) {
    const auto [first, second] = value(k);
    const bool grouped = k <= recombined_in_groups(half);
    T* const at = grouped && k % 2 == 0 ? table - 1 : table;
    at[0] = first;
    at[grouped ? 2 : 1] = second;
  }
  return table;
}
template <class T>
struct Pair {
  T first, second;
};
template <class T>
constexpr T* write_recombine_table(T* table, int order, Sines<T> sines) {
  return write_recombination(table, 1 << order >> 1, [=](int k) {
    return Pair<T>{sines.re(unsigned(k), order) / 2, T(0.5) + sines.im(unsigned(k), order) / 2};
  });
}
template <class T>
constexpr T* write_separate_table(T* table, int order, Sines<T> sines) {
  return write_recombination(table, 1 << order >> 1, [=](int k) {
    return Pair<T>{sines.re(unsigned(k), order), sines.im(unsigned(k), order)};
  });
}

template <class V>
struct Partners {
  Split<V> k, mirror;
};
template <class V>
ORB_INLINE Partners<V> recombined(Split<V> z, Split<V> y, V a, V b) {
  const V difference = z.re - y.re, sum = z.im + y.im;
  const V p = b * difference + a * sum, q = b * sum - a * difference;
  return {{y.re + p, q - y.im}, {z.re - p, q - z.im}};
}
template <class V>
ORB_INLINE Partners<V> separated(Split<V> x, Split<V> y, V cosine, V minus_sine) {
  const V difference = x.re - y.re, sum = x.im + y.im;
  const V even_re = x.re + y.re, even_im = x.im - y.im;
  const V p = minus_sine * difference - cosine * sum, q = cosine * difference + minus_sine * sum;
  return {{even_re + p, q + even_im}, {even_re - p, q - even_im}};
}

// The table's values for lanes from k = 1 + 2 * (table - start) / 2 on.
ORB_INLINE Split<f64x2> recombination_values(const double* table) {
  return {f64x2::load(table), f64x2::load(table + 2)};
}
ORB_INLINE Split<f32x4> recombination_values(const float* table) {
  const f32x4 low = f32x4::load(table), high = f32x4::load(table + 4);
  return {f32x4::low_pairs(low, high), f32x4::high_pairs(low, high)};
}

// Sets every pair of numbers k, h-k of `out` for k from 1 to h/2 to combine(number k, number h-k, values of
// k). `in` and `out` may be one array; number 0 is left alone.
template <class T, class Combine>
ORB_INLINE void combine_partners(const T* in, T* out, int half, const T* table, Combine combine) {
  using V = vector_of<T>;
  const Interleaved<const T> from{in};
  const Interleaved<T> to{out};
  const auto mirrored = [](Split<V> a) ORB_INLINE_BODY { return Split<V>{a.re.reversed(), a.im.reversed()}; };
  int k = 1;
  for (; k <= recombined_in_groups(half); k += V::lanes, table += 2 * V::lanes) {
    const int mirror = half - k - V::lanes + 1;
    const auto w = recombination_values(table);
    const Partners<V> r = combine(from.load(k), mirrored(from.load(mirror)), w.re, w.im);
    to.store(k, r.k);
    to.store(mirror, mirrored(r.mirror));
  }
  using One = Lane<T>;
  const auto one = [=](int x) { return Split<One>{{in[2 * x]}, {in[2 * x + 1]}}; };
  for (; k <= half / 2; ++k, table += 2) {
    const Partners<One> r = combine(one(k), one(half - k), One{table[0]}, One{table[1]});
    out[2 * k] = r.k.re.v, out[2 * k + 1] = r.k.im.v;
    out[2 * (half - k)] = r.mirror.re.v, out[2 * (half - k) + 1] = r.mirror.im.v;
  }
}

// After the forward transform, in place; number 0 is left alone.
template <class T>
ORB_INLINE void recombine(T* data, int half, const T* table) {
  combine_partners(data, data, half, table,
                   [](auto z, auto y, auto a, auto b) ORB_INLINE_BODY { return recombined(z, y, a, b); });
}
// Before the inverse transform, from Perm format.
template <class T>
ORB_INLINE void separate(const T* in, T* out, int half, const T* table) {
  const T first = in[0], middle = in[1];
  combine_partners(in, out, half, table,
                   [](auto z, auto y, auto a, auto b) ORB_INLINE_BODY { return separated(z, y, a, b); });
  out[0] = first + middle, out[1] = first - middle;
}
// Number 0 of the complex transform to the two real values at the ends of the spectrum.
template <class T>
ORB_INLINE void recombine_ends(T* data) {
  const T re = data[0], im = data[1];
  data[0] = re + im, data[1] = re - im;
}

}  // namespace orb::signal
