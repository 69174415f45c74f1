// One triangle for both: the upper triangle of a matrix, seen from its far corner, is a lower one. Row and
// column i from there stand at n - 1 - i in memory.
#pragma once

namespace orb::blas {

// A matrix by rows and columns from the corner where a factorisation starts. An upper one runs backward in
// both directions, but its blocks lie in memory as any others do, each from its lowest address on.
template <bool upper, class T>
struct Mirror {
  T* corner;
  int ld;

  // Of n by n elements (or any other two counts) from a on.
  static Mirror over(T* a, int rows, int cols, int ld) {
    return {upper ? a + (rows - 1) + (cols - 1) * ld : a, ld};
  }
  T* at(int i, int j) const { return upper ? corner - i - j * ld : corner + i + j * ld; }
  T& operator()(int i, int j) const { return *at(i, j); }
  Mirror from(int i, int j) const { return {at(i, j), ld}; }
  // The lowest address of `rows` by `cols` elements from (i, j) on.
  T* block(int i, int j, int rows, int cols) const {
    return upper ? at(i + rows - 1, j + cols - 1) : at(i, j);
  }
};

}  // namespace orb::blas
