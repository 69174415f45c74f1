// Register blocks of the small path: a strip of op(A) by columns of op(B), each element one sum in rising k.
#pragma once

#include "blas/kernel/level3/small_product.h"

namespace orb::blas {

// `count` neighbouring factors, the rule applied; lane t belongs to the t-th.
template <class W, int count, class T, class Rule>
ORB_INLINE W factors(const T* b, Rule rule) {
  if constexpr (count == 1)
    return rule.factor(W::splat(*b));
  else if constexpr (count == 2)
    return rule.factor(W::load_pair(b));
  else
    return rule.factor(W::loadu(b));
}

// `count` registers of rows by `width` columns of C, held in registers over all k. op(B)'s columns are
// contiguous if `b_plain`, its rows otherwise; factors are taken several at a time along what is contiguous.
template <class W, int count, int width, bool b_plain, class T, class Rule>
ORB_INLINE void multiply_block(const SmallProduct<T>& p, const T* strip, int rows, const T* b, T* c,
                               Rule rule) {
  constexpr int height = count * W::lanes;
  constexpr int along = b_plain ? W::lanes : std::min(W::lanes, width);
  W sum[width][count];
  unroll<width>([&](auto q) ORB_INLINE_BODY { rule.start(sum[q], c + q * p.ldc, rows); });
  const auto add = [&](auto q, W factor, const T* column) ORB_INLINE_BODY {
    unroll<count>([&](auto r) ORB_INLINE_BODY { sum[q][r] += factor * W::load(column + r * W::lanes); });
  };
  int k = p.k;
  if constexpr (b_plain) {
    const int across = p.b_across;
    for (; k >= along; k -= along, b += along, strip += along * height)
      unroll<width>([&](auto q) ORB_INLINE_BODY {
        const W f = factors<W, along>(b + q * across, rule);
        unroll<along>([&](auto t)
                          ORB_INLINE_BODY { add(q, f.template splat_lane<t>(), strip + t * height); });
      });
    for (; k > 0; --k, ++b, strip += height)
      unroll<width>([&](auto q) ORB_INLINE_BODY { add(q, factors<W, 1>(b + q * across, rule), strip); });
  } else {
    for (const int down = p.b_down; k > 0; --k, b += down, strip += height)
      unroll<width / along>([&](auto g) ORB_INLINE_BODY {
        const W f = factors<W, along>(b + g * along, rule);
        unroll<along>([&](auto t)
                          ORB_INLINE_BODY { add(Int<g * along + t>{}, f.template splat_lane<t>(), strip); });
      });
  }
  unroll<width>([&](auto q) ORB_INLINE_BODY { rule.finish(sum[q], c + q * p.ldc, rows); });
}

// All columns for one strip, four registers of sums at a time. By value: `p` then needs no register.
template <class W, int count, bool b_plain, class T, class Rule>
__attribute__((noinline)) void multiply_strip(SmallProduct<T> p, const T* strip, int rows, T* c, Rule rule) {
  constexpr int width = 4 / count;
  const T* b = p.b;
  int j = p.n;
  for (; j >= width; j -= width, b += width * p.b_across, c += width * p.ldc)
    multiply_block<W, count, width, b_plain>(p, strip, rows, b, c, rule);
  if constexpr (width > 1)
    for (; j > 0; --j, b += p.b_across, c += p.ldc)
      multiply_block<W, count, 1, b_plain>(p, strip, rows, b, c, rule);
}

// All rows, in strips of four registers, two, and what is left. lay.template operator()<W>(count, i, rows)
// lays the strip from row i on and returns it.
template <bool b_plain, class T, class Rule, class Lay>
ORB_INLINE void multiply_strips(const SmallProduct<T>& p, Rule rule, Lay lay) {
  using V = vector_of<T>;
  const auto strip = [&]<class W>(auto count, int i, int rows) ORB_INLINE_BODY {
    const T* const a = lay.template operator()<W>(count, i, rows);
    multiply_strip<W, count, b_plain>(p, a, rows, p.c + i, rule);
  };
  int i = 0;
  for (; p.m - i >= 4 * V::lanes; i += 4 * V::lanes) strip.template operator()<V>(Int<4>{}, i, 4 * V::lanes);
  while (i < p.m) {
    const int rows = std::min(p.m - i, 2 * V::lanes);
    if (rows > V::lanes)
      strip.template operator()<V>(Int<2>{}, i, rows);
    else if (rows > 1)
      strip.template operator()<V>(Int<1>{}, i, rows);
    else
      strip.template operator()<Lane<T>>(Int<1>{}, i, rows);
    i += rows;
  }
}

}  // namespace orb::blas
