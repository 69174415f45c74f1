// What the solutions of triangular systems share. Rows are stored in ascending order of columns.
#pragma once

#include "spblas/kernel/quotient.h"
#include "spblas/kernel/row_dot.h"

namespace orb::spblas {

// Where the entries with columns before i end: there stands the diagonal entry, if there is one.
template <class T>
ORB_INLINE int end_below(const Row<T>& row, int i) {
  int k = row.begin;
  while (k < row.end && row.columns[k] < i) ++k;
  return k;
}
// The same from the row's end: where the entries with columns behind i begin.
template <class T>
ORB_INLINE int begin_above(const Row<T>& row, int i) {
  int k = row.end;
  while (k > row.begin && row.columns[k - 1] > i) --k;
  return k;
}

// The diagonal entry, and the entries strictly inside the triangle, which lie behind it, or before it. Under
// a diagonal of ones there may be no diagonal entry, and one that is there is passed over.
template <class T>
struct Split {
  const T* diagonal;
  Row<T> inner;
};
template <Side side, bool unit, class T>
ORB_INLINE Split<T> split(const Row<T>& row, int i) {
  if constexpr (side == Side::upper) {
    const int k = end_below(row, i);
    const bool passes = !unit || (k < row.end && row.columns[k] == i);
    return {row.values + k, {row.values, row.columns, k + passes, row.end}};
  } else {
    const int k = begin_above(row, i) - 1;
    const bool passes = !unit || (k >= row.begin && row.columns[k] == i);
    return {row.values + k, {row.values, row.columns, row.begin, passes ? k : k + 1}};
  }
}

// The entries of a row in the order in which a solved unknown goes out from it: towards those still to be
// found.
template <Side side, class T, class F>
ORB_INLINE void for_entries_outwards(const Row<T>& row, F f) {
  if constexpr (side == Side::upper)
    for (int k = row.begin; k < row.end; ++k) f(k);
  else
    for (int k = row.end - 1; k >= row.begin; --k) f(k);
}

// The rows of a triangle in the order of its solution: f(i).
template <bool rising, class F>
ORB_INLINE void for_rows(Range rows, F f) {
  if constexpr (rising)
    for (int i = rows.first; i < rows.end; ++i) f(i);
  else
    for (int i = rows.end - 1; i >= rows.first; --i) f(i);
}

}  // namespace orb::spblas
