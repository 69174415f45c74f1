// Householder reflector on three rows: t = (wy y + x + wz z) tau, x -= t, y -= wy t, z -= wz t.
#include "orb/blas_level1.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <class T>
void rot3(int n, T* x, T* y, T* z, T tau, T wy, T wz) {
  compiled_loop(n, z, [=]<class V>(int i) {
    const V old_x = V::loadu(x + i), old_y = V::loadu(y + i), old_z = V::load(z + i);
    const V t = V::splat(tau) * (V::splat(wy) * old_y + old_x + V::splat(wz) * old_z);
    (old_x - t).storeu(x + i);
    (old_y - V::splat(wy) * t).storeu(y + i);
    (old_z - V::splat(wz) * t).store(z + i);
  });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_srot3(const int* n, float* x, const int*, float* y, const int*, float* z, const int*,
                               const float* tau, const float* wy, const float* wz) {
  orb::blas::rot3(*n, x, y, z, *tau, *wy, *wz);
}
ORB_EXPORT void orb_blas_drot3(const int* n, double* x, const int*, double* y, const int*, double* z,
                               const int*, const double* tau, const double* wy, const double* wz) {
  orb::blas::rot3(*n, x, y, z, *tau, *wy, *wz);
}
ORB_EXPORT void orb_blas_crot3(const int* n, orb_complex_float* x, const int*, orb_complex_float* y,
                               const int*, orb_complex_float* z, const int*, const orb_complex_float* tau,
                               const orb_complex_float* wy, const orb_complex_float* wz) {
  orb::blas::rot3(*n, x, y, z, *tau, *wy, *wz);
}
ORB_EXPORT void orb_blas_zrot3(const int* n, orb_complex_double* x, const int*, orb_complex_double* y,
                               const int*, orb_complex_double* z, const int*, const orb_complex_double* tau,
                               const orb_complex_double* wy, const orb_complex_double* wz) {
  orb::blas::rot3(*n, x, y, z, *tau, *wy, *wz);
}
