// The general commit.
#include "dft/kernel/choose.h"
#include "dft/kernel/record.h"
#include "dft/kernel/via_2d.h"
#include "orb/dft_commit.h"
#include "orb/dft_compute.h"
#include "orb/dft_real.h"

namespace orb::dft {
namespace {

// What the outer layer may have put into the head before the commit, and finds there again.
struct Kept {
  void *aux_buffer, *parallel_data, *twiddle_table, *aux_table;

  static Kept take(DftiRecord* head) {
    const Kept kept = {head->aux_buffer, head->parallel_data, head->twiddle_table, head->aux_table};
    Kept().put_back(head);
    return kept;
  }
  void put_back(DftiRecord* head) const {
    head->aux_buffer = aux_buffer;
    head->parallel_data = parallel_data;
    head->twiddle_table = twiddle_table;
    head->aux_table = aux_table;
  }
};

// What an earlier commit built. A breakdown that held the descriptor, and tables of our own in the places of
// the outer layer, go too.
int discard_earlier(DftiRecord* head) {
  uncommit(head);
  if (head->backend) head->backend->myfree(head->backend, head);
  head->backend = nullptr;
  if (head->free_parallel_data == free_via_2d) free_via_2d(head);
  const Kept kept = Kept::take(head);
  const int status = orb_dft_free_allocated_buffers(head);
  kept.put_back(head);
  if (status) orb_dft_free_allocated_buffers(head);
  return status;
}

void inherit(DftiRecord* r, const DftiRecord* head, int index) {
  r->input_offset = head->input_offset;
  r->output_offset = head->output_offset;
  r->input_distance = head->input_distance;
  r->output_distance = head->output_distance;
  r->precision = head->precision;
  r->forward_domain = head->forward_domain;
  r->ordering = head->ordering;
  r->complex_storage = head->complex_storage;
  r->real_storage = head->real_storage;
  r->conjugate_even_storage = head->conjugate_even_storage;
  r->packed_format = head->packed_format;
  r->number_of_transforms = head->number_of_transforms;
  r->reserved_head = head->reserved_head;
  r->placement = head->placement;
  r->reserved_a = head->reserved_a;
  r->reserved_b = head->reserved_b;
  r->transpose = head->transpose;
  r->dimension_index = index;
}

int prepare_dimensions(DftiRecord* head) {
  const bool complex = head->forward_domain == VAL_COMPLEX;
  int index = 0;
  for (DftiRecord* r = head; r; r = r->next) {
    inherit(r, head, index++);
    if (const int status = complex ? choose_complex(r, head) : choose_real(r, head)) return status;
    if (r->work_size > head->max_work_size) head->max_work_size = r->work_size;
    if (r != head) r->commit_status = VAL_COMMITTED;
  }
  return STATUS_OK;
}

struct Routines {
  DftiCompute forward, backward;
};
#define ORB_ROUTINES(kind) \
  { orb_dft_compute_fwd_##kind, orb_dft_compute_bwd_##kind }
// [double][real][more than one dimension][out of place]; real data of more dimensions never comes so far.
constexpr Routines routines[2][2][2][2] = {{{{ORB_ROUTINES(s_c2c_1d_i), ORB_ROUTINES(s_c2c_1d_o)},
                                             {ORB_ROUTINES(s_c2c_md_i), ORB_ROUTINES(s_c2c_md_o)}},
                                            {{ORB_ROUTINES(s_r2c_1d_i), ORB_ROUTINES(s_r2c_1d_o)}, {}}},
                                           {{{ORB_ROUTINES(d_c2c_1d_i), ORB_ROUTINES(d_c2c_1d_o)},
                                             {ORB_ROUTINES(d_c2c_md_i), ORB_ROUTINES(d_c2c_md_o)}},
                                            {{ORB_ROUTINES(d_r2c_1d_i), ORB_ROUTINES(d_r2c_1d_o)}, {}}}};
#undef ORB_ROUTINES

void install(DftiRecord* head) {
  const Routines& r = routines[head->precision == VAL_DOUBLE][head->forward_domain == VAL_REAL]
                              [head->rank > 1][head->placement != VAL_INPLACE];
  head->compute_forward = r.forward;
  head->compute_backward = r.backward;
  head->io_arg_count = orb_dft_determine_nioargs(head);
  head->commit_status = VAL_COMMITTED;
}

// One transform of one complex line on threads: a routine of the outer layer does all of it.
bool outer_layer_transforms(const DftiRecord* head) {
  return head->rank == 1 && head->forward_domain == VAL_COMPLEX && head->number_of_transforms == 1 &&
         head->thread_count != 1;
}

int commit(DftiRecord* head, int parallel) {
  if (const int status = discard_earlier(head)) return status;
  if (const int status = orb_dft_threaded_mode_definition(head, parallel)) return status;
  if (!outer_layer_transforms(head))
    if (const int status = prepare_dimensions(head)) return status;
  if (const int status = orb_dft_vsp_buffer_allocation(head)) return status;
  install(head);
  return STATUS_OK;
}

}  // namespace
}  // namespace orb::dft

ORB_EXPORT int orb_dft_commit_descriptor_core(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_s_c2c_1d(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_s_c2c_md(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_s_r2c_1d(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_s_r2c_md(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_d_c2c_1d(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_d_c2c_md(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_d_r2c_1d(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
ORB_EXPORT int orb_dft_commit_descriptor_core_d_r2c_md(DftiRecord** handle, int parallel) {
  return orb::dft::commit(*handle, parallel);
}
