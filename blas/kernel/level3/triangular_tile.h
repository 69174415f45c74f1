// The tile of the blocked triangular solves: groups of four rows, each holding all of the depth in pairs of
// k.
//
//   group g:   row 0     row 1     row 2     row 3          p = 0 takes k = 0 and 1,
//     pair p   k0 k1  |  k0 k1  |  k0 k1  |  k0 k1          p = 1 takes k = 2 and 3, ...
#pragma once

namespace orb::blas::triangular_tile {

inline constexpr int group_rows = 4, pair = 2;

// Where the two k of pair p in row r of group g stand, in doubles from the start of a tile of this depth.
constexpr int at(int depth, int g, int p, int r) {
  return g * group_rows * depth + (p * group_rows + r) * pair;
}

}  // namespace orb::blas::triangular_tile
