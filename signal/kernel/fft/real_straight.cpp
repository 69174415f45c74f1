// Exported: real transforms of lengths 1 to 32, to Perm format and back.
#include "orb/signal_straight.h"
#include "signal/kernel/fft/recombine.h"
#include "signal/kernel/fft/straight.h"

namespace orb::signal {
namespace {

template <class T, int order, Direction d>
constexpr auto small_recombination() {
  constexpr auto sines = quarter_wave<T, 32>();
  std::array<T, (1 << order) / 2> table{};
  if (d == forward)
    write_recombine_table(table.data(), order, Sines<T>{sines.data(), 5});
  else
    write_separate_table(table.data(), order, Sines<T>{sines.data(), 5});
  return table;
}

// The result times `scale` where `scaled`.
template <int order, Direction d, class T, bool scaled>
ORB_INLINE void straight_real(const T* in, T* out, T scale) {
  constexpr int n = 1 << order;
  alignas(16) T room[n];
  if constexpr (order == 0) {
    room[0] = in[0];
  } else if constexpr (order == 1) {
    room[0] = in[0] + in[1], room[1] = in[0] - in[1];
  } else {
    alignas(16) static constexpr auto table = small_recombination<T, order, d>();
    if constexpr (d == forward) {
      straight<order - 1, d, T>(Interleaved<const T>{in}, Interleaved<T>{room});
      recombine_ends(room);
      recombine(room, n / 2, table.data());
    } else {
      separate(in, room, n / 2, table.data());
      straight<order - 1, d, T>(Interleaved<const T>{room}, Interleaved<T>{room});
    }
  }
  for (int i = 0; i < n; ++i) out[i] = scaled ? scale * room[i] : room[i];
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;
using orb::signal::forward;

#define STRAIGHT_REAL(name, name_scale, order, direction, T)                                           \
  ORB_EXPORT void name(const T* in, T* out) { straight_real<order, direction, T, false>(in, out, 1); } \
  ORB_EXPORT void name_scale(const T* in, T* out, T scale) {                                           \
    straight_real<order, direction, T, true>(in, out, scale);                                          \
  }
STRAIGHT_REAL(t7_vsps_rFFT_1_32f, t7_vsps_rFFT_1_scale_32f, 0, forward, float)
STRAIGHT_REAL(t7_vsps_rFFT_2_32f, t7_vsps_rFFT_2_scale_32f, 1, forward, float)
STRAIGHT_REAL(t7_vsps_rFFTfwd_4_32f, t7_vsps_rFFTfwd_4_scale_32f, 2, forward, float)
STRAIGHT_REAL(t7_vsps_rFFTinv_4_32f, t7_vsps_rFFTinv_4_scale_32f, 2, inverse, float)
STRAIGHT_REAL(t7_vsps_rFFTfwd_8_32f, t7_vsps_rFFTfwd_8_scale_32f, 3, forward, float)
STRAIGHT_REAL(t7_vsps_rFFTinv_8_32f, t7_vsps_rFFTinv_8_scale_32f, 3, inverse, float)
STRAIGHT_REAL(t7_vsps_rFFTfwd_16_32f, t7_vsps_rFFTfwd_16_scale_32f, 4, forward, float)
STRAIGHT_REAL(t7_vsps_rFFTinv_16_32f, t7_vsps_rFFTinv_16_scale_32f, 4, inverse, float)
STRAIGHT_REAL(t7_vsps_rFFTfwd_32_32f, t7_vsps_rFFTfwd_32_scale_32f, 5, forward, float)
STRAIGHT_REAL(t7_vsps_rFFTinv_32_32f, t7_vsps_rFFTinv_32_scale_32f, 5, inverse, float)
STRAIGHT_REAL(t7_vsps_rFFT_1_64f, t7_vsps_rFFT_1_scale_64f, 0, forward, double)
STRAIGHT_REAL(t7_vsps_rFFT_2_64f, t7_vsps_rFFT_2_scale_64f, 1, forward, double)
STRAIGHT_REAL(t7_vsps_rFFTfwd_4_64f, t7_vsps_rFFTfwd_4_scale_64f, 2, forward, double)
STRAIGHT_REAL(t7_vsps_rFFTinv_4_64f, t7_vsps_rFFTinv_4_scale_64f, 2, inverse, double)
STRAIGHT_REAL(t7_vsps_rFFTfwd_8_64f, t7_vsps_rFFTfwd_8_scale_64f, 3, forward, double)
STRAIGHT_REAL(t7_vsps_rFFTinv_8_64f, t7_vsps_rFFTinv_8_scale_64f, 3, inverse, double)
STRAIGHT_REAL(t7_vsps_rFFTfwd_16_64f, t7_vsps_rFFTfwd_16_scale_64f, 4, forward, double)
STRAIGHT_REAL(t7_vsps_rFFTinv_16_64f, t7_vsps_rFFTinv_16_scale_64f, 4, inverse, double)
STRAIGHT_REAL(t7_vsps_rFFTfwd_32_64f, t7_vsps_rFFTfwd_32_scale_64f, 5, forward, double)
STRAIGHT_REAL(t7_vsps_rFFTinv_32_64f, t7_vsps_rFFTinv_32_scale_64f, 5, inverse, double)
