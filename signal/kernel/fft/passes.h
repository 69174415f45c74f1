// The passes of a radix-4 decimation in time over numbers in bit-reversed order. All arithmetic on whole
// arrays is here; who runs which pass over what stands in the drivers.
//
// A pass combines quarters of `count` numbers: number x of each of four rows, with the twiddles w^2x, w^x and
// w^3x on the second, third and fourth row (the rows stand in bit-reversed order themselves), gives number x
// of four rows. Twiddles stand in groups of four x: four each of cos wx, -sin wx, cos 2wx, -sin 2wx, cos 3wx,
// -sin 3wx, which any register width can read; those of a radix-2 pass as four cos wx, four -sin wx.
#pragma once

#include "signal/kernel/split.h"

namespace orb::signal {

// Four rows, `in_row` numbers apart, to four rows `out_row` apart; count is a multiple of 4.
// The order of the statements keeps the eight registers enough.
template <Direction d, class In, class Out, class T>
ORB_INLINE void radix4_rows(In in, int in_row, Out out, int out_row, int count, const T* w) {
  using V = vector_of<T>;
  for (int j = 0; j < count; j += 4, w += 24)
    unroll<4 / V::lanes>([&](auto u) ORB_INLINE_BODY {
      const int x = j + u * V::lanes;
      const T* const at = w + u * V::lanes;
      const auto twiddle = [&](int multiple) ORB_INLINE_BODY {
        return Split<V>{V::load(at + 8 * multiple - 8), V::load(at + 8 * multiple - 4)};
      };
      const auto b = twiddled<d>(in.load(x + in_row), twiddle(2));
      const auto a = in.load(x);
      const auto sum02 = a + b, difference02 = a - b;
      const auto c = twiddled<d>(in.load(x + 2 * in_row), twiddle(1));
      const auto e = twiddled<d>(in.load(x + 3 * in_row), twiddle(3));
      const auto sum13 = c + e, difference13 = c - e;
      out.store(x, sum02 + sum13);
      out.store(x + 2 * out_row, sum02 - sum13);
      out.store(x + out_row, rotate_add<d>(difference02, difference13));
      out.store(x + 3 * out_row, rotate_sub<d>(difference02, difference13));
    });
}

// Two rows to two rows; count is a multiple of 4.
template <Direction d, class In, class Out, class T>
ORB_INLINE void radix2_rows(In in, int in_row, Out out, int out_row, int count, const T* w) {
  using V = vector_of<T>;
  for (int j = 0; j < count; j += 4, w += 8)
    unroll<4 / V::lanes>([&](auto u) ORB_INLINE_BODY {
      const int x = j + u * V::lanes;
      const T* const at = w + u * V::lanes;
      const auto b = twiddled<d>(in.load(x + in_row), Split<V>{V::load(at), V::load(at + 4)});
      const auto a = in.load(x);
      out.store(x, a + b);
      out.store(x + out_row, a - b);
    });
}

// The same over `blocks` blocks of four (two) rows of `count` numbers each, one behind the other.
template <Direction d, class In, class Out, class T>
void radix4_blocks(In in, Out out, int count, int blocks, const T* w) {
  for (; blocks > 0; --blocks, in = in + 4 * count, out = out + 4 * count)
    radix4_rows<d>(in, count, out, count, count, w);
}
template <Direction d, class In, class Out, class T>
void radix2_blocks(In in, Out out, int count, int blocks, const T* w) {
  for (; blocks > 0; --blocks, in = in + 2 * count, out = out + 2 * count)
    radix2_rows<d>(in, count, out, count, count, w);
}

// The butterfly of the first level, whose twiddles are all 1: the transform of the four numbers x[0] to x[3]
// in each lane.
template <Direction d, class Z>
ORB_INLINE void first_butterfly(Z (&x)[4]) {
  const Z sum02 = x[0] + x[2], difference02 = x[0] - x[2];
  const Z sum13 = x[1] + x[3], turned = rotated<d>(x[1] - x[3]);
  x[0] = sum02 + sum13;
  x[1] = difference02 + turned;
  x[2] = sum02 - sum13;
  x[3] = difference02 - turned;
}

// Stores four numbers of each lane as four consecutive numbers of the work format.
ORB_INLINE void store_fours(const ComplexVector<c64> (&y)[4], Blocked<double> at, int) {
  unroll<2>([&](auto h) ORB_INLINE_BODY {
    at.store(2 * h, {f64x2::even(y[2 * h].v, y[2 * h + 1].v), f64x2::odd(y[2 * h].v, y[2 * h + 1].v)});
  });
}
// The second lane's stand `lane_step` numbers on.
ORB_INLINE void store_fours(const ComplexVector<c32> (&y)[4], Blocked<float> at, int lane_step) {
  const f32x4 low01 = f32x4::low_pairs(y[0].v, y[1].v), low23 = f32x4::low_pairs(y[2].v, y[3].v);
  at.store(0, {f32x4::even(low01, low23), f32x4::odd(low01, low23)});
  const f32x4 high01 = f32x4::high_pairs(y[0].v, y[1].v), high23 = f32x4::high_pairs(y[2].v, y[3].v);
  at.store(lane_step, {f32x4::even(high01, high23), f32x4::odd(high01, high23)});
}

// The first level, fused with the reversal: n numbers in natural order to n numbers of the work format.
// reversed[k] is twice the bit-reversal of k over log2(n) - 2 bits, for k below n/4.
template <Direction d, class In, class T>
ORB_INLINE void first_level_reversing(In in, Blocked<T> work, int n, const int* reversed) {
  using Z = ComplexVector<complex_of<T>>;
  for (int k = 0; k < n / (4 * Z::lanes); ++k) {
    const int j = reversed[k] >> 1;
    Z x[4] = {in.template numbers<Z>(j), in.template numbers<Z>(j + n / 4), in.template numbers<Z>(j + n / 2),
              in.template numbers<Z>(j + n / 2 + n / 4)};
    first_butterfly<d>(x);
    store_fours(x, work + 4 * k, n / 2);
  }
}

// One block of four numbers that stand in bit-reversed order, for each lane.
template <class In>
ORB_INLINE void load_fours(In in, ComplexVector<c64> (&x)[4]) {
  using Z = ComplexVector<c64>;
  x[0] = in.template numbers<Z>(0), x[2] = in.template numbers<Z>(1);
  x[1] = in.template numbers<Z>(2), x[3] = in.template numbers<Z>(3);
}
template <class In>
ORB_INLINE void load_fours(In in, ComplexVector<c32> (&x)[4]) {
  using Z = ComplexVector<c32>;
  const f32x4 a02 = in.template numbers<Z>(0).v, a13 = in.template numbers<Z>(2).v;
  const f32x4 b02 = in.template numbers<Z>(4).v, b13 = in.template numbers<Z>(6).v;
  x[0] = {f32x4::low_pairs(a02, b02)}, x[2] = {f32x4::high_pairs(a02, b02)};
  x[1] = {f32x4::low_pairs(a13, b13)}, x[3] = {f32x4::high_pairs(a13, b13)};
}

// The first level of n numbers in bit-reversed order; `in` and `work` may be one array.
template <Direction d, class In, class T>
ORB_INLINE void first_level(In in, Blocked<T> work, int n) {
  using Z = ComplexVector<complex_of<T>>;
  for (int k = 0; k < n; k += 4 * Z::lanes) {
    Z x[4];
    load_fours(in + k, x);
    first_butterfly<d>(x);
    store_fours(x, work + k, 4);
  }
}

constexpr int piece = 1024;  // numbers whose levels run to the end before the next are touched

// The levels behind the first, of n numbers (16 at least) in `work`, the last one into `out`, which may be
// the same array. prepare(at, m) runs before the levels of the m numbers from `at` on.
template <Direction d, class T, class Out, class Prepare>
ORB_INLINE void later_levels(Blocked<T> work, Out out, int n, const T* w, Prepare prepare) {
  const auto level = [&](int at, int m, int count, const T* run) {
    if (4 * count == n)
      radix4_blocks<d>(work, out, count, 1, run);
    else
      radix4_blocks<d>(work + at, work + at, count, m / (4 * count), run);
  };
  const int m = n < piece ? n : piece;
  int count = 4;
  const T* run = w;
  for (int at = 0; at < n; at += m) {
    prepare(at, m);
    for (count = 4, run = w; 4 * count <= m; run += 6 * count, count *= 4) level(at, m, count, run);
  }
  for (; 4 * count <= n; run += 6 * count, count *= 4) level(0, n, count, run);
  if (2 * count == n) radix2_blocks<d>(work, out, count, 1, run);
}

}  // namespace orb::signal
