// y = alpha op(A) x + beta y, the upward entries: edge columns of the matrix products and steps of the
// blocked triangular solves. Each element of y is computed in an order that does not depend on the other rows
// nor on alignment, so that a caller may cut the rows as it likes.
#include "orb/services.h"
#include "outer/boundary.h"
#include "serv/kernel/complex.h"
#include "serv/kernel/loops.h"

namespace orb {
namespace {

template <class T>
bool is_zero(T a) {
  if constexpr (Complex<T>)
    return a.re == 0 && a.im == 0;
  else
    return a == 0;
}

template <class T>
bool is_one(T a) {
  if constexpr (Complex<T>)
    return a.re == 1 && a.im == 0;
  else
    return a == 1;
}

// y = beta y; beta == 0 does not read y.
template <class T>
void scale(int m, T beta, T* y, int incy) {
  if (is_one(beta)) return;
  if (is_zero(beta)) {
    for (int i = 0; i < m; ++i) y[i * incy] = T{};
  } else {
    for (int i = 0; i < m; ++i) y[i * incy] = beta * y[i * incy];
  }
}

// y += t0 a0 + t1 a1 + ... for `width` columns a of A, added in this order to each element.
template <int width, class T>
void add_columns(int m, const T* t, const T* a, int lda, T* y, int incy) {
  T factor[width];
  unroll<width>([&](auto j) { factor[j] = t[j]; });
  const auto add_to = [&](T sum, int i) {
    unroll<width>([&](auto j) { sum += factor[j] * a[i + j * lda]; });
    return sum;
  };
  if (incy == 1) {
    for (int i = 0; i < m; ++i) y[i] = add_to(y[i], i);
  } else {
    for (int i = 0; i < m; ++i) y[i * incy] = add_to(y[i * incy], i);
  }
}

// sum[j] = x . column j of A, conjugated if asked, for `width` columns. Contiguous reals are added lane by
// lane.
template <int width, bool conjugate, class T>
void dot_columns(int m, const T* x, int incx, const T* a, int lda, T* sum) {
  int i = 0;
  unroll<width>([&](auto j) { sum[j] = T{}; });
  if constexpr (Real<T>)
    if (incx == 1) {
      using V = vector_of<T>;
      V lanes[width];
      unroll<width>([&](auto j) { lanes[j] = V::zero(); });
      for (; m - i >= V::lanes; i += V::lanes)
        unroll<width>([&](auto j) { lanes[j] += V::loadu(x + i) * V::loadu(a + i + j * lda); });
      unroll<width>([&](auto j) { sum[j] = lanes[j].sum(); });
    }
  for (; i < m; ++i)
    unroll<width>([&](auto j) {
      const T e = a[i + j * lda];
      if constexpr (conjugate)
        sum[j] += conj(e) * x[i * incx];
      else
        sum[j] += e * x[i * incx];
    });
}

template <class T>
void multiply(int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T* y, int incy) {
  const int left = ladder<4>(0, n, [&](auto width, int at) {
    T t[width];
    unroll<width>([&](auto j) { t[j] = alpha * x[(at + j) * incx]; });
    add_columns<width>(m, t, a + at * lda, lda, y, incy);
  });
  for (int j = left; j < n; ++j) {
    const T t = alpha * x[j * incx];
    add_columns<1>(m, &t, a + j * lda, lda, y, incy);
  }
}

template <bool conjugate, class T>
void multiply_transposed(int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T* y, int incy) {
  const int left = ladder<4>(0, n, [&](auto width, int at) {
    T sum[width];
    dot_columns<width, conjugate>(m, x, incx, a + at * lda, lda, sum);
    unroll<width>([&](auto j) { y[(at + j) * incy] += alpha * sum[j]; });
  });
  for (int j = left; j < n; ++j) {
    T sum;
    dot_columns<1, conjugate>(m, x, incx, a + j * lda, lda, &sum);
    y[j * incy] += alpha * sum;
  }
}

template <class T>
void gemv(const char* trans, int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y,
          int incy) {
  if (m <= 0 || n <= 0) return;
  const bool plain = is_option(trans, 'N');
  const int terms = plain ? n : m, length = plain ? m : n;
  x = strided_start(x, terms, incx);
  y = strided_start(y, length, incy);
  scale(length, beta, y, incy);
  if (is_zero(alpha)) return;
  if (plain)
    multiply(m, n, alpha, a, lda, x, incx, y, incy);
  else if (Complex<T> && is_option(trans, 'C'))
    multiply_transposed<Complex<T>>(m, n, alpha, a, lda, x, incx, y, incy);
  else
    multiply_transposed<false>(m, n, alpha, a, lda, x, incx, y, incy);
}

}  // namespace
}  // namespace orb

#define GEMV(name, T)                                                                                       \
  ORB_EXPORT void name(const char* trans, const int* m, const int* n, const T* alpha, const T* a,           \
                       const int* lda, const T* x, const int* incx, const T* beta, T* y, const int* incy) { \
    orb::gemv(trans, *m, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);                                   \
  }
GEMV(orb_blas_sgemv, float)
GEMV(orb_blas_dgemv, double)
GEMV(orb_blas_cgemv, orb_complex_float)
GEMV(orb_blas_zgemv, orb_complex_double)
