// y[indx[i]] = x[i]. Reference: Dodson, Grimes, Lewis, ACM TOMS 17 (1991) 253-272.
#include "blas/kernel/level1/packed.h"
#include "orb/blas_level1.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <class T>
void sctr(int nz, const T* x, const int* indx, T* y) {
  for_entries(nz, [=](int i) { one_of<T>::loadu(x + i).storeu(place(y, indx, i)); });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_ssctr(const int* nz, const float* x, const int* indx, float* y) {
  orb::blas::sctr(*nz, x, indx, y);
}
ORB_EXPORT void orb_blas_dsctr(const int* nz, const double* x, const int* indx, double* y) {
  orb::blas::sctr(*nz, x, indx, y);
}
ORB_EXPORT void orb_blas_csctr(const int* nz, const orb_complex_float* x, const int* indx,
                               orb_complex_float* y) {
  orb::blas::sctr(*nz, x, indx, y);
}
ORB_EXPORT void orb_blas_zsctr(const int* nz, const orb_complex_double* x, const int* indx,
                               orb_complex_double* y) {
  orb::blas::sctr(*nz, x, indx, y);
}
