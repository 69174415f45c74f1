// The pass of the symmetric products: columns of the stored triangle serve the rows and, mirrored, the
// columns of the matrix at once, so that it is read once.
#pragma once

#include "blas/kernel/level2/columns.h"

namespace orb::blas {

// Columns that the pass takes: their sums fill half of the registers.
template <class T>
constexpr int columns_both_ways = Real<T> ? 4 : 1;

// y += t[0] a[0] + t[1] a[1] + ... over n elements, and sum[j] = column j . x, the columns conjugated for
// this if asked. Factors are taken from memory: the sums need the registers more.
template <bool conjugate, int width, class T>
__attribute__((noinline)) void add_and_dot(int n, const Columns<width, T>& a, const T (&t)[width], T* y,
                                           int incy, const T* x, int incx, T (&sum)[width]) {
  ProductSum<T> s[width];
  const auto pass = [&]<class V>(int i, int end, int y_step, int x_step) ORB_INLINE_BODY {
    decltype(V::splat(t[0])) factor[width];
    const T* column[width];
    unroll<width>([&](auto j) { factor[j] = V::splat(t[j]), column[j] = a.at[j]; });
    for (; end - i >= V::lanes; i += V::lanes) {
      T* const p = y + i * y_step;
      const V with = V::loadu(x + i * x_step);
      plus_products(V::loadu(p), factor, [&](auto j) ORB_INLINE_BODY {
        const V element = V::loadu(column[j] + i);
        s[j].add(element, with);
        return element;
      }).storeu(p);
    }
    return i;
  };
  int i = 0;
  if (incy == 1 && incx == 1) i = pass.template operator()<vector_of<T>>(0, n, 1, 1);
  pass.template operator()<one_of<T>>(i, n, incy, incx);
  unroll<width>([&](auto j) { sum[j] = s[j].template total<conjugate>(); });
}

}  // namespace orb::blas
