// Tables of one dimension.
#include <bit>

#include "dft/kernel/tables.h"
#include "orb/dft_commit.h"
#include "serv/kernel/boundary.h"

namespace orb::dft {
namespace {

// Scales are left to a pass of their own, so that any value serves.
constexpr int flag = VSP_FFT_NODIV_BY_ANY, hint = 0;

int build(DftiRecord* r, const Tables& t) {
  if (r->length > longest_line(r->precision, std::has_single_bit(unsigned(r->length))))
    return STATUS_LENGTH_LIMIT;
  if (r->*t.spec) t.free(r->*t.spec);
  r->*t.spec = nullptr;
  VspStatus status = t.init(&(r->*t.spec), r->length, flag, hint);
  int bytes = 0;
  if (status == VSP_OK) status = t.work_size(r->*t.spec, &bytes);
  r->work_size = unsigned(bytes);
  return orb_dft_transfer_vsp_orb_error(status);
}

int build_or_release(DftiRecord* record, DftiRecord* head, const Tables& t) {
  const int status = build(record, t);
  if (status) orb_dft_free_allocated_buffers(head);
  return status;
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

ORB_EXPORT int orb_dft_vsp_init_s_c2c(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, record->ordering == VAL_ORDERED ? complex_single : scrambled_single);
}
ORB_EXPORT int orb_dft_vsp_init_d_c2c(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, record->ordering == VAL_ORDERED ? complex_double : scrambled_double);
}
ORB_EXPORT int orb_dft_vsp_init_s_r2c(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, complex_single);
}
ORB_EXPORT int orb_dft_vsp_init_d_r2c(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, complex_double);
}
ORB_EXPORT int orb_dft_vsp_init_s_ri2ri(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, parts_single);
}
ORB_EXPORT int orb_dft_vsp_init_d_ri2ri(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, parts_double);
}
ORB_EXPORT int orb_dft_c_vsp_real_init(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, real_single);
}
ORB_EXPORT int orb_dft_z_vsp_real_init(DftiRecord* record, DftiRecord* head) {
  return build_or_release(record, head, real_double);
}
