// Complex arithmetic on plain pairs, each formula written out: no library type, whose rules for NaN and
// infinity would change results.
#pragma once

#include "orb/types.h"
#include "serv/kernel/boundary.h"

namespace orb {

using c32 = orb_complex_float;
using c64 = orb_complex_double;

template <class T>
struct RealOf {
  using type = T;
};
template <>
struct RealOf<c32> {
  using type = float;
};
template <>
struct RealOf<c64> {
  using type = double;
};
template <class T>
using real_of = typename RealOf<T>::type;

template <class T>
concept Complex = !__is_same(real_of<T>, T);
template <class T>
concept Real = __is_same(T, float) || __is_same(T, double);

template <Complex C>
ORB_INLINE C operator+(C a, C b) {
  return {a.re + b.re, a.im + b.im};
}
template <Complex C>
ORB_INLINE C operator-(C a, C b) {
  return {a.re - b.re, a.im - b.im};
}
template <Complex C>
ORB_INLINE C operator-(C a) {
  return {-a.re, -a.im};
}
template <Complex C>
ORB_INLINE C operator*(C a, C b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
ORB_INLINE c32 operator*(float a, c32 b) { return {a * b.re, a * b.im}; }
ORB_INLINE c64 operator*(double a, c64 b) { return {a * b.re, a * b.im}; }
template <Complex C>
ORB_INLINE C& operator+=(C& a, C b) {
  return a = a + b;
}
template <Complex C>
ORB_INLINE C& operator-=(C& a, C b) {
  return a = a - b;
}
template <Complex C>
ORB_INLINE C conj(C a) {
  return {a.re, -a.im};
}
template <Real T>
ORB_INLINE T conj(T a) {
  return a;
}

}  // namespace orb
