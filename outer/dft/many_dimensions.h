// One many-dimensional complex transform on threads: a sweep of lines along the first dimension, then one of
// blocks of columns along each further dimension, in the output.
#pragma once

#include "orb/services.h"
#include "outer/dft/pieces.h"
#include "outer/kernels.h"

namespace orb::dft {

constexpr int column_block = 16;

// The kernel that gathers columns, for either precision.
ORB_INLINE int transform_columns(const orb_complex_float* in, int in_distance, int in_stride,
                                 orb_complex_float* out, int out_distance, int out_stride, DftiLine line,
                                 DftiRecord* r, int count, void* buffer, int block_log2, void* work) {
  return call<orb_dft_xcdft1d_out_copy>(in, in_distance, in_stride, out, out_distance, out_stride, line, r,
                                        count, static_cast<orb_complex_float*>(buffer), block_log2, work);
}
ORB_INLINE int transform_columns(const orb_complex_double* in, int in_distance, int in_stride,
                                 orb_complex_double* out, int out_distance, int out_stride, DftiLine line,
                                 DftiRecord* r, int count, void* buffer, int block_log2, void* work) {
  return call<orb_dft_xzdft1d_out_copy>(in, in_distance, in_stride, out, out_distance, out_stride, line, r,
                                        count, static_cast<orb_complex_double*>(buffer), block_log2, work);
}

template <bool forward>
DftiLine line_of(const DftiRecord* r, const orb_complex_float*) {
  return forward ? r->fwd_s : r->bwd_s;
}
template <bool forward>
DftiLine line_of(const DftiRecord* r, const orb_complex_double*) {
  return forward ? r->fwd_d : r->bwd_d;
}

// Where index `at` of the dimensions behind the head stands on one side, counted without `skipped`.
inline int place_of(const DftiRecord* head, const DftiRecord* skipped, int at, int DftiRecord::*stride) {
  int place = 0;
  for (const DftiRecord* r = head->next; r; r = r->next)
    if (r != skipped) {
      place += at % r->length * r->*stride;
      at /= r->length;
    }
  return place;
}
inline int count_of(const DftiRecord* head, const DftiRecord* skipped) {
  int count = 1;
  for (const DftiRecord* r = head->next; r; r = r->next)
    if (r != skipped) count *= r->length;
  return count;
}

template <bool forward, class C>
int first_dimension(DftiRecord* head, const C* in, C* out, Side out_side) {
  const DftiLine line = line_of<forward>(head, in);
  const int from = head->input_stride, to = head->*out_side.stride;
  return in_pieces(head, count_of(head, nullptr), [&](int first, int end, void* work) {
    void* buffer = orb_serv_allocate(head->length * int(sizeof(C)), 64);
    int status = 0;
    for (int i = first; i < end && !status; ++i) {
      const C* x = in + place_of(head, nullptr, i, &DftiRecord::input_stride);
      C* y = out + place_of(head, nullptr, i, out_side.stride);
      status = from == 1 && to == 1 ? line(x, y, head, work)
                                    : transform_columns(x, 0, from, y, 0, to, line, head, 1, buffer, 0, work);
    }
    orb_serv_deallocate(buffer);
    return status;
  });
}

template <bool forward, class C>
int further_dimension(DftiRecord* head, DftiRecord* r, C* data, Side side) {
  const DftiLine line = line_of<forward>(r, data);
  const int distance = head->*side.stride, blocks = (head->length + column_block - 1) / column_block;
  const int block_log2 = distance == 1 ? 4 : 0, gathered = distance == 1 ? column_block : 1;
  return in_pieces(head, count_of(head, r) * blocks, [&](int first, int end, void* work) {
    void* buffer = orb_serv_allocate(r->length * gathered * int(sizeof(C)), 64);
    int status = 0;
    for (int i = first; i < end && !status; ++i) {
      const int column = i % blocks * column_block, left = head->length - column;
      C* x = data + column * distance + place_of(head, r, i / blocks, side.stride);
      status = transform_columns(x, distance, r->*side.stride, x, distance, r->*side.stride, line, r,
                                 left < column_block ? left : column_block, buffer, block_log2, work);
    }
    orb_serv_deallocate(buffer);
    return status;
  });
}

template <bool forward, class C>
int transform_in_pieces(DftiRecord* head, const C* in, C* out, Side out_side) {
  int status = first_dimension<forward>(head, in, out, out_side);
  for (DftiRecord* r = head->next; r && !status; r = r->next)
    if (r->length > 1) status = further_dimension<forward>(head, r, out, out_side);
  return status;
}

}  // namespace orb::dft
