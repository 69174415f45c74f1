// Lines of real data over the signal kernels of the record's format.
#include "dft/kernel/element.h"
#include "orb/dft_commit.h"
#include "orb/dft_real.h"

namespace orb::dft {
namespace {

// CCS data has one element more that the scale must reach; the last is 0.
int packed_length(const DftiRecord* r) {
  const bool ccs = r->conjugate_even_storage == VAL_COMPLEX_COMPLEX || r->packed_format == VAL_CCS_FORMAT;
  return r->length + ccs;
}

template <class T, bool forward>
int transform_real_line(DftiPacked kernel, const VspsDFTSpec* spec, const void* in, void* out,
                        DftiRecord* record, void* work) {
  const VspStatus status = kernel(in, out, spec, work);
  const T s = scale_of<T, forward>(record);
  if (s != 1) scale(forward ? packed_length(record) : record->length, s, static_cast<T*>(out));
  return orb_dft_transfer_vsp_orb_error(status);
}

}  // namespace
}  // namespace orb::dft

using orb::dft::transform_real_line;

#define REAL_LINE(name, T, forward, kernel, spec)                                                \
  ORB_EXPORT int name(const void* in, void* out, DftiRecord* record, void* work) {               \
    return transform_real_line<T, forward>(record->kernel, record->spec, in, out, record, work); \
  }
REAL_LINE(orb_dft_xvsps_fwd_rtocomplex_32f, float, true, real_fwd_s_fmt, spec_dft_r_32f)
REAL_LINE(orb_dft_xvsps_inv_complextor_32f, float, false, real_inv_s_fmt, spec_dft_r_32f)
REAL_LINE(orb_dft_xvsps_fwd_rtocomplex_64f, double, true, real_fwd_d_fmt, spec_dft_r_64f)
REAL_LINE(orb_dft_xvsps_inv_complextor_64f, double, false, real_inv_d_fmt, spec_dft_r_64f)
