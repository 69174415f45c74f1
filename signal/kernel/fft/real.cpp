// Exported: real transforms by a record.
#include "orb/signal_real.h"
#include "signal/kernel/buffer.h"
#include "signal/kernel/fft/recombine.h"
#include "signal/kernel/fft/transform.h"
#include "signal/kernel/formats.h"

namespace orb::signal {
namespace {

enum class Format { perm, pack };

// Places the result in Perm format.
template <class T>
void forward_transform(const FftSpec<T>& spec, const T* in, T* out, T* buffer) {
  if (spec.order < straight_order) {
    const auto& routines = tbl_rFFT_small<forward, T>;
    return spec.do_fwd_scale ? routines.scaled[spec.order](in, out, spec.scale)
                             : routines.plain[spec.order](in, out);
  }
  transform<forward>(spec, spec.order - 1, Interleaved<const T>{in}, Interleaved<T>{out}, buffer);
  recombine_ends(out);
  recombine(out, 1 << spec.order >> 1, spec.recombine);
}

// From Perm format; `in` and `out` may be one array.
template <class T>
void inverse_transform(const FftSpec<T>& spec, const T* in, T* out, T* buffer) {
  if (spec.order < straight_order) {
    const auto& routines = tbl_rFFT_small<inverse, T>;
    return spec.do_inv_scale ? routines.scaled[spec.order](in, out, spec.scale)
                             : routines.plain[spec.order](in, out);
  }
  separate(in, out, 1 << spec.order >> 1, spec.separate);
  transform<inverse>(spec, spec.order - 1, Interleaved<const T>{out}, Interleaved<T>{out}, buffer);
}

template <Direction d, Format format, class T>
VspStatus compute(const VspsFFTSpec* opaque, const T* in, T* out, void* given) {
  if (!opaque) return VSP_NULL_POINTER;
  const auto& spec = *fft_spec<T>(opaque);
  if (spec.id != fft_id<T>(Storage::real)) return VSP_CONTEXT_MISMATCH;
  if (!in || !out) return VSP_NULL_POINTER;
  const CallBuffer buffer(given, spec.buf_size);
  if (buffer.failed(spec.buf_size)) return VSP_NO_MEMORY;
  const int n = 1 << spec.order;
  if constexpr (d == forward) {
    forward_transform(spec, in, out, buffer.at<T>());
    if (format == Format::pack) perm_to_pack(out, n);
  } else {
    if (format == Format::pack) {
      pack_to_perm(in, out, n);
      in = out;
    }
    inverse_transform(spec, in, out, buffer.at<T>());
  }
  return VSP_OK;
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;
using orb::signal::forward;

#define REAL_FFT(name, direction, format, T)                                              \
  ORB_EXPORT VspStatus name(const T* in, T* out, const VspsFFTSpec* spec, void* buffer) { \
    return compute<direction, Format::format>(spec, in, out, buffer);                     \
  }
REAL_FFT(t7_vspsFFTFwd_RToPerm_32f, forward, perm, float)
REAL_FFT(t7_vspsFFTInv_PermToR_32f, inverse, perm, float)
REAL_FFT(t7_vspsFFTFwd_RToPack_32f, forward, pack, float)
REAL_FFT(t7_vspsFFTInv_PackToR_32f, inverse, pack, float)
REAL_FFT(t7_vspsFFTFwd_RToPerm_64f, forward, perm, double)
REAL_FFT(t7_vspsFFTInv_PermToR_64f, inverse, perm, double)
REAL_FFT(t7_vspsFFTFwd_RToPack_64f, forward, pack, double)
REAL_FFT(t7_vspsFFTInv_PackToR_64f, inverse, pack, double)
