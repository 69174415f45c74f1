#include "outer/scratch_cache.h"

#include <stdint.h>
#include <stdlib.h>

#include <bit>

namespace orb {
namespace {

constexpr size_t page = 4096;

// Blocks have room to spare, at most an eighth, so that a request a little larger still finds the last one.
size_t capacity_for(size_t bytes) {
  const size_t eighth = std::bit_floor(bytes | 1) / 8, step = eighth > page ? eighth : page;
  return (bytes + step - 1) / step * step;
}

}  // namespace

// Stands right in front of the memory that it describes.
struct ScratchCache::Block {
  void* allocation;
  size_t capacity;

  void* memory() { return this + 1; }
  bool suits(size_t bytes, size_t alignment) {
    return capacity >= bytes && (reinterpret_cast<uintptr_t>(memory()) & (alignment - 1)) == 0;
  }
  static Block* of(void* memory) { return static_cast<Block*>(memory) - 1; }
  static Block* make(size_t bytes, size_t alignment) {
    const size_t capacity = capacity_for(bytes), room = sizeof(Block) + alignment;
    if (capacity < bytes || capacity + room < capacity) return nullptr;
    void* allocation = malloc(capacity + room);
    if (!allocation) return nullptr;
    const uintptr_t first = reinterpret_cast<uintptr_t>(allocation) + sizeof(Block);
    Block* block = of(reinterpret_cast<void*>((first + alignment - 1) & ~(alignment - 1)));
    *block = {allocation, capacity};
    return block;
  }
};

// The smallest kept block that suits, taken out of the list.
ScratchCache::Block* ScratchCache::reuse(size_t bytes, size_t alignment) {
  int best = -1;
  for (int i = 0; i < count_; ++i)
    if (kept_[i]->suits(bytes, alignment) && (best < 0 || kept_[i]->capacity < kept_[best]->capacity))
      best = i;
  if (best < 0) return nullptr;
  Block* block = kept_[best];
  for (int i = best; i + 1 < count_; ++i) kept_[i] = kept_[i + 1];
  --count_;
  bytes_ -= block->capacity;
  return block;
}

void* ScratchCache::take(size_t bytes, size_t alignment) {
  Block* block = reuse(bytes, alignment);
  if (!block) block = Block::make(bytes, alignment);
  if (!block) {
    release_all();
    block = Block::make(bytes, alignment);
  }
  return block ? block->memory() : nullptr;
}

void ScratchCache::give_back(void* memory) {
  Block* block = Block::of(memory);
  if (block->capacity > max_bytes) return free(block->allocation);
  while (count_ == max_blocks || bytes_ + block->capacity > max_bytes) {
    Block* oldest = kept_[--count_];
    bytes_ -= oldest->capacity;
    free(oldest->allocation);
  }
  for (int i = count_; i > 0; --i) kept_[i] = kept_[i - 1];
  kept_[0] = block;
  ++count_;
  bytes_ += block->capacity;
}

void ScratchCache::release_all() {
  while (count_ > 0) free(kept_[--count_]->allocation);
  bytes_ = 0;
}

}  // namespace orb
