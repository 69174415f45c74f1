// Straight code for real lines of 2 to 64 elements: a complex transform of half the length over the even and
// odd elements, and a recombination. Reads all before it writes.
#pragma once

#include "dft/kernel/codelet.h"

namespace orb::dft {

// exp(-2 pi i k / n) for k below n / 2.
template <class C, int n>
struct HalfRoots {
  C at[n / 2];
  constexpr HalfRoots() : at{} {
    for (int k = 0; k < n / 2; ++k) {
      const long double angle = 6.283185307179586476925286766559L * k / n;
      at[k] = {real_of<C>(series(angle, 0)), real_of<C>(-series(angle, 1))};
    }
  }
};

// Place of Re X[k], 0 < k < n / 2, among the reals of a packed format; the imaginary part follows it.
constexpr int packed_place(int format, int k) { return format == VAL_PACK_FORMAT ? 2 * k - 1 : 2 * k; }
constexpr int packed_last(int format, int n) {
  return format == VAL_PACK_FORMAT ? n - 1 : format == VAL_PERM_FORMAT ? 1 : n;
}
constexpr bool has_zeros(int format) { return format != VAL_PACK_FORMAT && format != VAL_PERM_FORMAT; }

template <int n, bool forward, class C>
void half_transform(C (&z)[n / 2]) {
  if constexpr (n > 2) straight<n / 2, forward>(z, z);
}

template <int n, class T>
void real_forward(const T* x, T* packed, int format, T factor) {
  using C = complex_of<T>;
  static constexpr HalfRoots<C, n> roots;
  constexpr int m = n / 2;
  alignas(16) C z[m];
  for (int j = 0; j < m; ++j) z[j] = {x[2 * j], x[2 * j + 1]};
  half_transform<n, true>(z);
  if (has_zeros(format)) packed[1] = packed[n + 1] = 0;
  packed[0] = factor * (z[0].re + z[0].im);
  packed[packed_last(format, n)] = factor * (z[0].re - z[0].im);
  for (int k = 1; k < m; ++k) {
    const C a = z[k], b = conj(z[m - k]), odd = roots.at[k] * (a - b);
    const C value = (factor * T(0.5)) * (a + b + C{odd.im, -odd.re});
    packed[packed_place(format, k)] = value.re;
    packed[packed_place(format, k) + 1] = value.im;
  }
}

template <int n, class T>
void real_backward(const T* packed, T* x, int format, T factor) {
  using C = complex_of<T>;
  static constexpr HalfRoots<C, n> roots;
  constexpr int m = n / 2;
  alignas(16) C z[m];
  const auto at = [&](int k) {
    return C{packed[packed_place(format, k)], packed[packed_place(format, k) + 1]};
  };
  const T first = packed[0], last = packed[packed_last(format, n)];
  z[0] = {first + last, first - last};
  for (int k = 1; k < m; ++k) {
    const C a = at(k), b = conj(at(m - k)), odd = conj(roots.at[k]) * (a - b);
    z[k] = a + b + C{-odd.im, odd.re};
  }
  half_transform<n, false>(z);
  for (int j = 0; j < m; ++j) {
    x[2 * j] = factor * z[j].re;
    x[2 * j + 1] = factor * z[j].im;
  }
}

}  // namespace orb::dft
