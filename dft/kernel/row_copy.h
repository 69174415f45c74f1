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

// Steps of the columns that make a tile: a cache line of each row, if the block is as wide.
template <int b, class C>
constexpr int steps_at_once = b < 64 / int(sizeof(C)) ? b : 64 / int(sizeof(C));

template <int b, class C>
void columns_to_rows(const C* source, int stride, int count, C* rows, int distance) {
  constexpr int steps = steps_at_once<b, C>;
  int i = 0;
  if constexpr (b > 1)
    for (; count - i >= steps; i += steps)
      for (int c = 0; c < b; c += 2)
        unroll<steps / 2>([&](auto k) {
          transpose_square(source + (i + 2 * k) * stride + c, stride, rows + c * distance + i + 2 * k,
                           distance);
        });
  for (; i < count; ++i)
    for (int c = 0; c < b; ++c) rows[c * distance + i] = source[i * stride + c];
}

template <int b, class C>
void rows_to_columns(const C* rows, int distance, int stride, int count, C* target) {
  constexpr int steps = steps_at_once<b, C>;
  int i = 0;
  if constexpr (b > 1)
    for (; count - i >= steps; i += steps)
      for (int k = i; k < i + steps; k += 2)
        unroll<b / 2>([&](auto c) {
          transpose_square(rows + 2 * c * distance + k, distance, target + k * stride + 2 * c, stride);
        });
  for (; i < count; ++i)
    for (int c = 0; c < b; ++c) target[i * stride + c] = rows[c * distance + i];
}

}  // namespace orb::dft
