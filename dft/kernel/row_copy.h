// Copies between b adjacent strided columns and b contiguous rows, `distance` elements from row to row: row
// c, element i is column c, step i. In tiles of b by b, so that runs of b elements are read and runs of b
// written.
#pragma once

#include "dft/kernel/element.h"
#include "serv/kernel/loops.h"

namespace orb::dft {

// Two columns and two steps of them: a square of 16-byte units in the matrix and in the rows. One single
// complex number is an 8-byte unit, so two go in a register and the square is transposed.
ORB_INLINE void transpose_square(const c32* from, int from_step, c32* to, int to_step) {
  const auto load = [](const c32* p) { return f64x2::loadu(reinterpret_cast<const double*>(p)); };
  f64x2 square[2] = {load(from), load(from + from_step)};
  f64x2::transpose(square);
  square[0].storeu(reinterpret_cast<double*>(to));
  square[1].storeu(reinterpret_cast<double*>(to + to_step));
}
ORB_INLINE void transpose_square(const c64* from, int from_step, c64* to, int to_step) {
  const auto move = [](const c64* p, c64* q) { f64x2::loadu(&p->re).storeu(&q->re); };
  move(from, to);
  move(from + 1, to + to_step);
  move(from + from_step, to + 1);
  move(from + from_step + 1, to + to_step + 1);
}

template <int b, class C>
void columns_to_rows(const C* source, int stride, int count, C* rows, int distance) {
  int i = 0;
  if constexpr (b > 1)
    for (; count - i >= b; i += b)
      for (int c = 0; c < b; c += 2)
        for (int k = i; k < i + b; k += 2)
          transpose_square(source + k * stride + c, stride, rows + c * distance + k, distance);
  for (; i < count; ++i)
    for (int c = 0; c < b; ++c) rows[c * distance + i] = source[i * stride + c];
}

template <int b, class C>
void rows_to_columns(const C* rows, int distance, int stride, int count, C* target) {
  int i = 0;
  if constexpr (b > 1)
    for (; count - i >= b; i += b)
      for (int k = i; k < i + b; k += 2)
        for (int c = 0; c < b; c += 2)
          transpose_square(rows + c * distance + k, distance, target + k * stride + c, stride);
  for (; i < count; ++i)
    for (int c = 0; c < b; ++c) target[i * stride + c] = rows[c * distance + i];
}

}  // namespace orb::dft
