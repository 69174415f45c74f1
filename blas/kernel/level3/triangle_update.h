// C = alpha X Y^T + beta C, and its sum with the mirror image, on one triangle of a symmetric C; with
// conjugate transposes on one of a Hermitian C. The triangle is halved until it is small: the rectangle
// between the halves goes to the matrix products, straight into C, and the small triangles on the diagonal
// are cut from squares in scratch. Splits lie at multiples of `leaf`, whatever the order.
#pragma once

#include <algorithm>

#include "blas/kernel/level3/product.h"
#include "blas/kernel/level3/scalars.h"
#include "orb/services.h"

namespace orb::blas {

template <class T>
struct Term {
  T alpha;
  const T* x;
  int ldx;
  const T* y;
  int ldy;
};

// `mirrored`: C takes the term and its (conjugate) transpose.
template <bool hermitian, bool mirrored, class T>
struct TriangleUpdate {
  static constexpr int leaf = 48;  // whole tiles of all products, without odd columns
  bool upper, plain;               // plain: X and Y have C's rows, and else k rows
  int k;
  Term<T> term;
  T beta;
  T* c;
  int ldc;
  T* square;

  static constexpr char across = hermitian ? 'C' : 'T';
  T mirror(T x) const {
    if constexpr (hermitian) return conj(x);
    return x;
  }

  // to = old to + rows from i on of the term, by columns from j on.
  void add(const Term<T>& t, int i, int rows, int j, int columns, T old, T* to, int ld) const {
    if (plain)
      product<T>(rows, columns, k, t.alpha, {'N', t.x + i, t.ldx}, {across, t.y + j, t.ldy}, old, to, ld);
    else
      product<T>(rows, columns, k, t.alpha, {across, t.x + i * t.ldx, t.ldx}, {'N', t.y + j * t.ldy, t.ldy},
                 old, to, ld);
  }

  void rectangle(int i, int rows, int j, int columns) const {
    T* const to = c + i + j * ldc;
    add(term, i, rows, j, columns, beta, to, ldc);
    if constexpr (mirrored)
      add({mirror(term.alpha), term.y, term.ldy, term.x, term.ldx}, i, rows, j, columns, number<T>(1), to,
          ldc);
  }

  void diagonal(int i, int n) const {
    add(term, i, n, i, n, T{}, square, n);
    T* column = c + i + i * ldc;
    for (int j = 0; j < n; ++j, column += ldc) {
      const int first = upper ? 0 : j, end = upper ? j + 1 : n;
      for (int r = first; r < end; ++r) {
        T x = square[r + j * n];
        if constexpr (mirrored) x += mirror(square[j + r * n]);
        if (!is_zero(beta)) x += scaled(column[r]);
        column[r] = x;
      }
      if constexpr (hermitian) column[j].im = 0;
    }
  }
  T scaled(T x) const {
    if constexpr (hermitian)
      return beta.re * x;
    else
      return beta * x;
  }

  void triangle(int i, int n) const {
    if (n <= leaf) return diagonal(i, n);
    const int head = (n / 2 + leaf - 1) / leaf * leaf, tail = n - head;
    triangle(i, head);
    if (upper)
      rectangle(i, head, i + head, tail);
    else
      rectangle(i + head, tail, i, head);
    triangle(i + head, tail);
  }

  void run(int n) {
    if (n <= 0 || ((is_zero(term.alpha) || k <= 0) && is_one(beta))) return;
    const int most = std::min(n, leaf);
    square = static_cast<T*>(orb_serv_allocate(most * most * int(sizeof(T)), 64));
    triangle(0, n);
    orb_serv_deallocate(square);
  }
};

template <bool hermitian, bool mirrored, class T>
void update_triangle(const char* uplo, const char* trans, int n, int k, Term<T> term, T beta, T* c, int ldc) {
  TriangleUpdate<hermitian, mirrored, T> update{
      is_option(uplo, 'U'), is_option(trans, 'N'), k, term, beta, c, ldc, nullptr};
  update.run(n);
}

}  // namespace orb::blas
