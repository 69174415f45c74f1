// Walks over the chain of a descriptor, and what uncommits it.
#pragma once

#include "orb/dfti.h"
#include "serv/kernel/boundary.h"

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
