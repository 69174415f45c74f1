#include <bit>

#include "dft/kernel/choose.h"
#include "dft/kernel/tables.h"
#include "orb/dft_commit.h"
#include "orb/dft_compute.h"

namespace orb::dft {
namespace {

struct Pair {
  DftiLine forward, backward;
};

// What a precision has to choose from.
struct Routes {
  DftiLine DftiRecord::*forward;
  DftiLine DftiRecord::*backward;
  Pair natural, scrambled, parts, via_2d;
  int (*init)(DftiRecord*, DftiRecord*);
  int (*init_parts)(DftiRecord*, DftiRecord*);
  int (*init_via_2d)(DftiRecord*, DftiRecord*);

  void install(DftiRecord* r, Pair pair) const {
    r->*forward = pair.forward;
    r->*backward = pair.backward;
  }
};
constexpr Routes single = {&DftiRecord::fwd_s,
                           &DftiRecord::bwd_s,
                           {orb_dft_xvsps_fwd_32fc, orb_dft_xvsps_inv_32fc},
                           {orb_dft_xvsps_fwd_rev_32fc, orb_dft_xvsps_inv_rev_32fc},
                           {orb_dft_xvsps_fwd_32f, orb_dft_xvsps_inv_32f},
                           {orb_dft_xc_1d_via_2d_f, orb_dft_xc_1d_via_2d_b},
                           orb_dft_vsp_init_s_c2c,
                           orb_dft_vsp_init_s_ri2ri,
                           orb_dft_xc_init_data_1d_via_2d};
constexpr Routes wide = {&DftiRecord::fwd_d,
                         &DftiRecord::bwd_d,
                         {orb_dft_xvsps_fwd_64fc, orb_dft_xvsps_inv_64fc},
                         {orb_dft_xvsps_fwd_rev_64fc, orb_dft_xvsps_inv_rev_64fc},
                         {orb_dft_xvsps_fwd_64f, orb_dft_xvsps_inv_64f},
                         {orb_dft_xz_1d_via_2d_f, orb_dft_xz_1d_via_2d_b},
                         orb_dft_vsp_init_d_c2c,
                         orb_dft_vsp_init_d_ri2ri,
                         orb_dft_xz_init_data_1d_via_2d};

// One line that is too long for a single call of the kernels.
bool may_go_via_2d(const DftiRecord* r, const DftiRecord* head) {
  return r->ordering == VAL_ORDERED && head->input_stride == 1 && head->output_stride == 1 &&
         head->rank == 1 && r->log2_length >= 16 &&
         r->length > longest_line(r->precision, std::has_single_bit(unsigned(r->length)));
}

}  // namespace

int choose_complex(DftiRecord* r, DftiRecord* head) {
  const Routes& routes = r->precision == VAL_SINGLE ? single : wide;
  const bool natural = r->ordering == VAL_ORDERED;
  r->par_bwd_s = r->par_fwd_s = r->par_bwd_d = r->par_fwd_d = nullptr;
  r->use_signal_kernels = 1;
  if (r->complex_storage == VAL_REAL_REAL) {
    routes.install(r, natural ? routes.parts : Pair{nullptr, nullptr});
    return routes.init_parts(r, head);
  }
  if (may_go_via_2d(r, head) && routes.init_via_2d(r, head) == STATUS_OK) {
    routes.install(r, routes.via_2d);
    return STATUS_OK;
  }
  routes.install(r, natural ? routes.natural : routes.scrambled);
  return routes.init(r, head);
}

}  // namespace orb::dft
