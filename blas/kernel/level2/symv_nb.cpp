// The symmetric product by diagonal blocks: each block by itself, and the panel of the triangle beside it.
#include "blas/kernel/level2/symv.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

// The panel of `rows` and `columns` and its mirror image; pointers are those of the whole matrix.
template <class T>
void add_panel(Rows rows, Rows cols, T alpha, const T* a, int lda, const T* x, int incx, T* y, int incy) {
  const auto add = [&](auto width, int c) {
    T t[width], sum[width];
    unroll<width>([&](auto k) { t[k] = alpha * x[(c + k) * incx]; });
    add_and_dot<true>(rows.count(), columns<width>(a + rows.begin + c * lda, lda), t, y + rows.begin * incy,
                      incy, x + rows.begin * incx, incx, sum);
    unroll<width>([&](auto k) { y[(c + k) * incy] += alpha * sum[k]; });
  };
  for (int c = ladder<columns_both_ways<T>>(cols.begin, cols.end, add); c < cols.end; ++c) add(Int<1>{}, c);
}

template <class T>
void symv_nb(const char* uplo, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y,
             int incy, int nb) {
  if (nb < 1) nb = n;
  scale_and_add(n, alpha, x, incx, beta, y, incy, [&](const T* x0, T* y0) {
    for (int j = 0, width; j < n; j += width) {
      width = std::min(nb, n - j);
      const Dense<const T> block{a + j * lda + j, lda, width};
      const T* xj = x0 + j * incx;
      T* yj = y0 + j * incy;
      const bool upper = is_option(uplo, 'U');
      upper ? add_symmetric<true>(block, alpha, xj, incx, yj, incy)
            : add_symmetric<false>(block, alpha, xj, incx, yj, incy);
      add_panel(upper ? Rows{0, j} : Rows{j + width, n}, {j, j + width}, alpha, a, lda, x0, incx, y0, incy);
    }
  });
}

}  // namespace
}  // namespace orb::blas

#define SYMV_NB(name, T)                                                                                   \
  ORB_EXPORT void name(const char* uplo, const int* n, const T* alpha, const T* a, const int* lda,         \
                       const T* x, const int* incx, const T* beta, T* y, const int* incy, const int* nb) { \
    orb::blas::symv_nb(uplo, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy, *nb);                         \
  }
SYMV_NB(orb_blas_ssymv_nb, float)
SYMV_NB(orb_blas_dsymv_nb, double)
SYMV_NB(orb_blas_chemv_nb, orb_complex_float)
SYMV_NB(orb_blas_zhemv_nb, orb_complex_double)
