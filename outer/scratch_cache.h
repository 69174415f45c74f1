// Scratch blocks that a thread has given back and keeps for its next request. A blocked matrix product asks
// for up to 2.6 MB at each call; fresh pages would cost more than the arithmetic of mid-size products.
#pragma once

#include <stddef.h>

namespace orb {

class ScratchCache {
 public:
  static constexpr size_t max_bytes = 8u << 20;
  static constexpr int max_blocks = 4;

  // At least `bytes` bytes at `alignment`, a power of two; null if the system has no more memory.
  void* take(size_t bytes, size_t alignment);
  // Keeps a block that take() gave, of whatever thread, for the next request that it fits. What was given
  // back longest ago is released when the bounds are passed.
  void give_back(void* memory);
  void release_all();
  bool empty() const { return count_ == 0; }

 private:
  struct Block;
  Block* reuse(size_t bytes, size_t alignment);

  Block* kept_[max_blocks];  // the latest first
  int count_;
  size_t bytes_;
};

}  // namespace orb
