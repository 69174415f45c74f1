// Tables of roots of unity.
#pragma once

#include "signal/kernel/split.h"

namespace orb::signal {

// Owns a block of t7_vspsMalloc; null when it could not be had.
template <class T>
class Table {
 public:
  explicit Table(T* block) : block_(block) {}
  ~Table();
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;
  T* get() const { return block_; }
  explicit operator bool() const { return block_ != nullptr; }

 private:
  T* const block_;
};

// exp(-2 pi i k / n) for k below n, in a block of its own; null without memory. Angles are folded into the
// first eighth (quarter, half, as n allows) of the circle and computed in double precision.
template <class C>
C* base_table(int n);

// Room for `count` elements, or null.
template <class T>
T* allocate_table(int count);

}  // namespace orb::signal
