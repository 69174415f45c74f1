// Division of both kinds of numbers.
#pragma once

#include <cmath>

#include "serv/kernel/complex.h"

namespace orb::blas {

template <Real T>
ORB_INLINE T divide(T a, T b) {
  return a / b;
}

// Scaled by the larger part of the divisor, so that only quotients that are out of range themselves overflow.
// Source: R. L. Smith, Algorithm 116, CACM 5 (1962) 435.
template <Complex C>
C divide(C a, C b) {
  const bool by_re = std::abs(b.re) >= std::abs(b.im);
  const real_of<C> large = by_re ? b.re : b.im, small = by_re ? b.im : b.re;
  const real_of<C> ratio = small / large, by = large + small * ratio;
  if (by_re) return {(a.re + a.im * ratio) / by, (a.im - a.re * ratio) / by};
  return {(a.re * ratio + a.im) / by, (a.im * ratio - a.re) / by};
}

}  // namespace orb::blas
