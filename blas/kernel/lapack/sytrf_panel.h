// The first columns of a symmetric indefinite factorisation A = L D L^T, the rest of A being left as it was
// but for exchanges. A column takes the columns before it only when its turn comes; W keeps L D, which is all
// that the rest of A needs besides L.
#pragma once

#include <utility>

#include "blas/kernel/lapack/arithmetic.h"
#include "blas/kernel/lapack/mirror.h"
#include "blas/kernel/lapack/routines.h"

namespace orb::blas {

constexpr int panel_width = 32;  // the fastest of those tried

// C -= A B^T, C m by n, A m by k, B n by k.
template <bool upper, class T>
void subtract_product(int m, int n, int k, Mirror<upper, T> a, Mirror<upper, T> b, Mirror<upper, T> c) {
  const T minus_one = element<T>(-1), one = element<T>(1);
  if (m <= 0 || n <= 0 || k <= 0) return;
  Routines<T>::gemm("N", "T", &m, &n, &k, &minus_one, a.block(0, 0, m, k), &a.ld, b.block(0, 0, n, k), &b.ld,
                    &one, c.block(0, 0, m, n), &c.ld);
}

template <bool upper, class T>
struct Panel {
  using R = real_of<T>;
  using View = Mirror<upper, T>;

  int n, width;  // the order of A, and the columns to be done at most: n of them, or two or more
  View a, w;     // A, and W with n by `width` elements

  int done = 0;         // columns done: `width`, or one less where a pivot of order 2 would not fit
  int zero_pivot = -1;  // the first zero on the diagonal of D
  int exchange[panel_width] = {};  // what row (a pair: its second row) changed places with
  bool paired[panel_width] = {};   // is the row part of a pivot of order 2?

  void factor() {
    while (done < n && (done < width - 1 || width == n)) eliminate();
  }

  // Column j of the result is as its own step left it: later exchanges are taken back from it, once
  // the rest of A has had its product.
  void restore_rows() {
    for (int k = done - 1; k > 0; --k) {
      const int at = k, p = exchange[k], columns = paired[k] ? k - 1 : k;
      for (int j = 0; j < columns && p != at; ++j) std::swap(a(at, j), a(p, j));
      if (paired[k]) --k;
    }
  }

 private:
  // (1 + sqrt(17)) / 8: bounds the growth over two pivots of order 1 as that over one of order 2.
  static constexpr R alpha = R(0.6403882032022076);

  // Copies what the lower triangle holds of row and column j, from row k on, into column `to` of W, and takes
  // the columns done from it.
  void fetch(int j, int to) {
    const int k = done;
    for (int i = k; i < j; ++i) w(i, to) = a(j, i);
    for (int i = j; i < n; ++i) w(i, to) = a(i, j);
    subtract_product(n - k, 1, k, a.from(k, 0), w.from(j, 0), w.from(k, to));
  }

  // The row from `first` to `end` with the largest element of column j of W. Among equals it is the one that
  // comes first in memory, for either triangle. None: -1.
  int largest(int first, int end, int j) const {
    constexpr int unit_stride = 1;
    const int count = end - first;
    if (count <= 0) return -1;
    const int in_memory = Routines<T>::amax(&count, w.block(first, j, count, 1), &unit_stride) - 1;
    return upper ? end - 1 - in_memory : first + in_memory;
  }
  R size_at(int row, int j) const { return row < 0 ? 0 : size_of(w(row, j)); }

  void eliminate() {
    const int k = done;
    fetch(k, k);
    const int below = largest(k + 1, n, k);
    const R diagonal = size_at(k, k), column = size_at(below, k);
    if (!(std::max(diagonal, column) > 0) || diagonal != diagonal) {
      if (zero_pivot < 0) zero_pivot = k;
      for (int i = k; i < n; ++i) a(i, k) = w(i, k);
      exchange[k] = k;
      ++done;
      return;
    }
    if (diagonal >= alpha * column) return single(k);
    fetch(below, k + 1);
    const R row =
        std::max(size_at(largest(k, below, k + 1), k + 1), size_at(largest(below + 1, n, k + 1), k + 1));
    if (diagonal >= alpha * column * (column / row)) return single(k);
    if (size_at(below, k + 1) < alpha * row) return couple(below);
    for (int i = k; i < n; ++i) w(i, k) = w(i, k + 1);
    single(below);
  }

  // Row and column p come to the place of `at`, and what A had there goes to p. Rows of the finished columns
  // go with them until the panel is done.
  void exchange_rows(int at, int p) {
    if (p == at) return;
    a(p, p) = a(at, at);
    for (int i = at + 1; i < p; ++i) a(p, i) = a(i, at);
    for (int i = p + 1; i < n; ++i) a(i, p) = a(i, at);
    for (int j = 0; j < done; ++j) std::swap(a(at, j), a(p, j));
    for (int j = 0; j <= at; ++j) std::swap(w(at, j), w(p, j));
  }

  // Row p as a pivot of order 1.
  void single(int p) {
    const int k = done;
    exchange_rows(k, p);
    const T pivot = a(k, k) = w(k, k);
    for (int i = k + 1; i < n; ++i) a(i, k) = divide(w(i, k), pivot);
    exchange[k] = p;
    ++done;
  }

  // Rows k and p as a pivot of order 2, D = e (r 1; 1 q) with the off-diagonal element e, so that
  // (x, y) D^-1 = ((q x - y), (r y - x)) / (e (r q - 1)). Neither r nor q is large.
  void couple(int p) {
    const int k = done;
    exchange_rows(k + 1, p);
    const T e = w(k + 1, k), r = divide(w(k, k), e), q = divide(w(k + 1, k + 1), e);
    const T scale = divide(divide(element<T>(1), r * q - element<T>(1)), e);
    a(k, k) = w(k, k);
    a(k + 1, k) = e;
    a(k + 1, k + 1) = w(k + 1, k + 1);
    for (int i = k + 2; i < n; ++i) {
      const T x = w(i, k), y = w(i, k + 1);
      a(i, k) = scale * (q * x - y);
      a(i, k + 1) = scale * (r * y - x);
    }
    exchange[k] = exchange[k + 1] = p;
    paired[k] = paired[k + 1] = true;
    done += 2;
  }
};

}  // namespace orb::blas
