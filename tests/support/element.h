// The four element types under the same plain words, for models of kernels: each operation as the interface
// writes it, rounded by itself.
#pragma once

#include <type_traits>

#include "orb/types.h"

namespace orb::test {

template <class T>
concept ComplexElement = requires(T t) {
  t.re;
};

template <class T>
struct RealOf {
  using type = T;
};
template <ComplexElement T>
struct RealOf<T> {
  using type = decltype(T::re);
};
template <class T>
using real_of = typename RealOf<T>::type;

inline float mul(float a, float b) { return a * b; }
inline double mul(double a, double b) { return a * b; }
template <ComplexElement C>
C mul(C a, C b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
template <ComplexElement C>
C mul(real_of<C> a, C b) {
  return {a * b.re, a * b.im};
}

template <class T>
T add(T a, T b) {
  if constexpr (ComplexElement<T>)
    return {a.re + b.re, a.im + b.im};
  else
    return a + b;
}
template <class T>
T sub(T a, T b) {
  if constexpr (ComplexElement<T>)
    return {a.re - b.re, a.im - b.im};
  else
    return a - b;
}
template <class T>
T conj(T a) {
  if constexpr (ComplexElement<T>) a.im = -a.im;
  return a;
}

// The i-th of a row of values of both signs whose products and sums round.
template <class T>
T value(int i) {
  const auto part = [](int k) { return real_of<T>((k * 37 % 101 + 101) % 101 - 50) / 7; };
  if constexpr (ComplexElement<T>)
    return {part(i), part(i + 13)};
  else
    return part(i);
}

}  // namespace orb::test
