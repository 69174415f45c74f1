// Several columns of a matrix against one vector, the two passes that level 2 is made of: columns added up
// into a vector, and a vector's dot products with them. Vectors are walked from their first element on, with
// strides of either sign; columns are contiguous.
#pragma once

#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {

// Columns that one pass takes: factors or sums then fit into the registers.
template <class T>
constexpr int columns_a_pass = Real<T> ? 4 : 2;

template <int width, class T>
struct Columns {
  const T* at[width];
};

// `width` columns from a on, lda apart.
template <int width, class T>
ORB_INLINE Columns<width, T> columns(const T* a, int lda) {
  Columns<width, T> c;
  unroll<width>([&](auto j) { c.at[j] = a + j * lda; });
  return c;
}

// y + t[0] a(0) + t[1] a(1) + ..., added in this order, a(j) being a register of column j.
template <int width, class V, class Register>
ORB_INLINE V plus_products(V y, const V (&t)[width], Register a) {
  unroll<width>([&](auto j) ORB_INLINE_BODY { y += t[j] * a(j); });
  return y;
}
// The same of complex numbers: the products with the real and with the imaginary parts of the factors are
// summed first, each by itself, and joined once.
template <int width, class V, class Register>
ORB_INLINE V plus_products(V y, const Factor<V> (&t)[width], Register a) {
  const auto first = a(Int<0>{}).v;
  auto by_re = t[0].re * first, by_im = t[0].im * first;
  unroll<width - 1>([&](auto j) ORB_INLINE_BODY {
    const auto next = a(Int<j + 1>{}).v;
    by_re += t[j + 1].re * next;
    by_im += t[j + 1].im * next;
  });
  return {y.v + V::Register::addsub(by_re, swap_parts(by_im))};
}

// y += t[0] a[0] + t[1] a[1] + ... over n elements. The order is that of plus_products() everywhere.
template <int width, class T>
__attribute__((noinline)) void add_columns(int n, const Columns<width, T>& a, const T (&t)[width], T* y,
                                           int incy) {
  const auto pass = [&]<class V>(int i, int end, int inc) ORB_INLINE_BODY {
    decltype(V::splat(t[0])) factor[width];
    const T* column[width];
    unroll<width>([&](auto j) { factor[j] = V::splat(t[j]), column[j] = a.at[j]; });
    const auto add_to = [&](T* p, int at) ORB_INLINE_BODY {
      plus_products(V::loadu(p), factor, [&](auto j) { return V::loadu(column[j] + at); }).storeu(p);
    };
    if (V::lanes > 1 || Complex<T>)
      for (; end - i >= 2 * V::lanes; i += 2 * V::lanes)
        unroll<2>([&](auto k) ORB_INLINE_BODY { add_to(y + (i + k * V::lanes) * inc, i + k * V::lanes); });
    for (; end - i >= V::lanes; i += V::lanes) add_to(y + i * inc, i);
    return i;
  };
  int i = 0;
  if (incy == 1) i = pass.template operator()<vector_of<T>>(0, n, 1);
  pass.template operator()<one_of<T>>(i, n, incy);
}

// Products of two vectors summed up: real ones in the lanes of one register, complex ones in two, one for the
// products of like parts and one for the products of crossed parts, so that no sign is met before the end.
template <class T>
struct ProductSum {
  using V = vector_of<T>;
  V sum = V::zero();
  template <class W>
  ORB_INLINE void add(W a, W x) {
    if constexpr (W::lanes == V::lanes)
      sum += a * x;
    else
      sum.add_low((a * x).v);
  }
  template <bool>
  ORB_INLINE T total() const {
    return sum.sum();
  }
};
template <Complex C>
struct ProductSum<C> {
  using V = ComplexVector<C>;
  V like = V::zero(), crossed = V::zero();
  template <class W>
  ORB_INLINE void add(W a, W x) {
    like.v += a.v * x.v;
    crossed.v += a.v * swap_parts(x.v);
  }
  // of a x, or of conj(a) x
  template <bool conjugate>
  ORB_INLINE C total() const {
    const C l = like.sum(), c = crossed.sum();
    if constexpr (conjugate) return {l.re + l.im, c.re - c.im};
    return {l.re - l.im, c.re + c.im};
  }
};

// sum[j] = column j . x, the columns conjugated if asked, n >= 0. One sum (of each kind) over all rows.
template <bool conjugate, int width, class T>
__attribute__((noinline)) void dot_columns_in_turn(int n, const Columns<width, T>& a, const T* x, int incx,
                                                   T (&sum)[width]) {
  using One = one_of<T>;
  ProductSum<T> s[width];
  for (int i = 0; i < n; ++i)
    unroll<width>([&](auto j) { s[j].add(One::loadu(a.at[j] + i), One::loadu(x + i * incx)); });
  unroll<width>([&](auto j) { sum[j] = s[j].template total<conjugate>(); });
}

// The same for a contiguous x, n >= 1, with complex numbers side by side in the registers.
template <bool conjugate, int width, Complex T>
__attribute__((noinline)) void dot_columns_contiguous(int n, const Columns<width, T>& a, const T* x,
                                                      T (&sum)[width]) {
  using V = vector_of<T>;
  using One = one_of<T>;
  ProductSum<T> s[width];
  int i = 0;
  const auto add = [&]<class W>(W) ORB_INLINE_BODY {
    unroll<width>([&](auto j) ORB_INLINE_BODY { s[j].add(W::loadu(a.at[j] + i), W::loadu(x + i)); });
  };
  for (; n - i >= V::lanes; i += V::lanes) add(V{});
  for (; i < n; ++i) add(One{});
  unroll<width>([&](auto j) { sum[j] = s[j].template total<conjugate>(); });
}

// The same for reals: row 0 first, then the compiled loop over the others with x + 1 as its lead, a register
// a round.
template <bool, int width, Real T>
__attribute__((noinline)) void dot_columns_contiguous(int n, const Columns<width, T>& a, const T* x,
                                                      T (&sum)[width]) {
  using V = vector_of<T>;
  T s[width];
  unroll<width>([&](auto j) { s[j] = a.at[j][0] * x[0]; });
  int i = 1;
  const auto one_by_one = [&](int end) ORB_INLINE_BODY {
    for (; i < end; ++i) unroll<width>([&](auto j) { s[j] += a.at[j][i] * x[i]; });
  };
  constexpr int least = 9;
  const int peel = elements_to_boundary(x + 1);
  if (n - 1 >= least && peel >= 0) {
    one_by_one(1 + peel);
    V lanes[width];
    unroll<width>([&](auto j) { lanes[j] = V::low(s + j); });
    for (; n - i >= V::lanes; i += V::lanes) {
      const V with = V::load(x + i);
      unroll<width>([&](auto j) { lanes[j] += V::loadu(a.at[j] + i) * with; });
    }
    unroll<width>([&](auto j) { s[j] = lanes[j].sum(); });
  }
  one_by_one(n);
  unroll<width>([&](auto j) { sum[j] = s[j]; });
}

// Either of them, for any n.
template <bool conjugate, int width, class T>
ORB_INLINE void dot_columns(int n, const Columns<width, T>& a, const T* x, int incx, T (&sum)[width]) {
  if (n > 0 && incx == 1)
    dot_columns_contiguous<conjugate>(n, a, x, sum);
  else
    dot_columns_in_turn<conjugate>(n, a, x, incx, sum);
}

}  // namespace orb::blas
