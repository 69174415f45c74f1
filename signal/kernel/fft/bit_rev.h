// Bit-reversal by the tables of exchanges, in tiles that fill cache lines.
//
// An index of order m is a top bit t, m - 2 middle bits i and a low bit l; its reversal is l, rev(i), t. The
// table lists the i below their reversals. The elements of one i, two in the lower half of the array and two
// in the upper half, form a 2 by 2 tile; from order 4 on, tiles are 4 by 4: two top bits, two low ones, and
// the entries whose i is even and in the lower half of its range stand for all four of theirs. The tile of i,
// transposed with its rows and columns in reversed order, is that of rev(i).
#pragma once

#include <emmintrin.h>

#include "serv/kernel/loops.h"

namespace orb::signal {

// Elements pass through integer registers, which leave every bit as it is.
template <int bytes>
struct Mover;
template <>
struct Mover<4> {
  using Word = int;
  static ORB_INLINE Word load(const void* p) {
    Word w;
    __builtin_memcpy(&w, p, 4);
    return w;
  }
  static ORB_INLINE void store(void* p, Word w) { __builtin_memcpy(p, &w, 4); }
};
template <>
struct Mover<8> {
  using Word = __m128i;
  static ORB_INLINE Word load(const void* p) { return _mm_loadl_epi64(static_cast<const Word*>(p)); }
  static ORB_INLINE void store(void* p, Word w) { _mm_storel_epi64(static_cast<Word*>(p), w); }
};
template <>
struct Mover<16> {
  using Word = __m128i;
  static ORB_INLINE Word load(const void* p) { return _mm_loadu_si128(static_cast<const Word*>(p)); }
  static ORB_INLINE void store(void* p, Word w) { _mm_storeu_si128(static_cast<Word*>(p), w); }
};

// The side of a tile as a power of two, and its rows `step` elements apart.
template <int log_side>
struct Tile {
  static constexpr int side = 1 << log_side;
  static constexpr int reversed(int k) { return log_side == 1 ? k : (k & 1) << 1 | k >> 1; }

  // The tiles at x and y change places; with x = y the tile is turned in itself.
  template <class E>
  static ORB_INLINE void exchange(const E* from_x, const E* from_y, E* x, E* y, int step, bool itself) {
    using M = Mover<sizeof(E)>;
    unroll<side>([&](auto row) ORB_INLINE_BODY {
      unroll<side>([&](auto column) ORB_INLINE_BODY {
        constexpr int to_row = reversed(column), to_column = reversed(row);
        if (itself && row * side + column > to_row * side + to_column) return;
        const auto a = M::load(from_x + row * step + column);
        const auto b = M::load(from_y + to_row * step + to_column);
        M::store(y + to_row * step + to_column, a);
        M::store(x + row * step + column, b);
      });
    });
  }
};

// `in` and `out` are one array or do not overlap. Offsets of the table count elements of 4 bytes, two for
// each i.
template <class E>
void reverse_bits(const E* in, E* out, int n, const int* table) {
  if (n < 4) {
    for (int i = 0; i < n; ++i) Mover<sizeof(E)>::store(out + i, Mover<sizeof(E)>::load(in + i));
    return;
  }
  const auto exchange = [=](int offset_i, int offset_j, bool itself) ORB_INLINE_BODY {
    const int i = offset_i / 4, j = offset_j / 4;
    if (n < 16)
      Tile<1>::exchange(in + i, in + j, out + i, out + j, n / 2, itself);
    else
      Tile<2>::exchange(in + i, in + j, out + i, out + j, n / 4, itself);
  };
  const int* pair = table;
  if (n < 16) {
    for (; pair[0] != 0; pair += 2) exchange(pair[0], pair[1], false);
  } else {
    // In the lower half every odd i has an entry, for its reversal lies in the upper half; the even i in
    // front of it has one if it is below its reversal.
    for (int tiles = n / 16; tiles > 0; --tiles, pair += 2)
      if (pair[0] % 16 == 0) {
        exchange(pair[0], pair[1], false);
        pair += 2;
      }
  }
  // The i that are their own reversals, as many as halves of them can be chosen, stand at the end.
  const int bits = __builtin_ctz(unsigned(n)) - 2, own = 1 << (bits + 1) / 2;
  for (const int* fixed = table + n / 4; fixed > table + n / 4 - own; --fixed)
    if (n < 16 || *fixed % 16 == 0) exchange(*fixed, *fixed, true);
}

}  // namespace orb::signal
