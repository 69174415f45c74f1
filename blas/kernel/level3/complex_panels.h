// Layouts of the packed operands under the complex matrix products, each index formula once. All areas start
// on a 16-byte boundary.
#pragma once

#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas::complex_product {

constexpr int most_depth = 128;  // terms of one slice of k
constexpr int tile_columns = 3;  // of C, held in registers with a register of rows

// op(A) without its conjugation: strips of as many rows as a register has numbers, each strip the slice's
// whole depth. Rows beyond the last are zero.
//
//   strip 0, k = 0 | strip 0, k = 1 | ... | strip 1, k = 0 | ...
template <Complex C>
struct RowStrips {
  static constexpr int height = vector_of<C>::lanes;
  C* p;
  int depth;
  ORB_INLINE C* at(int row, int k) const { return p + row * depth + k * height; }
};

// One to three columns of op(B) without its conjugation, every part in all lanes of a register. Each column
// has two registers for a k, the real and the imaginary part:
//
//   k = 0: re0 im0 | re1 im1 | re2 im2   k = 1: ...
template <Complex C, int columns>
struct SplatColumns {
  static constexpr int lanes = vector_of<real_of<C>>::lanes;
  real_of<C>* p;
  ORB_INLINE real_of<C>* at(int k, int column) const { return p + (k * columns + column) * 2 * lanes; }
};
template <Complex C>
constexpr int splat_reals = most_depth* tile_columns * 2 * vector_of<real_of<C>>::lanes;

}  // namespace orb::blas::complex_product
