// A vector of rotations, each applied to its own pair of elements.
#include "blas/kernel/level1/rotate.h"
#include "orb/blas_level1.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

template <class T>
void lartv(int n, T* x, int incx, T* y, int incy, const real_of<T>* c, const T* s, int incc) {
  if (n <= 0) return;
  if (incx == 1 && incy == 1 && incc == 1)
    return compiled_loop(n, y,
                         [=]<class V>(int i) { rotate<V>(V::each(c + i), V::each(s + i), x + i, y + i); });
  using One = one_of<T>;
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  c = strided_start(c, n, incc);
  s = strided_start(s, n, incc);
  for (int i = 0; i < n; ++i, x += incx, y += incy, c += incc, s += incc)
    rotate<One>(One::each(c), One::each(s), x, y);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_slartv(const int* n, float* x, const int* incx, float* y, const int* incy,
                                const float* c, const float* s, const int* incc) {
  orb::blas::lartv(*n, x, *incx, y, *incy, c, s, *incc);
}
ORB_EXPORT void orb_blas_dlartv(const int* n, double* x, const int* incx, double* y, const int* incy,
                                const double* c, const double* s, const int* incc) {
  orb::blas::lartv(*n, x, *incx, y, *incy, c, s, *incc);
}
ORB_EXPORT void orb_blas_clartv(const int* n, orb_complex_float* x, const int* incx, orb_complex_float* y,
                                const int* incy, const float* c, const orb_complex_float* s,
                                const int* incc) {
  orb::blas::lartv(*n, x, *incx, y, *incy, c, s, *incc);
}
ORB_EXPORT void orb_blas_zlartv(const int* n, orb_complex_double* x, const int* incx, orb_complex_double* y,
                                const int* incy, const double* c, const orb_complex_double* s,
                                const int* incc) {
  orb::blas::lartv(*n, x, *incx, y, *incy, c, s, *incc);
}
