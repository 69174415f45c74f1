// The record of an any-length transform.
#pragma once

#include "signal/kernel/fft/spec.h"

namespace orb::signal {

// One pass of a factor plan (passes.h).
template <class T>
struct PlanEntry {
  int32_t factor;
  int32_t remaining;  // the length divided by the factors up to this one
  int32_t done;       // product of the factors before
  int32_t lanes;      // of the registers that the pass runs in: full ones, or single numbers
  const T* twiddles;
  const T* direct_table;  // of a factor without fixed code
};

template <class T>
struct DftSpec {
  int32_t id;  // kind; 0 after free
  int32_t length;
  int32_t do_fwd_scale, do_inv_scale;
  T scale;
  int32_t hint;
  int32_t buf_size;
  int32_t is_pow2;
  T* plan_tables;    // twiddles and direct tables of the plan
  T* direct;         // roots of unity of the direct sum
  T* chirp;          // of the convolution: exp(-pi i k^2 / n)
  T* filter;         // its conjugate, transformed, over the length of the convolution
  VspsFFTSpec* fft;  // for powers of two
  VspsFFTSpec* fft_conv;
  int32_t has_factors;
  int32_t last_factor;  // index of the last entry of the plan
  T* recombine;         // even real lengths: after the forward transform ...
  PlanEntry<T> plan[18];
  T* separate;             // ... and before the inverse one
  int32_t inner;           // length of the complex transform behind it: the length, or half an even real one
  PlanEntry<T> real_last;  // the last pass of a real odd length, which has fewer rows than the plan's
  char rest[36 - (sizeof(T) - 4)];
};
static_assert(sizeof(DftSpec<float>) == 568 && sizeof(DftSpec<double>) == 568);
static_assert(sizeof(PlanEntry<float>) == 24);

template <class T>
DftSpec<T>* dft_spec(VspsDFTSpec* spec) {
  return reinterpret_cast<DftSpec<T>*>(spec);
}
template <class T>
const DftSpec<T>* dft_spec(const VspsDFTSpec* spec) {
  return reinterpret_cast<const DftSpec<T>*>(spec);
}

enum class DftKind { interleaved, apart, real, out_of_order };

template <class T>
constexpr int dft_id(DftKind kind) {
  if (kind == DftKind::out_of_order) return sizeof(T) == 4 ? 0x434d414a : 0x434d414b;
  return (sizeof(T) == 4 ? 13 : 16) + int(kind);
}

constexpr int straight_length = 16;  // straight code up to here
constexpr int most_direct = 150, most_direct_real = 180;
constexpr int most_length = 0x8000000, most_chirp_length = 0x4000000;  // the first that are too long

}  // namespace orb::signal
