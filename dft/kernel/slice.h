// Two-dimensional transforms: all lines of the first dimension, then all of the second.
#pragma once

#include "dft/kernel/columns.h"

namespace orb::dft {

// A slice on one side: strides of the first and the second dimension.
template <class C>
struct Slice {
  C* data;
  int stride1, stride2;
};

// A line at a time: where it lies, or through the buffer.
template <class C>
int transform_lines(Slice<const C> in, Slice<C> out, DftiLine routine, DftiRecord* record, int count,
                    C* buffer, bool where_it_lies, void* work) {
  const int n = record->length;
  for (int j = 0; j < count; ++j) {
    const C* from = in.data + j * in.stride2;
    C* to = out.data + j * out.stride2;
    if (!where_it_lies) copy(n, from, in.stride1, buffer, 1);
    const int status =
        where_it_lies ? routine(from, to, record, work) : routine(buffer, buffer, record, work);
    if (status) return status;
    if (!where_it_lies) copy(n, buffer, 1, to, out.stride1);
  }
  return STATUS_OK;
}

// The second pass works in the output. In place, both sides are one.
template <class C>
int transform_slice(Slice<const C> in, Slice<C> out, DftiLine routine1, DftiLine routine2, DftiRecord* record,
                    void* work) {
  constexpr int small_slice = 0x100000;  // elements; beyond it lines go through a buffer that stays in cache
  DftiRecord* second = record->next;
  const int n1 = record->length, n2 = second->length;
  const int exponent = out.stride1 == 1 ? block_exponent(n1, n2) : 0;
  const long long columns = (long long)(n2) << exponent;
  const Work block = Work::of<C>(columns > n1 ? columns : n1);
  if (!block) return STATUS_MEMORY;
  const bool where_it_lies = in.stride1 == 1 && out.stride1 == 1 && (long long)(n1)*n2 < small_slice;
  if (const int status = transform_lines(in, out, routine1, record, n2, block.as<C>(), where_it_lies, work))
    return status;
  if (n2 < 2) return STATUS_OK;
  const Lines<C> lines = {out.data, out.stride1, out.stride2};
  return transform_columns<C>({lines.data, lines.distance, lines.stride}, lines, routine2, second, n1,
                              block.as<C>(), exponent, work);
}

}  // namespace orb::dft
