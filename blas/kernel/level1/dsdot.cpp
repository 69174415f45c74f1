// Dot of singles in double: the products are exact, only the sums round.
#include "blas/kernel/level1/reduce.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

// The sum, begun at `first`.
double dsdot(int n, double first, const float* x, int incx, const float* y, int incy) {
  if (n <= 0) return first;
  if (incx == incy && incx > 0)
    return sum_in_two(
        n, [=](int i) { return double(x[i * incx]) * double(y[i * incx]); }, first);
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  double sum = first;
  for (int i = 0; i < n; ++i, x += incx, y += incy) sum += double(*x) * double(*y);
  return sum;
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT double orb_blas_dsdot(const int* n, const float* x, const int* incx, const float* y,
                                 const int* incy) {
  return orb::blas::dsdot(*n, 0, x, *incx, y, *incy);
}
ORB_EXPORT float orb_blas_sdsdot(const int* n, const float* sb, const float* x, const int* incx,
                                 const float* y, const int* incy) {
  return float(orb::blas::dsdot(*n, double(*sb), x, *incx, y, *incy));
}
