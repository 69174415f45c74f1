// Loop shapes that come back in every family, each standing once.
#pragma once

#include <utility>

#include "serv/kernel/simd.h"

namespace orb {

template <int n>
struct Int {
  constexpr operator int() const { return n; }
};

template <class Body, int... i>
ORB_INLINE void unroll_over(Body& body, std::integer_sequence<int, i...>) {
  (body(Int<i>{}), ...);
}
// body(Int<0>{}), ..., body(Int<count - 1>{}), in this order, as straight code.
template <int count, class Body>
ORB_INLINE void unroll(Body body) {
  unroll_over(body, std::make_integer_sequence<int, count>{});
}

// Blocks of falling width over the elements from `i` to `n`: the first width as often as it fits, each
// smaller one at most once. Calls block(Int<width>{}, i) and returns the first element that no block took.
template <int width, int... smaller, class Block>
ORB_INLINE int ladder(int i, int n, Block block) {
  for (; n - i >= width; i += width) block(Int<width>{}, i);
  ((n - i >= smaller ? (block(Int<smaller>{}, i), i += smaller) : i), ...);
  return i;
}

// Where a strided walk of n elements begins: element k is then at start + k * inc for either sign of inc.
template <class T>
ORB_INLINE T* strided_start(T* x, int n, int inc) {
  return inc < 0 ? x + (1 - n) * inc : x;
}

// The shape of the hand-scheduled loops over elements of type T: `peel` elements one by one, then blocks of
// eight registers as long as they last, at most one block each of four, two and one, and the rest one by one.
// step.template operator()<V>(k, i) handles V::lanes elements from i, the k-th register of its block (k is an
// Int; 0 for single elements). Peeled right, full registers stand on 16-byte boundaries.
template <class T, class Step>
ORB_INLINE void register_loop(int n, int peel, Step step) {
  using V = vector_of<T>;
  using One = one_of<T>;
  constexpr int w = V::lanes;
  int i = 0;
  for (; i < peel && i < n; ++i) step.template operator()<One>(Int<0>{}, i);
  i = ladder<8 * w, 4 * w, 2 * w, w>(i, n, [&](auto width, int at) {
    unroll<width / w>([&](auto k) { step.template operator()<V>(k, at + k * w); });
  });
  for (; i < n; ++i) step.template operator()<One>(Int<0>{}, i);
}

// The shape of the plain compiled loops: below `least` elements by scalars; otherwise up to the first 16-byte
// boundary of `lead` by scalars, eight elements a round, and a scalar rest. A `lead` that meets no boundary
// leaves all to the scalar loop. step.template operator()<V>(i) handles V::lanes elements from i; `lead` may
// be loaded aligned in it when V is the full register.
template <class T, class Step>
ORB_INLINE void compiled_loop(int n, const T* lead, Step step, int least = 9) {
  using V = vector_of<T>;
  int i = 0;
  const int peel = elements_to_boundary(lead);
  if (n >= least && peel >= 0) {
    for (; i < peel; ++i) step.template operator()<one_of<T>>(i);
    for (; n - i >= 8; i += 8)
      unroll<8 / V::lanes>([&](auto k) { step.template operator()<V>(i + k * V::lanes); });
  }
  for (; i < n; ++i) step.template operator()<one_of<T>>(i);
}

}  // namespace orb
