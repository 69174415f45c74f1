// Solves op(A) x = b for a triangle in any layout.
#pragma once

#include "blas/kernel/level2/divide.h"
#include "blas/kernel/level2/triangular.h"

namespace orb::blas {

// Plain: every solved element takes its column off the others. Otherwise the dot product of the column with
// the elements solved is taken off. x is the first element.
template <bool upper, Op op, class Layout, class T>
void solve_triangle(const Layout& s, bool unit, T* x, int incx) {
  constexpr bool plain = op == Op::plain, from_front = upper != plain;
  const auto at = [=](int i) -> T& { return x[i * incx]; };
  for_groups<upper, columns_a_pass<T>, from_front>(s, [&]<int width>(const Group<upper, width, Layout>& g) {
    const Rows rows = g.common();
    T t[width];  // the dot products of the columns, or their factors
    if constexpr (!plain)
      dot_columns<op == Op::conjugated>(rows.count(), g.common_columns(), &at(rows.begin), incx, t);
    unroll<width>([&](auto turn) {
      constexpr int k = from_front ? turn : width - 1 - turn;
      const int c = g.j + k;
      const T* column = s.column(c);
      T& own = at(c);
      if constexpr (!plain) {
        g.for_near(c, [&](int i) { t[k] += as<op>(column[i]) * at(i); });
        own -= t[k];
      }
      if (!unit) own = divide(own, as<op>(column[c]));
      if constexpr (plain) g.for_near(c, [&](int i) { at(i) -= own * column[i]; });
    });
    if constexpr (plain) {
      auto from = g.common_columns();
      if constexpr (!from_front) std::reverse(from.at, from.at + width);
      unroll<width>([&](auto turn) { t[turn] = -at(g.j + (from_front ? turn : width - 1 - turn)); });
      add_columns(rows.count(), from, t, &at(rows.begin), incx);
    }
  });
}

// layout(Int<upper>) gives the matrix.
template <class T, class LayoutOf>
ORB_INLINE void trsv(const char* uplo, const char* trans, const char* diag, int n, T* x, int incx,
                     LayoutOf layout) {
  if (n <= 0) return;
  with_options<T>(uplo, trans, [&]<bool upper, Op op>() {
    solve_triangle<upper, op>(layout(Int<upper>{}), is_option(diag, 'U'), strided_start(x, n, incx), incx);
  });
}

}  // namespace orb::blas
