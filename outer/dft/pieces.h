// Division of descriptor work among threads. Every line is transformed by the same routine wherever it is
// cut, so that results do not depend on the number of threads.
#pragma once

#include "orb/dft_record.h"
#include "outer/threads.h"

namespace orb::dft {

// Runs body(first, end, work) -> status over [0, units), cut into a piece for each thread of the descriptor,
// each with its own slice of work memory. Returns a status that is not 0, if there is one.
template <class Body>
int in_pieces(const DftiRecord* head, int units, Body body) {
  constexpr int most = 256;
  const int threads = head->thread_count < most ? head->thread_count : most;
  const int pieces = units < threads ? units : threads;
  if (pieces < 1) return 0;
  int statuses[most];
  run_pieces(pieces, [&](int i) {
    const auto start = [&](int k) { return int((long long)(units)*k / pieces); };
    statuses[i] = body(start(i), start(i + 1),
                       static_cast<char*>(head->work_buffer) + unsigned(i) * head->max_work_size);
  });
  for (int i = 0; i < pieces; ++i)
    if (statuses[i]) return statuses[i];
  return 0;
}

// The strides and the distance of one side of a descriptor.
struct Side {
  int DftiRecord::*stride;
  int DftiRecord::*distance;
};
constexpr Side input_side = {&DftiRecord::input_stride, &DftiRecord::input_distance};
constexpr Side output_side = {&DftiRecord::output_stride, &DftiRecord::output_distance};

// Are the transforms of a batch apart, either one behind the other or each between the elements of the
// others? If not, their order counts. `reals` is the number of elements along the first dimension.
inline bool are_apart(const DftiRecord* head, Side side, int first_length) {
  const auto size = [](long long v) { return v < 0 ? -v : v; };
  const long long distance = size(head->*side.distance);
  long long span = 0, least = -1;
  for (const DftiRecord* r = head; r; r = r->next) {
    const long long stride = size(r->*side.stride);
    const int length = r == head ? first_length : r->length;
    if (length < 2) continue;
    span += stride * (length - 1);
    if (least < 0 || stride < least) least = stride;
  }
  if (distance == 0) return false;
  return distance > span || (least > 0 && distance * (head->number_of_transforms - 1) < least);
}

}  // namespace orb::dft
