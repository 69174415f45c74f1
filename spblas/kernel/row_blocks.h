// Two orders of work for the general product with a dense matrix stored by columns.
#pragma once

#include "spblas/kernel/csr.h"

namespace orb::spblas {

// Bytes that a stored entry and an element of a dense column stand for in the size of a block (p, q) and in
// the choice between the orders (r, s). The two stand crosswise, and single complex conjugated has the
// figures of double complex: where the bounds lie was settled so, and stays.
struct Budget {
  int p, q, r, s;
};
template <class T, bool conjugated>
constexpr Budget budget{12, 20, 20, 12};
template <>
constexpr Budget budget<float, false>{12, 8, 8, 12};
template <>
constexpr Budget budget<c32, true>{20, 36, 36, 20};
template <bool conjugated>
constexpr Budget budget<c64, conjugated>{20, 36, 36, 20};

constexpr double cache_bytes = 17000000.0;

// Rows per block, a quarter of the cache each, or m where the matrix is taken whole: the dense columns pass
// over the rows of a block while those are still there. The matrix has m >= 1 rows and k columns. Its size is
// compared as a whole number of 32 bits, and one beyond that comes out negative, as the processor truncates:
// matrices so large that no block would hold enough rows are taken whole too.
template <bool conjugated, class T>
inline int rows_per_block(const Csr<T>& a, int last_row, int m, int k) {
  constexpr Budget of = budget<T, conjugated>;
  const double mean = (a.row_end[last_row] - 1) / m;
  const int total = _mm_cvttsd_si32(_mm_set_sd((of.r * mean + of.s * double(k)) * m));
  if (float(total) < float(cache_bytes)) return m;
  const int rows = int(cache_bytes / (of.p * mean + of.q * double(k)) * 0.25);
  return rows < 1 ? 1 : rows;  // a row too long for its share makes a block by itself
}

}  // namespace orb::spblas
