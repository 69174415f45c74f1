// Sines of the first quarter of the circle, and every other angle folded into it.
#pragma once

#include <array>

#include "signal/kernel/split.h"

namespace orb::signal {

// sin(x) for x from 0 to pi/4 by its series, in the widest format: correct in every bit of a double but for
// the rarest ties.
constexpr long double series_sine(long double x) {
  long double sum = 0, term = x;
  for (int k = 1; k < 30; k += 2, term *= -x * x / (k * (k - 1.0L))) sum += term;
  return sum;
}
constexpr long double series_cosine(long double x) {
  long double sum = 0, term = 1;
  for (int k = 0; k < 30; k += 2, term *= -x * x / (k * (k - 1.0L))) sum += term;
  return sum;
}

// sin(2 pi k / n), k from 0 to n/4, n a multiple of 8.
template <class T, int n>
constexpr std::array<T, n / 4 + 1> quarter_wave() {
  constexpr long double two_pi = 6.283185307179586476925286766559005768L;
  std::array<T, n / 4 + 1> sines{};
  for (int k = 0; k <= n / 8; ++k) {
    sines[k] = T(series_sine(two_pi * k / n));
    sines[n / 4 - k] = T(series_cosine(two_pi * k / n));
  }
  return sines;
}

// A quarter wave of n = 2^order as an angle's cosine and sine; angles count in 2 pi / n.
template <class T>
struct Sines {
  const T* quarter;
  int order;

  constexpr T sine(unsigned angle) const {
    const unsigned q = 1u << order >> 2;
    const unsigned place = angle & (q - 1);
    switch (angle / q & 3) {
      case 0:
        return quarter[place];
      case 1:
        return quarter[q - place];
      case 2:
        return -quarter[place];
      default:
        return -quarter[q - place];
    }
  }
  constexpr T cosine(unsigned angle) const { return sine(angle + (1u << order >> 2)); }
  // exp(-2 pi i angle / 2^of)
  constexpr T re(unsigned angle, int of) const { return cosine(angle << (order - of)); }
  constexpr T im(unsigned angle, int of) const { return -sine(angle << (order - of)); }
};

// Writes the twiddles of a pass as passes.h has them: those of the numbers from x to x + count - 1 of groups
// of 2^group, count a multiple of 4 (1 or 2 for the shortest groups). Returns what follows.
template <class T>
constexpr T* write_twiddles(T* to, Sines<T> sines, int radix, int group, unsigned x, unsigned count) {
  for (unsigned j = x; j < x + count; j += 4)
    for (int multiple = 1; multiple < radix; ++multiple, to += 8)
      for (unsigned lane = 0; lane < 4; ++lane) {
        to[lane] = sines.re((j + lane) * unsigned(multiple), group);
        to[lane + 4] = sines.im((j + lane) * unsigned(multiple), group);
      }
  return to;
}

// Those of all levels behind the first of a transform of 2^order: radix 4, and radix 2 last for odd orders.
template <class T>
constexpr T* write_level_twiddles(T* to, Sines<T> sines, int order) {
  int s = 4;
  for (; s <= order; s += 2) to = write_twiddles(to, sines, 4, s, 0, 1u << s >> 2);
  return s == order + 1 && order > 3 ? write_twiddles(to, sines, 2, order, 0, 1u << order >> 1) : to;
}

}  // namespace orb::signal
