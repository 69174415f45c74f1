// What the faces of the sparse front share: the matrix, the check of its description, and the division of
// work.
#pragma once

#include "orb/blas.h"
#include "orb/services.h"
#include "orb/sparse.h"
#include "outer/boundary.h"
#include "outer/sparse/csr_kernels.h"
#include "outer/sparse/description.h"
#include "outer/sparse/numbers.h"
#include "outer/threads.h"

namespace orb {

template <class T>
struct CsrArrays {
  const T* values;
  const int *columns, *row_begin, *row_end;

  // Stored entries of a matrix with m rows, or a guess if rows lie apart.
  int entries(int m) const { return m > 0 ? row_end[m - 1] - row_begin[0] : 0; }
};

// Products with stored entries that a thread should have at least, about 15 microseconds of work: less costs
// more to hand out than it brings.
inline constexpr double least_work = 20000;

// How many pieces for that much work, no more than `most`.
inline int pieces_for(double work, int most) {
  if (work < 2 * least_work) return 1;
  const int threads = orb_get_max_threads();
  const int worth = work / least_work < threads ? int(work / least_work) : threads;
  return worth < most ? worth : most < 1 ? 1 : most;
}

// body(first, last) for pieces of the dense columns 1 to n. Pieces start at multiples of four: panels of
// columns stay whole.
template <class Body>
void divide_columns(int n, double work, Body body) {
  const int pieces = pieces_for(work, n / 4);
  if (pieces == 1) return body(1, n);
  const auto start = [=](int i) { return i == pieces ? n : int((long long)(n) / 4 * i / pieces) * 4; };
  run_pieces(pieces, [&](int i) { body(start(i) + 1, start(i + 1)); });
}

inline void complain(const char* routine, int place) { xerbla_(routine, &place, 6); }

inline bool bad_ld(bool by_rows, int ld, int rows, int columns) {
  const int least = by_rows ? columns : rows;
  return ld < least || ld < 1;
}

}  // namespace orb
