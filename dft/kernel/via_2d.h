// One long line of n = rows * columns elements as a two-dimensional transform: element j1 * columns + j2 is
// at row j1, column j2, and result k1 + rows * k2 comes from row k1 of the transformed columns.
#pragma once

#include "dft/kernel/element.h"

namespace orb::dft {

struct Via2d {
  int rows, columns;                   // rows <= columns
  int rows_padded, columns_padded;     // elements from line to line
  DftiRecord *sub_rows, *sub_columns;  // one-dimensional descriptors, the same one if the lengths are
  void* twist_table;                   // exp(-2 pi i j / n) for j below twist_count, then for its multiples
  int twist_count;                     // a power of two
};
static_assert(sizeof(Via2d) == 32);

inline const Via2d* via_2d_of(const DftiRecord* record) {
  return static_cast<const Via2d*>(record->parallel_data);
}

// Releases a Via2d and nulls what pointed to it.
void free_via_2d(DftiRecord* record);

// exp(-2 pi i a / n), from both halves of the table.
template <class C>
ORB_INLINE C twist(const Via2d& via, unsigned a) {
  const C* table = static_cast<const C*>(via.twist_table);
  const unsigned count = unsigned(via.twist_count);
  return table[a & (count - 1)] * table[count + a / count];
}

}  // namespace orb::dft
