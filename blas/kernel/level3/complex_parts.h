// Complex matrices taken apart into real ones, and complex results put together, for products that run on
// real matrices block by block.
#pragma once

#include <algorithm>

#include "blas/kernel/level3/product.h"
#include "blas/kernel/level3/scalars.h"
#include "blas/kernel/level3/tile_pack.h"
#include "orb/services.h"

namespace orb::blas::tiles {

// The rows by columns block of op(X) from (i, j) on: store(r, c, x) for each of its numbers in memory order
// of X, the conjugation applied.
template <Complex C, class Store>
ORB_INLINE void take_apart(const Operand<C>& x, int i, int rows, int j, int columns, Store store) {
  const real_of<C> sign = x.conjugate ? -1 : 1;
  const auto walk = [&](auto plain, int lines, int length, int line_step) ORB_INLINE_BODY {
    const C* line = x.at(i, j);
    for (int q = 0; q < lines; ++q, line += line_step)
      for (int t = 0; t < length; ++t) store(plain ? t : q, plain ? q : t, C{line[t].re, sign * line[t].im});
  };
  if (x.down == 1)
    walk(Int<true>{}, columns, rows, x.across);
  else
    walk(Int<false>{}, rows, columns, x.down);
}

// C = alpha X + beta C, X given by its numbers x(i, j).
template <Complex C, class Numbers>
ORB_INLINE void put_together(int rows, int columns, C alpha, Numbers x, C beta, C* c, int ldc) {
  const auto write = [&](auto old) ORB_INLINE_BODY {
    for (int j = 0; j < columns; ++j, c += ldc)
      for (int i = 0; i < rows; ++i) c[i] = alpha * x(i, j) + old(c[i]);
  };
  if (is_zero(beta))
    write([](const C&) { return C{0, 0}; });
  else if (is_one(beta))
    write([](const C& z) { return z; });
  else
    write([=](const C& z) { return beta * z; });
}

// Pieces of at most `most`, about equally long.
inline int even_piece(int n, int most) {
  const int pieces = (n + most - 1) / most;
  return std::min(n, ((n + pieces - 1) / pieces + 3) & ~3);
}

}  // namespace orb::blas::tiles
