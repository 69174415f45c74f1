// Products of the transposed matrix with a vector: row i goes out to y, times x[i].
#pragma once

#include "spblas/kernel/csr.h"

namespace orb::spblas {

template <bool conjugated, class T>
void mv_general_transposed(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const T t = x[i] * alpha;
    for (int k = 0; k < row.count; ++k) add_product<conjugated>(y + row.column[k], row.value[k], &t);
  }
}

// The whole row in a loop without a test; then what does not belong to the triangle is taken off again.
template <bool conjugated, Side side, bool unit, class T>
void mv_triangle_transposed(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const T xi = x[i];
    const auto part = [&](int k) { return conjugate_if<conjugated>(row.value[k]) * alpha * xi; };
    for (int k = 0; k < row.count; ++k) y[row.column[k]] += part(k);
    if (unit) y[i] += xi * alpha;
    for (int k = 0; k < row.count; ++k) {
      const int column = row.column[k];
      if (unit ? !inside<side>(column, i) : outside<side>(column, i)) y[column] -= part(k);
    }
  }
}

}  // namespace orb::spblas
