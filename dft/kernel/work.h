// Memory of one call, released on every way out.
#pragma once

#include <limits.h>

#include "orb/services.h"

namespace orb::dft {

class Work {
 public:
  // `count` elements of type T and `slack` bytes on a 64-byte boundary; empty if that cannot be had.
  template <class T>
  static Work of(long long count, int slack = 0) {
    const long long bytes = count * int(sizeof(T)) + slack;
    return Work(bytes > 0 && bytes <= INT_MAX ? orb_serv_allocate(int(bytes), 64) : nullptr);
  }
  ~Work() {
    if (block_) orb_serv_deallocate(block_);
  }
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;

  explicit operator bool() const { return block_ != nullptr; }
  template <class T>
  T* as() const {
    return static_cast<T*>(block_);
  }

 private:
  explicit Work(void* block) : block_(block) {}
  void* block_;
};

}  // namespace orb::dft
