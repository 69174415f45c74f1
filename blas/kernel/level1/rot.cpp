// Plane rotation of two vectors by real c and s of the element type or real. Reference: Lawson, Hanson,
// Kincaid, Krogh, ACM TOMS 5 (1979) 308-323. Every element takes two rounded products and one rounded sum on
// any path.
#include "blas/kernel/level1/pairs.h"
#include "blas/kernel/level1/rotate.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

template <class T, class S>
void rot(int n, T* x, int incx, T* y, int incy, real_of<T> c, S s) {
  for_pairs(n, x, incx, y, incy, [=]<class V>(T* xi, T* yi) { rotate<V>(V::splat(c), V::splat(s), xi, yi); });
}

// Complex numbers under real c and s: contiguous ones are twice as many reals, which find a 16-byte boundary
// where the numbers have none.
template <Complex T>
void rot_by_reals(int n, T* x, int incx, T* y, int incy, real_of<T> c, real_of<T> s) {
  if (n > 0 && incx == 1 && incy == 1) return rot(2 * n, &x->re, 1, &y->re, 1, c, s);
  rot(n, x, incx, y, incy, c, s);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xsrot(const int* n, float* x, const int* incx, float* y, const int* incy,
                               const float* c, const float* s) {
  orb::blas::rot(*n, x, *incx, y, *incy, *c, *s);
}
ORB_EXPORT void orb_blas_xdrot(const int* n, double* x, const int* incx, double* y, const int* incy,
                               const double* c, const double* s) {
  orb::blas::rot(*n, x, *incx, y, *incy, *c, *s);
}
ORB_EXPORT void orb_blas_xcrot(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                               const int* incy, const float* c, const orb_complex_float* s) {
  orb::blas::rot(*n, x, *incx, y, *incy, *c, *s);
}
ORB_EXPORT void orb_blas_xzrot(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                               const int* incy, const double* c, const orb_complex_double* s) {
  orb::blas::rot(*n, x, *incx, y, *incy, *c, *s);
}
ORB_EXPORT void orb_blas_xcsrot(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                                const int* incy, const float* c, const float* s) {
  orb::blas::rot_by_reals(*n, x, *incx, y, *incy, *c, *s);
}
ORB_EXPORT void orb_blas_xzdrot(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                                const int* incy, const double* c, const double* s) {
  orb::blas::rot_by_reals(*n, x, *incx, y, *incy, *c, *s);
}
