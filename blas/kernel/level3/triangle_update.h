// C = alpha X Y^T + beta C on one triangle of a symmetric C, with the conjugate transpose on one of a
// Hermitian C. Rows are packed and columns splatted as for a product, but every group of columns meets only
// the strips of rows that are in the triangle; a strip that the diagonal crosses gives up the part inside. An
// element's bits are those that the tiles give it in a product, wherever it stands.
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

  // A strip of column j from row i on, which the diagonal crosses: the part inside.
  template <class R>
  void write_crossed(const Finish<T>& finish, const R* sum, int i, int j, int rows) const {
    alignas(16) T x[height];
    (finish.alpha * finish.join(sum)).store(x);
    const int from = upper ? i : std::max(i, j), to = upper ? std::min(i + rows, j + 1) : i + rows;
    for (int r = from; r < to; ++r) add(x[r - i], finish.old, r, j);
  }
  // Element (i, j) takes `sum`, which is alpha times its terms.
  ORB_INLINE void add(T sum, typename Finish<T>::Old old, int i, int j) const {
    T& to = c[i + j * ldc];
    if (old == Finish<T>::kept) sum += to;
    if (old == Finish<T>::scaled) sum += scaled(to);
    if constexpr (hermitian)
      if (i == j) sum.im = 0;
    to = sum;
  }
  ORB_INLINE T scaled(T x) const {
    if constexpr (hermitian)
      return beta.re * x;
    else
      return beta * x;
  }

  // `columns` columns from j on by those of the packed rows from `row` to `end` that are in the triangle.
  template <int columns>
  __attribute__((noinline)) void add_columns(int row, int end, int t, int j, RowStrips<T> panel,
                                             real_of<T>* splats, const Finish<T>& finish) const {
    const int first = upper ? row : std::max(row, j - j % height),
              last = upper ? std::min(end, j + columns) : end;
    multiply_strips<columns>(last - first, RowStrips<T>{panel.at(first - row, 0), panel.depth}, y, t, j,
                             splats,
                             [=, this, &finish](auto q, int strip, auto* sum, auto rows) ORB_INLINE_BODY {
                               const int i = first + strip, column = j + q;
                               if (upper ? i + rows <= column : i > column)
                                 finish(sum, c + i + column * ldc, rows);
                               else
                                 write_crossed(finish, sum, i, column, rows);
                             });
  }

  // The panel has room for `block` rows, a multiple of the strips' height.
  void run(int block, T* room, real_of<T>* splats) const {
    const Finish<T> first(alpha, beta, x.conjugate, y.conjugate);
    const Finish<T> later(alpha, number<T>(1), x.conjugate, y.conjugate);
    for (int t = 0; t < k; t += most_depth) {
      const RowStrips<T> panel{room, std::min(most_depth, k - t)};
      for (int row = 0; row < n; row += block) {
        const int end = std::min(n, row + block), stop = upper ? n : end;
        pack(x, row, end - row, t, panel);
        int j = upper ? row - row % width : 0;
        const auto add = [&](auto columns) {
          add_columns<columns>(row, end, t, j, panel, splats, t == 0 ? first : later);
        };
        for (; j < stop && n - j >= width; j += width) add(Int<width>{});
        if (j < stop) last_columns<width - 1>(n - j, add);
      }
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
      for (int i = upper ? 0 : j; i < (upper ? j + 1 : n); ++i)
        add(T{}, is_zero(beta) ? Finish<T>::ignored : Finish<T>::scaled, i, j);
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
