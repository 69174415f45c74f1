// A batch of complex transforms on one thread, of any rank. One body serves in place and out of place: in
// place the input's fields alone place the data, and both sides are the same.
#pragma once

#include "dft/kernel/slice.h"

namespace orb::dft {

// The fields of the record that place the data of one side.
struct Side {
  int DftiRecord::*stride;
  int DftiRecord::*distance;
};
constexpr Side input_side = {&DftiRecord::input_stride, &DftiRecord::input_distance};
constexpr Side output_side = {&DftiRecord::output_stride, &DftiRecord::output_distance};

template <class C, DftiLine DftiRecord::*line>
struct Batch {
  DftiRecord* head;
  Side in_side, out_side;
  void* work;

  int in_stride(const DftiRecord* r) const { return r->*in_side.stride; }
  int out_stride(const DftiRecord* r) const { return r->*out_side.stride; }
  Slice<const C> in_slice(const C* in) const { return {in, in_stride(head), in_stride(head->next)}; }
  Slice<C> out_slice(C* out) const { return {out, out_stride(head), out_stride(head->next)}; }

  // Unit strides need no copy, but scrambled results are made where they are to stay.
  int one_line(const C* in, C* out) const {
    const int n = head->length, from = in_stride(head), to = out_stride(head);
    const bool straight = from == 1 && (in == out || head->ordering == VAL_ORDERED);
    if (to == 1 && !straight) {
      copy(n, in, from, out, 1);
      in = out;
    }
    if (to == 1) return (head->*line)(in, out, head, work);
    const Work buffer = Work::of<C>(n);
    if (!buffer) return STATUS_MEMORY;
    copy(n, in, from, buffer.as<C>(), 1);
    const int status = (head->*line)(buffer.as<C>(), buffer.as<C>(), head, work);
    if (!status) copy(n, buffer.as<C>(), 1, out, to);
    return status;
  }

  // body(in_at, out_at) for every combination of indices of the dimensions from `floor` up to that of r, but
  // for `skipped`. The first failure ends it.
  template <class Body>
  int walk(DftiRecord* r, int floor, const DftiRecord* skipped, int in_at, int out_at, Body& body) const {
    if (r->dimension_index < floor) return body(in_at, out_at);
    if (r == skipped) return walk(r->previous, floor, skipped, in_at, out_at, body);
    int status = STATUS_OK;
    for (int i = 0; i < r->length && !status; ++i)
      status = walk(r->previous, floor, skipped, in_at + i * in_stride(r), out_at + i * out_stride(r), body);
    return status;
  }

  // Blocks of columns along the dimensions from the third on, chosen from the first three lengths.
  int column_exponent() const {
    const int n1 = head->length, n2 = head->next->length, n3 = head->next->next->length;
    if (out_stride(head) != 1) return 0;
    if (n2 >= 33) return 4;
    if (n3 > 32) return n1 > 16 || n2 > 16 || n3 < 8193 ? 4 : 3;
    return n1 < 129 ? 3 : 4;
  }

  // Slices of the first two dimensions, then lines along each further one, in the output.
  int many_dimensions(const C* in, C* out) const {
    DftiRecord *third = head->next->next, *last = third;
    while (last->next) last = last->next;
    auto slice = [&](int in_at, int out_at) {
      return transform_slice<C>(in_slice(in + in_at), out_slice(out + out_at), head->*line, head->next->*line,
                                head, work);
    };
    if (const int status = walk(last, 2, nullptr, 0, 0, slice)) return status;
    const int n1 = head->length, exponent = column_exponent();
    const int columns = n1 < 1 << exponent ? n1 : 1 << exponent;
    const Work rows = Work::of<C>((long long)(head->max_length) * columns);
    if (!rows) return STATUS_MEMORY;
    for (DftiRecord* r = third; r; r = r->next) {
      auto lines = [&](int, int at) {
        const Lines<C> all = {out + at, out_stride(head), out_stride(r)};
        return transform_columns<C>({all.data, all.distance, all.stride}, all, r->*line, r, n1, rows.as<C>(),
                                    exponent, work);
      };
      if (const int status = walk(last, 1, r, 0, 0, lines)) return status;
    }
    return STATUS_OK;
  }

  int one(const C* in, C* out) const {
    if (head->rank == 1) return one_line(in, out);
    if (head->rank == 2)
      return transform_slice<C>(in_slice(in), out_slice(out), head->*line, head->next->*line, head, work);
    return many_dimensions(in, out);
  }

  // Adjacent transforms are columns: one sweep for a line, two for a slice.
  int adjacent(const C* in, C* out, int count) const {
    const int n1 = head->length;
    if (head->rank == 1)
      return transform_neighbours(in, in_stride(head), out, out_stride(head), head->*line, head, count, work);
    DftiRecord* second = head->next;
    for (int j = 0; j < second->length; ++j)
      if (const int status =
              transform_neighbours(in + j * in_stride(second), in_stride(head), out + j * out_stride(second),
                                   out_stride(head), head->*line, head, count, work))
        return status;
    for (int i = 0; i < n1; ++i) {
      C* at = out + i * out_stride(head);
      if (const int status = transform_neighbours<C>(at, out_stride(second), at, out_stride(second),
                                                     second->*line, second, count, work))
        return status;
    }
    return STATUS_OK;
  }

  int run(const C* in, C* out, int count) const {
    const int from = head->*in_side.distance, to = head->*out_side.distance;
    if (from == 1 && to == 1 && head->length != 1 && head->rank <= 2) return adjacent(in, out, count);
    int status = STATUS_OK;
    for (int t = 0; t < count && !status; ++t) status = one(in + t * from, out + t * to);
    return status;
  }
};

}  // namespace orb::dft
