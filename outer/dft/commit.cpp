// Commit of descriptors: short lines by a breakdown, all else by the general commit with the threads at hand.
#include "orb/orb.h"
#include "outer/kernels.h"

namespace orb {
namespace {

// Elements of a batch of many-dimensional transforms from which a second thread pays well: 128 by 128 gains
// nothing yet, 512 by 512 two thirds. The kernels' own limit looks at the first dimension alone.
constexpr double worth_dividing = 65536;

double elements(const DftiRecord* head) {
  double n = head->number_of_transforms;
  for (const DftiRecord* r = head; r; r = r->next) n *= r->length;
  return n;
}

template <auto* breakdowns, auto* core>
int commit(DftiRecord** handle) {
  DftiRecord* head = *handle;
  if (call<breakdowns>(head) == 0) return 0;
  const bool one_dimension = head->rank == 1;
  head->thread_count = one_dimension || elements(head) >= worth_dividing ? orb_get_max_threads() : 1;
  return call<core>(handle, int(one_dimension));
}

}  // namespace
}  // namespace orb

#define COMMIT(kind)                                                                                 \
  ORB_EXPORT int orb_dft_commit_descriptor_##kind##_omp(DftiRecord** handle) {                       \
    return orb::commit<orb_dft_apply_bkdowns_##kind, orb_dft_commit_descriptor_core_##kind>(handle); \
  }
COMMIT(s_c2c_1d)
COMMIT(s_c2c_md)
COMMIT(s_r2c_1d)
COMMIT(s_r2c_md)
COMMIT(d_c2c_1d)
COMMIT(d_c2c_md)
COMMIT(d_r2c_1d)
COMMIT(d_r2c_md)
