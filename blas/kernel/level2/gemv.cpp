// y = alpha op(A) x + beta y of real matrices, four columns a pass.
#include <algorithm>

#include "blas/kernel/level2/columns.h"
#include "blas/kernel/level2/scale.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

// Rows whose part of y stays in the first-level cache while all columns pass over it. Every element of y
// takes its columns in rising order, so the cut does not show.
template <class T>
constexpr int most_rows = 16384 / int(sizeof(T));

template <class T>
void multiply(int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T* y, int incy) {
  const auto add = [&](auto width, int j) {
    T t[width];
    unroll<width>([&](auto k) { t[k] = alpha * x[(j + k) * incx]; });
    add_columns(m, columns<width>(a + j * lda, lda), t, y, incy);
  };
  for (int j = ladder<columns_a_pass<T>>(0, n, add); j < n; ++j) add(Int<1>{}, j);
}

template <class T>
void multiply_transposed(int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T* y, int incy) {
  const bool contiguous = incx == 1 && incy == 1;
  const auto add = [&](auto width, int j) {
    T sum[width];
    const auto a_j = columns<width>(a + j * lda, lda);
    contiguous ? dot_columns_contiguous<false>(m, a_j, x, sum)
               : dot_columns_in_turn<false>(m, a_j, x, incx, sum);
    unroll<width>([&](auto k) { y[(j + k) * incy] = sum[k] * alpha + y[(j + k) * incy]; });
  };
  for (int j = ladder<columns_a_pass<T>>(0, n, add); j < n; ++j) add(Int<1>{}, j);
}

template <class T>
void gemv(const char* trans, int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y,
          int incy) {
  if (m == 0 || n == 0) return;
  if (is_zero(alpha) && is_one(beta)) return;
  const bool plain = is_option(trans, 'N');
  const int terms = plain ? n : m, length = plain ? m : n;
  x = strided_start(x, terms, incx);
  y = strided_start(y, length, incy);
  scale(length, beta, y, incy);
  if (is_zero(alpha)) return;
  if (!plain) return multiply_transposed(m, n, alpha, a, lda, x, incx, y, incy);
  for (int i = 0; i < m; i += most_rows<T>)
    multiply(std::min(m - i, most_rows<T>), n, alpha, a + i, lda, x, incx, y + i * incy, incy);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xsgemv(const char* trans, const int* m, const int* n, const float* alpha,
                                const float* a, const int* lda, const float* x, const int* incx,
                                const float* beta, float* y, const int* incy) {
  orb::blas::gemv(trans, *m, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);
}
ORB_EXPORT void orb_blas_xdgemv(const char* trans, const int* m, const int* n, const double* alpha,
                                const double* a, const int* lda, const double* x, const int* incx,
                                const double* beta, double* y, const int* incy) {
  orb::blas::gemv(trans, *m, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);
}
