// Bit-reversal by the tables of exchanges: an entry moves four elements at once.
//
// An index of order m is a top bit t, m - 2 middle bits i and a low bit l; its reversal is l, rev(i), t. The
// two elements 2i, 2i + 1 in the lower half and the two in the upper half form the quad of i, and the quad of
// j = rev(i) is its transposed partner. For i = j the quad is transposed in itself.
#pragma once

#include "serv/kernel/boundary.h"

namespace orb::signal {

// A quad whose first element is p[0]; `half` is half the array's length.
template <class E>
struct Quad {
  E a, b, c, d;
  static ORB_INLINE Quad load(const E* p, int half) { return {p[0], p[1], p[half], p[half + 1]}; }
  ORB_INLINE void store_transposed(E* p, int half) const { p[0] = a, p[1] = c, p[half] = b, p[half + 1] = d; }
};

// The quads at bytes `offset` of a table, which counts elements of 4 bytes.
template <class E>
ORB_INLINE E* at_offset(E* p, int offset) {
  return p + offset / 4;
}

// `in` and `out` are one array or do not overlap.
template <class E>
void reverse_bits(const E* in, E* out, int n, const int* table) {
  if (n < 4) {
    for (int i = 0; i < n; ++i) out[i] = in[i];
    return;
  }
  const int half = n / 2;
  const int* pair = table;
  // The pairs end with a 0; no pair starts with 0, which is its own reversal.
  for (; pair[0] != 0; pair += 2) {
    const auto x = Quad<E>::load(at_offset(in, pair[0]), half);
    const auto y = Quad<E>::load(at_offset(in, pair[1]), half);
    x.store_transposed(at_offset(out, pair[1]), half);
    y.store_transposed(at_offset(out, pair[0]), half);
  }
  for (const int* fixed = table + n / 4; fixed > pair; --fixed)
    Quad<E>::load(at_offset(in, *fixed), half).store_transposed(at_offset(out, *fixed), half);
}

}  // namespace orb::signal
