// The work memory of one compute call: the caller's, aligned up, or, when none was given, memory of its own.
#pragma once

#include "orb/signal.h"
#include "signal/kernel/fft/spec.h"

namespace orb::signal {

class CallBuffer {
 public:
  CallBuffer(void* given, int bytes) {
    if (bytes < 1) return;
    if (!given) given = own_ = t7_vspsMalloc_8u(bytes);
    data_ = align32(static_cast<char*>(given));
  }
  ~CallBuffer() {
    if (own_) t7_vspsFree(own_);
  }
  CallBuffer(const CallBuffer&) = delete;
  CallBuffer& operator=(const CallBuffer&) = delete;

  // Was memory needed that could not be had?
  bool failed(int bytes) const { return bytes > 0 && !data_; }
  template <class T>
  T* at(int byte = 0) const {
    return reinterpret_cast<T*>(data_ + byte);
  }

 private:
  void* own_ = nullptr;
  char* data_ = nullptr;
};

}  // namespace orb::signal
