#include <bit>

#include "dft/kernel/choose.h"
#include "dft/kernel/tables.h"
#include "orb/dft_commit.h"
#include "orb/dft_real.h"

namespace orb::dft {
namespace {

constexpr int longest_codelet = 64;

// The kernels of a packed format, or nulls. The typed prototypes differ from the slot's only in the element
// that their pointers point to.
template <class Kernel>
DftiPacked packed(Kernel kernel) {
  return reinterpret_cast<DftiPacked>(kernel);
}

bool install_format(DftiRecord* r, bool single) {
  const int format =
      r->conjugate_even_storage == VAL_COMPLEX_COMPLEX ? int(VAL_CCS_FORMAT) : r->packed_format;
  DftiPacked& forward = single ? r->real_fwd_s_fmt : r->real_fwd_d_fmt;
  DftiPacked& inverse = single ? r->real_inv_s_fmt : r->real_inv_d_fmt;
  switch (format) {
    case VAL_CCS_FORMAT:
      forward = single ? packed(t7_vspsDFTFwd_RToCCS_32f) : packed(t7_vspsDFTFwd_RToCCS_64f);
      inverse = single ? packed(t7_vspsDFTInv_CCSToR_32f) : packed(t7_vspsDFTInv_CCSToR_64f);
      return true;
    case VAL_PACK_FORMAT:
      forward = single ? packed(t7_vspsDFTFwd_RToPack_32f) : packed(t7_vspsDFTFwd_RToPack_64f);
      inverse = single ? packed(t7_vspsDFTInv_PackToR_32f) : packed(t7_vspsDFTInv_PackToR_64f);
      return true;
    case VAL_PERM_FORMAT:
      forward = single ? packed(t7_vspsDFTFwd_RToPerm_32f) : packed(t7_vspsDFTFwd_RToPerm_64f);
      inverse = single ? packed(t7_vspsDFTInv_PermToR_32f) : packed(t7_vspsDFTInv_PermToR_64f);
      return true;
    default:
      return false;
  }
}

}  // namespace

int choose_real(DftiRecord* r, DftiRecord* head) {
  const bool single = r->precision == VAL_SINGLE;
  if (head->rank > 1 || !install_format(r, single)) {
    orb_dft_free_allocated_buffers(head);
    return STATUS_UNIMPLEMENTED;
  }
  const bool codelet = std::has_single_bit(unsigned(r->length)) && r->length >= 2 &&
                       r->length <= longest_codelet && head->input_stride == 1 && head->output_stride == 1;
  r->use_signal_kernels = !codelet;
  if (single) {
    r->real_fwd_s = orb_dft_xvsps_fwd_rtocomplex_32f;
    r->real_inv_s = orb_dft_xvsps_inv_complextor_32f;
    if (!codelet) return orb_dft_c_vsp_real_init(r, head);
    orb_dft_set_codelet_sf(r);
    return orb_dft_set_codelet_sb(r);
  }
  r->real_fwd_d = orb_dft_xvsps_fwd_rtocomplex_64f;
  r->real_inv_d = orb_dft_xvsps_inv_complextor_64f;
  if (!codelet) return orb_dft_z_vsp_real_init(r, head);
  orb_dft_set_codelet_df(r);
  return orb_dft_set_codelet_db(r);
}

}  // namespace orb::dft
