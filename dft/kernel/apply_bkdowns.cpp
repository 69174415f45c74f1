// Tries breakdowns in their order.
#include "orb/dft_commit.h"
#include "orb/dfti.h"
#include "serv/kernel/boundary.h"

namespace {

// Codelets first, which cost least.
constexpr const DftiBreakdown* single_lines[] = {&orb_dft_bkd3_c, &orb_dft_bkd2_c, &orb_dft_bkd1_c, nullptr};
constexpr const DftiBreakdown* double_lines[] = {&orb_dft_bkd3_z, &orb_dft_bkd2_z, &orb_dft_bkd1_z, nullptr};
constexpr const DftiBreakdown* none[] = {nullptr};

}  // namespace

// A score that is no number counts as not 0.
ORB_EXPORT int orb_dft_apply_bkdowns(DftiRecord* head, const DftiBreakdown* const* list) {
  for (; *list; ++list) {
    const DftiBreakdown* entry = *list;
    if (entry->applicable(entry, head) != 0 && entry->commit(entry, head) == STATUS_OK) return STATUS_OK;
  }
  return DFT_NOT_TAKEN;
}

ORB_EXPORT int orb_dft_apply_bkdowns_s_c2c_1d(DftiRecord* head) {
  return orb_dft_apply_bkdowns(head, single_lines);
}
ORB_EXPORT int orb_dft_apply_bkdowns_s_c2c_md(DftiRecord* head) { return orb_dft_apply_bkdowns(head, none); }
ORB_EXPORT int orb_dft_apply_bkdowns_s_r2c_1d(DftiRecord* head) { return orb_dft_apply_bkdowns(head, none); }
ORB_EXPORT int orb_dft_apply_bkdowns_s_r2c_md(DftiRecord* head) { return orb_dft_apply_bkdowns(head, none); }
ORB_EXPORT int orb_dft_apply_bkdowns_d_c2c_1d(DftiRecord* head) {
  return orb_dft_apply_bkdowns(head, double_lines);
}
ORB_EXPORT int orb_dft_apply_bkdowns_d_c2c_md(DftiRecord* head) { return orb_dft_apply_bkdowns(head, none); }
ORB_EXPORT int orb_dft_apply_bkdowns_d_r2c_1d(DftiRecord* head) { return orb_dft_apply_bkdowns(head, none); }
ORB_EXPORT int orb_dft_apply_bkdowns_d_r2c_md(DftiRecord* head) { return orb_dft_apply_bkdowns(head, none); }
