// C = alpha X Y^T + beta C on one triangle of a symmetric C, with the conjugate transpose on one of a
// Hermitian C. Rows are packed and columns splatted as for a product, but every group of columns meets only
// the rows of the triangle. The tiles on the diagonal go through a small square, from which their part of the
// triangle is taken. An element's bits are those that the tiles give it in a product, wherever it stands.
#pragma once

#include "blas/kernel/level3/tile_kernel.h"
#include "blas/kernel/level3/tile_pack.h"
#include "orb/services.h"
#include "serv/kernel/scratch.h"

namespace orb::blas::tiles {

template <bool hermitian, class T>
struct TriangleUpdate {
  static constexpr int height = RowStrips<T>::height, width = tile_columns<T>;
  static constexpr int panel_bytes = 512 * 1024, small_panel_bytes = 16 * 1024;
  bool upper;
  int n, k;
  T alpha;
  Operand<T> x, y;  // n by k, k by n
  T beta;
  T* c;
  int ldc;

  // Element (i, j) takes `sum`, which is alpha times its terms.
  ORB_INLINE void add(T sum, T old_factor, int i, int j) const {
    T& to = c[i + j * ldc];
    if constexpr (hermitian) {
      if (!is_zero(old_factor)) sum += old_factor.re * to;
      if (i == j) sum.im = 0;
    } else if (is_one(old_factor)) {
      sum += to;
    } else if (!is_zero(old_factor)) {
      sum += old_factor * to;
    }
    to = sum;
  }

  // `columns` columns from j on by those of the packed rows from `row` to `end` that are in the triangle.
  template <int columns>
  void add_columns(int row, int end, int t, int j, RowStrips<T> panel, real_of<T>* splats, T old) const {
    const SplatColumns<T, columns> b{splats};
    splat(y, t, panel.depth, j, b);
    // whole strips around the diagonal
    const int first = std::clamp(j - j % height, row, end);
    const int last = std::clamp((j + columns + height - 1) / height * height, row, end);
    const auto multiply = [&](int from, int to, T* at, int ld, T beta) {
      if (from < to)
        multiply_strips(to - from, RowStrips<T>{panel.at(from - row, 0), panel.depth}, b, at, ld,
                        Finish<T>(alpha, beta, x.conjugate, y.conjugate));
    };
    T* const column = c + j * ldc;
    if (upper)
      multiply(row, first, column + row, ldc, old);
    else
      multiply(last, end, column + last, ldc, old);
    constexpr int most = (width + 2 * height - 2) / height * height;
    T square[most * width];
    multiply(first, last, square, most, T{});
    for (int q = 0; q < columns; ++q)
      for (int i = upper ? first : std::max(first, j + q); i < (upper ? std::min(last, j + q + 1) : last);
           ++i)
        add(square[i - first + q * most], old, i, j + q);
  }

  // The panel has room for `block` rows, a multiple of the strips' height.
  void run(int block, T* room, real_of<T>* splats) const {
    for (int t = 0; t < k; t += most_depth) {
      const RowStrips<T> panel{room, std::min(most_depth, k - t)};
      const T old = t == 0 ? beta : number<T>(1);
      for (int row = 0; row < n; row += block) {
        const int end = std::min(n, row + block);
        pack(x, row, end - row, t, panel);
        int j = upper ? row - row % width : 0;
        const int stop = upper ? n : end;
        for (; j < stop && n - j >= width; j += width) add_columns<width>(row, end, t, j, panel, splats, old);
        if (j < stop) add_last_columns<width - 1>(row, end, t, j, panel, splats, old);
      }
    }
  }
  template <int columns>
  void add_last_columns(int row, int end, int t, int j, RowStrips<T> panel, real_of<T>* splats, T old) const {
    if constexpr (columns > 0) {
      if (n - j == columns)
        add_columns<columns>(row, end, t, j, panel, splats, old);
      else
        add_last_columns<columns - 1>(row, end, t, j, panel, splats, old);
    }
  }

  __attribute__((noinline)) void run_small() const {
    alignas(64) T room[small_panel_bytes / sizeof(T)];
    alignas(64) real_of<T> splats[splat_reals<T>];
    run((n + height - 1) / height * height, room, splats);
  }
  void run_large() const {
    constexpr int page = 4096, splat_bytes = splat_reals<T> * int(sizeof(real_of<T>));
    char* const block = static_cast<char*>(orb_serv_allocate(page + panel_bytes + 384 + splat_bytes, 64));
    char* const panel = round_forward(block, page);
    run(panel_bytes / most_depth / int(sizeof(T)), reinterpret_cast<T*>(panel),
        reinterpret_cast<real_of<T>*>(panel + panel_bytes + 384));
    orb_serv_deallocate(block);
  }
  void run() const {
    constexpr int most = small_panel_bytes / int(sizeof(T));
    if (n <= most && (n + height - 1) * std::min(k, most_depth) <= most)
      run_small();
    else
      run_large();
  }

  // C = beta C
  void scale() const {
    for (int j = 0; j < n; ++j)
      for (int i = upper ? 0 : j; i < (upper ? j + 1 : n); ++i) add(T{}, beta, i, j);
  }
};

template <class T>
struct Term {
  T alpha;
  const T* x;
  int ldx;
  const T* y;
  int ldy;
};

template <bool hermitian, class T, class... More>
void update_triangle(const char* uplo, const char* trans, int n, int k, T beta, T* c, int ldc, Term<T> term,
                     More... more) {
  const bool nothing = is_zero(term.alpha) || k <= 0;
  if (n <= 0 || (nothing && is_one(beta))) return;
  const char across = hermitian ? 'C' : 'T';
  const bool plain = is_option(trans, 'N');
  const auto update = [&](const Term<T>& t, T old) {
    return TriangleUpdate<hermitian, T>{is_option(uplo, 'U'),
                                        n,
                                        k,
                                        t.alpha,
                                        {plain ? 'N' : across, t.x, t.ldx},
                                        {plain ? across : 'N', t.y, t.ldy},
                                        old,
                                        c,
                                        ldc};
  };
  if (nothing) return update(term, beta).scale();
  update(term, beta).run();
  (update(more, number<T>(1)).run(), ...);
}

}  // namespace orb::blas::tiles
