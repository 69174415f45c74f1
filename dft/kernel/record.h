// Walks over the chain of a descriptor, and what uncommits it.
#pragma once

#include "orb/dfti.h"
#include "serv/kernel/boundary.h"

// Routines that stand in a record or in a breakdown are entries of their own: whoever calls them may keep the
// stack only 4-byte aligned.
#define ORB_ENTRY __attribute__((force_align_arg_pointer))

namespace orb::dft {

inline bool is_descriptor(const DftiRecord* head) { return head && head->magic == DFT_MAGIC; }

// body(record) for every record, fastest dimension first.
template <class Record, class Body>
ORB_INLINE void for_each_record(Record* head, Body body) {
  for (Record* r = head; r; r = r->next) body(r);
}

inline void uncommit(DftiRecord* head) {
  head->commit_status = VAL_UNCOMMITTED;
  head->compute_forward = head->compute_backward = nullptr;
}

}  // namespace orb::dft
