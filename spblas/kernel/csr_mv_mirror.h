// Products with a vector for the kinds that store one triangle: each entry stands for its mirror image too.
#pragma once

#include "spblas/kernel/row_dot.h"

namespace orb::spblas {

// Which of an entry and its mirror image is conjugated, and whether the image has the other sign.
struct Mirror {
  bool conjugates_entry, conjugates_image, negates;
};
template <Shape s>
constexpr Mirror mirror_of{s.conjugates_entry(), s.conjugates_mirror(), s.kind == 'a'};

// target += image * t, or -= where the image has the other sign.
template <Mirror mirror, class T>
ORB_INLINE void add_image(T* target, T value, const T* t) {
  if constexpr (mirror.negates)
    subtract_product<mirror.conjugates_image>(target, value, t);
  else
    add_product<mirror.conjugates_image>(target, value, t);
}

// With a stored diagonal: one pass, one running sum.
template <Mirror mirror, Side side, class T>
void mv_mirror(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const T t = alpha * x[i];
    T sum{};
    for (int k = 0; k < row.count; ++k) {
      const int column = row.column[k];
      if (outside<side>(column, i)) continue;
      add_product<mirror.conjugates_entry>(&sum, row.value[k], x + column);
      if (column != i) add_image<mirror>(y + column, row.value[k], &t);
    }
    y[i] = sum * alpha + y[i];
  }
}

// With a diagonal of ones (unit), or of zeros: the whole row first; then the mirror images, and what does not
// belong to the triangle is taken off.
template <Mirror mirror, Side side, bool unit, class T>
void mv_mirror_corrected(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    y[i] = row_dot<mirror.conjugates_entry>(row, x) * alpha + y[i];
    const T t = x[i] * alpha;
    T strange{};
    for (int k = 0; k < row.count; ++k) {
      const int column = row.column[k];
      if (inside<side>(column, i))
        add_image<mirror>(y + column, row.value[k], &t);
      else
        strange += conjugate_if<mirror.conjugates_entry>(row.value[k]) * alpha * x[column];
    }
    y[i] = (unit ? y[i] + t : y[i]) - strange;
  }
}

}  // namespace orb::spblas
