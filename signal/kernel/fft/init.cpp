// Exported: sizes, making and freeing of power-of-two records.
#include <string.h>

#include "orb/signal_power_of_two.h"
#include "orb/signal_real.h"
#include "signal/kernel/fft/large_shape.h"
#include "signal/kernel/fft/recombine.h"
#include "signal/kernel/flags.h"

namespace orb::signal {
namespace {

constexpr int align_bytes = 32;

// Order of the complex transform behind it.
constexpr int inner_order(Storage kind, int order) { return kind == Storage::real ? order - 1 : order; }
// Served by straight code alone?
constexpr bool is_straight(Storage kind, int order) {
  return order <= (kind == Storage::real ? straight_order - 1 : straight_order);
}
constexpr bool has_levels(Storage kind, int order) { return inner_order(kind, order) > straight_order; }

template <class T, Storage kind>
VspStatus get_size(int order, int flag, int* spec_size, int* init_size, int* buf_size) {
  if (order < 0 || order > 30) return VSP_FFT_ORDER_ERROR;
  if (!spec_size || !init_size || !buf_size) return VSP_NULL_POINTER;
  if (!is_flag(flag)) return VSP_FFT_FLAG_ERROR;
  if (order > FftLimits<T>::most_order) return VSP_FFT_ORDER_ERROR;
  *spec_size = int(sizeof(FftSpec<T>)) + align_bytes;
  *init_size = *buf_size = 0;
  if (is_straight(kind, order)) return VSP_OK;

  const int inner = inner_order(kind, order);
  int twiddles = 0;
  if (inner > FftLimits<T>::loop_order) {
    const LargeShape<T> shape(inner);
    twiddles = shape.twiddle_bytes(), *buf_size = shape.work_size();
  } else if (has_levels(kind, order)) {
    twiddles = loop_twiddle_bytes<T>(inner), *buf_size = work_bytes<T>(inner);
  }
  *spec_size = twiddles + reversal_bytes(inner) + fft_record_bytes + align_bytes;
  if (kind == Storage::real) *spec_size += 2 * round_up32(int(sizeof(T)) << order >> 1);
  if (order > fixed_sine_order) *init_size = round_up32(sine_bytes<T>(order)) + align_bytes;
  if (*buf_size > 0) *buf_size += align_bytes;
  return VSP_OK;
}

// The tables of a complex transform of 2^order from `address` on; returns what follows.
template <class T>
void* build_levels(FftSpec<T>* spec, int order, Sines<T> sines, void* address) {
  if (order > FftLimits<T>::loop_order) {
    spec->buf_size = LargeShape<T>(order).work_size();
    auto* const opaque = reinterpret_cast<VspsFFTSpec*>(spec);
    if constexpr (sizeof(T) == 4)
      return t7_vsps_initTabTwd_Large_32f(opaque, order, sines.quarter, sines.order, address);
    else
      return t7_vsps_initTabTwd_Large_64f(opaque, order, sines.quarter, sines.order, address);
  }
  // The one order between reverses by exchanges before its loop.
  const auto reversal = order > FftLimits<T>::norm_order ? t7_vsps_initTabBitRev : t7_vsps_initTabBitRevNorm;
  int* const table = static_cast<int*>(address);
  T* const twiddles = static_cast<T*>(reversal(order, table));
  spec->bit_rev = table;
  spec->twiddles = twiddles;
  spec->buf_size = work_bytes<T>(order);
  return level_twiddles(order, sines, twiddles);
}

template <class T>
void build_recombination(FftSpec<T>* spec, int order, Sines<T> sines, void* address) {
  T* const after = static_cast<T*>(address);
  T* const before = align32(write_recombine_table(after, order, sines));
  write_separate_table(before, order, sines);
  spec->recombine = after;
  spec->separate = before;
}

template <class T, Storage kind>
VspStatus init(VspsFFTSpec** result, int order, int flag, int hint, void* spec_memory, void* init_memory) {
  if (!result) return VSP_NULL_POINTER;
  if (order < 0 || order > FftLimits<T>::most_order) return VSP_FFT_ORDER_ERROR;
  if (!spec_memory) return VSP_NULL_POINTER;
  auto* const spec = align32(static_cast<FftSpec<T>*>(spec_memory));
  memset(spec, 0, sizeof *spec);
  spec->order = order;
  spec->hint = hint;
  if (!is_flag(flag)) return VSP_FFT_FLAG_ERROR;
  set_scale(*spec, flag, 1 << order);
  if (!is_straight(kind, order)) {
    if (order > fixed_sine_order && !init_memory) return VSP_NULL_POINTER;
    const Sines<T> sines = sines_for(order, align32(static_cast<T*>(init_memory)));
    void* free_space = reinterpret_cast<char*>(spec) + fft_record_bytes;
    if (has_levels(kind, order)) free_space = build_levels(spec, inner_order(kind, order), sines, free_space);
    if (kind == Storage::real) build_recombination(spec, order, sines, free_space);
  }
  spec->id = fft_id<T>(kind);  // last: a record that an init left half done is none
  *result = reinterpret_cast<VspsFFTSpec*>(spec);
  return VSP_OK;
}

template <class T, Storage kind>
VspStatus init_alloc(VspsFFTSpec** result, int order, int flag, int hint) {
  int spec_size, init_size, buf_size;
  if (const VspStatus s = get_size<T, kind>(order, flag, &spec_size, &init_size, &buf_size)) return s;
  void* const spec_memory = t7_vspsMalloc_8u(spec_size);
  if (!spec_memory) return VSP_NO_MEMORY;
  void* const init_memory = t7_vspsMalloc_8u(init_size);
  VspStatus status = VSP_NO_MEMORY;
  if (init_size == 0 || init_memory)
    status = init<T, kind>(result, order, flag, hint, spec_memory, init_memory);
  if (init_memory) t7_vspsFree(init_memory);
  if (status == VSP_OK)
    fft_spec<T>(*result)->allocated = 1;
  else
    t7_vspsFree(spec_memory);
  return status;
}

template <class T, Storage kind>
VspStatus release(VspsFFTSpec* opaque) {
  if (!opaque) return VSP_NULL_POINTER;
  auto* const spec = fft_spec<T>(opaque);
  if (spec->id != fft_id<T>(kind)) return VSP_CONTEXT_MISMATCH;
  spec->id = 0;
  if (spec->allocated) t7_vspsFree(spec);
  return VSP_OK;
}

template <class T, Storage kind>
VspStatus get_buf_size(const VspsFFTSpec* opaque, int* size) {
  if (!opaque || !size) return VSP_NULL_POINTER;
  const auto* const spec = fft_spec<T>(opaque);
  if (spec->id != fft_id<T>(kind)) return VSP_CONTEXT_MISMATCH;
  *size = spec->buf_size < 1 ? 0 : spec->buf_size + align_bytes;
  return VSP_OK;
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;

#define FFT_RECORDS(size, make, make_alloc, destroy, buffer, T, kind)                                  \
  ORB_EXPORT VspStatus size(int order, int flag, int, int* spec_size, int* init_size, int* buf_size) { \
    return get_size<T, kind>(order, flag, spec_size, init_size, buf_size);                             \
  }                                                                                                    \
  ORB_EXPORT VspStatus make(VspsFFTSpec** spec, int order, int flag, int hint, void* spec_memory,      \
                            void* init_memory) {                                                       \
    return init<T, kind>(spec, order, flag, hint, spec_memory, init_memory);                           \
  }                                                                                                    \
  ORB_EXPORT VspStatus make_alloc(VspsFFTSpec** spec, int order, int flag, int hint) {                 \
    return init_alloc<T, kind>(spec, order, flag, hint);                                               \
  }                                                                                                    \
  ORB_EXPORT VspStatus destroy(VspsFFTSpec* spec) { return release<T, kind>(spec); }                   \
  ORB_EXPORT VspStatus buffer(const VspsFFTSpec* spec, int* size) {                                    \
    return get_buf_size<T, kind>(spec, size);                                                          \
  }
FFT_RECORDS(t7_vspsFFTGetSize_C_32fc, t7_vspsFFTInit_C_32fc, t7_vspsFFTInitAlloc_C_32fc,
            t7_vspsFFTFree_C_32fc, t7_vspsFFTGetBufSize_C_32fc, float, Storage::interleaved)
FFT_RECORDS(t7_vspsFFTGetSize_C_32f, t7_vspsFFTInit_C_32f, t7_vspsFFTInitAlloc_C_32f, t7_vspsFFTFree_C_32f,
            t7_vspsFFTGetBufSize_C_32f, float, Storage::apart)
FFT_RECORDS(t7_vspsFFTGetSize_R_32f, t7_vspsFFTInit_R_32f, t7_vspsFFTInitAlloc_R_32f, t7_vspsFFTFree_R_32f,
            t7_vspsFFTGetBufSize_R_32f, float, Storage::real)
FFT_RECORDS(t7_vspsFFTGetSize_C_64fc, t7_vspsFFTInit_C_64fc, t7_vspsFFTInitAlloc_C_64fc,
            t7_vspsFFTFree_C_64fc, t7_vspsFFTGetBufSize_C_64fc, double, Storage::interleaved)
FFT_RECORDS(t7_vspsFFTGetSize_C_64f, t7_vspsFFTInit_C_64f, t7_vspsFFTInitAlloc_C_64f, t7_vspsFFTFree_C_64f,
            t7_vspsFFTGetBufSize_C_64f, double, Storage::apart)
FFT_RECORDS(t7_vspsFFTGetSize_R_64f, t7_vspsFFTInit_R_64f, t7_vspsFFTInitAlloc_R_64f, t7_vspsFFTFree_R_64f,
            t7_vspsFFTGetBufSize_R_64f, double, Storage::real)
