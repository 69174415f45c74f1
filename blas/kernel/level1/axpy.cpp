// y += alpha x. Reference: Lawson, Hanson, Kincaid, Krogh, ACM TOMS 5 (1979) 308-323.
// Every element takes one product and one sum, so the path never shows in the result.
#include "orb/blas_level1.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"
#include "serv/kernel/zero.h"

namespace orb::blas {
namespace {

template <class T>
void axpy_strided(int n, T alpha, const T* x, int incx, T* y, int incy) {
  using One = one_of<T>;
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  const auto a = One::splat(alpha);
  for (int i = 0; i < n; ++i, x += incx, y += incy) (One::loadu(y) + a * One::loadu(x)).storeu(y);
}

// Without the quick return for alpha == 0.
template <class T>
void axpy_always(int n, T alpha, const T* x, int incx, T* y, int incy) {
  if (n <= 0) return;
  const int peel = elements_to_boundary(x);
  if (incx != 1 || incy != 1 || !same_alignment(x, y) || peel < 0)
    return axpy_strided(n, alpha, x, incx, y, incy);
  register_loop<T>(n, peel, [=]<class V>(auto, int i) {
    (V::load(y + i) + V::splat(alpha) * V::load(x + i)).store(y + i);
  });
}

void axpy_always(int n, float alpha, const float* x, int incx, float* y, int incy) {
  if (n <= 0) return;
  if (incx != 1 || incy != 1) return axpy_strided(n, alpha, x, incx, y, incy);
  compiled_loop(n, y,
                [=]<class V>(int i) { (V::load(y + i) + V::splat(alpha) * V::loadu(x + i)).store(y + i); });
}

template <class T>
void axpy(int n, T alpha, const T* x, int incx, T* y, int incy) {
  if (!is_zero(alpha)) axpy_always(n, alpha, x, incx, y, incy);
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
ORB_EXPORT void orb_blas_xcaxpy(const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
                                const int* incx, orb_complex_float* y, const int* incy) {
  orb::blas::axpy(*n, *alpha, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xzaxpy(const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
                                const int* incx, orb_complex_double* y, const int* incy) {
  orb::blas::axpy(*n, *alpha, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_caxpy_a(const int* n, const orb_complex_float* alpha, const orb_complex_float* x,
                                 const int* incx, orb_complex_float* y, const int* incy) {
  orb::blas::axpy_always(*n, *alpha, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_zaxpy_a(const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
                                 const int* incx, orb_complex_double* y, const int* incy) {
  orb::blas::axpy_always(*n, *alpha, x, *incx, y, *incy);
}
