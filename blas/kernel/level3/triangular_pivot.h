// What becomes of a triangle's diagonal: a divisor or a factor of whole registers of right-hand sides.
#pragma once

#include <cmath>

#include "blas/kernel/level2/divide.h"
#include "blas/kernel/level3/scalars.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas::triangular {

template <class T>
struct Divisor;

template <Real T>
struct Divisor<T> {
  T value;
  template <class V>
  ORB_INLINE V apply(V x) const {
    return x / V::splat(value);
  }
};

// x / d as (x f) / denominator, with the larger part of d divided out of f: neither overflows where |d|^2
// would. Source: R. L. Smith, Algorithm 116: Complex division, Comm. ACM 5 (1962) 435.
template <Complex T>
struct Divisor<T> {
  T factor;
  real_of<T> denominator;

  Divisor() = default;
  explicit Divisor(T d) {
    if (std::abs(d.re) >= std::abs(d.im)) {
      const auto ratio = d.im / d.re;
      factor = {1, -ratio}, denominator = d.re + d.im * ratio;
    } else {
      const auto ratio = d.re / d.im;
      factor = {ratio, -1}, denominator = d.im + d.re * ratio;
    }
  }
  template <class V>
  ORB_INLINE V apply(V x) const {
    return {(V::splat(factor) * x).v / V::Register::splat(denominator)};
  }
};

template <class T>
struct Multiplier {
  T value;
  template <class V>
  ORB_INLINE V apply(V x) const {
    return V::splat(value) * x;
  }
};

template <class T>
T reciprocal(T d) {
  return divide(number<T>(1), d);
}

}  // namespace orb::blas::triangular
