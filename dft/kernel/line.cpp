// Lines of complex data over the signal kernels. The scale is a pass of its own, whatever the kernel said.
#include "dft/kernel/element.h"
#include "orb/dft_commit.h"
#include "orb/dft_compute.h"

namespace orb::dft {
namespace {

template <class T, bool forward, class Kernel>
int transform_line(Kernel kernel, const VspsDFTSpec* spec, const void* in, void* out, DftiRecord* record,
                   void* work) {
  using C = complex_of<T>;
  const VspStatus status = kernel(static_cast<const C*>(in), static_cast<C*>(out), spec, work);
  const T s = scale_of<T, forward>(record);
  if (s != 1) scale(record->length, s, static_cast<C*>(out));
  return orb_dft_transfer_vsp_orb_error(status);
}

template <class T, bool forward, class Kernel>
int transform_parts_line(Kernel kernel, const VspsDFTSpec* spec, const void* in, void* out,
                         DftiRecord* record, void* work) {
  const auto from = *static_cast<const Parts<T>*>(in), to = *static_cast<Parts<T>*>(out);
  const VspStatus status = kernel(from.re, from.im, to.re, to.im, spec, work);
  if (const T s = scale_of<T, forward>(record); s != 1) {
    scale(record->length, s, to.re);
    scale(record->length, s, to.im);
  }
  return orb_dft_transfer_vsp_orb_error(status);
}

}  // namespace
}  // namespace orb::dft

using orb::dft::transform_line;
using orb::dft::transform_parts_line;

#define LINE(name, body, T, forward, kernel, spec)                                 \
  ORB_EXPORT int name(const void* in, void* out, DftiRecord* record, void* work) { \
    return body<T, forward>(kernel, record->spec, in, out, record, work);          \
  }
LINE(orb_dft_xvsps_fwd_32fc, transform_line, float, true, t7_vspsDFTFwd_CToC_32fc, spec_dft_c_32fc)
LINE(orb_dft_xvsps_inv_32fc, transform_line, float, false, t7_vspsDFTInv_CToC_32fc, spec_dft_c_32fc)
LINE(orb_dft_xvsps_fwd_64fc, transform_line, double, true, t7_vspsDFTFwd_CToC_64fc, spec_dft_c_64fc)
LINE(orb_dft_xvsps_inv_64fc, transform_line, double, false, t7_vspsDFTInv_CToC_64fc, spec_dft_c_64fc)
LINE(orb_dft_xvsps_fwd_rev_32fc, transform_line, float, true, t7_vspsDFTOutOrdFwd_CToC_32fc, spec_outord_32fc)
LINE(orb_dft_xvsps_inv_rev_32fc, transform_line, float, false, t7_vspsDFTOutOrdInv_CToC_32fc,
     spec_outord_32fc)
LINE(orb_dft_xvsps_fwd_rev_64fc, transform_line, double, true, t7_vspsDFTOutOrdFwd_CToC_64fc,
     spec_outord_64fc)
LINE(orb_dft_xvsps_inv_rev_64fc, transform_line, double, false, t7_vspsDFTOutOrdInv_CToC_64fc,
     spec_outord_64fc)
LINE(orb_dft_xvsps_fwd_32f, transform_parts_line, float, true, t7_vspsDFTFwd_CToC_32f, spec_dft_c_32f)
LINE(orb_dft_xvsps_inv_32f, transform_parts_line, float, false, t7_vspsDFTInv_CToC_32f, spec_dft_c_32f)
LINE(orb_dft_xvsps_fwd_64f, transform_parts_line, double, true, t7_vspsDFTFwd_CToC_64f, spec_dft_c_64f)
LINE(orb_dft_xvsps_inv_64f, transform_parts_line, double, false, t7_vspsDFTInv_CToC_64f, spec_dft_c_64f)
