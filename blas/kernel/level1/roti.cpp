// Plane rotation of a packed and a full vector. Reference: Dodson, Grimes, Lewis, ACM TOMS 17 (1991) 253-272.
#include "blas/kernel/level1/packed.h"
#include "blas/kernel/level1/rotate.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

template <class T>
void roti(int nz, T* x, const int* indx, T* y, T c, T s) {
  using One = Lane<T>;
  if (c == 1 && s == 0) return;
  for_entries(nz, [=](int i) { rotate<One>(One{c}, One{s}, x + i, place(y, indx, i)); });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sroti(const int* nz, float* x, const int* indx, float* y, const float* c,
                               const float* s) {
  orb::blas::roti(*nz, x, indx, y, *c, *s);
}
ORB_EXPORT void orb_blas_droti(const int* nz, double* x, const int* indx, double* y, const double* c,
                               const double* s) {
  orb::blas::roti(*nz, x, indx, y, *c, *s);
}
