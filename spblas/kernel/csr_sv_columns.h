// Triangular systems with one right-hand side, which the solution replaces. Elements of y stand `step` apart.
#pragma once

#include "spblas/kernel/csr_solve.h"

namespace orb::spblas {

template <class T>
ORB_INLINE one_of<T> quotient_one(one_of<T> numerator, T divisor) {
  return one(quotient(element<T>(numerator), divisor));
}

// Lower triangle, from the first row down: a running sum up to the diagonal. A row without entries divides by
// the entry at which the row before it stopped.
template <bool conjugated, bool unit, class T>
ORB_INLINE void solve_forward(const Csr<T>& a, Range rows, T* y, int step) {
  using One = one_of<T>;
  int stop = 0;
  for (int i = rows.first; i < rows.end; ++i) {
    One sum = One::zero();
    const Row<T> row = a.row(i);
    if (row.begin < row.end)
      for (stop = row.begin; stop < row.end && row.columns[stop] < i; ++stop)
        sum += product<conjugated>(row.values[stop], One::loadu(y + row.columns[stop] * step));
    T* yi = y + i * step;
    const One left = One::loadu(yi) - sum;
    (unit ? left : quotient_one(left, conjugate_if<conjugated>(row.values[stop]))).storeu(yi);
  }
}

// Upper triangle, from the last row up.
template <bool conjugated, bool unit, class T>
void sv_backward(const Csr<T>& a, Range rows, T* y) {
  for_rows<false>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = split<Side::upper, unit>(a.row(i), i);
    const auto left = one_of<T>::loadu(y + i) - row_dot<conjugated>(row.inner, y);
    (unit ? left : quotient_one(left, conjugate_if<conjugated>(*row.diagonal))).storeu(y + i);
  });
}

// The transposed triangle: each element that is found goes out to those still to be found. From the last row
// up, entries from the diagonal back, for the lower one; the other way for the upper one.
template <bool conjugated, bool unit, Side side, class T>
void sv_transposed(const Csr<T>& a, Range rows, T* y) {
  using One = one_of<T>;
  for_rows<side == Side::upper>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = split<side, unit>(a.row(i), i);
    One found = One::loadu(y + i);
    if constexpr (!unit) {
      found = quotient_one(found, conjugate_if<conjugated>(*row.diagonal));
      found.storeu(y + i);
    }
    const One t = One::zero() - found;
    for_entries_outwards<side>(row.inner, [&](int k) ORB_INLINE_BODY {
      add_to(y + row.inner.columns[k], product<conjugated>(row.inner.values[k], t));
    });
  });
}

}  // namespace orb::spblas
