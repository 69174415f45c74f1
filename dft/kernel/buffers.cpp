// Memory that a descriptor owns: release, and the work memory of its threads.
#include <limits.h>

#include "dft/kernel/record.h"
#include "dft/kernel/tables.h"
#include "orb/dft_commit.h"

namespace orb::dft {
namespace {

template <class P>
void release(P*& block) {
  if (block) orb_serv_orb_free(block);
  block = nullptr;
}

int release_tables(DftiRecord* r) {
  VspStatus status = VSP_OK;
  for (const Tables* t : all_tables)
    if (r->*t->spec) {
      const VspStatus freed = t->free(r->*t->spec);
      if (freed != VSP_OK) status = freed;
      r->*t->spec = nullptr;
    }
  return orb_dft_transfer_vsp_orb_error(status);
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

ORB_EXPORT int orb_dft_transfer_vsp_orb_error(int status) {
  if (status == VSP_OK) return STATUS_OK;
  return status == VSP_NO_MEMORY ? STATUS_MEMORY : STATUS_INTERNAL;
}

ORB_EXPORT int orb_dft_free_allocated_buffers(DftiRecord* head) {
  if (head->parallel_data && head->free_parallel_data) head->free_parallel_data(head);
  release(head->thread_slots);
  DftiRecord* last = head;
  while (last->next) last = last->next;
  int status = STATUS_OK;
  for (DftiRecord* r = last; r; r = r->previous) {
    release(r->work_buffer);
    release(r->aux_buffer);
    release(r->twiddle_table);
    release(r->aux_table);
    r->work_size = r->max_work_size = 0;
    if (const int failed = release_tables(r)) status = failed;
  }
  return status;
}

ORB_EXPORT int orb_dft_vsp_buffer_allocation(DftiRecord* head) {
  if (head->max_work_size == 0) return STATUS_OK;
  constexpr unsigned line = 64;
  head->max_work_size = (head->max_work_size + line - 1) & ~(line - 1);
  const int threads = head->number_of_user_threads > 1 ? head->number_of_user_threads : head->thread_count;
  const long long bytes = (long long)(head->max_work_size) * (threads > 1 ? threads : 1);
  release(head->work_buffer);
  if (bytes <= INT_MAX) head->work_buffer = orb_serv_orb_malloc(int(bytes), int(line));
  if (head->work_buffer) return STATUS_OK;
  orb_dft_free_allocated_buffers(head);
  return STATUS_MEMORY;
}
