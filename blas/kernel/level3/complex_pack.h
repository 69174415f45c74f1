// Packing for the complex matrix products: plain copies. Conjugation and alpha wait for the finished sums.
#pragma once

#include "blas/kernel/level3/complex_panels.h"

namespace orb::blas::complex_product {

// op(X): element (i, j) at p + i * down + j * across, conjugated if `conjugate`. One of the steps is 1.
template <Complex C>
struct Operand {
  const C* p;
  int down, across;
  bool conjugate;
  Operand(const char* trans, const C* x, int ld)
      : p(x),
        down(is_option(trans, 'N') ? 1 : ld),
        across(is_option(trans, 'N') ? ld : 1),
        conjugate(is_option(trans, 'C')) {}
  const C* at(int i, int j) const { return p + i * down + j * across; }
};

// Columns of A in the outer loop where they are contiguous, so that whole cache lines are read; four k of a
// strip together, so that whole lines are written.
template <Complex C>
void pack_rows(const Operand<C>& a, int row, int rows, int k, int depth, RowStrips<C> panel) {
  using V = vector_of<C>;
  using One = one_of<C>;
  constexpr int height = RowStrips<C>::height;
  const auto copy = [&](auto count, int d) {
    const C* from = a.at(row, k + d);
    C* to = panel.at(0, d);
    int i = 0;
    for (; rows - i >= height; i += height, from += height, to += height * depth)
      unroll<count>([&](auto t) { V::loadu(from + t * a.across).store(to + t * height); });
    if (i < rows) unroll<count>([&](auto t) { V{One::load(from + t * a.across).v}.store(to + t * height); });
  };
  for (int d = ladder<4>(0, depth, [&](auto, int at) { copy(Int<4>{}, at); }); d < depth; ++d)
    copy(Int<1>{}, d);
}

// The same where k is contiguous in A: strip by strip.
template <Complex C>
void pack_rows_across(const Operand<C>& a, int row, int rows, int k, int depth, RowStrips<C> panel) {
  using V = vector_of<C>;
  using One = one_of<C>;
  constexpr int height = RowStrips<C>::height;
  for (int i = 0; i < rows; i += height) {
    const C* const from = a.at(row + i, k);
    C* const to = panel.at(i, 0);
    if (rows - i >= height)
      for (int d = 0; d < depth; ++d) V::gather(from + d, a.down).store(to + d * height);
    else
      for (int d = 0; d < depth; ++d) V{One::load(from + d).v}.store(to + d * height);
  }
}

template <Complex C>
void pack(const Operand<C>& a, int row, int rows, int k, int depth, RowStrips<C> panel) {
  if (a.down == 1)
    pack_rows(a, row, rows, k, depth, panel);
  else
    pack_rows_across(a, row, rows, k, depth, panel);
}

template <int columns, Complex C>
ORB_INLINE void splat(const Operand<C>& b, int k, int depth, int column, SplatColumns<C, columns> panel) {
  using R = vector_of<real_of<C>>;
  const C* from = b.at(k, column);
  for (int d = 0; d < depth; ++d, from += b.down)
    unroll<columns>([&](auto q) ORB_INLINE_BODY {
      const C x = from[q * b.across];
      R::splat(x.re).store(panel.at(d, q));
      R::splat(x.im).store(panel.at(d, q) + R::lanes);
    });
}

}  // namespace orb::blas::complex_product
