// Triangles of any order without the matrix products. Beyond what a panel holds, blocks of unknowns reach the
// others one by one: slow, but no caller in this library sends that many.
#pragma once

#include <algorithm>

#include "blas/kernel/level3/triangular_panel.h"

namespace orb::blas::triangular {

// The `count` unknowns from s on take factor times their terms of the unknowns from r on.
template <class T, class F>
void add_one_by_one(const Triangle<T>& t, F factor, int r, int terms, int s, int count,
                    const Unknowns<T>& b) {
  for (int i = s; i < s + count; ++i)
    for (int k = r; k < r + terms; ++k) {
      const T c = factor * t.at(i, k);
      for (int l = 0; l < b.count; ++l) b.at(i, l) += c * b.at(k, l);
    }
}

template <class Pivot, class T, class MakePivot>
void solve_by(const Triangle<T>& t, const Unknowns<T>& b, MakePivot pivot) {
  constexpr real_of<T> minus = -1;
  for (int done = 0; done < t.order; done += most_unknowns) {
    const int count = std::min(most_unknowns, t.order - done), next = done + count;
    Panel<T, Pivot>(t.block(done, count), minus, pivot).solve(b.from(done));
    add_one_by_one(t, minus, done, count, next, t.order - next, b);
  }
}

// By divisions, or by one division for each reciprocal.
template <class T>
void solve_dividing(const Triangle<T>& t, const Unknowns<T>& b) {
  solve_by<Divisor<T>>(t, b, [](T d) { return Divisor<T>{d}; });
}
template <class T>
void solve_multiplying(const Triangle<T>& t, const Unknowns<T>& b) {
  solve_by<Multiplier<T>>(t, b, [](T d) { return Multiplier<T>{reciprocal(d)}; });
}

// The last unknowns first, since they need all the others as they were.
template <class T>
void multiply(const Triangle<T>& t, T alpha, const Unknowns<T>& b) {
  for (int left = t.order; left > 0;) {
    const int count = (left - 1) % most_unknowns + 1;
    left -= count;
    Panel<T, Multiplier<T>>(t.block(left, count), alpha, [=](T d) {
      return Multiplier<T>{alpha * d};
    }).multiply(b.from(left));
    add_one_by_one(t, alpha, 0, left, left, count, b);
  }
}

}  // namespace orb::blas::triangular
