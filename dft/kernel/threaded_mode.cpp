// How a descriptor computes: bits of the mode, two-dimensional drivers, threads.
#include <string.h>

#include <cmath>

#include "dft/kernel/element.h"
#include "orb/dft_commit.h"
#include "orb/dft_compute.h"

namespace orb::dft {
namespace {

// Processor classes that divide short two-dimensional transforms too.
constexpr int four_way = 5, two_way = 4;

bool no_parallel_routines(const DftiRecord* head) {
  bool some = head->par_bwd_s || head->par_fwd_s || head->par_bwd_d || head->par_fwd_d;
  for (DftiLine routine : head->outer_routine) some |= routine != nullptr;
  return !some;
}

int total_length(const DftiRecord* head) {
  while (head->next) head = head->next;
  return head->cumulative_length;
}

// Threads that pay for the bytes to be moved.
int worthwhile_threads(const DftiRecord* head) {
  const int total = total_length(head);
  const int processor = orb_serv_cpu_detect();
  if (head->rank >= 2 && total >= 343 && total < (processor == four_way ? 8192 : 32000)) {
    if (processor == four_way) return 4;
    if (processor == two_way) return 2;
  }
  const double footprint = double(head->number_of_transforms) * head->cumulative_length *
                           (head->placement == VAL_INPLACE ? 1 : 2) *
                           (head->forward_domain == VAL_COMPLEX ? 2 : 1) *
                           (head->precision == VAL_DOUBLE ? 8 : 4);
  const double by_size = footprint > 1 ? std::sqrt(footprint * std::log(footprint) / 313600) : 0;
  const int rank = head->rank == 1 && head->parallel_data ? 2 : head->rank;
  return int(0.5 + by_size) * rank;
}

// May the line routine be called as it is?
bool is_one_line(const DftiRecord* head) {
  if (head->rank != 1 || head->number_of_transforms != 1 || head->input_stride != 1 ||
      head->output_stride != 1)
    return false;
  const bool single = head->precision == VAL_SINGLE;
  if (head->forward_domain == VAL_COMPLEX)
    return single ? !head->par_fwd_s && !head->par_bwd_s : !head->par_fwd_d && !head->par_bwd_d;
  if (head->packed_format == VAL_CCS_FORMAT) return head->length <= (single ? 8192 : 4096);
  return head->packed_format != VAL_COMPLEX_FORMAT || (head->input_offset == 0 && head->output_offset == 0);
}

void set_mode(DftiRecord* head, int bit, bool on) {
  head->mode_flags = static_cast<unsigned char>(on ? head->mode_flags | bit : head->mode_flags & ~bit);
}

void set_slice_mode(DftiRecord* head) {
  const bool real = head->forward_domain == VAL_REAL;
  head->drv2d_c = reinterpret_cast<DftiSlice>(orb_dft_xcdft2d);
  head->drv2d_z = reinterpret_cast<DftiSlice>(orb_dft_xzdft2d);
  const bool through_buffer =
      real && head->conjugate_even_storage == VAL_COMPLEX_COMPLEX && head->placement == VAL_INPLACE;
  set_mode(head, DFT_MODE_SLICE,
           head->number_of_transforms == 1 && total_length(head) < 2048 && !through_buffer);
  head->split_rows = 1;
  head->split_cols = !(real && head->next->length == 1);
}

void limit_threads(DftiRecord* head, int parallel) {
  const bool one_line = head->rank == 1 && head->number_of_transforms == 1;
  if (one_line && (head->forward_domain == VAL_REAL || no_parallel_routines(head))) {
    head->thread_count = 1;
  } else if (parallel) {
    const int least = one_line ? 2 : 1, wanted = worthwhile_threads(head);
    const int most = wanted > least ? wanted : least;
    if (head->thread_count > most) head->thread_count = most;
  }
}

// With threads of the caller's own there are no others, and every call takes a place of the table first.
int set_user_mode(DftiRecord* head) {
  head->thread_count = 1;
  set_mode(head, DFT_MODE_SLICE, false);
  set_mode(head, DFT_MODE_AT_ONCE, false);
  set_mode(head, DFT_MODE_ONE_LINE, is_one_line(head));
  const unsigned places = unsigned(head->number_of_user_threads);
  if (places > 0x7fffffffu / sizeof(int)) return STATUS_MEMORY;
  const int bytes = int(places * sizeof(int));
  if (head->thread_slots) orb_serv_orb_free(head->thread_slots);
  head->thread_slots = static_cast<int*>(orb_serv_orb_malloc(bytes, 16));
  if (!head->thread_slots) return STATUS_MEMORY;
  memset(head->thread_slots, 0, size_t(bytes));
  return STATUS_OK;
}

int set_threads(DftiRecord* head, int parallel) {
  if (head->number_of_user_threads > 1) return set_user_mode(head);
  set_mode(head, DFT_MODE_ONE_LINE, is_one_line(head));
  set_mode(head, DFT_MODE_AT_ONCE, head->mode_flags & DFT_MODE_ONE_LINE);
  if (head->rank == 2) set_slice_mode(head);
  limit_threads(head, parallel);
  return STATUS_OK;
}

}  // namespace
}  // namespace orb::dft

using orb::dft::set_threads;

ORB_EXPORT int orb_dft_threaded_mode_definition(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_s_c2c_1d(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_s_c2c_md(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_s_r2c_1d(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_s_r2c_md(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_d_c2c_1d(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_d_c2c_md(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_d_r2c_1d(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
ORB_EXPORT int orb_dft_threaded_mode_definition_d_r2c_md(DftiRecord* head, int parallel) {
  return set_threads(head, parallel);
}
