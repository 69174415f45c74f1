// x[i] = y[indx[i]]. Reference: Dodson, Grimes, Lewis, ACM TOMS 17 (1991) 253-272.
#include "blas/kernel/level1/packed.h"
#include "orb/blas_level1.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <class T>
void gthr(int nz, const T* y, T* x, const int* indx) {
  for_entries(nz, [=](int i) { one_of<T>::loadu(place(y, indx, i)).storeu(x + i); });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sgthr(const int* nz, const float* y, float* x, const int* indx) {
  orb::blas::gthr(*nz, y, x, indx);
}
ORB_EXPORT void orb_blas_dgthr(const int* nz, const double* y, double* x, const int* indx) {
  orb::blas::gthr(*nz, y, x, indx);
}
ORB_EXPORT void orb_blas_cgthr(const int* nz, const orb_complex_float* y, orb_complex_float* x,
                               const int* indx) {
  orb::blas::gthr(*nz, y, x, indx);
}
ORB_EXPORT void orb_blas_zgthr(const int* nz, const orb_complex_double* y, orb_complex_double* x,
                               const int* indx) {
  orb::blas::gthr(*nz, y, x, indx);
}
