// Exported: complex transforms of any length by a record, and their methods alone.
#include "orb/signal_any_length.h"
#include "signal/kernel/arrays.h"
#include "signal/kernel/buffer.h"
#include "signal/kernel/dft/chirp.h"
#include "signal/kernel/dft/core.h"
#include "signal/kernel/dft/direct.h"
#include "signal/kernel/fft/transform.h"

namespace orb::signal {
namespace {

template <Direction d>
VspStatus fft(const VspsFFTSpec* spec, Interleaved<const float> in, Interleaved<float> out, void* buffer) {
  using E = Engine<d, float>;
  return (d == forward ? t7_vspsFFTFwd_CToC_32fc : t7_vspsFFTInv_CToC_32fc)(E::numbers(in), E::numbers(out),
                                                                            spec, buffer);
}
template <Direction d>
VspStatus fft(const VspsFFTSpec* spec, Interleaved<const double> in, Interleaved<double> out, void* buffer) {
  using E = Engine<d, double>;
  return (d == forward ? t7_vspsFFTFwd_CToC_64fc : t7_vspsFFTInv_CToC_64fc)(E::numbers(in), E::numbers(out),
                                                                            spec, buffer);
}
template <Direction d>
VspStatus fft(const VspsFFTSpec* spec, Apart<const float> in, Apart<float> out, void* buffer) {
  return (d == forward ? t7_vspsFFTFwd_CToC_32f : t7_vspsFFTInv_CToC_32f)(in.re, in.im, out.re, out.im, spec,
                                                                          buffer);
}
template <Direction d>
VspStatus fft(const VspsFFTSpec* spec, Apart<const double> in, Apart<double> out, void* buffer) {
  return (d == forward ? t7_vspsFFTFwd_CToC_64f : t7_vspsFFTInv_CToC_64f)(in.re, in.im, out.re, out.im, spec,
                                                                          buffer);
}

template <Direction d, DftKind kind, class T, class In, class Out>
VspStatus compute(const VspsDFTSpec* opaque, bool has_data, In in, Out out, void* given) {
  if (!opaque) return VSP_NULL_POINTER;
  const auto& spec = *dft_spec<T>(opaque);
  if (spec.id != dft_id<T>(kind)) return VSP_CONTEXT_MISMATCH;
  if (!has_data) return VSP_NULL_POINTER;
  const CallBuffer buffer(given, spec.buf_size);
  if (buffer.failed(spec.buf_size)) return VSP_NO_MEMORY;
  if (spec.is_pow2) return fft<d>(spec.fft, in, out, buffer.at<void>());
  const VspStatus status = core_transform<d>(spec, in, out, buffer.at<T>());
  if (status == VSP_OK && (d == forward ? spec.do_fwd_scale : spec.do_inv_scale))
    multiply(out, spec.length, spec.scale);
  return status;
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;
using orb::signal::forward;

#define COMPLEX_DFT(name, direction, kind, C, T)                                               \
  ORB_EXPORT VspStatus name(const C* in, C* out, const VspsDFTSpec* spec, void* buffer) {      \
    return compute<direction, DftKind::kind, T>(spec, in && out, view(in), view(out), buffer); \
  }
COMPLEX_DFT(t7_vspsDFTFwd_CToC_32fc, forward, interleaved, orb_complex_float, float)
COMPLEX_DFT(t7_vspsDFTInv_CToC_32fc, inverse, interleaved, orb_complex_float, float)
COMPLEX_DFT(t7_vspsDFTFwd_CToC_64fc, forward, interleaved, orb_complex_double, double)
COMPLEX_DFT(t7_vspsDFTInv_CToC_64fc, inverse, interleaved, orb_complex_double, double)
COMPLEX_DFT(t7_vspsDFTOutOrdFwd_CToC_32fc, forward, out_of_order, orb_complex_float, float)
COMPLEX_DFT(t7_vspsDFTOutOrdInv_CToC_32fc, inverse, out_of_order, orb_complex_float, float)
COMPLEX_DFT(t7_vspsDFTOutOrdFwd_CToC_64fc, forward, out_of_order, orb_complex_double, double)
COMPLEX_DFT(t7_vspsDFTOutOrdInv_CToC_64fc, inverse, out_of_order, orb_complex_double, double)

#define SPLIT_DFT(name, direction, T)                                                                      \
  ORB_EXPORT VspStatus name(const T* in_re, const T* in_im, T* out_re, T* out_im, const VspsDFTSpec* spec, \
                            void* buffer) {                                                                \
    return compute<direction, DftKind::apart, T>(spec, in_re && in_im && out_re && out_im,                 \
                                                 Apart<const T>{in_re, in_im}, Apart<T>{out_re, out_im},   \
                                                 buffer);                                                  \
  }
SPLIT_DFT(t7_vspsDFTFwd_CToC_32f, forward, float)
SPLIT_DFT(t7_vspsDFTInv_CToC_32f, inverse, float)
SPLIT_DFT(t7_vspsDFTFwd_CToC_64f, forward, double)
SPLIT_DFT(t7_vspsDFTInv_CToC_64f, inverse, double)

#define DFT_METHODS(direct, chirp, C, T)                                                                    \
  ORB_EXPORT void direct(const C* in, C* out, int n, int sign, const C* table, void* buffer) {              \
    C* const room = static_cast<C*>(buffer);                                                                \
    if (sign < 0)                                                                                           \
      direct_sum<inverse, T>(view(in), view(out), n, table, room);                                          \
    else                                                                                                    \
      direct_sum<forward, T>(view(in), view(out), n, table, room);                                          \
  }                                                                                                         \
  ORB_EXPORT VspStatus chirp(const VspsDFTSpec* spec, const C* in, C* out, int n, int sign, void* buffer) { \
    if (sign < 0) return convolve<inverse>(*dft_spec<T>(spec), view(in), view(out), n, align32(buffer));    \
    return convolve<forward>(*dft_spec<T>(spec), view(in), view(out), n, align32(buffer));                  \
  }
DFT_METHODS(t7_vsps_cDft_Dir_32fc, t7_vsps_cDft_Conv_32fc, orb_complex_float, float)
DFT_METHODS(t7_vsps_cDft_Dir_64fc, t7_vsps_cDft_Conv_64fc, orb_complex_double, double)

#define DFT_PLANS(sorted, unsorted, direction, C, T)                                        \
  ORB_EXPORT void sorted(const VspsDFTSpec* spec, const C* in, C* out, void* buffer) {      \
    const auto& s = *dft_spec<T>(spec);                                                     \
    run_plan<direction>(s, s.inner, view(in), view(out), align32(static_cast<T*>(buffer))); \
  }                                                                                         \
  ORB_EXPORT void unsorted(const VspsDFTSpec* spec, const C* in, C* out, void* buffer) {    \
    sorted(spec, in, out, buffer);                                                          \
  }
DFT_PLANS(t7_vsps_cDftFwd_PrimeFact_32fc, t7_vsps_cDftFwd_OutOrd_32fc, forward, orb_complex_float, float)
DFT_PLANS(t7_vsps_cDftInv_PrimeFact_32fc, t7_vsps_cDftInv_OutOrd_32fc, inverse, orb_complex_float, float)
DFT_PLANS(t7_vsps_cDftFwd_PrimeFact_64fc, t7_vsps_cDftFwd_OutOrd_64fc, forward, orb_complex_double, double)
DFT_PLANS(t7_vsps_cDftInv_PrimeFact_64fc, t7_vsps_cDftInv_OutOrd_64fc, inverse, orb_complex_double, double)
