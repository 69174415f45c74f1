// The four cases of the left side of dtrsm: the order of the sweep through the rows and the place of op(A)'s
// elements. A sweep takes rows in blocks; inside a block too, rows are counted in its order.
#pragma once

#include "serv/kernel/boundary.h"

namespace orb::blas::dtrsm {

template <bool upper, bool transposed>
struct Sweep {
  static constexpr bool forward = upper == transposed, plain = !transposed;

  // The first of the `rows` rows that come after `done` others in a sweep through m rows.
  static constexpr int row(int m, int done, int rows) { return forward ? done : m - done - rows; }
  // op(A)(i, k)
  static ORB_INLINE const double* at(const double* a, int lda, int i, int k) {
    return plain ? a + i + k * lda : a + k + i * lda;
  }
};

using Lln = Sweep<false, false>;
using Llt = Sweep<false, true>;
using Lun = Sweep<true, false>;
using Lut = Sweep<true, true>;

inline bool is_unit(const char* diag) { return is_option(diag, 'U'); }

}  // namespace orb::blas::dtrsm
