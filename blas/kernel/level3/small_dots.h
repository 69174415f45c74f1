// Dot products of the small path, in the one order promised for both precisions. Below nine terms a dot
// product is one sum in rising order. From nine on, eight terms a round go to the sums 0 to 7, which are
// added at the end as
//   ((0 + 4) + (2 + 6)) + ((1 + 5) + (3 + 7))
// and the terms left over follow in rising order. If op(B)'s column is contiguous, the terms in front of its
// first 16-byte boundary come first, in rising order, and start sum 0; a column that meets no boundary is one
// sum.
#pragma once

#include <algorithm>

#include "blas/kernel/level3/small_product.h"
#include "serv/kernel/loops.h"

namespace orb::blas {

constexpr int least_rounds_depth = 9;

template <class T>
struct DotSums {
  using V = vector_of<T>;
  static constexpr int count = 8 / V::lanes;
  V sum[count];

  ORB_INLINE void start(T first) {
    sum[0] = V::low(&first);
    for (int s = 1; s < count; ++s) sum[s] = V::zero();
  }
  // n terms, a multiple of 8, y on a 16-byte boundary
  ORB_INLINE void add(int n, const T* x, const T* y) {
    V local[count];
    unroll<count>([&](auto s) ORB_INLINE_BODY { local[s] = sum[s]; });
    for (int k = 0; k < n; k += 8)
      unroll<count>([&](auto s) ORB_INLINE_BODY {
        local[s] += V::loadu(x + k + s * V::lanes) * V::load(y + k + s * V::lanes);
      });
    unroll<count>([&](auto s) ORB_INLINE_BODY { sum[s] = local[s]; });
  }
  ORB_INLINE T total() const {
    if constexpr (count == 4)
      return ((sum[0] + sum[2]) + (sum[1] + sum[3])).sum();
    else
      return (sum[0] + sum[1]).sum();
  }
};

// total + the terms from `first` to n - 1 in rising order
template <class T>
ORB_INLINE T add_in_order(T total, int first, int n, const T* x, const T* y, int step) {
  for (int k = first; k < n; ++k) total += x[k] * y[k * step];
  return total;
}

template <class T>
ORB_INLINE T dot(int n, const T* x, const T* y) {
  const int peel = elements_to_boundary(y);
  if (n < least_rounds_depth || peel < 0) return add_in_order(T(0), 0, n, x, y, 1);
  DotSums<T> sums;
  sums.start(add_in_order(T(0), 0, peel, x, y, 1));
  const int body = (n - peel) & ~7;
  sums.add(body, x + peel, y + peel);
  return add_in_order(sums.total(), peel + body, n, x, y, 1);
}

template <class T>
ORB_INLINE void scale_dot(const SmallProduct<T>& p, int i, int j, T dot) {
  T& c = p.c[i + j * p.ldc];
  c = p.beta == 0 ? p.alpha * dot : p.alpha * dot + p.beta * c;
}

// Columns of op(B) contiguous. Rows go in strips, so that a strip of A stays in the cache for all columns.
template <class T>
void multiply_contiguous(const SmallProduct<T>& p) {
  constexpr int strip = 4;
  for (int top = 0; top < p.m; top += strip)
    for (int j = 0; j < p.n; ++j)
      for (int i = top; i < std::min(top + strip, p.m); ++i)
        scale_dot(p, i, j, dot(p.k, p.a + i * p.lda, p.b + j * p.b_across));
}

// A slice of a few columns of op(B), each contiguous in k.
constexpr int group = 4, slice = 128;
template <class T>
using ColumnSlices = T[group][slice];

// Copies `depth` terms (a multiple of 8) of `columns` columns from op(B)(first, left) on.
template <class T>
ORB_INLINE void lay_along(const SmallProduct<T>& p, int first, int depth, int left, int columns,
                          ColumnSlices<T>& to) {
  using V = vector_of<T>;
  const int down = p.b_down;
  const T* b = p.b + left + first * down;
  if (columns < group) {
    for (int k = 0; k < depth; ++k, b += down)
      for (int q = 0; q < columns; ++q) to[q][k] = b[q];
    return;
  }
  for (int k = 0; k < depth; k += V::lanes, b += V::lanes * down)
    unroll<group / V::lanes>([&](auto part) ORB_INLINE_BODY {
      V square[V::lanes];
      unroll<V::lanes>([&](auto r) ORB_INLINE_BODY { square[r] = V::loadu(b + r * down + part * V::lanes); });
      V::transpose(square);
      unroll<V::lanes>([&](auto q) ORB_INLINE_BODY { square[q].store(&to[part * V::lanes + q][k]); });
    });
}

// Rows of op(B) contiguous: a few columns are laid out along k in slices, for a strip of rows at a time.
template <class T>
void multiply_gathered(const SmallProduct<T>& p) {
  constexpr int strip = 16;
  const int body = p.k & ~7;
  for (int top = 0; top < p.m; top += strip) {
    const int rows = std::min(strip, p.m - top);
    for (int left = 0; left < p.n; left += group) {
      const int columns = std::min(group, p.n - left);
      DotSums<T> sums[strip][group];
      for (int r = 0; r < rows; ++r)
        for (int q = 0; q < columns; ++q) sums[r][q].start(0);
      for (int first = 0; first < body; first += slice) {
        const int depth = std::min(slice, body - first);
        alignas(16) ColumnSlices<T> along;
        lay_along(p, first, depth, left, columns, along);
        for (int q = 0; q < columns; ++q)
          for (int r = 0; r < rows; ++r) sums[r][q].add(depth, p.a + (top + r) * p.lda + first, along[q]);
      }
      for (int q = 0; q < columns; ++q)
        for (int r = 0; r < rows; ++r)
          scale_dot(
              p, top + r, left + q,
              add_in_order(sums[r][q].total(), body, p.k, p.a + (top + r) * p.lda, p.b + left + q, p.b_down));
    }
  }
}

}  // namespace orb::blas
