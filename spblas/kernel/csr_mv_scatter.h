// Products of the transposed matrix with a vector: row i goes out to y, times x[i].
#pragma once

#include "serv/kernel/loops.h"
#include "spblas/kernel/csr.h"

namespace orb::spblas {

template <bool conjugated, class T>
void mv_general_transposed(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  using One = one_of<T>;
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const One t = One::splat(alpha) * One::loadu(x + i);
    const auto scatter = [&](int k) ORB_INLINE_BODY {
      add_to(y + row.columns[k], product<conjugated>(row.values[k], t));
    };
    int k = row.begin;
    for (; row.end - k >= 4; k += 4) unroll<4>([&](auto n) ORB_INLINE_BODY { scatter(k + n); });
    for (; k < row.end; ++k) scatter(k);
  }
}

// The whole row in a loop without a test; then what does not belong to the triangle is taken off again.
template <bool conjugated, Side side, bool unit, class T>
void mv_triangle_transposed(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  using One = one_of<T>;
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const One xi = One::loadu(x + i);
    for (int k = row.begin; k < row.end; ++k)
      add_to(y + row.columns[k], product<conjugated>(row.values[k], alpha, xi));
    if (unit) add_to(y + i, One::splat(alpha) * xi);
    for (int k = row.begin; k < row.end; ++k) {
      const int column = row.columns[k];
      if (unit ? !inside<side>(column, i) : outside<side>(column, i))
        subtract_from(y + column, product<conjugated>(row.values[k], alpha, xi));
    }
  }
}

}  // namespace orb::spblas
