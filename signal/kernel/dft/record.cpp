// Exported: making and freeing of any-length records.
#include <string.h>

#include "orb/signal_any_length.h"
#include "signal/kernel/dft/base.h"
#include "signal/kernel/dft/chirp.h"
#include "signal/kernel/dft/core.h"
#include "signal/kernel/dft/fft_of.h"
#include "signal/kernel/dft/plan.h"
#include "signal/kernel/flags.h"

namespace orb::signal {
namespace {

template <class T, DftKind kind>
void release_tables(DftSpec<T>& spec) {
  for (T* table : {spec.plan_tables, spec.direct, spec.chirp, spec.filter, spec.recombine, spec.separate})
    if (table) t7_vspsFree(table);
  if (spec.fft) FftOf<T, kind>::release(spec.fft);
  if (spec.fft_conv) FftOf<T, DftKind::interleaved>::release(spec.fft_conv);
}

template <class T, DftKind kind>
VspStatus use_fft(DftSpec<T>& spec, int flag) {
  using F = FftOf<T, kind>;
  spec.is_pow2 = 1;
  if (const VspStatus s = F::make(&spec.fft, __builtin_ctz(unsigned(spec.length)), flag, spec.hint)) return s;
  return F::buf_size(spec.fft, &spec.buf_size);
}

template <class T>
T* recombination(bool after, int n, const c32* base, int base_length) {
  return after ? t7_vsps_createTabDftFwdRec_32f(n, base, base_length)
               : t7_vsps_createTabDftInvRec_32f(n, base, base_length);
}
template <class T>
T* recombination(bool after, int n, const c64* base, int base_length) {
  return after ? t7_vsps_createTabDftFwdRec_64f(n, base, base_length)
               : t7_vsps_createTabDftInvRec_64f(n, base, base_length);
}
float* direct_table(int n, const c32* base, int base_length) {
  return reinterpret_cast<float*>(t7_vsps_createTabDftDir_32f(n, base, base_length));
}
double* direct_table(int n, const c64* base, int base_length) {
  return reinterpret_cast<double*>(t7_vsps_createTabDftDir_64f(n, base, base_length));
}

// The method of the complex transform behind the record, which is no straight one and no power of two.
template <class T>
VspStatus choose_method(DftSpec<T>& spec, bool real, const complex_of<T>* base, int base_length) {
  const int n = spec.inner;
  const bool odd_real = real && n == spec.length;
  if (spec.has_factors) return make_plan_tables(spec, base, base_length, odd_real) ? VSP_OK : VSP_NO_MEMORY;
  if (n <= (real ? most_direct_real : most_direct)) {
    spec.direct = direct_table(n, base, base_length);
    return spec.direct ? VSP_OK : VSP_NO_MEMORY;
  }
  return make_convolution(spec, n, spec.hint, base);
}

template <class T, DftKind kind>
VspStatus build(DftSpec<T>& spec, int n, int flag) {
  constexpr bool real = kind == DftKind::real;
  if (!is_flag(flag)) return VSP_FFT_FLAG_ERROR;
  set_scale(spec, flag, n);
  spec.length = n;
  spec.inner = real && n % 2 == 0 ? n / 2 : n;
  if (n <= straight_length) return VSP_OK;
  if ((n & (n - 1)) == 0) return use_fft<T, kind>(spec, flag);
  if (n >= most_length) return VSP_SIZE_ERROR;

  const int inner = spec.inner;
  const bool planned = inner > straight_length && make_plan(spec, inner);
  const bool convolved = !planned && inner > (real ? most_direct_real : most_direct);
  if (convolved && inner >= most_chirp_length) return VSP_SIZE_ERROR;
  const int base_length = convolved ? 2 * inner : n;
  const Table<complex_of<T>> base(base_table<complex_of<T>>(base_length));
  if (!base) return VSP_NO_MEMORY;
  if (inner < n) {
    spec.recombine = recombination<T>(true, n, base.get(), base_length);
    spec.separate = recombination<T>(false, n, base.get(), base_length);
    if (!spec.recombine || !spec.separate) return VSP_NO_MEMORY;
  }
  if (inner > straight_length)
    if (const VspStatus s = choose_method(spec, real, base.get(), base_length)) return s;
  spec.buf_size = core_bytes(spec) + (real && inner == n ? expanded_bytes<T>(n) : 0);
  return VSP_OK;
}

template <class T, DftKind kind>
VspStatus init_alloc(VspsDFTSpec** result, int n, int flag, int hint) {
  if (!result) return VSP_NULL_POINTER;
  if (n < 1) return VSP_SIZE_ERROR;
  void* const block = t7_vspsMalloc_8u(sizeof(DftSpec<T>));
  if (!block) return VSP_NO_MEMORY;
  memset(block, 0, sizeof(DftSpec<T>));
  auto& spec = *static_cast<DftSpec<T>*>(block);
  spec.hint = hint;
  if (const VspStatus s = build<T, kind>(spec, n, flag)) {
    release_tables<T, kind>(spec);
    t7_vspsFree(block);
    return s;
  }
  spec.id = dft_id<T>(kind);
  *result = static_cast<VspsDFTSpec*>(block);
  return VSP_OK;
}

template <class T, DftKind kind>
VspStatus release(VspsDFTSpec* opaque) {
  if (!opaque) return VSP_NULL_POINTER;
  auto& spec = *dft_spec<T>(opaque);
  if (spec.id != dft_id<T>(kind)) return VSP_CONTEXT_MISMATCH;
  release_tables<T, kind>(spec);
  spec.id = 0;
  t7_vspsFree(opaque);
  return VSP_OK;
}

template <class T, DftKind kind>
VspStatus get_buf_size(const VspsDFTSpec* opaque, int* size) {
  if (!opaque || !size) return VSP_NULL_POINTER;
  const auto& spec = *dft_spec<T>(opaque);
  if (spec.id != dft_id<T>(kind)) return VSP_CONTEXT_MISMATCH;
  *size = spec.buf_size;
  return VSP_OK;
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;

#define DFT_RECORDS(make, destroy, buffer, T, kind)                                           \
  ORB_EXPORT VspStatus make(VspsDFTSpec** spec, int length, int flag, int hint) {             \
    return init_alloc<T, DftKind::kind>(spec, length, flag, hint);                            \
  }                                                                                           \
  ORB_EXPORT VspStatus destroy(VspsDFTSpec* spec) { return release<T, DftKind::kind>(spec); } \
  ORB_EXPORT VspStatus buffer(const VspsDFTSpec* spec, int* size) {                           \
    return get_buf_size<T, DftKind::kind>(spec, size);                                        \
  }
DFT_RECORDS(t7_vspsDFTInitAlloc_C_32fc, t7_vspsDFTFree_C_32fc, t7_vspsDFTGetBufSize_C_32fc, float,
            interleaved)
DFT_RECORDS(t7_vspsDFTInitAlloc_C_32f, t7_vspsDFTFree_C_32f, t7_vspsDFTGetBufSize_C_32f, float, apart)
DFT_RECORDS(t7_vspsDFTInitAlloc_R_32f, t7_vspsDFTFree_R_32f, t7_vspsDFTGetBufSize_R_32f, float, real)
DFT_RECORDS(t7_vspsDFTInitAlloc_C_64fc, t7_vspsDFTFree_C_64fc, t7_vspsDFTGetBufSize_C_64fc, double,
            interleaved)
DFT_RECORDS(t7_vspsDFTInitAlloc_C_64f, t7_vspsDFTFree_C_64f, t7_vspsDFTGetBufSize_C_64f, double, apart)
DFT_RECORDS(t7_vspsDFTInitAlloc_R_64f, t7_vspsDFTFree_R_64f, t7_vspsDFTGetBufSize_R_64f, double, real)
DFT_RECORDS(t7_vspsDFTOutOrdInitAlloc_C_32fc, t7_vspsDFTOutOrdFree_C_32fc, t7_vspsDFTOutOrdGetBufSize_C_32fc,
            float, out_of_order)
DFT_RECORDS(t7_vspsDFTOutOrdInitAlloc_C_64fc, t7_vspsDFTOutOrdFree_C_64fc, t7_vspsDFTOutOrdGetBufSize_C_64fc,
            double, out_of_order)
