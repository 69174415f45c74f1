// What all breakdowns share.
#pragma once

#include "dft/kernel/element.h"
#include "dft/kernel/record.h"
#include "orb/dft_commit.h"

namespace orb::dft {

// One contiguous complex line of this precision, without offsets.
template <class T>
bool is_plain_line(const DftiRecord* head) {
  const bool in_place = head->placement == VAL_INPLACE;
  return head->precision == by_precision<T>(VAL_SINGLE, VAL_DOUBLE) && head->forward_domain == VAL_COMPLEX &&
         head->rank == 1 && head->complex_storage == VAL_COMPLEX_COMPLEX && head->input_offset == 0 &&
         (in_place || head->output_offset == 0) && head->number_of_transforms == 1 &&
         head->input_stride == 1 && (in_place || head->output_stride == 1);
}

// The opening of every commit: nothing is committed, and whatever breakdown was there gives way.
inline void take_over(const DftiBreakdown* self, DftiRecord* head) {
  uncommit(head);
  if (head->backend && head->backend != self) head->backend->myfree(head->backend, head);
  head->backend = self;
}

inline int give_up(DftiRecord* head, int status) {
  head->backend = nullptr;
  return status;
}

inline int finish(DftiRecord* head, DftiCompute forward, DftiCompute backward) {
  head->compute_forward = forward;
  head->compute_backward = backward;
  head->commit_status = VAL_COMMITTED;
  return STATUS_OK;
}

}  // namespace orb::dft
