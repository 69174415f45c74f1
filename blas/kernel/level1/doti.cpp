// Dot product of a packed and a full vector. Reference: Dodson, Grimes, Lewis, ACM TOMS 17 (1991) 253-272.
// Entries at even and odd places have a sum each; the two are added before the last entry of an odd count.
#include "blas/kernel/level1/packed.h"
#include "orb/blas_level1.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <bool conjugate = false, class T>
one_of<T> doti(int nz, const T* x, const int* indx, const T* y) {
  using One = one_of<T>;
  const auto product = [=](int i) {
    return One::splat(conjugate ? conj(x[i]) : x[i]) * One::loadu(place(y, indx, i));
  };
  One by_parity[2] = {One::zero(), One::zero()};
  int i = 0;
  for (; nz - i >= 2; i += 2) {
    by_parity[0] += product(i);
    by_parity[1] += product(i + 1);
    if constexpr (Real<T>) keep_in_registers(by_parity);
  }
  One sum = by_parity[0] + by_parity[1];
  if (i < nz) sum += product(i);
  return sum;
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT float orb_blas_sdoti(const int* nz, const float* x, const int* indx, const float* y) {
  return orb::blas::doti(*nz, x, indx, y).v;
}
ORB_EXPORT double orb_blas_ddoti(const int* nz, const double* x, const int* indx, const double* y) {
  return orb::blas::doti(*nz, x, indx, y).v;
}
ORB_EXPORT void orb_blas_cdotui(orb_complex_float* result, const int* nz, const orb_complex_float* x,
                                const int* indx, const orb_complex_float* y) {
  orb::blas::doti(*nz, x, indx, y).storeu(result);
}
ORB_EXPORT void orb_blas_cdotci(orb_complex_float* result, const int* nz, const orb_complex_float* x,
                                const int* indx, const orb_complex_float* y) {
  orb::blas::doti<true>(*nz, x, indx, y).storeu(result);
}
ORB_EXPORT void orb_blas_zdotui(orb_complex_double* result, const int* nz, const orb_complex_double* x,
                                const int* indx, const orb_complex_double* y) {
  orb::blas::doti(*nz, x, indx, y).storeu(result);
}
ORB_EXPORT void orb_blas_zdotci(orb_complex_double* result, const int* nz, const orb_complex_double* x,
                                const int* indx, const orb_complex_double* y) {
  orb::blas::doti<true>(*nz, x, indx, y).storeu(result);
}
