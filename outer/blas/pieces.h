// Cutting the work of one call into pieces for threads.
#pragma once

#include "outer/threads.h"
#include "serv/kernel/complex.h"

namespace orb {

// Where one dimension may be cut: at multiples of `unit`, no piece shorter than `least` (a multiple of unit).
struct Grain {
  int unit, least;

  int pieces(int extent, int wanted) const {
    const int most = extent / least;
    return wanted < most ? wanted : most > 1 ? most : 1;
  }
  // Start of piece i of `count`, `extent` for i == count. Pieces differ by one unit at most, but for the
  // last, which has the odd end.
  int start(int i, int count, int extent) const {
    return i == count ? extent : int((long long)(extent) / unit * i / count) * unit;
  }
};

// run(first, count) for pieces of one dimension, on as many threads as can be had and used.
template <class Run>
void in_pieces(int extent, Grain grain, Run run) {
  const int pieces = grain.pieces(extent, orb_get_max_threads());
  if (pieces <= 1) return run(0, extent);
  run_pieces(pieces, [&](int i) {
    const int from = grain.start(i, pieces, extent);
    run(from, grain.start(i + 1, pieces, extent) - from);
  });
}

// Is the work long enough for a second thread to pay? The limits are where it did by a tenth for the matrix
// product, at about 35 microseconds; `products` counts multiplications.
template <class T>
ORB_INLINE bool worth_dividing(double products) {
  constexpr double edge = sizeof(real_of<T>) == 8 ? 72 : 88;
  return products * (Complex<T> ? 4 : 1) >= edge * edge * edge;
}
template <class T>
ORB_INLINE bool worth_dividing(int m, int n, int k) {
  return worth_dividing<T>(double(m) * n * k);
}

// Elements `first` to `first + count` of a vector of n elements in BLAS storage, as such a vector.
template <class T>
ORB_INLINE T* part_of_vector(T* x, int n, int inc, int first, int count) {
  return inc < 0 ? x + (first + count - n) * inc : x + first * inc;
}

// The grains of the products, of either dimension: a piece takes the same way through the kernels as the
// whole, so that an element of the result is computed in the same way whatever the cut.
//
// dgemm takes its small path for m < 4, n < 8 or k < 8, and treats apart the odd last row and the last n mod
// 4 columns. sgemm takes its small path below 8, or below m + n + k = 150, and treats apart the last m mod 16
// rows. zgemm treats apart the last n mod 3 columns unless m, n or k is below 64; cgemm knows no edges.
template <class T>
constexpr Grain row_grain{4, 32};
template <>
inline constexpr Grain row_grain<float>{16, 160};
template <>
inline constexpr Grain row_grain<c64>{4, 64};
template <class T>
constexpr Grain column_grain{4, 32};
template <>
inline constexpr Grain column_grain<float>{4, 160};
template <>
inline constexpr Grain column_grain<c32>{3, 33};
template <>
inline constexpr Grain column_grain<c64>{3, 66};

}  // namespace orb
