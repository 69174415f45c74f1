// Exported: real transforms of any length by a record. Inside, the transform stands in Perm format.
#include "orb/signal_any_length.h"
#include "signal/kernel/buffer.h"
#include "signal/kernel/dft/chirp.h"
#include "signal/kernel/dft/core.h"
#include "signal/kernel/dft/direct.h"
#include "signal/kernel/fft/recombine.h"
#include "signal/kernel/formats.h"
#include "signal/kernel/scale.h"

namespace orb::signal {
namespace {

enum class Format { perm, pack, ccs };

VspStatus fft_forward(const VspsFFTSpec* spec, const float* in, float* out, void* buffer) {
  return t7_vspsFFTFwd_RToPerm_32f(in, out, spec, buffer);
}
VspStatus fft_forward(const VspsFFTSpec* spec, const double* in, double* out, void* buffer) {
  return t7_vspsFFTFwd_RToPerm_64f(in, out, spec, buffer);
}
VspStatus fft_inverse(const VspsFFTSpec* spec, const float* in, float* out, void* buffer) {
  return t7_vspsFFTInv_PermToR_32f(in, out, spec, buffer);
}
VspStatus fft_inverse(const VspsFFTSpec* spec, const double* in, double* out, void* buffer) {
  return t7_vspsFFTInv_PermToR_64f(in, out, spec, buffer);
}

// Real numbers as complex ones, and what is kept of a result.
template <class T>
void expand(const T* in, T* pairs, int n) {
  for (int i = 0; i < n; ++i) pairs[2 * i] = in[i], pairs[2 * i + 1] = 0;
}
template <class T>
void keep_real(const T* pairs, T* out, int n) {
  for (int i = 0; i < n; ++i) out[i] = pairs[2 * i];
}
// The whole spectrum of n complex numbers from Perm format, and back. The end of an even spectrum stands at
// place 1, an odd one has none.
template <class T>
void expand_spectrum(const T* perm, T* pairs, int n) {
  const int shift = n % 2;  // number k is at 2k - shift
  pairs[0] = perm[0], pairs[1] = 0;
  for (int k = 1; 2 * k < n; ++k) {
    const T re = perm[2 * k - shift], im = perm[2 * k - shift + 1];
    pairs[2 * k] = pairs[2 * (n - k)] = re;
    pairs[2 * k + 1] = im, pairs[2 * (n - k) + 1] = -im;
  }
  if (n % 2 == 0) pairs[n] = perm[1], pairs[n + 1] = 0;
}
template <class T>
void keep_spectrum(const T* pairs, T* perm, int n) {
  const T middle = pairs[n % 2 == 0 ? n : 0];
  perm[0] = pairs[0];
  if (n > 2) memcpy(perm + 2 - n % 2, pairs + 2, sizeof(T) * unsigned(n - 2 + n % 2));
  if (n % 2 == 0) perm[1] = middle;
}

// The complex transform in place, in the expanded array in front of the buffer.
template <Direction d, class T>
VspStatus transform_expanded(const DftSpec<T>& spec, T* pairs, T* buffer) {
  return core_transform<d>(spec, Interleaved<const T>{pairs}, Interleaved<T>{pairs}, buffer);
}

template <class T>
struct OddBuffer {
  T *pairs, *rest;
  OddBuffer(T* buffer, int n)
      : pairs(buffer), rest(reinterpret_cast<T*>(reinterpret_cast<char*>(buffer) + expanded_bytes<T>(n))) {}
};

template <class T>
VspStatus forward_odd(const DftSpec<T>& spec, const T* in, T* out, T* buffer) {
  const int n = spec.length;
  const OddBuffer<T> room(buffer, n);
  if (spec.direct) {
    using C = complex_of<T>;
    direct_sum_real(in, out, n, reinterpret_cast<const C*>(spec.direct), reinterpret_cast<C*>(room.rest));
    return VSP_OK;
  }
  if (spec.has_factors) {
    run_real_plan(spec, n, in, room.pairs, room.rest);
  } else {
    expand(in, room.pairs, n);
    if (const VspStatus s = transform_expanded<forward>(spec, room.pairs, room.rest)) return s;
  }
  keep_spectrum(room.pairs, out, n);
  return VSP_OK;
}
template <class T>
VspStatus inverse_odd(const DftSpec<T>& spec, const T* in, T* out, T* buffer) {
  const OddBuffer<T> room(buffer, spec.length);
  expand_spectrum(in, room.pairs, spec.length);
  if (const VspStatus s = transform_expanded<inverse>(spec, room.pairs, room.rest)) return s;
  keep_real(room.pairs, out, spec.length);
  return VSP_OK;
}

// Up to 16 numbers, all of them in registers or on the stack.
template <class T>
VspStatus forward_short(const DftSpec<T>& spec, const T* in, T* out) {
  T pairs[2 * straight_length];
  DftSpec<T> whole = spec;
  whole.inner = spec.length;
  expand(in, pairs, spec.length);
  const VspStatus s = transform_expanded<forward, T>(whole, pairs, nullptr);
  keep_spectrum(pairs, out, spec.length);
  return s;
}
template <class T>
VspStatus inverse_short(const DftSpec<T>& spec, const T* in, T* out) {
  T pairs[2 * straight_length];
  DftSpec<T> whole = spec;
  whole.inner = spec.length;
  expand_spectrum(in, pairs, spec.length);
  const VspStatus s = transform_expanded<inverse, T>(whole, pairs, nullptr);
  keep_real(pairs, out, spec.length);
  return s;
}

// To Perm format, unscaled but for powers of two.
template <class T>
VspStatus forward_perm(const DftSpec<T>& spec, const T* in, T* out, T* buffer) {
  if (spec.is_pow2) return fft_forward(spec.fft, in, out, buffer);
  if (spec.length <= straight_length) return forward_short(spec, in, out);
  if (spec.length % 2) return forward_odd(spec, in, out, buffer);
  if (const VspStatus s =
          core_transform<forward>(spec, Interleaved<const T>{in}, Interleaved<T>{out}, buffer))
    return s;
  recombine_ends(out);
  recombine(out, spec.inner, spec.recombine);
  return VSP_OK;
}
template <class T>
VspStatus inverse_perm(const DftSpec<T>& spec, const T* in, T* out, T* buffer) {
  if (spec.is_pow2) return fft_inverse(spec.fft, in, out, buffer);
  if (spec.length <= straight_length) return inverse_short(spec, in, out);
  if (spec.length % 2) return inverse_odd(spec, in, out, buffer);
  separate(in, out, spec.inner, spec.separate);
  return core_transform<inverse>(spec, Interleaved<const T>{out}, Interleaved<T>{out}, buffer);
}

template <Direction d, Format format, class T>
VspStatus compute(const VspsDFTSpec* opaque, const T* in, T* out, void* given) {
  if (!opaque) return VSP_NULL_POINTER;
  const auto& spec = *dft_spec<T>(opaque);
  if (spec.id != dft_id<T>(DftKind::real)) return VSP_CONTEXT_MISMATCH;
  if (!in || !out) return VSP_NULL_POINTER;
  const CallBuffer buffer(given, spec.buf_size);
  if (buffer.failed(spec.buf_size)) return VSP_NO_MEMORY;
  const int n = spec.length;
  const bool scaled = !spec.is_pow2 && (d == forward ? spec.do_fwd_scale : spec.do_inv_scale);
  if constexpr (d == forward) {
    if (const VspStatus s = forward_perm(spec, in, out, buffer.at<T>())) return s;
    if (scaled) multiply(out, n, spec.scale);
    if (format == Format::pack && n % 2 == 0) perm_to_pack(out, n);
    if (format == Format::ccs) perm_to_ccs(out, n);
  } else {
    // The two ends of the spectrum come together in `out`, which Perm format alone does not need.
    if (format == Format::pack && n % 2 == 0) pack_to_perm(in, out, n), in = out;
    if (format == Format::ccs) ccs_to_perm(in, out, n), in = out;
    if (const VspStatus s = inverse_perm(spec, in, out, buffer.at<T>())) return s;
    if (scaled) multiply(out, n, spec.scale);
  }
  return VSP_OK;
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;
using orb::signal::forward;

#define REAL_DFT(name, direction, format, T)                                              \
  ORB_EXPORT VspStatus name(const T* in, T* out, const VspsDFTSpec* spec, void* buffer) { \
    return compute<direction, Format::format>(spec, in, out, buffer);                     \
  }
REAL_DFT(t7_vspsDFTFwd_RToPerm_32f, forward, perm, float)
REAL_DFT(t7_vspsDFTFwd_RToPack_32f, forward, pack, float)
REAL_DFT(t7_vspsDFTFwd_RToCCS_32f, forward, ccs, float)
REAL_DFT(t7_vspsDFTInv_PermToR_32f, inverse, perm, float)
REAL_DFT(t7_vspsDFTInv_PackToR_32f, inverse, pack, float)
REAL_DFT(t7_vspsDFTInv_CCSToR_32f, inverse, ccs, float)
REAL_DFT(t7_vspsDFTFwd_RToPerm_64f, forward, perm, double)
REAL_DFT(t7_vspsDFTFwd_RToPack_64f, forward, pack, double)
REAL_DFT(t7_vspsDFTFwd_RToCCS_64f, forward, ccs, double)
REAL_DFT(t7_vspsDFTInv_PermToR_64f, inverse, perm, double)
REAL_DFT(t7_vspsDFTInv_PackToR_64f, inverse, pack, double)
REAL_DFT(t7_vspsDFTInv_CCSToR_64f, inverse, ccs, double)

#define REAL_METHODS(direct, chirp_forward, chirp_inverse, C, T)                                        \
  ORB_EXPORT void direct(const T* in, T* out, int n, const C* table, void* buffer) {                    \
    direct_sum_real(in, out, n, table, static_cast<C*>(buffer));                                        \
  }                                                                                                     \
  ORB_EXPORT VspStatus chirp_forward(const VspsDFTSpec* spec, const T* in, T* out, int, void* buffer) { \
    return forward_odd(*dft_spec<T>(spec), in, out, align32(static_cast<T*>(buffer)));                  \
  }                                                                                                     \
  ORB_EXPORT VspStatus chirp_inverse(const VspsDFTSpec* spec, const T* in, T* out, int, void* buffer) { \
    return inverse_odd(*dft_spec<T>(spec), in, out, align32(static_cast<T*>(buffer)));                  \
  }
REAL_METHODS(t7_vsps_rDftFwd_Dir_32f, t7_vsps_rDftFwd_Conv_32f, t7_vsps_rDftInv_Conv_32f, orb_complex_float,
             float)
REAL_METHODS(t7_vsps_rDftFwd_Dir_64f, t7_vsps_rDftFwd_Conv_64f, t7_vsps_rDftInv_Conv_64f, orb_complex_double,
             double)
