// Products with a vector in which row i alone makes y[i]: general and triangular matrices.
#pragma once

#include "spblas/kernel/row_dot.h"

namespace orb::spblas {

template <bool conjugated, class T>
void mv_general(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) y[i] = row_dot<conjugated>(a.row(i), x) * alpha + y[i];
}

// The whole row first, in a loop without a test; what lies in the other triangle leaves the sum afterwards.
template <bool conjugated, Side side, class T>
void mv_triangle(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    T sum = row_dot<conjugated>(row, x);
    for (int k = 0; k < row.count; ++k)
      if (outside<side>(row.column[k], i))
        subtract_product<conjugated>(&sum, row.value[k], x + row.column[k]);
    y[i] = sum * alpha + y[i];
  }
}

template <bool conjugated, Side side, class T>
void mv_unit_triangle(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    T sum{}, strange{};  // of all entries, and of those that do not count
    for (int k = 0; k < row.count; ++k) {
      const T* xk = x + row.column[k];
      add_product<conjugated>(&sum, row.value[k], xk);
      if (!inside<side>(row.column[k], i)) add_product<conjugated>(&strange, row.value[k], xk);
    }
    strange -= x[i];
    y[i] = (sum - strange) * alpha + y[i];
  }
}

}  // namespace orb::spblas
