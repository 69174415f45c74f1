// Makes a modified rotation: H that clears the second component of (x1, y1), the rows being held as sqrt(d1)
// x and sqrt(d2) y. Reference: Lawson, Hanson, Kincaid, Krogh, ACM TOMS 5 (1979) 308-323.
#include <cmath>

#include "orb/blas_level1.h"
#include "serv/kernel/complex.h"

namespace orb::blas {
namespace {

template <Real T>
struct Scaling {
  static constexpr T gam = 4096, gamsq = 16777216;
  static constexpr T rgamsq = T(5.960464477539e-8);  // in singles 2^-24, in doubles a little less
};

// Brings |d| between rgamsq and gamsq, both excluded, by powers of gamsq, and returns the power of gam that
// keeps sqrt(d) times the row the same. 0, infinities and NaN stay: no power helps them, and the loops must
// end.
template <Real T>
T rescale(T& d) {
  using S = Scaling<T>;
  T row = 1;
  for (; d != 0 && std::abs(d) <= S::rgamsq; d *= S::gamsq) row /= S::gam;
  for (; std::isfinite(d) && std::abs(d) >= S::gamsq; d /= S::gamsq) row *= S::gam;
  return row;
}

template <Real T>
void rotmg(T& d1, T& d2, T& x1, T y1, T* param) {
  const auto refuse = [&] {
    d1 = d2 = x1 = 0;
    param[0] = -1;
    param[1] = param[2] = param[3] = param[4] = 0;
  };
  if (d1 < 0) return refuse();
  const T p1 = d1 * x1, p2 = d2 * y1, q1 = p1 * x1, q2 = p2 * y1;
  if (p2 == 0) {
    param[0] = -2;
    return;
  }

  T flag, h11 = 1, h21 = -1, h12 = 1, h22 = 1;
  if (std::abs(q1) > std::abs(q2)) {
    flag = 0;
    h21 = -y1 / x1;
    h12 = p2 / p1;
    const T u = 1 - h12 * h21;
    if (u <= 0) return refuse();
    d1 /= u;
    d2 /= u;
    x1 *= u;
  } else {
    if (q2 < 0) return refuse();
    flag = 1;
    h11 = p1 / p2;
    h22 = x1 / y1;
    const T u = 1 + h11 * h22, old_d1 = d1;
    d1 = d2 / u;
    d2 = old_d1 / u;
    x1 = y1 * u;
  }

  const T row1 = rescale(d1), row2 = rescale(d2);
  if (row1 != 1 || row2 != 1) flag = -1;
  x1 *= row1, h11 *= row1, h12 *= row1;
  h21 *= row2, h22 *= row2;

  param[0] = flag;
  if (flag != 0) param[1] = h11, param[4] = h22;
  if (flag != 1) param[2] = h21, param[3] = h12;
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_srotmg(float* d1, float* d2, float* x1, const float* y1, float* param) {
  orb::blas::rotmg(*d1, *d2, *x1, *y1, param);
}
ORB_EXPORT void orb_blas_drotmg(double* d1, double* d2, double* x1, const double* y1, double* param) {
  orb::blas::rotmg(*d1, *d2, *x1, *y1, param);
}
