// A place among the user threads for the length of one call.
#pragma once

#include "orb/dft_commit.h"

namespace orb::dft {

class UserSlot {
 public:
  explicit UserSlot(DftiRecord* head) : head_(head), slot_(orb_dft_grasp_user_thread(head)) {}
  ~UserSlot() {
    if (slot_ >= 0) orb_dft_release_user_thread(head_, slot_);
  }
  UserSlot(const UserSlot&) = delete;
  UserSlot& operator=(const UserSlot&) = delete;

  explicit operator bool() const { return slot_ >= 0; }
  // The slice of work memory that goes with the place.
  void* work() const {
    return static_cast<char*>(head_->work_buffer) + unsigned(slot_) * head_->max_work_size;
  }

 private:
  DftiRecord* head_;
  int slot_;
};

}  // namespace orb::dft
