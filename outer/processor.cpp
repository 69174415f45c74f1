#include "outer/processor.h"

#include <cpuid.h>

namespace orb {

Processor read_processor() {
  Processor p{};
  unsigned a, b, c, d;
  if (__get_cpuid(1, &a, &b, &c, &d)) {
    p.sse2 = d & bit_SSE2;
    p.sse3 = c & bit_SSE3;
    p.ssse3 = c & bit_SSSE3;
  }
  if (__get_cpuid(0x80000006, &a, &b, &c, &d)) p.l2_kib = int(c >> 16);  // the same word for all vendors
  return p;
}

}  // namespace orb
