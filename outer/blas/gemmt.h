// One triangle of a matrix product: C = alpha op(A) op(B) + beta C, C n by n. The triangle is cut into panels
// of columns, always the same ones: the block on the diagonal is a product into scratch, of which the
// triangle goes to C; the rest of the panel is a product into C. Threads take the panels in turn.
#pragma once

#include "orb/services.h"
#include "outer/blas/gemm.h"

namespace orb {

// body(first, count) for the panels of n columns, `width` wide; each thread takes every so many-th one, which
// spreads long and short panels evenly.
template <class Body>
void in_panels(int n, int width, bool divide, Body body) {
  const int panels = (n + width - 1) / width;
  const int most = divide ? orb_get_max_threads() : 1, threads = panels < most ? panels : most;
  const auto turn = [&](int thread) {
    for (int p = thread; p < panels; p += threads) {
      const int first = p * width;
      body(first, first + width < n ? width : n - first);
    }
  };
  if (threads <= 1)
    turn(0);
  else
    run_pieces(threads, turn);
}

template <class T>
struct TriangularProduct {
  static constexpr int width = 128;

  const char *uplo, *transa, *transb;
  const int *n, *k;
  const T *alpha, *a;
  const int* lda;
  const T* b;
  const int* ldb;
  const T* beta;
  T* c;
  const int* ldc;

  void run() const {
    if (*n == 0 || (is_one(*beta) && (is_zero(*alpha) || *k == 0))) return;
    in_panels(*n, width, worth_dividing<T>(*n, *n, *k / 2), [this](int first, int count) {
      diagonal(first, count);
      if (is_option(uplo, 'U'))
        product(0, first, first, count, *beta, c + first * *ldc, *ldc);
      else
        product(first + count, *n - first - count, first, count, *beta, c + first + count + first * *ldc,
                *ldc);
    });
  }

 private:
  // `rows` rows of op(A) from `row` on times `columns` columns of op(B).
  void product(int row, int rows, int column, int columns, T scale, T* to, int distance) const {
    call<gemm_entry<T>>(transa, transb, &rows, &columns, k, alpha,
                        a + row * (is_option(transa, 'N') ? 1 : *lda), lda,
                        b + column * (is_option(transb, 'N') ? *ldb : 1), ldb, &scale, to, &distance);
  }

  void diagonal(int first, int count) const {
    T* const block = static_cast<T*>(orb_serv_allocate(count * count * int(sizeof(T)), 64));
    product(first, count, first, count, T{}, block, count);
    const bool upper = is_option(uplo, 'U');
    for (int j = 0; j < count; ++j) {
      T* const to = c + first + (first + j) * *ldc;
      const T* const from = block + j * count;
      const int begin = upper ? 0 : j, end = upper ? j + 1 : count;
      for (int i = begin; i < end; ++i) to[i] = is_zero(*beta) ? from[i] : *beta * to[i] + from[i];
    }
    orb_serv_deallocate(block);
  }
};

}  // namespace orb
