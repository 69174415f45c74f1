// x[i] = y[indx[i]], y[indx[i]] = 0. Reference: Dodson, Grimes, Lewis, ACM TOMS 17 (1991) 253-272. Each place
// is cleared before the next is read.
#include "blas/kernel/level1/packed.h"
#include "orb/blas_level1.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <class T>
void gthrz(int nz, T* y, T* x, const int* indx) {
  using One = one_of<T>;
  for_entries(nz, [=](int i) {
    T* yi = place(y, indx, i);
    One::loadu(yi).storeu(x + i);
    One::zero().storeu(yi);
  });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sgthrz(const int* nz, float* y, float* x, const int* indx) {
  orb::blas::gthrz(*nz, y, x, indx);
}
ORB_EXPORT void orb_blas_dgthrz(const int* nz, double* y, double* x, const int* indx) {
  orb::blas::gthrz(*nz, y, x, indx);
}
ORB_EXPORT void orb_blas_cgthrz(const int* nz, orb_complex_float* y, orb_complex_float* x, const int* indx) {
  orb::blas::gthrz(*nz, y, x, indx);
}
ORB_EXPORT void orb_blas_zgthrz(const int* nz, orb_complex_double* y, orb_complex_double* x,
                                const int* indx) {
  orb::blas::gthrz(*nz, y, x, indx);
}
