// The forward transform in 80 bits, against which errors are measured: its own are three digits below those
// of doubles.
#pragma once

#include <algorithm>
#include <complex>
#include <cstdint>
#include <random>
#include <vector>

namespace orb::bench {

using Wide = std::complex<long double>;
using Sequence = std::vector<Wide>;

// exp(-2 pi i k / n) for k below n.
inline Sequence roots_of_unity(std::size_t n) {
  constexpr long double full = 6.283185307179586476925286766559L;
  Sequence roots(n);
  for (std::size_t k = 0; k < n; ++k)
    roots[k] = std::polar(1.0L, -full * (long double)(k) / (long double)(n));
  return roots;
}

// Radix 2, by halves: n outputs from every `stride`-th input. The table holds roots for n times stride.
inline void split_by_two(const Wide* x, std::size_t n, std::size_t stride, const Sequence& roots, Wide* out) {
  if (n == 1) {
    *out = *x;
    return;
  }
  const std::size_t half = n / 2;
  split_by_two(x, half, 2 * stride, roots, out);
  split_by_two(x + stride, half, 2 * stride, roots, out + half);
  for (std::size_t k = 0; k < half; ++k) {
    const Wide even = out[k], odd = out[k + half] * roots[k * stride];
    out[k] = even + odd;
    out[k + half] = even - odd;
  }
}

// One output by its definition. Sums of blocks are added up apart, which keeps errors those of short sums.
inline Wide direct_sum(const Sequence& x, const Sequence& roots, std::size_t k) {
  constexpr std::size_t block = 1024;
  const std::size_t n = x.size();
  Wide all = 0;
  for (std::size_t first = 0; first < n; first += block) {
    Wide sum = 0;
    std::size_t turn = std::size_t(std::uint64_t(first) * k % n);
    for (std::size_t j = first; j < std::min(n, first + block); ++j) {
      sum += x[j] * roots[turn];
      turn = turn + k < n ? turn + k : turn + k - n;
    }
    all += sum;
  }
  return all;
}

// Outputs and their places: all of them for powers of two and short lengths, else a sample by chance.
struct Outputs {
  std::vector<std::size_t> places;
  Sequence values;
};

inline Outputs exact_transform(const Sequence& x, std::mt19937& chance) {
  constexpr std::size_t terms = 20'000'000, least = 64;
  const std::size_t n = x.size();
  const bool power_of_two = (n & (n - 1)) == 0;
  const bool all = power_of_two || n <= terms / n;
  const Sequence roots = roots_of_unity(n);
  Outputs result;
  result.places.resize(all ? n : std::max(least, terms / n));
  for (std::size_t i = 0; i < result.places.size(); ++i) result.places[i] = all ? i : chance() % n;
  result.values.resize(result.places.size());
  if (power_of_two)
    split_by_two(x.data(), n, 1, roots, result.values.data());
  else
    for (std::size_t i = 0; i < result.places.size(); ++i)
      result.values[i] = direct_sum(x, roots, result.places[i]);
  return result;
}

}  // namespace orb::bench
