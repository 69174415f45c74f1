// Solves A X = B for a positive definite tridiagonal A that is factored already: one sweep down with the
// bidiagonal factor, one up with the diagonal and the factor's transpose. A single column waits for itself at
// every step, so columns go side by side: a strip of two registers of them is laid out by rows in scratch.
// Source: G. H. Golub, C. F. Van Loan, Matrix Computations, section 4.3.
#include <algorithm>

#include "blas/kernel/lapack/arithmetic.h"
#include "orb/blas_lapack.h"
#include "orb/services.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <class V>
ORB_INLINE V divided(V x, typename V::scalar d) {
  return x / V::splat(d);
}
template <class V>
ORB_INLINE V divided(V x, typename V::Register::scalar d) {
  return {x.v / V::Register::splat(d)};
}

// x has one row of V after the other. The sweep down takes e, or its conjugate, and the sweep up the other.
template <class V, bool conjugate_down, class T>
void sweep(int n, const real_of<T>* d, const T* e, T* x) {
  constexpr int width = V::lanes;
  const auto down = [&](int i) { return V::splat(conjugate_down ? conj(e[i]) : e[i]); };
  const auto up = [&](int i) { return V::splat(conjugate_down ? e[i] : conj(e[i])); };
  V last = V::loadu(x);
  for (int i = 1; i < n; ++i) {
    last = V::loadu(x + i * width) - down(i - 1) * last;
    last.storeu(x + i * width);
  }
  last = divided(last, d[n - 1]);
  last.storeu(x + (n - 1) * width);
  for (int i = n - 2; i >= 0; --i) {
    last = divided(V::loadu(x + i * width), d[i]) - up(i) * last;
    last.storeu(x + i * width);
  }
}

// Two registers under the words of one.
template <class V>
struct Pair {
  static constexpr int lanes = 2 * V::lanes;
  V a, b;

  template <class T>
  static ORB_INLINE auto splat(T f) {
    return V::splat(f);
  }
  template <class T>
  static ORB_INLINE Pair loadu(const T* p) {
    return {V::load(p), V::load(p + V::lanes)};
  }
  template <class T>
  ORB_INLINE void storeu(T* p) const {
    a.store(p);
    b.store(p + V::lanes);
  }
  friend ORB_INLINE Pair operator-(Pair x, Pair y) { return {x.a - y.a, x.b - y.b}; }
  template <class F>
  friend ORB_INLINE Pair operator*(F f, Pair x) {
    return {f * x.a, f * x.b};
  }
  template <class R>
  friend ORB_INLINE Pair divided(Pair x, R d) {
    return {divided(x.a, d), divided(x.b, d)};
  }
};

// Columns beyond the last are zeros.
template <bool conjugate_down, class T>
void solve_strips(int n, int nrhs, const real_of<T>* d, const T* e, T* b, int ldb) {
  using Strip = Pair<vector_of<T>>;
  constexpr int width = Strip::lanes;
  T* const rows = static_cast<T*>(orb_serv_allocate(n * width * int(sizeof(T)), 64));
  for (int j = 0; j < nrhs; j += width) {
    const int columns = std::min(width, nrhs - j);
    T* const strip = b + j * ldb;
    for (int i = 0; i < n; ++i)
      for (int k = 0; k < width; ++k) rows[i * width + k] = k < columns ? strip[i + k * ldb] : T{};
    sweep<Strip, conjugate_down>(n, d, e, rows);
    for (int i = 0; i < n; ++i)
      for (int k = 0; k < columns; ++k) strip[i + k * ldb] = rows[i * width + k];
  }
  orb_serv_deallocate(rows);
}

template <bool conjugate_down, class T>
void ptts2(int n, int nrhs, const real_of<T>* d, const T* e, T* b, int ldb) {
  if (n <= 0 || nrhs <= 0) return;
  if (nrhs == 1) return sweep<one_of<T>, conjugate_down>(n, d, e, b);
  solve_strips<conjugate_down>(n, nrhs, d, e, b, ldb);
}

template <Complex C>
void ptts2(int iuplo, int n, int nrhs, const real_of<C>* d, const C* e, C* b, int ldb) {
  const auto solve = iuplo == 1 ? ptts2<true, C> : ptts2<false, C>;
  solve(n, nrhs, d, e, b, ldb);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sptts2(const int* n, const int* nrhs, const float* d, const float* e, float* b,
                                const int* ldb) {
  orb::blas::ptts2<false>(*n, *nrhs, d, e, b, *ldb);
}
ORB_EXPORT void orb_blas_dptts2(const int* n, const int* nrhs, const double* d, const double* e, double* b,
                                const int* ldb) {
  orb::blas::ptts2<false>(*n, *nrhs, d, e, b, *ldb);
}
ORB_EXPORT void orb_blas_cptts2(const int* iuplo, const int* n, const int* nrhs, const float* d,
                                const orb_complex_float* e, orb_complex_float* b, const int* ldb) {
  orb::blas::ptts2(*iuplo, *n, *nrhs, d, e, b, *ldb);
}
ORB_EXPORT void orb_blas_zptts2(const int* iuplo, const int* n, const int* nrhs, const double* d,
                                const orb_complex_double* e, orb_complex_double* b, const int* ldb) {
  orb::blas::ptts2(*iuplo, *n, *nrhs, d, e, b, *ldb);
}
