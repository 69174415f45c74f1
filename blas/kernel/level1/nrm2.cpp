// Euclidean norm as a plain sum of squares: wider sums keep it in range, so no scaling is needed. Doubles add
// on the 80-bit stack, singles in double.
#include "blas/kernel/level1/reduce.h"
#include "orb/blas_level1.h"
#include "serv/kernel/complex.h"

namespace orb::blas {
namespace {

using extended = long double;

ORB_INLINE extended square(extended a) { return a * a; }

// Four sums in rotation by place.
extended nrm2_unit(int n, const double* x) {
  extended sum[4] = {};
  int i = 0;
  for (; n - i >= 4; i += 4) {
    prefetch_once(x + i, 16, 1);
    unroll<4>([&](auto k) { sum[k] += square(x[i + k]); });
  }
  unroll<3>([&](auto k) {
    if (i + k < n) sum[k] += square(x[i + k]);
  });
  return std::sqrt(sum[0] + sum[1] + sum[2] + sum[3]);
}

extended nrm2(int n, const double* x, int incx) {
  if (n <= 0) return 0;
  if (incx == 1 || incx == -1) return nrm2_unit(n, x);
  x = strided_start(x, n, incx);
  return std::sqrt(sum_in_two<extended>(n, [=](int i) {
    prefetch_once(x + i * incx, 2, incx);
    return square(x[i * incx]);
  }));
}

float nrm2(int n, const float* x, int incx) {
  if (n <= 0) return 0;
  if (incx == -1) incx = 1;
  const int peel = elements_to_boundary(x);
  FourSums<f64x2> sums;
  const auto add = [&sums]<int k>(Int<k>, auto a) { sums.add(Int<k>{}, a * a); };
  if (incx == 1 && peel >= 0) {
    register_loop<float>(n, peel, [&, x]<class V>(auto k, int i) {
      if constexpr (V::lanes == 1) return add(k, Lane<double>::widen(x + i));
      const f32x4 a = f32x4::load(x + i);
      add(Int<2 * k>{}, a.widen_first());
      add(Int<2 * k + 1>{}, a.widen_last());
      keep_in_registers(sums.at);
    });
  } else {
    x = strided_start(x, n, incx);
    for (int i = 0; i < n; ++i, x += incx) add(Int<0>{}, Lane<double>::widen(x));
  }
  return float(std::sqrt(sums.folded().sum()));
}

// Real and imaginary parts apart.
extended nrm2_strided(int n, const orb_complex_double* x, int incx) {
  extended re = 0, im = 0;
  for (int i = 0; i < n; ++i, x += incx) {
    prefetch_once(x, 2, incx);
    re += square(x->re);
    im += square(x->im);
  }
  return std::sqrt(re + im);
}
float nrm2_strided(int n, const orb_complex_float* x, int incx) {
  f64x2 parts = f64x2::zero();
  for (int i = 0; i < n; ++i, x += incx) {
    const f64x2 a = f64x2::widen(&x->re);
    parts += a * a;
  }
  return float(std::sqrt(parts.sum()));
}

template <Complex C>
auto nrm2(int n, const C* x, int incx) -> decltype(nrm2(n, &x->re, incx)) {
  if (n <= 0) return 0;
  if (incx == 1 || incx == -1) return nrm2(2 * n, &x->re, 1);
  return nrm2_strided(n, strided_start(x, n, incx), incx);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT float orb_blas_snrm2(const int* n, const float* x, const int* incx) {
  return orb::blas::nrm2(*n, x, *incx);
}
ORB_EXPORT double orb_blas_dnrm2(const int* n, const double* x, const int* incx) {
  return double(orb::blas::nrm2(*n, x, *incx));
}
ORB_EXPORT float orb_blas_scnrm2(const int* n, const orb_complex_float* x, const int* incx) {
  return orb::blas::nrm2(*n, x, *incx);
}
ORB_EXPORT double orb_blas_dznrm2(const int* n, const orb_complex_double* x, const int* incx) {
  return double(orb::blas::nrm2(*n, x, *incx));
}
