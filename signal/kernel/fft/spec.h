// The record of a power-of-two transform and what its tables look like.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "orb/signal.h"
#include "signal/kernel/split.h"

namespace orb::signal {

// T is the element type: float or double.
template <class T>
struct FftSpec {
  int32_t id;  // kind; 0 after free
  int32_t order;
  int32_t do_fwd_scale, do_inv_scale;
  T scale;
  int32_t hint;
  int32_t buf_size;   // work bytes of a compute call, without what aligning costs; 0: none
  int32_t allocated;  // the record's memory is its own
  const int* bit_rev;
  const T* twiddles;              // of the rows: levels up to the largest order that fits the cache
  const T* columns[9];            // of the column stages of the large orders, innermost first
  const T *recombine, *separate;  // real kinds: after the forward and before the inverse transform
};
static_assert(sizeof(FftSpec<float>) == 84 && sizeof(FftSpec<double>) == 88);
static_assert(offsetof(FftSpec<float>, buf_size) == 24 && offsetof(FftSpec<double>, twiddles) == 40);
constexpr int fft_record_bytes = 96;  // the tables follow on the next 32-byte boundary

template <class T>
FftSpec<T>* fft_spec(VspsFFTSpec* spec) {
  return reinterpret_cast<FftSpec<T>*>(spec);
}
template <class T>
const FftSpec<T>* fft_spec(const VspsFFTSpec* spec) {
  return reinterpret_cast<const FftSpec<T>*>(spec);
}

enum class Storage { interleaved, apart, real };

// Kind numbers in the records.
template <class T>
constexpr int fft_id(Storage s) {
  return (sizeof(T) == 4 ? 4 : 7) + int(s);
}

constexpr int straight_order = 5;  // straight code up to here, no table
constexpr int fixed_sine_order = 10;

// What differs between the precisions: up to `norm_order` reversal and levels run in one; `loop_order` is the
// last order whose levels run over the whole array; above it rows and columns.
template <class T>
struct FftLimits;
template <>
struct FftLimits<float> {
  static constexpr int norm_order = 15, loop_order = 16, most_order = 27;
};
template <>
struct FftLimits<double> {
  static constexpr int norm_order = 14, loop_order = 14, most_order = 26;
};

template <class T>
T* align32(T* p) {
  return reinterpret_cast<T*>((reinterpret_cast<uintptr_t>(p) + 31) & ~uintptr_t(31));
}

}  // namespace orb::signal
