// The loops that anybody would write.
#include <algorithm>
#include <complex>

#include "bench/peers/sparse_peer.h"

namespace orb::bench {
namespace {

// The compiler's own complex type multiplies with a test for NaN in each product, unless told otherwise.
template <class T>
struct Peer {
  using Matrix = PeerMatrix<T>;

  static void mv(Matrix a, bool transposes, bool symmetric, T alpha, const T* x, T* y) {
    const int o = a.row_begin[0];
    for (int i = 0; i < a.m; ++i) {
      T sum = 0;
      const T t = alpha * x[i];
      for (int k = a.row_begin[i] - o; k < a.row_begin[i + 1] - o; ++k) {
        const int c = a.columns[k] - o;
        if (transposes || (symmetric && c < i)) y[c] += t * a.values[k];
        if (!transposes) sum += a.values[k] * x[c];
      }
      if (!transposes) y[i] += alpha * sum;
    }
  }

  // By rows the columns are innermost, by columns outermost.
  static void mm(Matrix a, bool transposes, bool symmetric, int n, T alpha, const T* b, int ldb, T* c,
                 int ldc) {
    if (a.from_one()) {
      for (int j = 0; j < n; ++j) mv(a, transposes, symmetric, alpha, b + j * ldb, c + j * ldc);
      return;
    }
    for (int i = 0; i < a.m; ++i)
      for (int k = a.row_begin[i]; k < a.row_begin[i + 1]; ++k) {
        const int col = a.columns[k];
        const T v = alpha * a.values[k];
        if (!transposes)
          for (int j = 0; j < n; ++j) c[i * ldc + j] += v * b[col * ldb + j];
        if (transposes || (symmetric && col < i))
          for (int j = 0; j < n; ++j) c[col * ldc + j] += v * b[i * ldb + j];
      }
  }

  static void sv(Matrix a, bool lower, const T* x, T* y) {
    for (int n = 0; n < a.m; ++n) {
      const int i = lower ? n : a.m - 1 - n;
      T sum = x[i], diagonal = 1;
      for (int k = a.row_begin[i]; k < a.row_begin[i + 1]; ++k) {
        const int c = a.columns[k];
        if (c == i)
          diagonal = a.values[k];
        else if (lower == (c < i))
          sum -= a.values[k] * y[c];
      }
      y[i] = sum / diagonal;
    }
  }

  static void sm(Matrix a, bool lower, int columns, const T* b, int ldb, T* c, int ldc) {
    for (int n = 0; n < a.m; ++n) {
      const int i = lower ? n : a.m - 1 - n;
      T diagonal = 1;
      std::copy(b + i * ldb, b + i * ldb + columns, c + i * ldc);
      for (int k = a.row_begin[i]; k < a.row_begin[i + 1]; ++k) {
        const int col = a.columns[k];
        const T v = a.values[k];
        if (col == i)
          diagonal = v;
        else if (lower == (col < i))
          for (int j = 0; j < columns; ++j) c[i * ldc + j] -= v * c[col * ldc + j];
      }
      for (int j = 0; j < columns; ++j) c[i * ldc + j] /= diagonal;
    }
  }
};

SPARSE_PEER(s, float, float)
SPARSE_PEER(d, double, double)
SPARSE_PEER(c, orb_complex_float, std::complex<float>)
SPARSE_PEER(z, orb_complex_double, std::complex<double>)

}  // namespace
}  // namespace orb::bench
