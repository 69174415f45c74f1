// Tables of the power-of-two transforms: who writes them, what room they take, and their walk.
#pragma once

#include "signal/kernel/fft/sines.h"
#include "signal/kernel/fft/spec.h"

namespace orb::signal {

constexpr int round_up32(int bytes) { return (bytes + 31) & ~31; }

// The sines of a transform of 2^order and of all shorter ones: constants up to order 10, else in `room`.
template <class T>
Sines<T> sines_for(int order, T* room);

template <class T>
T* level_twiddles(int order, Sines<T> sines, T* table);

// Room of a quarter wave, of the words of a reversal, of the twiddles of a loop over 2^order numbers.
template <class T>
constexpr int sine_bytes(int order) {
  return int(sizeof(T)) * ((1 << order) / 4 + 1);
}
constexpr int reversal_bytes(int order) { return round_up32((1 << order) / 4 * 4 + 4); }
template <class T>
constexpr int loop_twiddle_bytes(int order) {
  return (int(2 * sizeof(T)) * (1 << order) + 39) & ~31;
}
template <class T>
constexpr int work_bytes(int order) {
  return round_up32(int(2 * sizeof(T)) << order);
}

}  // namespace orb::signal
