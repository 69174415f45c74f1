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
ORB_INLINE void add_image(T* target, T value, one_of<T> t) {
  const auto image = product<mirror.conjugates_image>(value, t);
  if constexpr (mirror.negates)
    subtract_from(target, image);
  else
    add_to(target, image);
}

// With a stored diagonal: one pass, one running sum. A run of entries inside the triangle, which an ordered
// row is but for the diagonal, has a loop of its own: the processor then guesses wrong once a row.
template <Mirror mirror, Side side, class T>
void mv_mirror(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  using One = one_of<T>;
  const auto factor = One::splat(alpha);
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const One t = factor * One::loadu(x + i);
    One sum = One::zero();
    const auto gather = [&](int k) ORB_INLINE_BODY {
      sum += product<mirror.conjugates_entry>(row.values[k], One::loadu(x + row.columns[k]));
    };
    for (int k = row.begin; k < row.end; ++k) {
      for (; k < row.end && inside<side>(row.columns[k], i); ++k) {
        gather(k);
        add_image<mirror>(y + row.columns[k], row.values[k], t);
      }
      if (k < row.end && row.columns[k] == i) gather(k);
    }
    add_to(y + i, factor * sum);
  }
}

// With a diagonal of ones (unit), or of zeros: the whole row first; then the mirror images, and what does not
// belong to the triangle is taken off.
template <Mirror mirror, Side side, bool unit, class T>
void mv_mirror_corrected(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  using One = one_of<T>;
  const auto factor = One::splat(alpha);
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    add_to(y + i, factor * row_dot<mirror.conjugates_entry>(row, x));
    const One t = factor * One::loadu(x + i);
    One strange = One::zero();
    for (int k = row.begin; k < row.end; ++k) {
      const int column = row.columns[k];
      if (inside<side>(column, i))
        add_image<mirror>(y + column, row.values[k], t);
      else
        strange += product<mirror.conjugates_entry>(row.values[k], alpha, One::loadu(x + column));
    }
    if (unit) add_to(y + i, t);
    subtract_from(y + i, strange);
  }
}

}  // namespace orb::spblas
