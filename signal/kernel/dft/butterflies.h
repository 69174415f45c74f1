// Transforms of 2, 3, 4, 5, 7, 11 numbers and of any odd count, forward, in registers. A number is a Split of
// registers or a register of whole complex numbers; the code is the same for both.
//
// Odd counts p: with s_j = x_j + x_{p-j} and d_j = x_j - x_{p-j}, X_k and X_{p-k} are A_k -+ i B_k, where
// A_k = x_0 + sum_j cos(2 pi j k / p) s_j and B_k = sum_j sin(2 pi j k / p) d_j, j from 1 to (p-1)/2.
#pragma once

#include "signal/kernel/fft/passes.h"
#include "signal/kernel/fft/sines.h"

namespace orb::signal {

// The register type of a number and the number times a real one in every lane.
template <class V>
ORB_INLINE Split<V> by(V factor, Split<V> a) {
  return factor * a;
}
template <class C>
ORB_INLINE ComplexVector<C> by(typename ComplexVector<C>::Register factor, ComplexVector<C> a) {
  return {factor * a.v};
}
template <class C>
ORB_INLINE ComplexLane<C> by(typename ComplexLane<C>::Register factor, ComplexLane<C> a) {
  return {factor * a.v};
}
template <class Number>
struct RegisterOf {
  using type = typename Number::Register;
};
template <class V>
struct RegisterOf<Split<V>> {
  using type = V;
};
template <class Number>
using register_of = typename RegisterOf<Number>::type;

// a -+ i b
template <class V>
ORB_INLINE void turn_apart(Split<V> a, Split<V> b, Split<V>& minus, Split<V>& plus) {
  minus = rotate_add<forward>(a, b), plus = rotate_sub<forward>(a, b);
}
template <class Z>
ORB_INLINE void turn_apart(Z a, Z b, Z& minus, Z& plus) {
  const Z turned = rotated<forward>(b);
  minus = a + turned, plus = a - turned;
}

// cos and sin of 2 pi k / p in long double: the first eighth by series, the rest folded.
struct Root {
  long double re, im;
};
constexpr Root root_of_unity(int k, int p) {
  constexpr long double two_pi = 6.283185307179586476925286766559005768L;
  k %= p;
  if (2 * k > p) {
    const Root r = root_of_unity(p - k, p);
    return {r.re, -r.im};
  }
  if (4 * k > p) {  // reflected at the imaginary axis
    const long double x = two_pi * (p - 2 * k) / (2.0L * p);
    return {-series_cosine(x), series_sine(x)};
  }
  const long double x = two_pi * k / p;
  return {series_cosine(x), series_sine(x)};
}

// cos and sin of 2 pi k / p, k below p, as constants of the element type.
template <class T, int p>
struct Roots {
  T re[p], im[p];
};
template <class T, int p>
constexpr Roots<T, p> make_roots() {
  Roots<T, p> roots{};
  for (int k = 0; k < p; ++k) {
    const Root r = root_of_unity(k, p);
    roots.re[k] = T(r.re), roots.im[k] = T(r.im);
  }
  return roots;
}
template <class T, int p>
inline constexpr Roots<T, p> roots_of = make_roots<T, p>();

template <class Number>
ORB_INLINE void butterfly(Number (&x)[2]) {
  const Number a = x[0];
  x[0] = a + x[1], x[1] = a - x[1];
}
template <class Number>
ORB_INLINE void butterfly(Number (&x)[4]) {
  const Number sum02 = x[0] + x[2], difference02 = x[0] - x[2];
  const Number sum13 = x[1] + x[3], difference13 = x[1] - x[3];
  x[0] = sum02 + sum13, x[2] = sum02 - sum13;
  turn_apart(difference02, difference13, x[1], x[3]);
}
template <class Number, int p>
requires(p % 2 == 1) ORB_INLINE void odd_butterfly(Number (&x)[p]) {
  using V = register_of<Number>;
  constexpr int half = p / 2;
  const Number first = x[0];
  Number sum[half], difference[half];
  unroll<half>([&](auto j) ORB_INLINE_BODY {
    sum[j] = x[1 + j] + x[p - 1 - j], difference[j] = x[1 + j] - x[p - 1 - j];
    x[0] = x[0] + sum[j];
  });
  unroll<half>([&](auto k) ORB_INLINE_BODY {
    constexpr auto& roots = roots_of<typename V::scalar, p>;
    Number a = first + by(V::splat(roots.re[k + 1]), sum[0]);
    Number b = by(V::splat(roots.im[k + 1]), difference[0]);
    unroll<half - 1>([&](auto j) ORB_INLINE_BODY {
      constexpr int place = (j + 2) * (k + 1) % p;
      a = a + by(V::splat(roots.re[place]), sum[j + 1]);
      b = b + by(V::splat(roots.im[place]), difference[j + 1]);
    });
    turn_apart(a, b, x[k + 1], x[p - 1 - k]);
  });
}

// Up to five numbers are transformed where they are; more do not fit the registers anyway, so their code
// stands once for all passes.
template <class Number, int p>
requires(p % 2 == 1 && p <= 5) ORB_INLINE void butterfly(Number (&x)[p]) { odd_butterfly(x); }
template <class Number, int p>
requires(p % 2 == 1 && p > 5) __attribute__((noinline)) void butterfly(Number (&x)[p]) { odd_butterfly(x); }

constexpr int most_factor = 150;

// Any odd p up to most_factor. The table holds cos and sin of 2 pi k / p, a register each, for k below p.
template <class Number, class T>
__attribute__((noinline)) void any_butterfly(Number* x, int p, const T* table) {
  using V = register_of<Number>;
  const int half = p / 2;
  Number sum[most_factor / 2], difference[most_factor / 2];
  const Number first = x[0];
  for (int j = 0; j < half; ++j) {
    sum[j] = x[1 + j] + x[p - 1 - j], difference[j] = x[1 + j] - x[p - 1 - j];
    x[0] = x[0] + sum[j];
  }
  for (int k = 1; k <= half; ++k) {
    Number a = first, b = Number{};
    for (int j = 0, place = k; j < half; ++j) {
      a = a + by(V::load(table + 2 * V::lanes * place), sum[j]);
      b = b + by(V::load(table + 2 * V::lanes * place + V::lanes), difference[j]);
      place += k;
      if (place >= p) place -= p;
    }
    turn_apart(a, b, x[k], x[p - k]);
  }
}

}  // namespace orb::signal
