// Updates of a symmetric or Hermitian triangle, in any layout, by columns that are sums of given vectors.
#pragma once

#include "blas/kernel/level2/triangle.h"
#include "serv/kernel/zero.h"

namespace orb::blas {

template <class T>
struct Vector {
  const T* at;  // the first element
  int inc;
  ORB_INLINE T operator[](int i) const { return at[i * inc]; }
};

// column += t[0] v[0] + t[1] v[1] + ... in these rows. The order is that of plus_products().
template <int width, class T>
void add_vectors(Rows rows, const Vector<T> (&v)[width], const T (&t)[width], T* column) {
  bool contiguous = true;
  Columns<width, T> from;
  unroll<width>([&](auto k) {
    contiguous &= v[k].inc == 1;
    from.at[k] = v[k].at + rows.begin * v[k].inc;
  });
  if (contiguous) return add_columns(rows.count(), from, t, column + rows.begin, 1);
  using One = one_of<T>;
  decltype(One::splat(t[0])) factor[width];
  unroll<width>([&](auto k) { factor[k] = One::splat(t[k]); });
  for (int i = rows.begin; i < rows.end; ++i)
    plus_products(One::loadu(column + i), factor, [&](auto k) {
      return One::loadu(v[k].at + i * v[k].inc);
    }).storeu(column + i);
}

// Every column j of the triangle takes the vectors with the factors that factors(j, t) sets, in those of its
// rows, the diagonal included, that lie within `limit`. The diagonal of a Hermitian triangle is made real.
template <bool upper, bool hermitian, class Layout, int width, class T, class Factors>
ORB_INLINE void update_triangle(const Layout& s, Rows limit, const Vector<T> (&v)[width], Factors factors) {
  for (int j = 0; j < s.n; ++j) {
    T t[width];
    factors(j, t);
    const Rows rows{std::max(limit.begin, upper ? 0 : j), std::min(limit.end, upper ? j + 1 : s.n)};
    if (rows.count() <= 0) continue;
    add_vectors(rows, v, t, s.column(j));
    if constexpr (hermitian)
      if (rows.begin <= j && j < rows.end) s.column(j)[j].im = 0;
  }
}

// A += alpha x op(x)^T. layout(Int<upper>) gives the matrix.
template <bool hermitian, class A, class T, class LayoutOf>
ORB_INLINE void rank_one(const char* uplo, int n, A alpha, const T* x, int incx, LayoutOf layout) {
  if (n == 0 || is_zero(alpha)) return;
  const Vector<T> v[] = {{strided_start(x, n, incx), incx}};
  const auto factors = [&](int j, T(&t)[1]) {
    if constexpr (hermitian)
      t[0] = alpha * conj(v[0][j]);
    else
      t[0] = alpha * v[0][j];
  };
  if (is_option(uplo, 'U'))
    update_triangle<true, hermitian>(layout(Int<1>{}), {0, n}, v, factors);
  else
    update_triangle<false, hermitian>(layout(Int<0>{}), {0, n}, v, factors);
}

// A += alpha x conj(y)^T + conj(alpha) y conj(x)^T, by blocks of nb rows; Hermitian if complex.
template <class T, class LayoutOf>
ORB_INLINE void rank_two(const char* uplo, int n, T alpha, const T* x, int incx, const T* y, int incy, int nb,
                         LayoutOf layout) {
  if (n == 0 || is_zero(alpha)) return;
  if (nb < 1) nb = n;
  const Vector<T> v[] = {{strided_start(x, n, incx), incx}, {strided_start(y, n, incy), incy}};
  const auto factors = [&](int j, T(&t)[2]) { t[0] = alpha * conj(v[1][j]), t[1] = conj(alpha * v[0][j]); };
  for (int i = 0, height; i < n; i += height) {
    height = std::min(nb, n - i);
    if (is_option(uplo, 'U'))
      update_triangle<true, Complex<T>>(layout(Int<1>{}), {i, i + height}, v, factors);
    else
      update_triangle<false, Complex<T>>(layout(Int<0>{}), {i, i + height}, v, factors);
  }
}

}  // namespace orb::blas
