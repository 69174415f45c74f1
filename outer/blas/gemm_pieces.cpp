// Division of matrix products among threads.
#include "outer/blas/gemm.h"
#include "outer/threads.h"

namespace orb {
namespace {

// Where one dimension may be cut: at multiples of `unit`, no piece shorter than `least` (a multiple of unit).
struct Grain {
  int unit, least;

  int pieces(int extent, int wanted) const {
    const int most = extent / least;
    return wanted < most ? wanted : most > 1 ? most : 1;
  }
  // Start of piece i of `count`, `extent` for i == count. Pieces differ by one unit at most, but for the
  // last, which has the odd end.
  int start(int i, int count, int extent) const {
    return i == count ? extent : int((long long)(extent) / unit * i / count) * unit;
  }
};

template <class T>
struct Product {
  const char *transa, *transb;
  int m, n, k;
  const T *alpha, *a;
  int lda;
  const T* b;
  int ldb;
  const T* beta;
  T* c;
  int ldc;

  void run() const { gemm_kernel<T>()(transa, transb, &m, &n, &k, alpha, a, &lda, b, &ldb, beta, c, &ldc); }
  // Rows from `first` on, or columns.
  Product rows(int first, int count) const {
    Product p = *this;
    p.m = count;
    p.a += first * (is_option(transa, 'N') ? 1 : lda);
    p.c += first;
    return p;
  }
  Product columns(int first, int count) const {
    Product p = *this;
    p.n = count;
    p.b += first * (is_option(transb, 'N') ? ldb : 1);
    p.c += first * ldc;
    return p;
  }
};

// An element of C must be computed in the same way whatever the cut: each piece takes the same path through
// the kernel as the whole, and the rows and columns that the kernel treats apart are the same ones.
//
// dgemm takes its small path for m < 4, n < 8 or k < 8, and treats apart the odd last row and the last n mod
// 4 columns. So rows are cut at even places, columns at multiples of 4, into pieces well above the small
// sizes; a product that is small as a whole has small pieces.
Grain row_grain(const Product<double>&) { return {4, 32}; }
Grain column_grain(const Product<double>&) { return {4, 16}; }

// sgemm takes its small path below 8, or below m + n + k = 150 (what is divided at all lies far above), and
// treats apart the last m mod 16 rows. So rows are cut at multiples of 16, columns anywhere.
constexpr int blocked_sum = 150;
int at_least(int size, int lacking) { return lacking > size ? (lacking + 15) & ~15 : size; }
Grain row_grain(const Product<float>& p) { return {16, at_least(64, blocked_sum - p.n - p.k)}; }
Grain column_grain(const Product<float>& p) { return {4, at_least(16, blocked_sum - p.m - p.k)}; }

// Columns first: each piece packs all of A again, but runs along full columns of it. Rows where that gives
// more pieces.
template <class T>
void divide(const Product<T>& whole) {
  const int threads = orb_get_max_threads();
  const Grain rows = row_grain(whole), columns = column_grain(whole);
  const int down = rows.pieces(whole.m, threads), across = columns.pieces(whole.n, threads);
  if (across <= 1 && down <= 1) return whole.run();
  if (across >= down)
    run_pieces(across, [&](int i) {
      const int from = columns.start(i, across, whole.n), to = columns.start(i + 1, across, whole.n);
      whole.columns(from, to - from).run();
    });
  else
    run_pieces(down, [&](int i) {
      const int from = rows.start(i, down, whole.m), to = rows.start(i + 1, down, whole.m);
      whole.rows(from, to - from).run();
    });
}

}  // namespace

ORB_ASIDE void gemm_in_pieces(const char* transa, const char* transb, const int* m, const int* n,
                              const int* k, const float* alpha, const float* a, const int* lda,
                              const float* b, const int* ldb, const float* beta, float* c, const int* ldc) {
  divide<float>({transa, transb, *m, *n, *k, alpha, a, *lda, b, *ldb, beta, c, *ldc});
}
ORB_ASIDE void gemm_in_pieces(const char* transa, const char* transb, const int* m, const int* n,
                              const int* k, const double* alpha, const double* a, const int* lda,
                              const double* b, const int* ldb, const double* beta, double* c,
                              const int* ldc) {
  divide<double>({transa, transb, *m, *n, *k, alpha, a, *lda, b, *ldb, beta, c, *ldc});
}

}  // namespace orb
