// Quotients of the triangular solutions.
#pragma once

#include "serv/kernel/complex.h"

namespace orb::spblas {

template <Real T>
ORB_INLINE T quotient(T a, T d) {
  return a / d;
}
// (a conj(d)) * (1 / |d|^2), each part in 80 bits until it is stored. Unscaled: |d|^2 in 80 bits has the
// range for singles and doubles of ordinary size.
template <Complex C>
ORB_INLINE C quotient(C a, C d) {
  const long double re = d.re, im = d.im, reciprocal = 1.0L / (re * re + im * im);
  return {real_of<C>((a.re * re + a.im * im) * reciprocal), real_of<C>((a.im * re - a.re * im) * reciprocal)};
}

template <Real T>
ORB_INLINE T reciprocal(T d) {
  return quotient(T(1), d);
}
template <Complex C>
ORB_INLINE C reciprocal(C d) {
  return quotient(C{1, 0}, d);
}

}  // namespace orb::spblas
