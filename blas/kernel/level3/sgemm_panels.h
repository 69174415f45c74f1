// Layouts of the scratch areas behind the single-precision product, each index formula once. Positions in
// singles; all areas start on a 16-byte boundary.
#pragma once

#include "serv/kernel/boundary.h"

namespace orb::blas {

constexpr int tile_rows = 16;    // rows of a tile of A or of C
constexpr int panel_depth = 64;  // depth of a full panel; a column of the B panel keeps this room always

// A tile: vectors of four k, so that a product of two vectors holds four terms of one dot product.
//
//   group 0: rows 0-3                                                   group 1: rows 4-7 ...
//   block 0                           block 1                    ...
//   row 0   row 1   row 2   row 3     row 0   row 1 ...
//   k0...k3 k0...k3 k0...k3 k0...k3   k4...k7 k4...k7 ...
//
// Where the vector of k = 4 block ... 4 block + 3 begins, of row 4 group + row.
ORB_INLINE constexpr int a_tile(int depth, int group, int block, int row) {
  return 4 * depth * group + 16 * block + 4 * row;
}

// C tiles: tile_rows rows by all columns of the block, one tile behind the other; a column is contiguous in
// its tile. Where element (i, j) of the block lies.
ORB_INLINE constexpr int c_tile(int columns, int i, int j) {
  return i / tile_rows * tile_rows * columns + j * tile_rows + i % tile_rows;
}

}  // namespace orb::blas
