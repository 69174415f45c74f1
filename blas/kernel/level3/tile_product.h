// C = alpha op(A) op(B) + beta C on tiles.
// Source: K. Goto, R. van de Geijn, Anatomy of high-performance matrix multiplication, ACM TOMS 34 (2008).
//
// The bits of an element do not depend on where rows or columns are cut: it is the same sums over the same
// slices of k in every tile.
#pragma once

#include "blas/kernel/level3/tile_kernel.h"
#include "blas/kernel/level3/tile_room.h"

namespace orb::blas::tiles {

template <class T>
struct Product {
  int m, n, k;
  T alpha;
  Operand<T> a, b;
  T beta;
  T* c;
  int ldc;

  // The packed rows from `row` on by `columns` columns from j on.
  template <int columns>
  __attribute__((noinline)) void add_columns(int row, int rows, int t, int j, RowStrips<T> panel,
                                             real_of<T>* splats, const Finish<T>& finish) const {
    multiply_strips<columns>(rows, panel, b, t, j, splats,
                             [&finish, to = c + row + j * ldc, ld = ldc](auto q, int i, auto* sum, auto count)
                                 ORB_INLINE_BODY { finish(sum, to + i + q * ld, count); });
  }

  // `most` columns at a time keep their part of op(B)'s slice in the second-level cache while the row blocks
  // pass.
  void run(const Room<T>& room, int most) const {
    constexpr int width = tile_columns<T>;
    const Finish<T> first(alpha, beta, a.conjugate, b.conjugate);
    const Finish<T> later(alpha, number<T>(1), a.conjugate, b.conjugate);
    for (int column = 0; column < n; column += most)
      for (int t = 0; t < k; t += most_depth) {
        const RowStrips<T> panel{room.panel, std::min(most_depth, k - t)};
        for (int row = 0; row < m; row += room.rows) {
          const int rows = std::min(room.rows, m - row), end = std::min(n, column + most);
          pack(a, row, rows, t, panel);
          int j = column;
          const auto add = [&](auto columns) {
            add_columns<columns>(row, rows, t, j, panel, room.splats, t == 0 ? first : later);
          };
          for (; end - j >= width; j += width) add(Int<width>{});
          last_columns<width - 1>(end - j, add);
        }
      }
  }
};

}  // namespace orb::blas::tiles
