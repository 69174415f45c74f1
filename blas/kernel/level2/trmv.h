// x = op(A) x for a triangle in any layout.
#pragma once

#include "blas/kernel/level2/triangular.h"

namespace orb::blas {

// The sweep goes so that an element of x is used before it is replaced: away from the rows that columns add
// to, towards those that dot products read.
template <bool upper, Op op, class Layout, class T>
void multiply_triangle(const Layout& s, bool unit, T* x, int incx) {
  constexpr bool plain = op == Op::plain;
  const auto at = [=](int i) -> T& { return x[i * incx]; };
  for_groups<upper, columns_a_pass<T>, upper == plain>(
      s, [&]<int width>(const Group<upper, width, Layout>& g) {
        const Rows rows = g.common();
        T t[width];  // the factors of the columns, or their dot products
        if constexpr (plain) {
          unroll<width>([&](auto k) { t[k] = at(g.j + k); });
          add_columns(rows.count(), g.common_columns(), t, &at(rows.begin), incx);
        } else {
          dot_columns<op == Op::conjugated>(rows.count(), g.common_columns(), &at(rows.begin), incx, t);
        }
        unroll<width>([&](auto turn) {
          constexpr int k = upper == plain ? turn : width - 1 - turn;
          const int c = g.j + k;
          const T* column = s.column(c);
          T& own = at(c);
          if constexpr (plain) g.for_near(c, [&](int i) { at(i) += own * column[i]; });
          if (!unit) own = as<op>(column[c]) * own;
          if constexpr (!plain) {
            g.for_near(c, [&](int i) { t[k] += as<op>(column[i]) * at(i); });
            own += t[k];
          }
        });
      });
}

// layout(Int<upper>) gives the matrix.
template <class T, class LayoutOf>
ORB_INLINE void trmv(const char* uplo, const char* trans, const char* diag, int n, T* x, int incx,
                     LayoutOf layout) {
  if (n <= 0) return;
  with_options<T>(uplo, trans, [&]<bool upper, Op op>() {
    multiply_triangle<upper, op>(layout(Int<upper>{}), is_option(diag, 'U'), strided_start(x, n, incx), incx);
  });
}

}  // namespace orb::blas
