// Householder reflector on two rows: t = (w y + x) tau, x -= t, y -= w t.
#include "blas/kernel/level1/pairs.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

template <class T>
void rot2(int n, T* x, T* y, T tau, T w) {
  for_pairs(n, x, 1, y, 1, [=]<class V>(T* xi, T* yi) {
    const V old_x = V::loadu(xi), old_y = V::load(yi);
    const V t = V::splat(tau) * (V::splat(w) * old_y + old_x);
    (old_x - t).storeu(xi);
    (old_y - V::splat(w) * t).store(yi);
  });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_srot2(const int* n, float* x, const int*, float* y, const int*, const float* tau,
                               const float* w) {
  orb::blas::rot2(*n, x, y, *tau, *w);
}
ORB_EXPORT void orb_blas_drot2(const int* n, double* x, const int*, double* y, const int*, const double* tau,
                               const double* w) {
  orb::blas::rot2(*n, x, y, *tau, *w);
}
ORB_EXPORT void orb_blas_crot2(const int* n, orb_complex_float* x, const int*, orb_complex_float* y,
                               const int*, const orb_complex_float* tau, const orb_complex_float* w) {
  orb::blas::rot2(*n, x, y, *tau, *w);
}
ORB_EXPORT void orb_blas_zrot2(const int* n, orb_complex_double* x, const int*, orb_complex_double* y,
                               const int*, const orb_complex_double* tau, const orb_complex_double* w) {
  orb::blas::rot2(*n, x, y, *tau, *w);
}
