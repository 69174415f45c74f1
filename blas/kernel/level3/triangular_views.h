// How a triangle and its right-hand sides lie in the arrays of the caller. Steps may be negative: unknowns
// count in the order in which a system finds them.
#pragma once

#include "serv/kernel/complex.h"

namespace orb::blas::triangular {

// The largest triangle that goes unblocked: its panel fits the first-level cache.
inline constexpr int most_unknowns = 64;

// Coefficient (s, r) of the unknowns s and r, r <= s, somewhere in an op(A).
template <class T>
struct Triangle {
  const T* p;
  int s_step, r_step, order;
  bool unit, conjugated;

  T at(int s, int r) const {
    const T value = p[s * s_step + r * r_step];
    return conjugated ? conj(value) : value;
  }
  Triangle block(int s, int count) const {
    return {p + s * (s_step + r_step), s_step, r_step, count, unit, conjugated};
  }
};

// Unknown s of right-hand side l, somewhere in a B.
template <class T>
struct Unknowns {
  T* p;
  int s_step, l_step, count;  // of right-hand sides

  T& at(int s, int l) const { return p[s * s_step + l * l_step]; }
  Unknowns from(int s) const { return {p + s * s_step, s_step, l_step, count}; }
};

}  // namespace orb::blas::triangular
