// Formats of the packed panels under the double-precision matrix product.
#pragma once

#include "serv/kernel/boundary.h"

namespace orb::blas {

constexpr int panel_depth = 128;  // of a full panel, and the most that any panel has

// The depth that a packed panel really has: the kernels take four k a round.
constexpr int padded_depth(int k) { return (k + 3) & ~3; }

// Strips of `width` rows of A or columns of B, each strip the whole depth, positions from the true depth to
// the padded depth kp holding 0:
//
//   strip 0, k = 0   | strip 0, k = 1   | ... | strip 0, k = kp - 1 | strip 1, k = 0 | ...
//   0 ... width - 1  | 0 ... width - 1  |     | 0 ... width - 1     | width ...      |
template <int strip_width, class T>
struct Panel {
  static constexpr int width = strip_width;
  T* p;
  int kp;
  ORB_INLINE T* at(int line, int k) const { return p + line / width * width * kp + k * width + line % width; }
  ORB_INLINE int strip_size() const { return width * kp; }
  ORB_INLINE Panel from_strip(int strip) const { return {p + strip * strip_size(), kp}; }
};
template <class T>
using RowPairs = Panel<2, T>;  // of A
template <class T>
using ColumnQuads = Panel<4, T>;  // of B

// One column quad of B, each value twice, so that a kernel loads it ready for two rows:
//
//   k = 0: b0 b0 | b1 b1 | b2 b2 | b3 b3   k = 1: ...
struct DoubledQuad {
  static constexpr int bytes = panel_depth * 4 * 2 * int(sizeof(double));
  double* p;
  ORB_INLINE double* at(int k, int column) const { return p + 2 * (4 * k + column); }
};

}  // namespace orb::blas
