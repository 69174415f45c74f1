// The four element types under the same plain words, for models of kernels: each operation as the interface
// writes it, rounded by itself.
#pragma once

#include "orb/types.h"

namespace orb::test {

using c32 = orb_complex_float;
using c64 = orb_complex_double;

template <class T>
struct PartOf {
  using type = T;
};
template <>
struct PartOf<c32> {
  using type = float;
};
template <>
struct PartOf<c64> {
  using type = double;
};
template <class T>
using part_of = typename PartOf<T>::type;
template <class T>
constexpr bool is_complex = sizeof(T) == 2 * sizeof(part_of<T>);

template <class T>
T add(T a, T b) {
  if constexpr (is_complex<T>)
    return {a.re + b.re, a.im + b.im};
  else
    return a + b;
}
template <class T>
T subtract(T a, T b) {
  if constexpr (is_complex<T>)
    return {a.re - b.re, a.im - b.im};
  else
    return a - b;
}
template <class A, class T>
T multiply(A a, T b) {
  if constexpr (is_complex<A>)
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  else if constexpr (is_complex<T>)
    return {a * b.re, a * b.im};
  else
    return a * b;
}
template <class T>
T conjugate(T a) {
  if constexpr (is_complex<T>) a.im = -a.im;
  return a;
}

// The i-th of a row of values of both signs whose products and sums round.
template <class T>
T value(int i) {
  const auto part = [](int k) { return part_of<T>(k * 37 % 101 - 50) / 7; };
  if constexpr (is_complex<T>)
    return {part(i), part(i + 13)};
  else
    return part(i);
}

}  // namespace orb::test
