#include "tests/support/guarded.h"

#include <string.h>
#include <sys/mman.h>

#include "gtest/gtest.h"

namespace orb::test {
namespace {
constexpr size_t page = 4096;
constexpr unsigned char canary = 0xC3;
}  // namespace

GuardedBytes::GuardedBytes(size_t bytes, size_t gap_bytes) : bytes_(bytes) {
  const size_t inside = (bytes + gap_bytes + 64 + page - 1) / page * page;
  map_bytes_ = inside + page;
  map_ = static_cast<unsigned char*>(
      mmap(nullptr, map_bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
  fence_ = map_ + inside;
  mprotect(fence_, page, PROT_NONE);
  start_ = fence_ - gap_bytes - bytes;
  memset(map_, canary, inside);
}

GuardedBytes::~GuardedBytes() {
  EXPECT_TRUE(canaries_whole()) << "an array was written outside its bounds";
  munmap(map_, map_bytes_);
}

bool GuardedBytes::canaries_whole() const {
  for (const unsigned char* p = map_; p < start_; ++p)
    if (*p != canary) return false;
  for (const unsigned char* p = start_ + bytes_; p < fence_; ++p)
    if (*p != canary) return false;
  return true;
}

}  // namespace orb::test
