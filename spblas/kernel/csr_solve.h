// What the solutions of triangular systems share. Rows are stored in ascending order of columns.
#pragma once

#include "spblas/kernel/quotient.h"
#include "spblas/kernel/row_dot.h"

namespace orb::spblas {

// Number of entries of a row before the diagonal: the first of the rest is the diagonal entry, if there is
// one.
template <class T>
ORB_INLINE int count_below(const Row<T>& row, int i) {
  int k = 0;
  while (k < row.count && row.column[k] < i) ++k;
  return k;
}
// The same from the row's end: the number of entries up to the diagonal.
template <class T>
ORB_INLINE int count_up_to(const Row<T>& row, int i) {
  int k = row.count;
  while (k > 0 && row.column[k - 1] > i) --k;
  return k;
}

// The entry at which the walk stopped, and the entries strictly inside the triangle that lie behind it, or
// before it. Under a diagonal of ones there may be no diagonal entry, and one that is there is passed over.
template <class T>
struct Split {
  const T* diagonal;
  Row<T> inner;
};
template <bool unit, class T>
ORB_INLINE Split<T> split_upper(const Row<T>& row, int i) {
  const int k = count_below(row, i);
  const bool passes = !unit || (k < row.count && row.column[k] == i);
  return {row.value + k, row.from(k + passes)};
}
template <bool unit, class T>
ORB_INLINE Split<T> split_lower(const Row<T>& row, int i) {
  const int k = count_up_to(row, i);
  const bool passes = !unit || (k > 0 && row.column[k - 1] == i);
  return {row.value + k - 1, {row.value, row.column, k - passes}};
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
