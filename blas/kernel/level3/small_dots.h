// Dot products of nine terms and more, in the one order promised for both precisions: eight terms a round go
// to the sums 0 to 7, which are added at the end as
//   ((0 + 4) + (2 + 6)) + ((1 + 5) + (3 + 7))
// and the terms left over follow in rising k. If op(B)'s column is contiguous, the terms in front of its
// first 16-byte boundary come first, in rising k, and start sum 0; a column that meets no boundary is one
// sum.
#pragma once

#include "blas/kernel/level3/small_product.h"

namespace orb::blas {

constexpr int least_rounds_depth = 9;

// total + the terms x(k) * y(k) for k from `first` to n - 1 in rising order. x(k) is a register of lines side
// by side, at x + k * x_step, and y(k) the one factor at y + k * y_step.
template <class W, class T>
ORB_INLINE W add_in_order(W total, int first, int n, const T* x, int x_step, const T* y, int y_step) {
  for (int k = first; k < n; ++k) total += W::loadu(x + k * x_step) * W::splat(y[k * y_step]);
  return total;
}

// Half of the sums, over `rounds` rounds from x and y on: those of every second term. The first starts from
// `start`.
template <class W, class T>
ORB_INLINE W add_rounds(W start, int rounds, const T* x, int x_step, const T* y, int y_step) {
  W sum[4] = {start, W::zero(), W::zero(), W::zero()};
  for (; rounds > 0; --rounds, x += 8 * x_step, y += 8 * y_step)
    unroll<4>([&](auto s)
                  ORB_INLINE_BODY { sum[s] += W::loadu(x + 2 * s * x_step) * W::splat(y[2 * s * y_step]); });
  return (sum[0] + sum[2]) + (sum[1] + sum[3]);
}

// The dot products of W::lanes lines with y, `peel` terms in front of the rounds.
template <class W, class T>
ORB_INLINE W dots(int n, int peel, const T* x, int x_step, const T* y, int y_step) {
  if (peel < 0) return add_in_order(W::zero(), 0, n, x, x_step, y, y_step);
  const W start = add_in_order(W::zero(), 0, peel, x, x_step, y, y_step);
  const int rounds = (n - peel) / 8;
  const T *x0 = x + peel * x_step, *y0 = y + peel * y_step;
  const W even = add_rounds(start, rounds, x0, x_step, y0, y_step);
  const W odd = add_rounds(W::zero(), rounds, x0 + x_step, x_step, y0 + y_step, y_step);
  return add_in_order(even + odd, peel + 8 * rounds, n, x, x_step, y, y_step);
}

// The same for two contiguous lines, the lanes running along k.
template <class T>
ORB_INLINE T dot(int n, const T* x, const T* y) {
  using V = vector_of<T>;
  using One = Lane<T>;
  constexpr int sums = 8 / V::lanes;
  const int peel = elements_to_boundary(y);
  if (peel < 0) return add_in_order(One::zero(), 0, n, x, 1, y, 1).v;
  int k = peel;
  V sum[sums];
  for (int s = 0; s < sums; ++s) sum[s] = V::zero();
  sum[0].add_low(add_in_order(One::zero(), 0, peel, x, 1, y, 1).v);
  for (; n - k >= 8; k += 8)
    unroll<sums>([&](auto s) ORB_INLINE_BODY {
      sum[s] += V::loadu(x + k + s * V::lanes) * V::load(y + k + s * V::lanes);
    });
  if constexpr (sums == 4) sum[0] += sum[2], sum[1] += sum[3];
  return add_in_order(One{(sum[0] + sum[1]).sum()}, k, n, x, 1, y, 1).v;
}

// `rows` rows of C from c on: a strip of A's rows, one register wide, against all columns of op(B).
template <bool b_plain, class T>
__attribute__((noinline)) void multiply_row_strip(SmallProduct<T> p, const T* strip, int rows, T* c) {
  using V = vector_of<T>;
  const T* b = p.b;
  for (int j = 0; j < p.n; ++j, b += p.b_across, c += p.ldc) {
    const int peel = b_plain ? elements_to_boundary(b) : 0;
    V sum[] = {dots<V>(p.k, peel, strip, V::lanes, b, b_plain ? 1 : p.b_down)};
    ScaleDot<T>{p.alpha, p.beta}.finish(sum, c, rows);
  }
}

// One row of C: a row of A, contiguous, against the columns of op(B), or against registers of neighbouring
// columns where these stand side by side.
template <bool b_plain, class T>
__attribute__((noinline)) void multiply_one_row(SmallProduct<T> p, const T* row, T* c) {
  using V = vector_of<T>;
  using One = Lane<T>;
  const ScaleDot<T> rule{p.alpha, p.beta};
  const auto finish = [&](T sum, int j) {
    One element[] = {{sum}};
    rule.finish(element, c + j * p.ldc, 1);
  };
  int j = 0;
  if constexpr (b_plain) {
    for (; j < p.n; ++j) finish(dot(p.k, row, p.b + j * p.b_across), j);
  } else {
    for (; p.n - j >= V::lanes; j += V::lanes) {
      T sum[V::lanes];
      dots<V>(p.k, 0, p.b + j, p.b_down, row, 1).storeu(sum);
      for (int q = 0; q < V::lanes; ++q) finish(sum[q], j + q);
    }
    for (; j < p.n; ++j) finish(dots<One>(p.k, 0, p.b + j, p.b_down, row, 1).v, j);
  }
}

}  // namespace orb::blas
