// Eigen's sparse products and triangular solutions, on the caller's own arrays.
#include <Eigen/Sparse>
#include <complex>

#include "bench/peers/sparse_peer.h"

namespace orb::bench {
namespace {

template <class T>
struct Peer {
  using Matrix = PeerMatrix<T>;
  using Sparse = Eigen::Map<const Eigen::SparseMatrix<T, Eigen::RowMajor, int>>;
  template <int layout>
  using Dense =
      Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, layout>;
  template <int layout>
  using Panel = Eigen::Map<Dense<layout>, 0, Eigen::OuterStride<>>;
  template <int layout>
  using ConstPanel = Eigen::Map<const Dense<layout>, 0, Eigen::OuterStride<>>;
  using Vector = Eigen::Map<Eigen::Matrix<T, Eigen::Dynamic, 1>>;
  using ConstVector = Eigen::Map<const Eigen::Matrix<T, Eigen::Dynamic, 1>>;

  // Numbers from 1 are Eigen's from 0 on arrays that begin one place earlier, with a column 0 that stays
  // empty.
  static Sparse map(const Matrix& a) {
    const int o = a.from_one();
    return Sparse(a.m, a.k + o, a.row_begin[a.m] - o, a.row_begin, a.columns - o, a.values - o);
  }

  template <class X, class Y>
  static void product(const Sparse& a, bool transposes, bool symmetric, T alpha, const X& x, Y y) {
    if (symmetric)
      y.noalias() += a.template selfadjointView<Eigen::Lower>() * (alpha * x);
    else if (transposes)
      y.noalias() += alpha * (a.transpose() * x);
    else
      y.noalias() += alpha * (a * x);
  }

  static void mv(Matrix a, bool transposes, bool symmetric, T alpha, const T* x, T* y) {
    product(map(a), transposes, symmetric, alpha, ConstVector(x, transposes ? a.m : a.k),
            Vector(y, transposes ? a.k : a.m));
  }
  static void mm(Matrix a, bool transposes, bool symmetric, int n, T alpha, const T* b, int ldb, T* c,
                 int ldc) {
    const int rows_b = transposes ? a.m : a.k, rows_c = transposes ? a.k : a.m;
    if (a.from_one())
      product(
          map(a), transposes, symmetric, alpha,
          ConstPanel<Eigen::ColMajor>(b - !transposes, rows_b + !transposes, n, Eigen::OuterStride<>(ldb)),
          Panel<Eigen::ColMajor>(c - transposes, rows_c + transposes, n, Eigen::OuterStride<>(ldc)));
    else
      product(map(a), transposes, symmetric, alpha,
              ConstPanel<Eigen::RowMajor>(b, rows_b, n, Eigen::OuterStride<>(ldb)),
              Panel<Eigen::RowMajor>(c, rows_c, n, Eigen::OuterStride<>(ldc)));
  }

  template <class Y>
  static void solve(const Sparse& a, bool lower, Y y) {
    if (lower)
      a.template triangularView<Eigen::Lower>().solveInPlace(y);
    else
      a.template triangularView<Eigen::Upper>().solveInPlace(y);
  }
  static void sv(Matrix a, bool lower, const T* x, T* y) {
    std::copy(x, x + a.m, y);
    solve(map(a), lower, Vector(y, a.m));
  }
  static void sm(Matrix a, bool lower, int n, const T* b, int ldb, T* c, int ldc) {
    Panel<Eigen::RowMajor> y(c, a.m, n, Eigen::OuterStride<>(ldc));
    y = ConstPanel<Eigen::RowMajor>(b, a.m, n, Eigen::OuterStride<>(ldb));
    solve(map(a), lower, y);
  }
};

SPARSE_PEER(s, float, float)
SPARSE_PEER(d, double, double)
SPARSE_PEER(c, orb_complex_float, std::complex<float>)
SPARSE_PEER(z, orb_complex_double, std::complex<double>)

}  // namespace
}  // namespace orb::bench
