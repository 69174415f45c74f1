// Symmetric indefinite factorisation with diagonal pivots of order 1 and 2.
// Source: J. R. Bunch, L. Kaufman, Some stable methods for calculating inertia and solving symmetric linear
// systems, Math. Comp. 31 (1977) 163-179.
#include <algorithm>

#include "blas/kernel/lapack/sytrf_panel.h"
#include "orb/blas_lapack.h"

namespace orb::blas {
namespace {

// The lower triangle of C, of order n, -= L W^T, L and W n by k. Halved until a product of single columns is
// all that is left: the other triangle is not ours.
template <bool upper, class T>
void subtract_product(int n, int k, Mirror<upper, T> l, Mirror<upper, T> w, Mirror<upper, T> c) {
  constexpr int smallest = 16;
  if (n <= smallest) {
    for (int j = 0; j < n; ++j) subtract_product(n - j, 1, k, l.from(j, 0), w.from(j, 0), c.from(j, j));
    return;
  }
  const int half = (n / 2 + smallest - 1) / smallest * smallest;
  subtract_product(half, k, l, w, c);
  subtract_product(n - half, half, k, l.from(half, 0), w, c.from(half, 0));
  subtract_product(n - half, k, l.from(half, 0), w.from(half, 0), c.from(half, half));
}

// Pivots of the mirrored matrix as places from 1 in the matrix itself.
template <bool upper>
int place_of(int row, int n) {
  return upper ? n - row : row + 1;
}

// Panels from the corner on; what is left after each takes it as one product. Returns the place from 1 of the
// first zero pivot, or 0. W has room for n by panel_width elements.
template <bool upper, class T>
int factor(int n, T* a, int lda, int* ipiv, T* w) {
  const auto whole = Mirror<upper, T>::over(a, n, n, lda);
  int info = 0;
  for (int k = 0; k < n;) {
    const int left = n - k, width = std::min(left, panel_width);
    Panel<upper, T> panel{left, width, whole.from(k, k), Mirror<upper, T>::over(w, left, width, left)};
    panel.factor();
    if (info == 0 && panel.zero_pivot >= 0) info = place_of<upper>(k + panel.zero_pivot, n);
    for (int j = 0; j < panel.done; ++j) {
      const int place = place_of<upper>(k + panel.exchange[j], n);
      ipiv[place_of<upper>(k + j, n) - 1] = panel.paired[j] ? -place : place;
    }
    const int d = panel.done;
    subtract_product(left - d, d, panel.a.from(d, 0), panel.w.from(d, 0), panel.a.from(d, d));
    panel.restore_rows();
    k += d;
  }
  return info;
}

template <class T>
int sytrf(bool upper, int n, T* a, int lda, int* ipiv, T* work, int lwork) {
  const int best = std::max(1, n * panel_width);
  int info = 0;
  if (lwork != -1 && n > 0) {
    const bool own = lwork < best;
    T* const w = own ? static_cast<T*>(orb_serv_allocate(best * int(sizeof(T)), 64)) : work;
    info = (upper ? factor<true, T> : factor<false, T>)(n, a, lda, ipiv, w);
    if (own) orb_serv_deallocate(w);
  }
  work[0] = element<T>(real_of<T>(best));
  return info;
}

}  // namespace
}  // namespace orb::blas

#define SYTRF(name, T)                                                                           \
  ORB_EXPORT void name(const char* uplo, const int* n, T* a, const int* lda, int* ipiv, T* work, \
                       const int* lwork, int* info) {                                            \
    *info = orb::blas::sytrf(orb::is_option(uplo, 'U'), *n, a, *lda, ipiv, work, *lwork);        \
  }
SYTRF(orb_blas_ssytrf, float)
SYTRF(orb_blas_dsytrf, double)
SYTRF(orb_blas_csytrf, orb_complex_float)
SYTRF(orb_blas_zsytrf, orb_complex_double)
