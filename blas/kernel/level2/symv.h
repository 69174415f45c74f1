// y = alpha A x + beta y in every layout: A is symmetric, or Hermitian if it is complex.
#pragma once

#include "blas/kernel/level2/both_halves.h"
#include "blas/kernel/level2/scale.h"
#include "blas/kernel/level2/triangle.h"

namespace orb::blas {

// A diagonal element; a complex one has no imaginary part, whatever is stored there.
template <class T>
ORB_INLINE T diagonal(T a) {
  if constexpr (Complex<T>) a.im = 0;
  return a;
}

// y += alpha A x, vectors from their first elements on.
template <bool upper, class Layout, class T>
void add_symmetric(const Layout& s, T alpha, const T* x, int incx, T* y, int incy) {
  for_groups<upper, columns_both_ways<T>, true>(s, [&]<int width>(const Group<upper, width, Layout>& g) {
    T t[width], sum[width];
    unroll<width>([&](auto k) { t[k] = alpha * x[(g.j + k) * incx]; });
    const Rows rows = g.common();
    add_and_dot<true>(rows.count(), g.common_columns(), t, y + rows.begin * incy, incy, x + rows.begin * incx,
                      incx, sum);
    unroll<width>([&](auto k) {
      const int c = g.j + k;
      const T* column = s.column(c);
      g.for_near(c, [&](int i) {
        y[i * incy] += t[k] * column[i];
        sum[k] += conj(column[i]) * x[i * incx];
      });
      y[c * incy] += t[k] * diagonal(column[c]) + alpha * sum[k];
    });
  });
}

// The routines' first steps; add(x, y) adds alpha A x to y, vectors from their first elements on.
template <class T, class Add>
ORB_INLINE void scale_and_add(int n, T alpha, const T* x, int incx, T beta, T* y, int incy, Add add) {
  if (n == 0 || (is_zero(alpha) && is_one(beta))) return;
  y = strided_start(y, n, incy);
  scale(n, beta, y, incy);
  if (!is_zero(alpha)) add(strided_start(x, n, incx), y);
}

// layout(Int<upper>) gives the matrix.
template <class T, class LayoutOf>
ORB_INLINE void symv(const char* uplo, int n, T alpha, const T* x, int incx, T beta, T* y, int incy,
                     LayoutOf layout) {
  scale_and_add(n, alpha, x, incx, beta, y, incy, [&](const T* x0, T* y0) {
    if (is_option(uplo, 'U'))
      add_symmetric<true>(layout(Int<1>{}), alpha, x0, incx, y0, incy);
    else
      add_symmetric<false>(layout(Int<0>{}), alpha, x0, incx, y0, incy);
  });
}

}  // namespace orb::blas
