// Systems with many right-hand sides: upper triangles, transposed ones and diagonals. A row of the matrix
// meets all columns before the next row does; in a panel the columns keep apart.
#pragma once

#include "spblas/kernel/csr_solve.h"
#include "spblas/kernel/panel_dot.h"

namespace orb::spblas {

// The columns `first` to `last` of C, from 1.
template <class T>
struct Columns {
  T* p;
  int ld, first, last;
};

template <bool conjugated, bool unit, bool by_rows, class T>
void sm_backward(const Csr<T>& a, Range rows, const Columns<T>& c) {
  for_rows<false>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = split<Side::upper, unit>(a.row(i), i);
    const T factor = unit ? T{} : reciprocal(conjugate_if<conjugated>(*row.diagonal));
    const auto put_rest = [&]<class P>(const P& x, const auto& sum) ORB_INLINE_BODY {
      const auto left = x.at(i) - sum;
      if constexpr (unit)
        x.put(i, left);
      else
        x.put(i, P::Register::splat(factor) * left);
    };
    if (by_rows && is_short(row.inner))
      for_panels<T, by_rows, 4>(c.first, c.last, [&](auto panel, int j) ORB_INLINE_BODY {
        const auto x = panel(c.p, c.ld, j);
        put_rest(x, short_panel_dot<conjugated>(row.inner, x));
      });
    else
      for_panels<T, by_rows, dot_registers<T, by_rows>>(c.first, c.last,
                                                        [&](auto panel, int j) ORB_INLINE_BODY {
                                                          const auto x = panel(c.p, c.ld, j);
                                                          put_rest(x, panel_dot<conjugated>(row.inner, x));
                                                        });
  });
}

template <bool conjugated, bool unit, Side side, bool by_rows, class T>
void sm_transposed(const Csr<T>& a, Range rows, const Columns<T>& c) {
  for_rows<side == Side::upper>(rows, [&](int i) ORB_INLINE_BODY {
    const Split<T> row = split<side, unit>(a.row(i), i);
    for_panels<T, by_rows, 4>(c.first, c.last, [&](auto panel, int j) ORB_INLINE_BODY {
      const auto x = panel(c.p, c.ld, j);
      if constexpr (!unit) {
        const T diagonal = conjugate_if<conjugated>(*row.diagonal);
        for (int n = 0; n < decltype(x)::columns; ++n) *x.place(i, n) = quotient(*x.place(i, n), diagonal);
      }
      const auto t = decltype(x)::Value::zero() - x.at(i);
      for_entries_outwards<side>(row.inner, [&](int k) ORB_INLINE_BODY {
        const int column = row.inner.columns[k];
        x.put(column, x.at(column) + factor_for<decltype(x), conjugated>(row.inner.values[k]) * t);
      });
    });
  });
}

// alpha / diagonal once for each row.
template <bool conjugated, bool by_rows, class T>
void sm_diagonal(const Csr<T>& a, Range rows, T alpha, const Columns<T>& c) {
  for (int i = rows.first; i < rows.end; ++i) {
    const T factor = quotient(alpha, conjugate_if<conjugated>(a.values[end_below(a.row(i), i)]));
    for_panels<T, by_rows, 4>(c.first, c.last, [&](auto panel, int j) ORB_INLINE_BODY {
      const auto x = panel(c.p, c.ld, j);
      x.put(i, decltype(x)::Register::splat(factor) * x.at(i));
    });
  }
}

}  // namespace orb::spblas
