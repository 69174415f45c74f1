// Products with a vector in which row i alone makes y[i]: general and triangular matrices.
#pragma once

#include "spblas/kernel/row_dot.h"

namespace orb::spblas {

template <bool conjugated, class T>
void mv_general(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  const auto factor = one_of<T>::splat(alpha);
  for (int i = rows.first; i < rows.end; ++i) add_to(y + i, factor * row_dot<conjugated>(a.row(i), x));
}

// The whole row first, in a loop without a test; what lies in the other triangle leaves the sum afterwards.
template <bool conjugated, Side side, class T>
void mv_triangle(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  using One = one_of<T>;
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    One sum = row_dot<conjugated>(row, x);
    for (int k = row.begin; k < row.end; ++k)
      if (outside<side>(row.columns[k], i))
        sum = sum - product<conjugated>(row.values[k], One::loadu(x + row.columns[k]));
    add_to(y + i, One::splat(alpha) * sum);
  }
}

template <bool conjugated, Side side, class T>
void mv_unit_triangle(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  using One = one_of<T>;
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    One sum = One::zero(), strange = One::zero();  // of all entries, and of those that do not count
    for (int k = row.begin; k < row.end; ++k) {
      const One term = product<conjugated>(row.values[k], One::loadu(x + row.columns[k]));
      sum += term;
      if (!inside<side>(row.columns[k], i)) strange += term;
    }
    strange = strange - One::loadu(x + i);
    add_to(y + i, One::splat(alpha) * (sum - strange));
  }
}

}  // namespace orb::spblas
