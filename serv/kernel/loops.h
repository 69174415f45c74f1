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

// The shape of the plain compiled loops: below nine elements by scalars; otherwise up to the first 16-byte
// boundary of `lead` by scalars, eight elements a round, and a scalar rest. A `lead` that meets no boundary
// leaves all to the scalar loop. step.template operator()<V>(i) handles V::lanes elements from i; `lead` may
// be loaded aligned in it when V is the full register.
template <class T, class Step>
ORB_INLINE void compiled_loop(int n, const T* lead, Step step) {
  using V = vector_of<T>;
  int i = 0;
  const int peel = elements_to_boundary(lead);
  if (n >= 9 && peel >= 0) {
    for (; i < peel; ++i) step.template operator()<Lane<T>>(i);
    for (; n - i >= 8; i += 8)
      unroll<8 / V::lanes>([&](auto k) { step.template operator()<V>(i + k * V::lanes); });
  }
  for (; i < n; ++i) step.template operator()<Lane<T>>(i);
}

}  // namespace orb
