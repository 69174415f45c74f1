// C = alpha X Y^T + beta C on one triangle of a symmetric C, with the conjugate transpose on one of a
// Hermitian C. Rows are packed and columns splatted as for a product, but every group of columns meets only
// the strips of rows that are in the triangle; a strip that the diagonal crosses gives up the part inside. An
// element's bits are those that the tiles give it in a product, wherever it stands.
#pragma once

#include "blas/kernel/level3/tile_product.h"

namespace orb::blas::tiles {

// Columns of C.
struct ColumnRange {
  int from, to;
};

// `part`: the columns that are updated; from a multiple of 48 on, whole strips and groups of columns.
template <bool hermitian, class T>
struct TriangleUpdate {
  static constexpr int height = RowStrips<T>::height, width = tile_columns<T>;
  using Old = typename Finish<T>::Old;
  bool upper;
  Product<T> p;  // X is n by k, Y^T k by n
  ColumnRange part;

  // A strip of column j from row i on, alpha times its terms, which the diagonal crosses: the part inside.
  __attribute__((noinline)) void write_crossed(vector_of<T> x, Old old, int i, int j, int rows) const {
    alignas(16) T strip[height];
    x.store(strip);
    const int from = upper ? i : std::max(i, j), to = upper ? std::min(i + rows, j + 1) : i + rows;
    for (int r = from; r < to; ++r) add(strip[r - i], old, r, j);
  }
  // Element (i, j) takes `sum`, which is alpha times its terms.
  ORB_INLINE void add(T sum, Old old, int i, int j) const {
    T& to = p.c[i + j * p.ldc];
    if (old == Finish<T>::kept) sum += to;
    if (old == Finish<T>::scaled) sum += scaled(to);
    if constexpr (hermitian)
      if (i == j) sum.im = 0;
    to = sum;
  }
  ORB_INLINE T scaled(T x) const {
    if constexpr (hermitian)
      return p.beta.re * x;
    else
      return p.beta * x;
  }

  // `columns` columns from j on by those of the packed rows from `row` to `end` that are in the triangle.
  template <int columns>
  __attribute__((noinline)) void add_columns(int row, int end, int t, int j, RowStrips<T> panel,
                                             real_of<T>* splats, const Finish<T>& finish) const {
    const int first = upper ? row : std::max(row, j - j % height),
              last = upper ? std::min(end, j + columns) : end;
    multiply_strips<columns>(last - first, RowStrips<T>{panel.at(first - row, 0), panel.depth}, p.b, t, j,
                             splats,
                             [=, this, &finish](auto q, int strip, auto* sum, auto rows) ORB_INLINE_BODY {
                               const int i = first + strip, column = j + q;
                               if (upper ? i + rows <= column : i > column)
                                 finish(sum, p.c + i + column * p.ldc, rows);
                               else
                                 write_crossed(finish.alpha * finish.join(sum), finish.old, i, column, rows);
                             });
  }

  void run(const Room<T>& room) const {
    const Finish<T> first(p.alpha, p.beta, p.a.conjugate, p.b.conjugate);
    const Finish<T> later(p.alpha, number<T>(1), p.a.conjugate, p.b.conjugate);
    const int last_row = upper ? part.to : p.m;
    for (int t = 0; t < p.k; t += most_depth) {
      const RowStrips<T> panel{room.panel, std::min(most_depth, p.k - t)};
      for (int row = upper ? 0 : part.from; row < last_row; row += room.rows) {
        const int end = std::min(last_row, row + room.rows), stop = upper ? part.to : std::min(end, part.to);
        pack(p.a, row, end - row, t, panel);
        int j = upper ? std::max(row - row % width, part.from) : part.from;
        const auto add = [&](auto columns) {
          add_columns<columns>(row, end, t, j, panel, room.splats, t == 0 ? first : later);
        };
        for (; j < stop && p.n - j >= width; j += width) add(Int<width>{});
        if (j < stop) last_columns<width - 1>(p.n - j, add);
      }
    }
  }

  // add_to(i, j) for every element of the triangle
  template <class AddTo>
  ORB_INLINE void for_each(AddTo add_to) const {
    for (int j = part.from; j < part.to; ++j)
      for (int i = upper ? 0 : j; i < (upper ? j + 1 : p.n); ++i) add_to(i, j);
  }

  // This update and its mirror image, which share one product. No larger than the square, and one slice deep:
  // the bits are then those of two updates.
  static constexpr int most_in_square = small_panel_bytes / int(sizeof(T));
  __attribute__((noinline)) void run_with_mirror(const Room<T>& room) const {
    alignas(64) T square[most_in_square];
    Product<T> whole = p;
    whole.beta = T{}, whole.c = square, whole.ldc = p.n;
    whole.run(room, p.n);
    const Old old = Finish<T>::use_of(p.beta);
    for_each([&](int i, int j) ORB_INLINE_BODY {
      const T mirrored = square[j + i * p.n];
      add(square[i + j * p.n], old, i, j);
      add(hermitian ? conj(mirrored) : mirrored, Finish<T>::kept, i, j);
    });
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

// The columns of `part` of C take one term, or two of which the second is the mirror image of the first.
template <bool hermitian, class T, class... Second>
void update_triangle(const char* uplo, const char* trans, int n, int k, T beta, T* c, int ldc,
                     ColumnRange part, Term<T> first, Second... second) {
  constexpr int alignment = 64;
  constexpr char across = hermitian ? 'C' : 'T';
  const bool upper = is_option(uplo, 'U'), plain = is_option(trans, 'N');
  const auto update = [&](const Term<T>& t, T old) {
    const Operand<T> x{plain ? 'N' : across, t.x, t.ldx}, y{plain ? across : 'N', t.y, t.ldy};
    return TriangleUpdate<hermitian, T>{upper, {n, n, k, t.alpha, x, y, old, c, ldc}, part};
  };
  const auto u = update(first, beta);
  const bool nothing = is_zero(first.alpha) || k <= 0;
  if (n <= 0 || (nothing && is_one(beta))) return;
  if (nothing) return u.for_each([&](int i, int j) { u.add(T{}, Finish<T>::use_of(beta), i, j); });
  with_room<T>(n, k, alignment, [&](const Room<T>& room) {
    if (sizeof...(second) > 0 && k <= most_depth && n <= u.most_in_square / n) return u.run_with_mirror(room);
    u.run(room);
    (update(second, number<T>(1)).run(room), ...);
  });
}

}  // namespace orb::blas::tiles
