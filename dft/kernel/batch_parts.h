// A batch of one-dimensional transforms with real and imaginary parts in arrays of their own.
#pragma once

#include "dft/kernel/batch.h"

namespace orb::dft {

// Room for one line of both parts: n elements each, the imaginary ones from a 64-byte boundary on. None for
// n = 0.
template <class T>
struct PartsBuffer {
  Work block;
  Parts<T> parts;
  explicit PartsBuffer(int n)
      : block(Work::of<T>(2ll * n, n ? 64 : 0)), parts{block.template as<T>(), nullptr} {
    if (block) parts.im = reinterpret_cast<T*>((reinterpret_cast<uintptr_t>(parts.re + n) + 63) & ~63u);
  }
};

template <class T>
void copy_parts(int n, Parts<T> from, int from_stride, Parts<T> to, int to_stride) {
  copy(n, from.re, from_stride, to.re, to_stride);
  copy(n, from.im, from_stride, to.im, to_stride);
}

// Strided lines are transformed in a buffer.
template <class T>
int transform_parts(Parts<T> in, Side in_side, Parts<T> out, Side out_side, DftiLine routine,
                    DftiRecord* head, int count, void* work) {
  if (head->rank > 1 || !routine) return STATUS_UNIMPLEMENTED;
  if (count < 1) return STATUS_OK;
  const int n = head->length, from = head->*in_side.stride, to = head->*out_side.stride;
  const bool straight = from == 1 && to == 1;
  const PartsBuffer<T> buffer(straight ? 0 : n);
  if (!straight && !buffer.block) return STATUS_MEMORY;
  for (int t = 0; t < count; ++t) {
    const int in_at = t * head->*in_side.distance, out_at = t * head->*out_side.distance;
    const Parts<T> source = {in.re + in_at, in.im + in_at}, target = {out.re + out_at, out.im + out_at};
    if (!straight) copy_parts(n, source, from, buffer.parts, 1);
    const int status = straight ? routine(&source, const_cast<Parts<T>*>(&target), head, work)
                                : routine(&buffer.parts, const_cast<Parts<T>*>(&buffer.parts), head, work);
    if (status) return status;
    if (!straight) copy_parts(n, buffer.parts, 1, target, to);
  }
  return STATUS_OK;
}

}  // namespace orb::dft
