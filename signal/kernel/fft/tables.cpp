// Sines, level twiddles and bit-reversals.
#include "signal/kernel/fft/tables.h"

#include <math.h>

#include "orb/signal_power_of_two.h"

namespace orb::signal {
namespace {

// sin(2 pi k / 1024)
alignas(32) constexpr auto fft_fix_twiddle_table_32f = quarter_wave<float, 1 << fixed_sine_order>();
alignas(32) constexpr auto fft_fix_twiddle_table_64f = quarter_wave<double, 1 << fixed_sine_order>();
template <class T>
const T* fixed_sines() {
  if constexpr (sizeof(T) == sizeof(float))
    return fft_fix_twiddle_table_32f.data();
  else
    return fft_fix_twiddle_table_64f.data();
}

template <class T>
T* base_sines(int order, T* sines) {
  const int n = 1 << order;
  if (order <= fixed_sine_order) {
    for (int k = 0; k <= n / 4; ++k) sines[k] = fixed_sines<T>()[k << (fixed_sine_order - order)];
  } else {
    const double unit = 6.283185307179586476925286766559 / n;
    int k = 0;
    for (; k <= n / 8; ++k) sines[k] = T(sin(k * unit));
    for (; k < n / 4; ++k) sines[k] = T(cos((n / 4 - k) * unit));
    sines[n / 4] = 1;
  }
  return align32(sines + n / 4 + 1);
}

// The bit-reversed counter behind j among `count` numbers, by the carry from the top.
int next_reversed(int j, int count) {
  int bit = count >> 1;
  for (; j & bit; bit >>= 1) j ^= bit;
  return j | bit;
}

}  // namespace

template <class T>
Sines<T> sines_for(int order, T* room) {
  if (order <= fixed_sine_order) return {fixed_sines<T>(), fixed_sine_order};
  base_sines(order, room);
  return {room, order};
}
template Sines<float> sines_for(int, float*);
template Sines<double> sines_for(int, double*);

template <class T>
T* level_twiddles(int order, Sines<T> sines, T* table) {
  write_level_twiddles(table, sines, order);
  return align32(table + (2 << order));
}
template float* level_twiddles(int, Sines<float>, float*);
template double* level_twiddles(int, Sines<double>, double*);

}  // namespace orb::signal

using namespace orb::signal;

ORB_EXPORT float* t7_vsps_initTabTwdBase_32f(int order, float* sines) { return base_sines(order, sines); }
ORB_EXPORT double* t7_vsps_initTabTwdBase_64f(int order, double* sines) { return base_sines(order, sines); }

ORB_EXPORT void* t7_vsps_initTabTwd_L1_32f(int order, const float* sines, int sine_order, float* table) {
  return level_twiddles(order, Sines<float>{sines, sine_order}, table);
}
ORB_EXPORT void* t7_vsps_initTabTwd_L1_64f(int order, const double* sines, int sine_order, double* table) {
  return level_twiddles(order, Sines<double>{sines, sine_order}, table);
}

ORB_EXPORT void* t7_vsps_initTabBitRevNorm(int order, int* table) {
  const int quarter = 1 << order >> 2;
  for (int k = 0, j = 0; k < quarter; ++k, j = next_reversed(j, quarter)) table[k] = 2 * j;
  table[quarter] = 0;
  return align32(table + quarter + 1);
}

ORB_EXPORT void* t7_vsps_initTabBitRev(int order, int* table) {
  const int quarter = 1 << order >> 2;
  int *pair = table, *fixed = table + quarter;
  for (int i = 0, j = 0; i < quarter; ++i, j = next_reversed(j, quarter)) {
    if (i < j) *pair++ = 8 * i, *pair++ = 8 * j;
    if (i == j) *fixed-- = 8 * i;
  }
  *pair = 0;
  return align32(table + quarter + 1);
}

ORB_EXPORT void* t7_vsps_initTabBitRevLarge(int order, int block_order, int* table) {
  const int blocks = 1 << (order - 2 * block_order);
  for (int k = 0, j = 0; k < blocks; ++k, j = next_reversed(j, blocks)) table[k] = j << block_order;
  return t7_vsps_initTabBitRev(2 * block_order, table + blocks);
}
