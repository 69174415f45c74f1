// Transforms in long double, and what to feed them.
#pragma once

#include <cmath>
#include <complex>
#include <limits>
#include <random>
#include <vector>

namespace orb::test {

using Wide = std::complex<long double>;
using Sequence = std::vector<Wide>;

constexpr int forward_sign = -1, inverse_sign = 1;

// exp(sign 2 pi i k / n)
inline Wide root(int sign, long long k, long long n) {
  const long double angle =
      2 * 3.141592653589793238462643383279502884L * (long double)(k % n) / (long double)n;
  return {cosl(angle), sign * sinl(angle)};
}

// Radix 2, n a power of two: the even and the odd samples, then the butterflies.
inline Sequence wide_fft(const Sequence& x, int sign) {
  const size_t n = x.size();
  Sequence roots(n / 2 + 1), result = x, next((size_t)n);
  for (size_t k = 0; k < n / 2; ++k) roots[k] = root(sign, (long long)k, (long long)n);
  // Stockham's order: `done` numbers are transforms of subsequences `stride` apart.
  for (size_t done = 1, stride = n / 2; stride >= 1; done *= 2, stride /= 2) {
    for (size_t k = 0; k < done; ++k)
      for (size_t i = 0; i < stride; ++i) {
        const Wide even = result[2 * k * stride + i],
                   term = result[(2 * k + 1) * stride + i] * roots[k * stride];
        next[k * stride + i] = even + term, next[(k + done) * stride + i] = even - term;
      }
    result.swap(next);
  }
  return result;
}

// Any length: the definition for short ones, Bluestein's convolution for long ones.
inline Sequence wide_dft(const Sequence& x, int sign) {
  const long long n = (long long)x.size();
  if ((n & (n - 1)) == 0) return wide_fft(x, sign);
  Sequence result(x.size());
  if (n <= 64) {
    for (long long k = 0; k < n; ++k)
      for (long long j = 0; j < n; ++j) result[size_t(k)] += x[size_t(j)] * root(sign, j * k, n);
    return result;
  }
  size_t m = 1;
  while (m < size_t(2 * n)) m *= 2;
  Sequence a(m), b(m);
  for (long long k = 0; k < n; ++k) {
    const Wide chirp = root(sign, k * k % (2 * n), 2 * n);
    a[size_t(k)] = x[size_t(k)] * chirp;
    b[size_t(k)] = std::conj(chirp);
    if (k > 0) b[m - size_t(k)] = std::conj(chirp);
  }
  a = wide_fft(a, -1), b = wide_fft(b, -1);
  for (size_t i = 0; i < m; ++i) a[i] *= b[i];
  a = wide_fft(a, 1);
  for (long long k = 0; k < n; ++k)
    result[size_t(k)] = a[size_t(k)] / (long double)m * root(sign, k * k % (2 * n), 2 * n);
  return result;
}

// Uniform values between -1 and 1 that are exact in single precision; real ones on request.
inline Sequence noise(int n, unsigned seed, bool real = false) {
  std::minstd_rand random(seed + 1);
  const auto value = [&] { return (long double)(int(random() % 0x200001) - 0x100000) / 0x100000; };
  Sequence x((size_t)n);
  for (Wide& z : x) {
    const long double re = value(), im = value();
    z = {re, real ? 0 : im};
  }
  return x;
}

// Root mean square of the difference over that of the reference.
inline long double relative_error(const Sequence& got, const Sequence& want) {
  long double error = 0, size = 0;
  for (size_t i = 0; i < want.size(); ++i) error += std::norm(got[i] - want[i]), size += std::norm(want[i]);
  return size == 0 ? error : sqrtl(error / size);
}

// c eps sqrt(log2 n), the growth of the rounding errors of a fast transform (Schatzman, SIAM J. Sci. Comput.
// 17, 1996); a single number has no level and is at most scaled.
template <class T>
long double error_bound(long double c, int n) {
  return c * std::numeric_limits<T>::epsilon() * sqrtl(log2l(n < 2 ? 2 : n));
}

}  // namespace orb::test
