// Zero judged by the bits of a number.
#pragma once

#include <stdint.h>

#include <bit>

#include "serv/kernel/complex.h"

namespace orb {

// Zero by bits, the sign set aside: a subnormal is none even where the processor takes it for one.
ORB_INLINE bool is_zero(float a) { return std::bit_cast<uint32_t>(a) << 1 == 0; }
ORB_INLINE bool is_zero(double a) { return std::bit_cast<uint64_t>(a) << 1 == 0; }
template <Complex C>
ORB_INLINE bool is_zero(C a) {
  return is_zero(a.re) && is_zero(a.im);
}

template <Real T>
ORB_INLINE bool is_one(T a) {
  return a == 1;
}
template <Complex C>
ORB_INLINE bool is_one(C a) {
  return a.re == 1 && is_zero(a.im);
}

}  // namespace orb
