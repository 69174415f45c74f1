// Systems with many right-hand sides, one panel of columns after the other, and diagonal ones.
#pragma once

#include "spblas/kernel/csr_solve.h"
#include "spblas/kernel/panel_dot.h"

namespace orb::spblas {

template <bool conjugated, bool unit, class T, class C>
void sm_backward(const Csr<T>& a, Range rows, const C& c) {
  for_rows<false>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = split_upper<unit>(a.row(i), i);
    auto value = c.at(i) - panel_dot<conjugated>(row.inner, c);
    if constexpr (!unit) {
      const T diagonal = conjugate_if<conjugated>(*row.diagonal);
      value = C::Register::splat(reciprocal(diagonal)) * value;
    }
    c.put(i, value);
  });
}

template <bool conjugated, bool unit, Side side, class T, class C>
void sm_transposed(const Csr<T>& a, Range rows, const C& c) {
  constexpr bool lower = side == Side::lower;
  for_rows<!lower>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = lower ? split_lower<unit>(a.row(i), i) : split_upper<unit>(a.row(i), i);
    if constexpr (!unit) {
      const T diagonal = conjugate_if<conjugated>(*row.diagonal);
      for (int j = 0; j < C::columns; ++j) *c.place(i, j) = quotient(*c.place(i, j), diagonal);
    }
    const auto t = C::Value::zero() - c.at(i);
    for (int n = 0; n < row.inner.count; ++n) {
      const int k = lower ? row.inner.count - 1 - n : n, column = row.inner.column[k];
      c.put(column, c.at(column) + factor_for<C, conjugated>(row.inner.value[k]) * t);
    }
  });
}

// alpha / diagonal once for each row.
template <bool conjugated, class T, class Scale>
ORB_INLINE void sm_diagonal(const Csr<T>& a, Range rows, T alpha, Scale scale) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    scale(i, quotient(alpha, conjugate_if<conjugated>(row.value[count_below(row, i)])));
  }
}

}  // namespace orb::spblas
