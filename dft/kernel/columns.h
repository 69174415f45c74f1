// Transforms of many lines at once. Neighbouring columns are gathered in blocks, so that every cache line
// that is read is used in full, transformed as contiguous rows, and scattered.
#pragma once

#include "dft/kernel/row_copy.h"
#include "dft/kernel/work.h"
#include "serv/kernel/scratch.h"

namespace orb::dft {

// One side of a set of lines: element i of line c is at data + c * distance + i * stride.
template <class C>
struct Lines {
  C* data;
  int distance, stride;
  C* line(int c) const { return data + c * distance; }
};

// Blocks of 16 columns pay only where there are enough of them and the lines are long enough.
inline int block_exponent(int count, int length) {
  return count >= 64 && (count > 32768 || length > 32) ? 4 : 3;
}

template <int b, class C>
int transform_block(Lines<const C> in, Lines<C> out, DftiLine routine, DftiRecord* record, int first, C* rows,
                    void* work) {
  const int n = record->length;
  columns_to_rows<b>(in.line(first), in.stride, n, rows, n);
  for (int c = 0; c < b; ++c)
    if (const int status = routine(rows + c * n, rows + c * n, record, work)) return status;
  rows_to_columns<b>(rows, n, out.stride, n, out.line(first));
  return STATUS_OK;
}

// `count` lines by blocks of 2^exponent, the rest by blocks of 8, 4, 2 and 1; by single lines where they are
// not neighbours. `rows` holds min(2^exponent, count) lines. The first failure of the routine ends it.
template <class C>
int transform_columns(Lines<const C> in, Lines<C> out, DftiLine routine, DftiRecord* record, int count,
                      C* rows, int exponent, void* work) {
  int status = STATUS_OK, c = 0;
  if (record->length == 1) {
    for (; c < count && !status; ++c) status = routine(in.line(c), out.line(c), record, work);
    return status;
  }
  const bool neighbours = in.distance == 1 && out.distance == 1;
  const int largest = neighbours ? 1 << exponent : 1;
  const auto blocks = [&](auto width) {
    for (; width <= largest && count - c >= width && !status; c += width)
      status = transform_block<width>(in, out, routine, record, c, rows, work);
  };
  blocks(Int<16>{});
  blocks(Int<8>{});
  blocks(Int<4>{});
  blocks(Int<2>{});
  blocks(Int<1>{});
  return status;
}

// The same for neighbouring lines, with memory of its own.
template <class C>
int transform_neighbours(const C* in, int in_stride, C* out, int out_stride, DftiLine routine,
                         DftiRecord* record, int count, void* work) {
  if (count < 1) return STATUS_OK;
  const int exponent = block_exponent(count, record->length);
  const int columns = count < 1 << exponent ? count : 1 << exponent;
  constexpr int slack = 1024;
  const Work block = Work::of<C>((long long)(record->length) * columns, slack);
  if (!block) return STATUS_MEMORY;
  auto* rows = reinterpret_cast<C*>(round_forward(block.as<char>(), 64));
  return transform_columns<C>({in, 1, in_stride}, {out, 1, out_stride}, routine, record, count, rows,
                              exponent, work);
}

}  // namespace orb::dft
