// Exchanges x and y, bit for bit.
#include "blas/kernel/level1/pairwise.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

template <class T>
void swap(int n, T* x, int incx, T* y, int incy) {
  pairwise(n, x, incx, y, incy, []<class V>(auto* p, auto* q) {
    const V a = V::load(p), b = V::load(q);
    a.store(q);
    b.store(p);
  });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xsswap(const int* n, float* x, const int* incx, float* y, const int* incy) {
  orb::blas::swap(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xdswap(const int* n, double* x, const int* incx, double* y, const int* incy) {
  orb::blas::swap(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xcswap(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                                const int* incy) {
  orb::blas::swap(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xzswap(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                                const int* incy) {
  orb::blas::swap(*n, x, *incx, y, *incy);
}
