// Triangular systems with one right-hand side, which the solution replaces. Elements of y stand `step` apart.
#pragma once

#include "spblas/kernel/csr_solve.h"

namespace orb::spblas {

// Lower triangle, from the first row down: a running sum up to the diagonal. A row without entries divides by
// the entry at which the row before it stopped.
template <bool conjugated, bool unit, class T>
ORB_INLINE void solve_forward(const Csr<T>& a, Range rows, T* y, int step) {
  using One = one_of<T>;
  int stop = 0;
  for (int i = rows.first; i < rows.end; ++i) {
    One sum = One::zero();
    const int end = a.end(i);
    if (a.begin(i) < end)
      for (stop = a.begin(i); stop < end && a.columns[stop] < i; ++stop)
        sum += factor<One, conjugated>(a.values[stop]) * One::loadu(y + a.columns[stop] * step);
    T* yi = y + i * step;
    (One::loadu(yi) - sum).storeu(yi);
    if (!unit) *yi = quotient(*yi, conjugate_if<conjugated>(a.values[stop]));
  }
}

// Upper triangle, from the last row up.
template <bool conjugated, bool unit, class T>
void sv_backward(const Csr<T>& a, Range rows, T* y) {
  for_rows<false>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = split_upper<unit>(a.row(i), i);
    y[i] -= row_dot<conjugated>(row.inner, y);
    if (!unit) y[i] = quotient(y[i], conjugate_if<conjugated>(*row.diagonal));
  });
}

// The transposed triangle: each element that is found goes out to those still to be found. From the last row
// up, entries from the diagonal back, for the lower one; the other way for the upper one.
template <bool conjugated, bool unit, Side side, class T>
void sv_transposed(const Csr<T>& a, Range rows, T* y) {
  constexpr bool lower = side == Side::lower;
  for_rows<!lower>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = lower ? split_lower<unit>(a.row(i), i) : split_upper<unit>(a.row(i), i);
    if (!unit) y[i] = quotient(y[i], conjugate_if<conjugated>(*row.diagonal));
    const T t = T{} - y[i];
    for (int n = 0; n < row.inner.count; ++n) {
      const int k = lower ? row.inner.count - 1 - n : n;
      add_product<conjugated>(y + row.inner.column[k], row.inner.value[k], &t);
    }
  });
}

}  // namespace orb::spblas
