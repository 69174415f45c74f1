// y = alpha op(A) x + beta y, A banded: column by column.
#include <algorithm>

#include "blas/kernel/level2/columns.h"
#include "blas/kernel/level2/scale.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

template <class T>
struct BandColumn {
  int first, count;
  Columns<1, T> at;
};

// Column j in the rows that the band and the matrix have in common.
template <class T>
BandColumn<T> band_column(const T* a, int lda, int m, int kl, int ku, int j) {
  const int first = std::max(0, j - ku), end = std::min(m, j + kl + 1);
  return {first, end - first, {{a + (j * lda + ku - j + first)}}};
}

template <class T>
void gbmv(const char* trans, int m, int n, int kl, int ku, T alpha, const T* a, int lda, const T* x, int incx,
          T beta, T* y, int incy) {
  if (m == 0 || n == 0 || (is_zero(alpha) && is_one(beta))) return;
  const bool plain = is_option(trans, 'N'), conjugate = !is_option(trans, 'T');
  x = strided_start(x, plain ? n : m, incx);
  y = strided_start(y, plain ? m : n, incy);
  scale(plain ? m : n, beta, y, incy);
  if (is_zero(alpha)) return;
  for (int j = 0; j < std::min(n, m + ku); ++j) {
    const BandColumn<T> c = band_column(a, lda, m, kl, ku, j);
    if (plain) {
      const T t[] = {alpha * x[j * incx]};
      add_columns(c.count, c.at, t, y + c.first * incy, incy);
    } else {
      T sum[1];
      conjugate ? dot_columns<true>(c.count, c.at, x + c.first * incx, incx, sum)
                : dot_columns<false>(c.count, c.at, x + c.first * incx, incx, sum);
      y[j * incy] += alpha * sum[0];
    }
  }
}

}  // namespace
}  // namespace orb::blas

#define GBMV(name, T)                                                                               \
  ORB_EXPORT void name(const char* trans, const int* m, const int* n, const int* kl, const int* ku, \
                       const T* alpha, const T* a, const int* lda, const T* x, const int* incx,     \
                       const T* beta, T* y, const int* incy) {                                      \
    orb::blas::gbmv(trans, *m, *n, *kl, *ku, *alpha, a, *lda, x, *incx, *beta, y, *incy);           \
  }
GBMV(orb_blas_sgbmv, float)
GBMV(orb_blas_dgbmv, double)
GBMV(orb_blas_cgbmv, orb_complex_float)
GBMV(orb_blas_zgbmv, orb_complex_double)
