// Stands behind the allocator hooks while it lives: blocks at bad addresses, between canaries and a guard
// page, counted, and refused from the k-th on request.
#pragma once

#include <map>
#include <memory>

#include "gtest/gtest.h"
#include "orb/services.h"
#include "tests/support/guarded.h"

namespace orb::test {

class Allocator {
 public:
  Allocator() : old_malloc_(i_malloc), old_free_(i_free) {
    current() = this;
    i_malloc = [](size_t bytes) { return current()->take(bytes); };
    i_free = [](void* block) { current()->give_back(block); };
  }
  ~Allocator() {
    i_malloc = old_malloc_, i_free = old_free_;
    EXPECT_TRUE(blocks_.empty()) << blocks_.size() << " blocks kept";
  }
  Allocator(const Allocator&) = delete;
  Allocator& operator=(const Allocator&) = delete;

  int refuse_at = 0;  // the k-th request from now on fails; 0: none does
  int requests = 0;
  int live() const { return int(blocks_.size()); }

 private:
  static Allocator*& current() {
    static Allocator* the_one;
    return the_one;
  }
  void* take(size_t bytes) {
    ++requests;
    if (refuse_at > 0 && --refuse_at == 0) return nullptr;
    // each block one word further from a line of 32 bytes
    auto block = std::make_unique<Guarded<int>>(int(bytes + 3) / 4, requests % 4);
    void* const p = block->data();
    for (int& word : *block) word = -1;  // NaN in every format
    blocks_[p] = std::move(block);
    return p;
  }
  void give_back(void* p) { EXPECT_EQ(blocks_.erase(p), 1u) << "freed what was never given out"; }

  std::map<void*, std::unique_ptr<Guarded<int>>> blocks_;
  void* (*old_malloc_)(size_t);
  void (*old_free_)(void*);
};

}  // namespace orb::test
