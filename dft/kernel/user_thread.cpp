// Places of callers' threads: each stands for a slice of the work memory.
#include "orb/dft_commit.h"
#include "serv/kernel/boundary.h"

ORB_EXPORT int orb_dft_grasp_user_thread(DftiRecord* head) {
  int found = -1;
  orb_serv_lock();
  for (int slot = 0; slot < head->number_of_user_threads && found < 0; ++slot)
    if (head->thread_slots[slot] != 1) {
      head->thread_slots[slot] = 1;
      found = slot;
    }
  orb_serv_unlock();
  return found;
}

ORB_EXPORT void orb_dft_release_user_thread(DftiRecord* head, int slot) {
  orb_serv_lock();
  head->thread_slots[slot] = 0;
  orb_serv_unlock();
}
