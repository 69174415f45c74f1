// The complex transform behind a record that is no power of two, unscaled: straight code, plan, direct sum or
// convolution.
#pragma once

#include "signal/kernel/dft/plan.h"

namespace orb::signal {

// Work bytes of the transform of spec.inner numbers, the alignment of the caller's buffer included; 0: none.
template <class T>
int core_bytes(const DftSpec<T>& spec);

// Bytes in front of these for an odd real length: its numbers as complex ones.
template <class T>
constexpr int expanded_bytes(int n) {
  return (2 * n * int(sizeof(T)) + 63) & ~31;
}

// spec.inner numbers; `in` and `out` may be one array. The buffer has core_bytes(spec) and may be null if
// they are 0.
template <Direction d, class T>
VspStatus core_transform(const DftSpec<T>& spec, Interleaved<const T> in, Interleaved<T> out, T* buffer);
template <Direction d, class T>
VspStatus core_transform(const DftSpec<T>& spec, Apart<const T> in, Apart<T> out, T* buffer);

}  // namespace orb::signal
