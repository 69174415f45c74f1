// The shortest transforms, 2^0 to 2^5, in straight code over views: loops and branches run while compiling.
// All input is read before the first output is written.
#pragma once

#include "signal/kernel/fft/passes.h"
#include "signal/kernel/fft/sines.h"

namespace orb::signal {

// Twice the bit-reversals of k over order - 2 bits, k below 2^(order - 2).
template <int order>
constexpr std::array<int, (1 << order >> 2)> small_reversal() {
  std::array<int, (1 << order >> 2)> table{};
  for (int k = 0; k < 1 << order >> 2; ++k)
    for (int bit = 0; bit < order - 2; ++bit)
      if (k >> bit & 1) table[k] |= 2 << (order - 3 - bit);
  return table;
}

template <class T, int order>
constexpr auto small_twiddles() {
  constexpr auto sines = quarter_wave<T, 32>();
  std::array<T, (2 << order) - 8> table{};
  write_level_twiddles(table.data(), Sines<T>{sines.data(), 5}, order);
  return table;
}

// Lengths 1 to 8, a number a register.
template <int order, Direction d, class T, class In, class Out>
ORB_INLINE void straight_numbers(In in, Out out) {
  using Z = one_of<complex_of<T>>;
  const auto at = [&](int x) ORB_INLINE_BODY { return in.template numbers<Z>(x); };
  if constexpr (order == 0) {
    out.put(0, at(0));
  } else if constexpr (order == 1) {
    const Z a = at(0), b = at(1);
    out.put(0, a + b);
    out.put(1, a - b);
  } else if constexpr (order == 2) {
    Z x[4] = {at(0), at(1), at(2), at(3)};
    first_butterfly<d>(x);
    unroll<4>([&](auto k) ORB_INLINE_BODY { out.put(k, x[k]); });
  } else {
    constexpr T half = T(quarter_wave<double, 8>()[1]);  // sqrt(1/2)
    Z even[4] = {at(0), at(2), at(4), at(6)}, odd[4] = {at(1), at(3), at(5), at(7)};
    first_butterfly<d>(even);
    first_butterfly<d>(odd);
    const auto h = Z::splat(half);
    const Z turned1 = rotated<d>(odd[1]), turned3 = rotated<d>(odd[3]);
    odd[1] = h * (odd[1] + turned1);
    odd[2] = rotated<d>(odd[2]);
    odd[3] = h * (turned3 - odd[3]);
    unroll<4>([&](auto k) ORB_INLINE_BODY {
      out.put(k, even[k] + odd[k]);
      out.put(k + 4, even[k] - odd[k]);
    });
  }
}

// Lengths 16 and 32, through a work array on the stack.
template <int order, Direction d, class T, class In, class Out>
ORB_INLINE void straight_levels(In in, Out out) {
  constexpr int n = 1 << order;
  alignas(16) static constexpr auto twiddles = small_twiddles<T, order>();
  alignas(16) T room[2 * n];
  const Blocked<T> work{room};
  unroll<n / (4 * vector_of<T>::lanes / 2)>([&](auto k) ORB_INLINE_BODY {
    using Z = ComplexVector<complex_of<T>>;
    constexpr int j = small_reversal<order>()[k] / 2;
    Z x[4] = {in.template numbers<Z>(j), in.template numbers<Z>(j + n / 4), in.template numbers<Z>(j + n / 2),
              in.template numbers<Z>(j + n / 2 + n / 4)};
    first_butterfly<d>(x);
    store_fours(x, work + 4 * k, n / 2);
  });
  if constexpr (order == 4) {
    radix4_rows<d>(work, 4, out, 4, 4, twiddles.data());
  } else {
    unroll<2>([&](auto half) ORB_INLINE_BODY {
      radix4_rows<d>(work + 16 * half, 4, work + 16 * half, 4, 4, twiddles.data());
    });
    radix2_rows<d>(work, 16, out, 16, 16, twiddles.data() + 24);
  }
}

template <int order, Direction d, class T, class In, class Out>
ORB_INLINE void straight(In in, Out out) {
  if constexpr (order <= 3)
    straight_numbers<order, d, T>(in, out);
  else
    straight_levels<order, d, T>(in, out);
}

}  // namespace orb::signal
