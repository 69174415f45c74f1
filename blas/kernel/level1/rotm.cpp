// Applies a modified rotation. Reference: Lawson, Hanson, Kincaid, Krogh, ACM TOMS 5 (1979) 308-323.
#include "blas/kernel/level1/pairs.h"
#include "orb/blas_level1.h"

namespace orb::blas {
namespace {

// The flag, param[0], says which entries of H = (h11 h12; h21 h22) are to be read from param[1] h11, param[2]
// h21, param[3] h12, param[4] h22, column by column. The others are ones or, under a positive flag, h21 = -1.
template <class T>
void rotm(int n, T* x, int incx, T* y, int incy, const T* param) {
  const T flag = param[0];
  if (n <= 0 || flag + 2 == 0) return;
  const T h11 = param[1], h21 = param[2], h12 = param[3], h22 = param[4];
  if (flag > 0)
    for_pairs(n, x, incx, y, incy, [=]<class V>(T* xi, T* yi) {
      const V old_x = V::loadu(xi), old_y = V::load(yi);
      (V::splat(h11) * old_x + old_y).storeu(xi);
      (V::splat(h22) * old_y - old_x).store(yi);
    });
  else if (flag == 0)
    for_pairs(n, x, incx, y, incy, [=]<class V>(T* xi, T* yi) {
      const V old_x = V::loadu(xi), old_y = V::load(yi);
      (old_x + V::splat(h12) * old_y).storeu(xi);
      (V::splat(h21) * old_x + old_y).store(yi);
    });
  else
    for_pairs(n, x, incx, y, incy, [=]<class V>(T* xi, T* yi) {
      const V old_x = V::loadu(xi), old_y = V::load(yi);
      (V::splat(h11) * old_x + V::splat(h12) * old_y).storeu(xi);
      (V::splat(h21) * old_x + V::splat(h22) * old_y).store(yi);
    });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_srotm(const int* n, float* x, const int* incx, float* y, const int* incy,
                               const float* param) {
  orb::blas::rotm(*n, x, *incx, y, *incy, param);
}
ORB_EXPORT void orb_blas_drotm(const int* n, double* x, const int* incx, double* y, const int* incy,
                               const double* param) {
  orb::blas::rotm(*n, x, *incx, y, *incy, param);
}
