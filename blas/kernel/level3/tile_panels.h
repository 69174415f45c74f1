// Layouts of the packed operands under the tiles, which serve all four element types; each index formula
// stands once. All areas start on a 16-byte boundary.
#pragma once

#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas::tiles {

constexpr int most_depth = 128;  // terms of one slice of k

// A tile is a register of rows by as many columns as make six registers of sums, which leaves one for the
// rows and one for the products. A complex column takes two.
constexpr int tile_sums = 6;
template <class T>
constexpr int parts = Complex<T> ? 2 : 1;
template <class T>
constexpr int tile_columns = tile_sums / parts<T>;

// op(A) without its conjugation: strips of as many rows as a register has numbers, each strip the slice's
// whole depth. Rows beyond the last are zero.
//
//   strip 0, k = 0 | strip 0, k = 1 | ... | strip 1, k = 0 | ...
template <class T>
struct RowStrips {
  static constexpr int height = vector_of<T>::lanes;
  T* p;
  int depth;
  ORB_INLINE T* at(int row, int k) const { return p + row * depth + k * height; }
};

// Columns of op(B) without its conjugation, every part in all lanes of a register; complex columns have two
// registers for a k, the real and the imaginary part:
//
//   k = 0: re0 im0 | re1 im1 | re2 im2   k = 1: ...
//
// The most room that they take, in real numbers:
template <class T>
constexpr int splat_reals = most_depth* tile_sums* vector_of<real_of<T>>::lanes;

}  // namespace orb::blas::tiles
