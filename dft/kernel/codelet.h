// Straight code for complex lines of 2 to 128 elements: the straight transforms of the signal family, and for
// the longer ones four of them with one level of butterflies behind.
#pragma once

#include "dft/kernel/element.h"
#include "orb/signal_straight.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::dft {

template <class C>
using StraightCode = void (*)(const C* in, C* out);

template <int n, bool forward>
void straight(const c32* in, c32* out) {
  constexpr StraightCode<c32> routine = n == 2   ? t7_vsps_cFFT_2_32fc
                                        : n == 4 ? forward ? t7_vsps_cFFTfwd_4_32fc : t7_vsps_cFFTinv_4_32fc
                                        : n == 8 ? forward ? t7_vsps_cFFTfwd_8_32fc : t7_vsps_cFFTinv_8_32fc
                                        : n == 16
                                            ? forward ? t7_vsps_cFFTfwd_16_32fc : t7_vsps_cFFTinv_16_32fc
                                        : forward ? t7_vsps_cFFTfwd_32_32fc
                                                  : t7_vsps_cFFTinv_32_32fc;
  routine(in, out);
}
template <int n, bool forward>
void straight(const c64* in, c64* out) {
  constexpr StraightCode<c64> routine = n == 2   ? t7_vsps_cFFT_2_64fc
                                        : n == 4 ? forward ? t7_vsps_cFFTfwd_4_64fc : t7_vsps_cFFTinv_4_64fc
                                        : n == 8 ? forward ? t7_vsps_cFFTfwd_8_64fc : t7_vsps_cFFTinv_8_64fc
                                        : n == 16
                                            ? forward ? t7_vsps_cFFTfwd_16_64fc : t7_vsps_cFFTinv_16_64fc
                                        : forward ? t7_vsps_cFFTfwd_32_64fc
                                                  : t7_vsps_cFFTinv_32_64fc;
  routine(in, out);
}

// Cosine (first = 0) or sine (first = 1) of x by its series, which the compiler sums in extended precision.
constexpr long double series(long double x, int first) {
  long double term = first ? x : 1, sum = term;
  for (int k = first + 1; k < 60; k += 2) sum += term *= -x * x / (k * (k + 1));
  return sum;
}

// exp(-+ 2 pi i k r / n) for r = 1, 2, 3 and k below n / 4.
template <class C, int n, bool forward>
struct QuarterRoots {
  C at[3][n / 4];

  constexpr QuarterRoots() : at{} {
    for (int r = 1; r <= 3; ++r)
      for (int k = 0; k < n / 4; ++k) {
        const long double angle = 6.283185307179586476925286766559L * (k * r) / n;
        const long double sine = series(angle, 1);
        at[r - 1][k] = {real_of<C>(series(angle, 0)), real_of<C>(forward ? -sine : sine)};
      }
  }
};

template <class V>
ORB_INLINE V plus_i_times(V a, V b) {
  return {V::Register::addsub(a.v, swap_parts(b.v))};
}

template <int n, bool forward, class C>
void codelet(const C* in, C* out) {
  if constexpr (n <= 32) {
    straight<n, forward>(in, out);
  } else {
    using V = ComplexVector<C>;
    static constexpr QuarterRoots<C, n, forward> roots;
    constexpr int m = n / 4;
    alignas(16) C part[4][m];
    for (int i = 0; i < m; ++i)
      for (int r = 0; r < 4; ++r) part[r][i] = in[4 * i + r];
    for (auto& p : part) straight<m, forward>(p, p);
    for (int k = 0; k < m; k += V::lanes) {
      const auto turned = [&](int r) { return V::each(roots.at[r - 1] + k) * V::load(part[r] + k); };
      const V a = V::load(part[0] + k), b = turned(1), c = turned(2), d = turned(3);
      const V even = a + c, odd = a - c, sum = b + d, difference = forward ? d - b : b - d;
      const V opposite = V::zero() - difference;
      (even + sum).storeu(out + k);
      plus_i_times(odd, difference).storeu(out + m + k);
      (even - sum).storeu(out + 2 * m + k);
      plus_i_times(odd, opposite).storeu(out + 3 * m + k);
    }
  }
}

}  // namespace orb::dft
