// Packing for the tiles: plain copies. Conjugation and alpha wait for the finished sums.
#pragma once

#include <algorithm>

#include "blas/kernel/level3/tile_panels.h"

namespace orb::blas::tiles {

// op(X): element (i, j) at p + i * down + j * across, conjugated if `conjugate`. One of the steps is 1.
template <class T>
struct Operand {
  const T* p;
  int down, across;
  bool conjugate;
  Operand(const char* trans, const T* x, int ld) : Operand(*trans, x, ld) {}
  Operand(char trans, const T* x, int ld)
      : p(x),
        down(is_option(&trans, 'N') ? 1 : ld),
        across(is_option(&trans, 'N') ? ld : 1),
        conjugate(is_option(&trans, 'C')) {}
  const T* at(int i, int j) const { return p + i * down + j * across; }
};

// The last strip, if its rows do not fill it.
template <class T>
void pack_short_strip(const Operand<T>& a, int row, int rows, int k, int depth, T* to) {
  for (int d = 0; d < depth; ++d, to += RowStrips<T>::height)
    for (int r = 0; r < RowStrips<T>::height; ++r) to[r] = r < rows ? *a.at(row + r, k + d) : T{};
}

// Rows side by side in A. Four k of a strip together, so that whole cache lines are written.
template <class T>
void pack_rows(const Operand<T>& a, int row, int rows, int k, RowStrips<T> panel) {
  using V = vector_of<T>;
  const auto copy = [&](auto count, int d) {
    const T* from = a.at(row, k + d);
    for (int i = 0; i < rows; i += V::lanes, from += V::lanes)
      unroll<count>([&](auto t) { V::loadu(from + t * a.across).store(panel.at(i, d + t)); });
  };
  const int most = ladder<4>(0, panel.depth, [&](auto, int d) { copy(Int<4>{}, d); });
  for (int d = most; d < panel.depth; ++d) copy(Int<1>{}, d);
}

// k contiguous in A: strip by strip, real numbers in squares, which are transposed.
template <class T>
void pack_rows_across(const Operand<T>& a, int row, int rows, int k, RowStrips<T> panel) {
  using V = vector_of<T>;
  for (int i = 0; i < rows; i += V::lanes) {
    const T* const from = a.at(row + i, k);
    int d = 0;
    if constexpr (Real<T>)
      for (; panel.depth - d >= V::lanes; d += V::lanes) {
        V block[V::lanes];
        unroll<V::lanes>([&](auto r) { block[r] = V::loadu(from + d + r * a.down); });
        V::transpose(block);
        unroll<V::lanes>([&](auto t) { block[t].store(panel.at(i, d + t)); });
      }
    for (; d < panel.depth; ++d) V::gather(from + d, a.down).store(panel.at(i, d));
  }
}

template <class T>
void pack(const Operand<T>& a, int row, int rows, int k, RowStrips<T> panel) {
  const int whole = rows - rows % panel.height;
  if (a.down == 1)
    pack_rows(a, row, whole, k, panel);
  else
    pack_rows_across(a, row, whole, k, panel);
  if (whole < rows) pack_short_strip(a, row + whole, rows - whole, k, panel.depth, panel.at(whole, 0));
}

}  // namespace orb::blas::tiles
