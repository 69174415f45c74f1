// Solves a tridiagonal system by Gaussian elimination with row exchanges between neighbours, which fill a
// second superdiagonal. Source: G. H. Golub, C. F. Van Loan, Matrix Computations, section 4.3.
#include "blas/kernel/lapack/arithmetic.h"
#include "orb/blas_lapack.h"

namespace orb::blas {
namespace {

// The tridiagonal matrix; after row i is eliminated, dl[i] holds its second superdiagonal.
template <class T>
struct Tridiagonal {
  int n;
  T *dl, *d, *du;
};

template <class T>
void keep_row(const Tridiagonal<T>& a, int i, int nrhs, T* b, int ldb) {
  const T factor = divide(a.dl[i], a.d[i]);
  a.d[i + 1] -= factor * a.du[i];
  if (i < a.n - 2) a.dl[i] = T{};
  for (int j = 0; j < nrhs; ++j, b += ldb) b[i + 1] -= factor * b[i];
}

// Rows i and i + 1 change places first.
template <class T>
void exchange_rows(const Tridiagonal<T>& a, int i, int nrhs, T* b, int ldb) {
  const T factor = divide(a.d[i], a.dl[i]), below = a.d[i + 1];
  a.d[i] = a.dl[i];
  a.d[i + 1] = a.du[i] - factor * below;
  a.du[i] = below;
  if (i < a.n - 2) {
    a.dl[i] = a.du[i + 1];
    a.du[i + 1] = T{} - factor * a.dl[i];
  }
  for (int j = 0; j < nrhs; ++j, b += ldb) {
    const T old = b[i];
    b[i] = b[i + 1];
    b[i + 1] = old - factor * b[i];
  }
}

// 0, or the place from 1 of the first zero pivot.
template <class T>
int eliminate(const Tridiagonal<T>& a, int nrhs, T* b, int ldb) {
  for (int i = 0; i < a.n - 1; ++i)
    if (size_of(a.d[i]) >= size_of(a.dl[i])) {
      if (is_zero(a.d[i])) return i + 1;
      keep_row(a, i, nrhs, b, ldb);
    } else {
      exchange_rows(a, i, nrhs, b, ldb);
    }
  return is_zero(a.d[a.n - 1]) ? a.n : 0;
}

template <class T>
void substitute_back(const Tridiagonal<T>& a, T* x) {
  for (int i = a.n - 1; i >= 0; --i) {
    T rest = x[i];
    if (i < a.n - 1) rest -= a.du[i] * x[i + 1];
    if (i < a.n - 2) rest -= a.dl[i] * x[i + 2];
    x[i] = divide(rest, a.d[i]);
  }
}

template <class T>
int gtsv(int n, int nrhs, T* dl, T* d, T* du, T* b, int ldb) {
  if (n <= 0) return 0;
  const Tridiagonal<T> a{n, dl, d, du};
  const int place = eliminate(a, nrhs, b, ldb);
  for (int j = 0; j < nrhs && place == 0; ++j) substitute_back(a, b + j * ldb);
  return place;
}

}  // namespace
}  // namespace orb::blas

#define GTSV(name, T)                                                                                        \
  ORB_EXPORT void name(const int* n, const int* nrhs, T* dl, T* d, T* du, T* b, const int* ldb, int* info) { \
    *info = orb::blas::gtsv(*n, *nrhs, dl, d, du, b, *ldb);                                                  \
  }
GTSV(orb_blas_sgtsv, float)
GTSV(orb_blas_dgtsv, double)
GTSV(orb_blas_cgtsv, orb_complex_float)
GTSV(orb_blas_zgtsv, orb_complex_double)
