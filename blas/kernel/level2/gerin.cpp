// One column of a rank-1 update on the floating-point stack.
#include "blas/kernel/level2/columns.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

// Products and sums take the stack's precision; only the store rounds to T.
template <class T>
void gerin(int n, long double alpha, const T* x, int incx, T* a) {
  x = strided_start(x, n, incx);
  const auto update = [=](int i) { a[i] = T(x[i * incx] * alpha + a[i]); };
  const int left = ladder<4>(0, n, [=](auto, int i) {
    prefetch_once(a + i, 64 / sizeof(T), 1);
    unroll<4>([=](auto k) { update(i + k); });
  });
  for (int i = left; i < n; ++i) update(i);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sgerin(const int* n, const float* alpha, const float* x, const int* incx, float* a) {
  orb::blas::gerin(*n, *alpha, x, *incx, a);
}
ORB_EXPORT void orb_blas_dgerin(const int* n, const double* alpha, const double* x, const int* incx,
                                double* a) {
  orb::blas::gerin(*n, *alpha, x, *incx, a);
}
