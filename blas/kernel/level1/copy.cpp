// y = x, bit for bit.
#include "blas/kernel/level1/pairwise.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

template <class T>
void copy(int n, const T* x, int incx, T* y, int incy) {
  pairwise(n, x, incx, y, incy, []<class V>(const auto* from, auto* to) { V::load(from).store(to); });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xscopy(const int* n, const float* x, const int* incx, float* y, const int* incy) {
  orb::blas::copy(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xdcopy(const int* n, const double* x, const int* incx, double* y, const int* incy) {
  orb::blas::copy(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xccopy(const int* n, const orb_complex_float* x, const int* incx,
                                orb_complex_float* y, const int* incy) {
  orb::blas::copy(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xzcopy(const int* n, const orb_complex_double* x, const int* incx,
                                orb_complex_double* y, const int* incy) {
  orb::blas::copy(*n, x, *incx, y, *incy);
}
