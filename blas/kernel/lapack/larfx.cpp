// Applies the reflector H = I - tau v v^H to a matrix. Orders 1 to 10 are straight code, in which the
// reflector stays at hand while C is passed over once; above, one product with a vector and one column update
// after the other. Sources: A. S. Householder, J. ACM 5 (1958) 339-342; E. Anderson et al., LAPACK Users'
// Guide, SIAM 1999.
#include "blas/kernel/lapack/arithmetic.h"
#include "blas/kernel/lapack/routines.h"
#include "orb/blas_lapack.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

constexpr int most_straight = 10, unit_stride = 1;

// body(Int<order>{}) for an order of 1 to most_straight.
template <class Body, int... i>
void with_order(int order, Body body, std::integer_sequence<int, i...>) {
  ((order == i + 1 ? body(Int<i + 1>{}) : void()), ...);
}

// H C, C with `order` rows: each column x loses tau v (v^H x).
template <int order, class T>
void straight_left(int n, const T* v, T tau, T* c, int ldc) {
  T row[order], column[order];
  unroll<order>([&](auto i) { row[i] = conj(v[i]), column[i] = tau * v[i]; });
  for (int j = 0; j < n; ++j, c += ldc) {
    T sum = row[0] * c[0];
    unroll<order - 1>([&](auto i) { sum += row[i + 1] * c[i + 1]; });
    unroll<order>([&](auto i) { c[i] -= sum * column[i]; });
  }
}

// C H, C with `order` columns: each row x loses (x v) tau v^H.
template <int order, class T>
void straight_right(int m, const T* v, T tau, T* c, int ldc) {
  using V = vector_of<T>;
  using One = one_of<T>;
  T row[order];
  unroll<order>([&](auto j) { row[j] = tau * conj(v[j]); });
  const auto step = [=]<class W>(W, int i) {
    W sum = W::splat(v[0]) * W::loadu(c + i);
    unroll<order - 1>([&](auto j) { sum += W::splat(v[j + 1]) * W::loadu(c + i + (j + 1) * ldc); });
    unroll<order>([&](auto j) {
      T* const p = c + i + j * ldc;
      (W::loadu(p) - W::splat(row[j]) * sum).storeu(p);
    });
  };
  int i = 0;
  for (; m - i >= V::lanes; i += V::lanes) step(V{}, i);
  for (; i < m; ++i) step(One{}, i);
}

// Of order 1, H is one number.
template <class T>
void scale(int m, int n, T v, T tau, T* c, int ldc) {
  const T h = element<T>(1) - tau * (v * conj(v));
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < m; ++i) c[i + j * ldc] = h * c[i + j * ldc];
}

// work = C^H v, then C(:, j) -= tau conj(work[j]) v.
template <class T>
void long_left(int m, int n, const T* v, T tau, T* c, int ldc, T* work) {
  const T one = element<T>(1), zero = T{};
  Routines<T>::gemv("C", &m, &n, &one, c, &ldc, v, &unit_stride, &zero, work, &unit_stride);
  for (int j = 0; j < n; ++j) {
    const T factor = T{} - tau * conj(work[j]);
    Routines<T>::axpy(&m, &factor, v, &unit_stride, c + j * ldc, &unit_stride);
  }
}

// work = C v, then C(:, j) -= tau conj(v[j]) work.
template <class T>
void long_right(int m, int n, const T* v, T tau, T* c, int ldc, T* work) {
  const T one = element<T>(1), zero = T{};
  Routines<T>::gemv("N", &m, &n, &one, c, &ldc, v, &unit_stride, &zero, work, &unit_stride);
  for (int j = 0; j < n; ++j) {
    const T factor = T{} - tau * conj(v[j]);
    Routines<T>::axpy(&m, &factor, work, &unit_stride, c + j * ldc, &unit_stride);
  }
}

template <class T>
void larfx(bool left, int m, int n, const T* v, T tau, T* c, int ldc, T* work) {
  const int order = left ? m : n;
  if (m <= 0 || n <= 0 || is_zero(tau)) return;
  if (order == 1) return scale(m, n, v[0], tau, c, ldc);
  if (order > most_straight)
    return left ? long_left(m, n, v, tau, c, ldc, work) : long_right(m, n, v, tau, c, ldc, work);
  with_order(
      order,
      [=](auto size) {
        left ? straight_left<size>(n, v, tau, c, ldc) : straight_right<size>(m, v, tau, c, ldc);
      },
      std::make_integer_sequence<int, most_straight>{});
}

}  // namespace
}  // namespace orb::blas

#define LARFX(name, T)                                                                               \
  ORB_EXPORT void name(const char* side, const int* m, const int* n, const T* v, const T* tau, T* c, \
                       const int* ldc, T* work) {                                                    \
    orb::blas::larfx(orb::is_option(side, 'L'), *m, *n, v, *tau, c, *ldc, work);                     \
  }
LARFX(orb_blas_slarfx, float)
LARFX(orb_blas_dlarfx, double)
LARFX(orb_blas_clarfx, orb_complex_float)
LARFX(orb_blas_zlarfx, orb_complex_double)
