// Carving of scratch blocks.
#pragma once

#include <stdint.h>

namespace orb {

// The first multiple of `unit` (a power of two) behind p: always moves forward, by a whole unit even from an
// aligned address. Blocks are sized for that, and the carving of every driver relies on it.
inline char* round_forward(void* p, uintptr_t unit) {
  return reinterpret_cast<char*>((reinterpret_cast<uintptr_t>(p) & ~(unit - 1)) + unit);
}

}  // namespace orb
