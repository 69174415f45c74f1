// Convolution with a chirp.
#include "signal/kernel/dft/chirp.h"

#include <string.h>

#include "orb/signal_any_length.h"
#include "signal/kernel/arrays.h"
#include "signal/kernel/dft/base.h"

namespace orb::signal {
namespace {

// The FFT of one element type under common names.
template <class T>
struct Fft;
template <>
struct Fft<float> {
  static constexpr auto make = t7_vspsFFTInitAlloc_C_32fc;
  static constexpr auto forward = t7_vspsFFTFwd_CToC_32fc;
  static constexpr auto inverse = t7_vspsFFTInv_CToC_32fc;
  static constexpr auto buf_size = t7_vspsFFTGetBufSize_C_32fc;
};
template <>
struct Fft<double> {
  static constexpr auto make = t7_vspsFFTInitAlloc_C_64fc;
  static constexpr auto forward = t7_vspsFFTFwd_CToC_64fc;
  static constexpr auto inverse = t7_vspsFFTInv_CToC_64fc;
  static constexpr auto buf_size = t7_vspsFFTGetBufSize_C_64fc;
};

// out[k] = in[k] w[k]
template <class T, class In, class Out>
void product(In in, const complex_of<T>* w, Out out, int n) {
  using V = vector_of<T>;
  const auto factors = view(w);
  int k = 0;
  for (; k + V::lanes <= n; k += V::lanes) out.store(k, twiddled<forward>(in.load(k), factors.load(k)));
  using Z = one_of<complex_of<T>>;
  for (; k < n; ++k) out.put(k, Z::splat(w[k]) * in.template numbers<Z>(k));
}

template <class T, class Out>
void reverse_numbers(Out data, int n) {
  using Z = one_of<complex_of<T>>;
  for (int i = 1, j = n - 1; i < j; ++i, --j) {
    const Z a = data.template numbers<Z>(i);
    data.put(i, data.template numbers<Z>(j));
    data.put(j, a);
  }
}

template <Direction d, class T, class In, class Out>
VspStatus convolve_views(const DftSpec<T>& spec, In in, Out out, int n, void* buffer) {
  using C = complex_of<T>;
  const int order = fft_spec<T>(spec.fft_conv)->order, m = 1 << order;
  C* const work = static_cast<C*>(buffer);
  void* const fft_buffer = static_cast<char*>(buffer) + convolution_bytes<T>(order);
  const auto chirp = reinterpret_cast<const C*>(spec.chirp), filter = reinterpret_cast<const C*>(spec.filter);
  product<T>(in, chirp, view(work), n);
  memset(work + n, 0, sizeof(C) * unsigned(m - n));
  if (const VspStatus s = Fft<T>::forward(work, work, spec.fft_conv, fft_buffer)) return s;
  product<T>(view(work), filter, view(work), m);
  if (const VspStatus s = Fft<T>::inverse(work, work, spec.fft_conv, fft_buffer)) return s;
  product<T>(view(work), chirp, out, n);
  if (d == inverse && n > 2) reverse_numbers<T>(out, n);
  return VSP_OK;
}

}  // namespace

template <class T>
VspStatus make_convolution(DftSpec<T>& spec, int n, int hint, const complex_of<T>* base) {
  using C = complex_of<T>;
  int order = 0;
  while (1 << order < 2 * n - 1) ++order;
  const int m = 1 << order;
  if (const VspStatus s = Fft<T>::make(&spec.fft_conv, order, VSP_FFT_NODIV_BY_ANY, hint)) return s;
  C* const chirp = allocate_table<C>(n);
  spec.chirp = reinterpret_cast<T*>(chirp);
  C* const filter = allocate_table<C>(m);
  spec.filter = reinterpret_cast<T*>(filter);
  if (!chirp || !filter) return VSP_NO_MEMORY;
  for (int k = 0, square = 0; k < n; ++k) {  // k^2 mod 2n, by the odd numbers, so that nothing overflows
    chirp[k] = base[square];
    square += 2 * k + 1;
    if (square >= 2 * n) square -= 2 * n;
  }
  memset(filter, 0, sizeof(C) * unsigned(m));
  const T scale = T(1) / T(m);  // a power of two: exact
  for (int k = 0; k < n; ++k) filter[k] = scale * conj(chirp[k]);
  for (int k = 1; k < n; ++k) filter[m - k] = filter[k];
  int fft_bytes = 0;
  Fft<T>::buf_size(spec.fft_conv, &fft_bytes);
  spec.buf_size = fft_bytes + convolution_bytes<T>(order) + 32;
  return Fft<T>::forward(filter, filter, spec.fft_conv, nullptr);
}
template VspStatus make_convolution(DftSpec<float>&, int, int, const c32*);
template VspStatus make_convolution(DftSpec<double>&, int, int, const c64*);

template <Direction d, class T>
VspStatus convolve(const DftSpec<T>& spec, Interleaved<const T> in, Interleaved<T> out, int n, void* buffer) {
  return convolve_views<d>(spec, in, out, n, buffer);
}
template <Direction d, class T>
VspStatus convolve(const DftSpec<T>& spec, Apart<const T> in, Apart<T> out, int n, void* buffer) {
  return convolve_views<d>(spec, in, out, n, buffer);
}
#define CONVOLUTIONS(direction, T)                                                                     \
  template VspStatus convolve<direction>(const DftSpec<T>&, Interleaved<const T>, Interleaved<T>, int, \
                                         void*);                                                       \
  template VspStatus convolve<direction>(const DftSpec<T>&, Apart<const T>, Apart<T>, int, void*);
CONVOLUTIONS(Direction::forward, float)
CONVOLUTIONS(Direction::inverse, float)
CONVOLUTIONS(Direction::forward, double)
CONVOLUTIONS(Direction::inverse, double)

}  // namespace orb::signal

using namespace orb::signal;

#define CHIRP_STEPS(multiply_name, zero_name, C, T)                      \
  ORB_EXPORT void multiply_name(const C* a, const C* b, C* out, int n) { \
    product<T>(view(a), b, view(out), n);                                \
  }                                                                      \
  ORB_EXPORT void zero_name(C* data, int n) {                            \
    if (n > 0) memset(data, 0, sizeof(C) * unsigned(n));                 \
  }
CHIRP_STEPS(t7_vsps_cbMpy3_32fc, t7_vsps_cbZero_32fc, orb_complex_float, float)
CHIRP_STEPS(t7_vsps_cbMpy3_64fc, t7_vsps_cbZero_64fc, orb_complex_double, double)
