// Applies a sequence of plane rotations to a matrix, to its rows from the left or to its columns from the
// right. A rotation takes the pair x, y to c x + s y, c y - s x; an identity is passed over.
// Source: E. Anderson et al., LAPACK Users' Guide, SIAM 1999.
#include <algorithm>

#include "blas/kernel/lapack/routines.h"
#include "orb/blas_lapack.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

// z - 1 rotations of z lines, the k-th in a plane that `pivot` chooses: V lines k and k + 1, T the first and
// k + 1, B k and the last.
template <class R>
struct Rotations {
  char pivot;
  bool forward;
  int z;
  const R *c, *s;

  template <class Body>
  ORB_INLINE void each(Body body) const {
    for (int step = 0; step < z - 1; ++step) {
      const int k = forward ? step : z - 2 - step;
      const int first = is_option(&pivot, 'T') ? 0 : k;
      const int second = is_option(&pivot, 'V') || is_option(&pivot, 'T') ? k + 1 : z - 1;
      if (c[k] != 1 || s[k] != 0) body(first, second, c[k], s[k]);
    }
  }
};

// Columns know nothing of each other, so several go at once: each rotation of one waits for the last.
template <int columns, class T>
void turn_columns(const Rotations<real_of<T>>& rotations, T* a, int lda) {
  using One = one_of<T>;
  rotations.each([=](int first, int second, auto c, auto s) {
    unroll<columns>([&](auto j) {
      T *const p = a + first + j * lda, *const q = a + second + j * lda;
      const One x = One::load(p), y = One::load(q);
      (One::splat(c) * x + One::splat(s) * y).store(p);
      (One::splat(c) * y - One::splat(s) * x).store(q);
    });
  });
}

template <class T>
void from_left(const Rotations<real_of<T>>& rotations, int n, T* a, int lda) {
  const int left =
      ladder<4>(0, n, [&](auto columns, int j) { turn_columns<columns>(rotations, a + j * lda, lda); });
  for (int j = left; j < n; ++j) turn_columns<1>(rotations, a + j * lda, lda);
}

// Rows in strips that let a handful of columns stay in the first-level cache, since two rotations in a row
// share one.
template <class T>
void from_right(const Rotations<real_of<T>>& rotations, int m, T* a, int lda) {
  constexpr int strip = 8192 / int(sizeof(T)), unit_stride = 1;
  for (int i = 0; i < m; i += strip) {
    const int rows = std::min(strip, m - i);
    rotations.each([=](int first, int second, auto c, auto s) {
      Routines<T>::rot(&rows, a + i + first * lda, &unit_stride, a + i + second * lda, &unit_stride, &c, &s);
    });
  }
}

template <class T>
void lasr(const char* side, const char* pivot, const char* direct, int m, int n, const real_of<T>* c,
          const real_of<T>* s, T* a, int lda) {
  if (m <= 0 || n <= 0) return;
  const bool left = is_option(side, 'L');
  const Rotations<real_of<T>> rotations{*pivot, is_option(direct, 'F'), left ? m : n, c, s};
  left ? from_left(rotations, n, a, lda) : from_right(rotations, m, a, lda);
}

}  // namespace
}  // namespace orb::blas

#define LASR(name, T, R)                                                                                    \
  ORB_EXPORT void name(const char* side, const char* pivot, const char* direct, const int* m, const int* n, \
                       const R* c, const R* s, T* a, const int* lda) {                                      \
    orb::blas::lasr(side, pivot, direct, *m, *n, c, s, a, *lda);                                            \
  }
LASR(orb_blas_slasr, float, float)
LASR(orb_blas_dlasr, double, double)
LASR(orb_blas_clasr, orb_complex_float, float)
LASR(orb_blas_zlasr, orb_complex_double, double)
