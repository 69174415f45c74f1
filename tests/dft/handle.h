// Descriptors of the tests: freed at the end of their scope, after which nothing may be left behind.
#pragma once

#include <stdlib.h>

#include <vector>

#include "gtest/gtest.h"
#include "orb/dfti.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

namespace orb::test {

// The signal family's allocator under watch: counts live blocks, and refuses the k-th request from now on.
struct SignalMemory {
  inline static int live = 0, refuse_at = 0;
  static void* take(size_t bytes) {
    if (refuse_at > 0 && --refuse_at == 0) return nullptr;
    ++live;
    return malloc(bytes);
  }
  static void give_back(void* block) {
    live -= block != nullptr;
    free(block);
  }
};

class Dft : public testing::Test {
 protected:
  void SetUp() override {
    spy().reset();
    SignalMemory::live = SignalMemory::refuse_at = 0;
    i_malloc = SignalMemory::take;
    i_free = SignalMemory::give_back;
  }
  void TearDown() override {
    EXPECT_EQ(spy().faults(), "");
    EXPECT_EQ(SignalMemory::live, 0);
  }
};

// Lengths as in C, the last varying fastest.
class Handle {
 public:
  explicit Handle(int precision = VAL_DOUBLE, std::vector<int> lengths = {8}, int domain = VAL_COMPLEX) {
    const int rank = int(lengths.size());
    const int status = rank == 1 ? DftiCreateDescriptor(&record_, precision, domain, 1, lengths[0])
                                 : DftiCreateDescriptor(&record_, precision, domain, rank, lengths.data());
    EXPECT_EQ(status, STATUS_OK);
  }
  ~Handle() {
    if (record_) {
      EXPECT_EQ(call(DftiFreeDescriptor, &record_), STATUS_OK);
    }
    EXPECT_EQ(record_, nullptr);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  operator DftiRecord*() const { return record_; }
  DftiRecord* operator->() const { return record_; }
  DftiRecord** address() { return &record_; }
  DftiRecord* record(int k) const {
    DftiRecord* r = record_;
    while (k-- > 0) r = r->next;
    return r;
  }
  template <class T>
  void set(int key, T value) {
    EXPECT_EQ(DftiSetValue(record_, key, value), STATUS_OK) << "key " << key;
  }
  void set_strides(int key, std::vector<int> offset_and_strides) { set(key, offset_and_strides.data()); }
  int get(int key) const {
    int value = -1;
    EXPECT_EQ(DftiGetValue(record_, key, &value), STATUS_OK) << "key " << key;
    return value;
  }
  void commit() { EXPECT_EQ(call(DftiCommitDescriptor, record_), STATUS_OK); }

 private:
  DftiRecord* record_ = nullptr;
};

}  // namespace orb::test
