// Exported: complex transforms by a record.
#include "signal/kernel/buffer.h"
#include "signal/kernel/fft/transform.h"

namespace orb::signal {
namespace {

template <Direction d, class T, Storage kind, class In, class Out>
VspStatus compute(const VspsFFTSpec* opaque, bool has_data, In in, Out out, void* given) {
  if (!opaque) return VSP_NULL_POINTER;
  const auto& spec = *fft_spec<T>(opaque);
  if (spec.id != fft_id<T>(kind)) return VSP_CONTEXT_MISMATCH;
  if (!has_data) return VSP_NULL_POINTER;
  const CallBuffer buffer(given, spec.buf_size);
  if (buffer.failed(spec.buf_size)) return VSP_NO_MEMORY;
  transform<d>(spec, spec.order, in, out, buffer.at<T>());
  return VSP_OK;
}

template <Direction d, class C>
VspStatus compute(const VspsFFTSpec* spec, const C* in, C* out, void* buffer) {
  return compute<d, real_of<C>, Storage::interleaved>(spec, in && out, view(in), view(out), buffer);
}
template <Direction d, class T>
VspStatus compute(const VspsFFTSpec* spec, const T* in_re, const T* in_im, T* out_re, T* out_im,
                  void* buffer) {
  return compute<d, T, Storage::apart>(spec, in_re && in_im && out_re && out_im, Apart<const T>{in_re, in_im},
                                       Apart<T>{out_re, out_im}, buffer);
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;
using orb::signal::forward;

#define COMPLEX_FFT(name, direction, C)                                                   \
  ORB_EXPORT VspStatus name(const C* in, C* out, const VspsFFTSpec* spec, void* buffer) { \
    return compute<direction>(spec, in, out, buffer);                                     \
  }
COMPLEX_FFT(t7_vspsFFTFwd_CToC_32fc, forward, orb_complex_float)
COMPLEX_FFT(t7_vspsFFTInv_CToC_32fc, inverse, orb_complex_float)
COMPLEX_FFT(t7_vspsFFTFwd_CToC_64fc, forward, orb_complex_double)
COMPLEX_FFT(t7_vspsFFTInv_CToC_64fc, inverse, orb_complex_double)

#define SPLIT_FFT(name, direction, T)                                                                      \
  ORB_EXPORT VspStatus name(const T* in_re, const T* in_im, T* out_re, T* out_im, const VspsFFTSpec* spec, \
                            void* buffer) {                                                                \
    return compute<direction>(spec, in_re, in_im, out_re, out_im, buffer);                                 \
  }
SPLIT_FFT(t7_vspsFFTFwd_CToC_32f, forward, float)
SPLIT_FFT(t7_vspsFFTInv_CToC_32f, inverse, float)
SPLIT_FFT(t7_vspsFFTFwd_CToC_64f, forward, double)
SPLIT_FFT(t7_vspsFFTInv_CToC_64f, inverse, double)
