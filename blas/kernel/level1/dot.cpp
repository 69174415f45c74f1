// x . y, real.
#include "blas/kernel/level1/reduce.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

template <class T>
T dot_strided(int n, const T* x, int incx, const T* y, int incy) {
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  T sum = 0;
  for (int i = 0; i < n; ++i, x += incx, y += incy) sum += *x * *y;
  return sum;
}

template <class T>
T dot(int n, const T* x, int incx, const T* y, int incy) {
  if (n <= 0) return 0;
  if (incx != incy || (incx != 1 && incx != -1)) return dot_strided(n, x, incx, y, incy);
  const int peel = elements_to_boundary(x);
  if (!same_alignment(x, y) || peel < 0) return dot_strided(n, x, 1, y, 1);
  FourSums<vector_of<T>> sums;
  register_loop<T>(n, peel,
                   [&, x, y]<class V>(auto k, int i) { sums.add(k, V::load(x + i) * V::load(y + i)); });
  return sums.folded().sum();
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT float orb_blas_xsdot(const int* n, const float* x, const int* incx, const float* y,
                                const int* incy) {
  return orb::blas::dot(*n, x, *incx, y, *incy);
}
ORB_EXPORT double orb_blas_xddot(const int* n, const double* x, const int* incx, const double* y,
                                 const int* incy) {
  return orb::blas::dot(*n, x, *incx, y, *incy);
}
