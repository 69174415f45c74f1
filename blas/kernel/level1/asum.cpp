// Sum of absolute values; of a complex number, |re| + |im|.
#include "blas/kernel/level1/reduce.h"
#include "orb/blas_level1.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

double asum_strided(int n, const double* x, int incx) {
  x = strided_start(x, n, incx);
  return sum_in_two<double>(n, [=](int i) { return std::abs(x[i * incx]); });
}

float asum_strided(int n, const float* x, int incx) {
  x = strided_start(x, n, incx);
  float sum = 0;
  for (int i = 0; i < n; ++i, x += incx) sum += std::abs(*x);
  return sum;
}

template <Real T>
T asum(int n, const T* x, int incx) {
  if (n <= 0) return 0;
  if (incx != 1 && incx != -1) return asum_strided(n, x, incx);
  const int peel = elements_to_boundary(x);
  if (peel < 0) return asum_strided(n, x, 1);
  FourSums<vector_of<T>> sums;
  register_loop<T>(n, peel, [&, x]<class V>(auto k, int i) { sums.add(k, V::load(x + i).abs()); });
  return sums.folded().sum();
}

template <Complex C>
real_of<C> asum(int n, const C* x, int incx) {
  if (n <= 0) return 0;
  if (incx == 1) return asum(2 * n, &x->re, 1);
  x = strided_start(x, n, incx);
  auto parts = one_of<C>::zero().v;
  for (int i = 0; i < n; ++i, x += incx) parts += one_of<C>::loadu(x).v.abs();
  return parts.sum();
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT float orb_blas_sasum(const int* n, const float* x, const int* incx) {
  return orb::blas::asum(*n, x, *incx);
}
ORB_EXPORT double orb_blas_dasum(const int* n, const double* x, const int* incx) {
  return orb::blas::asum(*n, x, *incx);
}
ORB_EXPORT float orb_blas_scasum(const int* n, const orb_complex_float* x, const int* incx) {
  return orb::blas::asum(*n, x, *incx);
}
ORB_EXPORT double orb_blas_dzasum(const int* n, const orb_complex_double* x, const int* incx) {
  return orb::blas::asum(*n, x, *incx);
}
ORB_EXPORT double orb_blas_dcabs1(const orb_complex_double* z) { return std::abs(z->re) + std::abs(z->im); }
