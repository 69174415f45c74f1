// Processor and cache classes, as the kernels ask for them. Read once; the environment can override both, so
// that tests reach every route on any machine.
#include <atomic>

#include "orb/services.h"
#include "outer/boundary.h"
#include "outer/environment.h"
#include "outer/processor.h"

namespace orb {
namespace {

constexpr int highest_class = 99;

// A number worked out at first use. Threads that come together work out the same one.
template <class Find>
int once(std::atomic<int>& known, Find find) {
  int value = known.load(std::memory_order_relaxed);
  if (value < 0) known.store(value = find(), std::memory_order_relaxed);
  return value;
}

int processor_class() {
  const Processor p = read_processor();
  if (!p.sse2 || !p.sse3) return 0;
  return p.ssse3 ? 5 : 4;
}

int cache_class() {
  const int kib = read_processor().l2_kib;
  if (kib >= 1024) return 3;
  if (kib >= 512) return 2;
  return kib > 0;
}

constinit std::atomic<int> processor{-1}, cache{-1};

}  // namespace
}  // namespace orb

ORB_EXPORT int orb_serv_cpu_detect(void) {
  return orb::once(orb::processor, [] {
    return orb::environment_number("ORB_CPU_CLASS", 0, orb::highest_class, orb::processor_class());
  });
}

ORB_EXPORT int orb_serv_l2cache(void) {
  return orb::once(orb::cache, [] {
    return orb::environment_number("ORB_L2_CLASS", 0, orb::highest_class, orb::cache_class());
  });
}
