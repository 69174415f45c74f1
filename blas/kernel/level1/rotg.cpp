// Makes a plane rotation. References: Lawson, Hanson, Kincaid, Krogh, ACM TOMS 5 (1979) 308-323, and for the
// complex one Dongarra, Moler, Bunch, Stewart, LINPACK Users' Guide (SIAM 1979), appendix A.
#include <cmath>

#include "orb/blas_level1.h"
#include "serv/kernel/complex.h"

namespace orb::blas {
namespace {

template <Real T>
void rotg(T& a, T& b, T& c, T& s) {
  const T size_a = std::abs(a), size_b = std::abs(b), scale = size_a + size_b;
  if (scale == 0) {
    c = 1, s = 0, a = 0, b = 0;
    return;
  }
  const bool a_larger = size_a > size_b;
  const T share_a = a / scale, share_b = b / scale;
  T r = scale * std::sqrt(share_a * share_a + share_b * share_b);
  if ((a_larger ? a : b) < 0) r = -r;
  c = a / r;
  s = b / r;
  T z = 1;
  if (a_larger) z = s;
  if (size_b >= size_a && c != 0) z = 1 / c;
  a = r;
  b = z;
}

// What the complex quotients, and all that follows from them, are held in: doubles are divided in extended
// precision, singles in their own.
template <class T>
struct QuotientOf {
  using type = T;
};
template <>
struct QuotientOf<double> {
  using type = long double;
};

template <Complex C>
real_of<C> modulus(C a) {
  return std::sqrt(a.re * a.re + a.im * a.im);
}

template <Complex C>
void rotg(C& a, C b, real_of<C>& c, C& s) {
  using T = real_of<C>;
  using Quotient = typename QuotientOf<T>::type;
  const T size_a = modulus(a);
  if (size_a == 0) {
    c = 0, s = {1, 0}, a = b;
    return;
  }
  const Quotient scale = size_a + modulus(b);
  const auto square = [scale](T part) { return part / scale * (part / scale); };
  const Quotient r = scale * std::sqrt((square(a.re) + square(a.im)) + (square(b.re) + square(b.im)));
  const Quotient phase_re = a.re / Quotient(size_a), phase_im = a.im / Quotient(size_a);
  c = T(size_a / r);
  s = {T((phase_re * b.re + phase_im * b.im) / r), T((phase_im * b.re - phase_re * b.im) / r)};
  a = {T(phase_re * r), T(phase_im * r)};
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_srotg(float* a, float* b, float* c, float* s) { orb::blas::rotg(*a, *b, *c, *s); }
ORB_EXPORT void orb_blas_drotg(double* a, double* b, double* c, double* s) {
  orb::blas::rotg(*a, *b, *c, *s);
}
ORB_EXPORT void orb_blas_crotg(orb_complex_float* a, const orb_complex_float* b, float* c,
                               orb_complex_float* s) {
  orb::blas::rotg(*a, *b, *c, *s);
}
ORB_EXPORT void orb_blas_zrotg(orb_complex_double* a, const orb_complex_double* b, double* c,
                               orb_complex_double* s) {
  orb::blas::rotg(*a, *b, *c, *s);
}
