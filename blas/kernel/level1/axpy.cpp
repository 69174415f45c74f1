// y += alpha x, real. Reference: Lawson, Hanson, Kincaid, Krogh, ACM TOMS 5 (1979) 308-323.
// Every element takes one product and one sum, so the path never shows in the result.
#include "orb/blas_level1.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

// y[i] += alpha x[i] for V::lanes elements; aligned addresses for the full registers.
template <class V, class T>
ORB_INLINE void add_scaled(V alpha, const T* x, T* y) {
  (V::load(y) + alpha * V::load(x)).store(y);
}

// Unit strides, addresses that reach a 16-byte boundary together.
void axpy_aligned(int n, double alpha, const double* x, double* y) {
  int i = 0;
  if (!is_aligned(x)) add_scaled(Lane<double>{alpha}, x, y), i = 1;
  const f64x2 a = f64x2::splat(alpha);
  i = ladder<16, 8, 4, 2>(i, n, [=](auto width, int at) {
    unroll<width / 2>([=](auto k) { add_scaled(a, x + at + 2 * k, y + at + 2 * k); });
  });
  if (i < n) add_scaled(Lane<double>{alpha}, x + i, y + i);
}

template <class T>
void axpy_strided(int n, T alpha, const T* x, int incx, T* y, int incy) {
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  for (int i = 0; i < n; ++i, x += incx, y += incy) *y += alpha * *x;
}

void axpy(int n, double alpha, const double* x, int incx, double* y, int incy) {
  const int peel = elements_to_boundary(x);
  if (n <= 0 || alpha == 0) return;  // -0.0 too
  if (incx == 1 && incy == 1 && same_alignment(x, y) && peel >= 0) return axpy_aligned(n, alpha, x, y);
  axpy_strided(n, alpha, x, incx, y, incy);
}

void axpy(int n, float alpha, const float* x, int incx, float* y, int incy) {
  if (n <= 0 || alpha == 0) return;
  if (incx != 1 || incy != 1) return axpy_strided(n, alpha, x, incx, y, incy);
  compiled_loop(n, y,
                [=]<class V>(int i) { (V::load(y + i) + V::splat(alpha) * V::loadu(x + i)).store(y + i); });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xsaxpy(const int* n, const float* alpha, const float* x, const int* incx, float* y,
                                const int* incy) {
  orb::blas::axpy(*n, *alpha, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xdaxpy(const int* n, const double* alpha, const double* x, const int* incx,
                                double* y, const int* incy) {
  orb::blas::axpy(*n, *alpha, x, *incx, y, *incy);
}
