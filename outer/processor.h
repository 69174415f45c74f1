// What the processor says of itself.
#pragma once

namespace orb {

struct Processor {
  bool sse2, sse3, ssse3;
  int l2_kib;  // second-level cache of one core, 0 if not told
};
Processor read_processor();

}  // namespace orb
