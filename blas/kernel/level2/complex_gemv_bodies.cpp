// y += alpha op(A) x of complex matrices, two columns a round and an odd last one.
#include "blas/kernel/level2/columns.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

template <class Add>
ORB_INLINE void for_column_pairs(int n, Add add) {
  for (int j = ladder<2>(0, n, add); j < n; ++j) add(Int<1>{}, j);
}

template <class T>
void gemv_n(int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T* y, int incy) {
  if (m <= 0) return;
  x = strided_start(x, n, incx);
  y = strided_start(y, m, incy);
  for_column_pairs(n, [&](auto width, int j) {
    T t[width];
    unroll<width>([&](auto k) { t[k] = alpha * x[(j + k) * incx]; });
    add_columns(m, columns<width>(a + j * lda, lda), t, y, incy);
  });
}

template <bool conjugate, class T>
void gemv_t(int m, int n, T alpha, const T* a, int lda, const T* x, T* y) {
  if (m <= 0) return;
  for_column_pairs(n, [&](auto width, int j) {
    T sum[width];
    dot_columns_contiguous<conjugate>(m, columns<width>(a + j * lda, lda), x, sum);
    unroll<width>([&](auto k) { y[j + k] += alpha * sum[k]; });
  });
}

template <bool conjugate, class T>
void gemv_t_any(int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T* y, int incy) {
  if (m <= 0) return;
  x = strided_start(x, m, incx);
  y = strided_start(y, n, incy);
  for_column_pairs(n, [&](auto width, int j) {
    T sum[width];
    dot_columns_in_turn<conjugate>(m, columns<width>(a + j * lda, lda), x, incx, sum);
    unroll<width>([&](auto k) { y[(j + k) * incy] += alpha * sum[k]; });
  });
}

}  // namespace
}  // namespace orb::blas

#define BODY(name, T, ...)                                                                                 \
  ORB_EXPORT void name(const int* m, const int* n, const T* alpha, const T* a, const int* lda, const T* x, \
                       T* y) {                                                                             \
    orb::blas::__VA_ARGS__;                                                                                \
  }
#define BODY_ANY(name, T, body)                                                                            \
  ORB_EXPORT void name(const int* m, const int* n, const T* alpha, const T* a, const int* lda, const T* x, \
                       const int* incx, T* y, const int* incy) {                                           \
    orb::blas::body(*m, *n, *alpha, a, *lda, x, *incx, y, *incy);                                          \
  }
BODY(orb_blas_cgemvn, orb_complex_float, gemv_n(*m, *n, *alpha, a, *lda, x, 1, y, 1))
BODY(orb_blas_cgemvt, orb_complex_float, gemv_t<false>(*m, *n, *alpha, a, *lda, x, y))
BODY(orb_blas_cgemvc, orb_complex_float, gemv_t<true>(*m, *n, *alpha, a, *lda, x, y))
BODY(orb_blas_zgemvn, orb_complex_double, gemv_n(*m, *n, *alpha, a, *lda, x, 1, y, 1))
BODY(orb_blas_zgemvt, orb_complex_double, gemv_t<false>(*m, *n, *alpha, a, *lda, x, y))
BODY(orb_blas_zgemvc, orb_complex_double, gemv_t<true>(*m, *n, *alpha, a, *lda, x, y))
BODY_ANY(orb_blas_cgemv_n_any, orb_complex_float, gemv_n)
BODY_ANY(orb_blas_cgemv_t_any, orb_complex_float, gemv_t_any<false>)
BODY_ANY(orb_blas_cgemv_c_any, orb_complex_float, gemv_t_any<true>)
BODY_ANY(orb_blas_zgemv_n_any, orb_complex_double, gemv_n)
BODY_ANY(orb_blas_zgemv_t_any, orb_complex_double, gemv_t_any<false>)
BODY_ANY(orb_blas_zgemv_c_any, orb_complex_double, gemv_t_any<true>)
