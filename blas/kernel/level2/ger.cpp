// A += alpha x y^T of real matrices: pairs of columns in registers, what is left on the floating-point stack.
#include "orb/blas_level2.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/zero.h"

namespace orb::blas {
namespace {

void column(int m, double t, const double* x, int incx, double* a) { orb_blas_dgerin(&m, &t, x, &incx, a); }
void column(int m, float t, const float* x, int incx, float* a) { orb_blas_sgerin(&m, &t, x, &incx, a); }

// `width` columns from a on, lda apart, each with its own factor, in one pass over x.
template <int width, class T>
__attribute__((noinline)) void update_columns(int m, const T (&t)[width], const T* x, T* a, int lda) {
  T* at[width];
  unroll<width>([&](auto j) { at[j] = a + j * lda; });
  const auto pass = [&]<class V>(int i) ORB_INLINE_BODY {
    V factor[width];
    unroll<width>([&](auto j) { factor[j] = V::splat(t[j]); });
    for (; m - i >= V::lanes; i += V::lanes) {
      const V with = V::loadu(x + i);
      unroll<width>([&](auto j) { (V::loadu(at[j] + i) + factor[j] * with).storeu(at[j] + i); });
    }
    return i;
  };
  pass.template operator()<one_of<T>>(pass.template operator()<vector_of<T>>(0));
}

template <class T>
void ger(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda) {
  if (m == 0 || n == 0 || is_zero(alpha)) return;
  y = strided_start(y, n, incy);
  int j = 0;
  if (incx == 1)
    j = ladder<4, 2>(0, n, [&](auto width, int at) {
      T t[width];
      unroll<width>([&](auto k) { t[k] = y[(at + k) * incy] * alpha; });
      update_columns(m, t, x, a + at * lda, lda);
    });
  for (; j < n; ++j) column(m, y[j * incy] * alpha, x, incx, a + j * lda);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sger(const int* m, const int* n, const float* alpha, const float* x, const int* incx,
                              const float* y, const int* incy, float* a, const int* lda) {
  orb::blas::ger(*m, *n, *alpha, x, *incx, y, *incy, a, *lda);
}
ORB_EXPORT void orb_blas_dger(const int* m, const int* n, const double* alpha, const double* x,
                              const int* incx, const double* y, const int* incy, double* a, const int* lda) {
  orb::blas::ger(*m, *n, *alpha, x, *incx, y, *incy, a, *lda);
}
