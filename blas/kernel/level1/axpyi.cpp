// y[indx[i]] += alpha x[i]. Reference: Dodson, Grimes, Lewis, ACM TOMS 17 (1991) 253-272. Repeated places add
// up.
#include "blas/kernel/level1/packed.h"
#include "orb/blas_level1.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <Real T>
bool is_zero(T a) {
  return a == 0;
}
template <Complex C>
bool is_zero(C a) {
  return a.re == 0 && a.im == 0;
}

template <class T>
void axpyi(int nz, T alpha, const T* x, const int* indx, T* y) {
  using One = one_of<T>;
  if (is_zero(alpha)) return;
  const auto a = One::splat(alpha);
  for_entries(nz, [=](int i) {
    T* yi = place(y, indx, i);
    (One::loadu(yi) + a * One::loadu(x + i)).storeu(yi);
  });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_saxpyi(const int* nz, const float* alpha, const float* x, const int* indx,
                                float* y) {
  orb::blas::axpyi(*nz, *alpha, x, indx, y);
}
ORB_EXPORT void orb_blas_daxpyi(const int* nz, const double* alpha, const double* x, const int* indx,
                                double* y) {
  orb::blas::axpyi(*nz, *alpha, x, indx, y);
}
ORB_EXPORT void orb_blas_caxpyi(const int* nz, const orb_complex_float* alpha, const orb_complex_float* x,
                                const int* indx, orb_complex_float* y) {
  orb::blas::axpyi(*nz, *alpha, x, indx, y);
}
ORB_EXPORT void orb_blas_zaxpyi(const int* nz, const orb_complex_double* alpha, const orb_complex_double* x,
                                const int* indx, orb_complex_double* y) {
  orb::blas::axpyi(*nz, *alpha, x, indx, y);
}
