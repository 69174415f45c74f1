// x = alpha x. No test of alpha: zero times NaN or infinity has to give NaN.
#include "orb/blas_level1.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <class T, class A>
void scal_strided(int n, A alpha, T* x, int incx) {
  x = strided_start(x, n, incx);
  for (int i = 0; i < n; ++i, x += incx) *x = alpha * *x;
}

// A stride of -1 visits the elements of stride 1.
template <class T>
void scal(int n, T alpha, T* x, int incx) {
  if (n <= 0) return;
  const int peel = elements_to_boundary(x);
  if ((incx != 1 && incx != -1) || peel < 0) return scal_strided(n, alpha, x, incx);
  register_loop<T>(n, peel, [=]<class V>(auto, int i) { (V::splat(alpha) * V::load(x + i)).store(x + i); });
}

void scal(int n, float alpha, float* x, int incx) {
  if (n <= 0) return;
  if (incx != 1) return scal_strided(n, alpha, x, incx);
  constexpr int least = 11;
  compiled_loop(
      n, x, [=]<class V>(int i) { (V::splat(alpha) * V::load(x + i)).store(x + i); }, least);
}

// A real factor: one vector of twice the length where it is whole.
template <Complex C>
void scal_by_real(int n, real_of<C> alpha, C* x, int incx) {
  if (n <= 0) return;
  if (incx != 1) return scal_strided(n, alpha, x, incx);
  scal(2 * n, alpha, &x->re, 1);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sscal(const int* n, const float* alpha, float* x, const int* incx) {
  orb::blas::scal(*n, *alpha, x, *incx);
}
ORB_EXPORT void orb_blas_dscal(const int* n, const double* alpha, double* x, const int* incx) {
  orb::blas::scal(*n, *alpha, x, *incx);
}
ORB_EXPORT void orb_blas_cscal(const int* n, const orb_complex_float* alpha, orb_complex_float* x,
                               const int* incx) {
  orb::blas::scal(*n, *alpha, x, *incx);
}
ORB_EXPORT void orb_blas_zscal(const int* n, const orb_complex_double* alpha, orb_complex_double* x,
                               const int* incx) {
  orb::blas::scal(*n, *alpha, x, *incx);
}
ORB_EXPORT void orb_blas_csscal(const int* n, const float* alpha, orb_complex_float* x, const int* incx) {
  orb::blas::scal_by_real(*n, *alpha, x, *incx);
}
ORB_EXPORT void orb_blas_zdscal(const int* n, const double* alpha, orb_complex_double* x, const int* incx) {
  orb::blas::scal_by_real(*n, *alpha, x, *incx);
}
