// Commit, copy and free of descriptors.
#include <string.h>

#include "dft/kernel/record.h"
#include "orb/dft_commit.h"

namespace orb::dft {
namespace {

void copy_scales(const DftiRecord& from, DftiRecord& to, int precision) {
  if (precision == VAL_SINGLE) {
    to.forward_scale_f = from.forward_scale_f;
    to.backward_scale_f = from.backward_scale_f;
  } else {
    to.forward_scale_d = from.forward_scale_d;
    to.backward_scale_d = from.backward_scale_d;
  }
}

void copy_configuration(const DftiRecord& from, DftiRecord& to, int precision) {
  to.number_of_transforms = from.number_of_transforms;
  to.number_of_user_threads = from.number_of_user_threads;
  copy_scales(from, to, precision);
  to.placement = from.placement;
  to.packed_format = from.packed_format;
  to.ordering = from.ordering;
  to.real_storage = from.real_storage;
  to.conjugate_even_storage = from.conjugate_even_storage;
  to.complex_storage = from.complex_storage;
  to.input_offset = from.input_offset;
  to.output_offset = from.output_offset;
  to.input_stride = from.input_stride;
  to.output_stride = from.output_stride;
  to.input_distance = from.input_distance;
  to.output_distance = from.output_distance;
}

int create_like(const DftiRecord* source, DftiRecord** copy) {
  int lengths[7], k = 0;
  for_each_record(source, [&](const DftiRecord* r) { lengths[k++] = r->length; });
  return orb_dft_dfti_create_descriptor_highd(copy, &source->precision, &source->forward_domain,
                                              &source->rank, lengths);
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

ORB_EXPORT int orb_dft_determine_nioargs(const DftiRecord* head) {
  const int arrays = head->placement == VAL_INPLACE ? 1 : 2;
  const bool parts = head->forward_domain == VAL_COMPLEX && head->complex_storage == VAL_REAL_REAL;
  return parts ? 2 * arrays : arrays;
}

// The argument count is settled here, since breakdowns do not look at it.
ORB_EXPORT int DftiCommitDescriptor(DftiRecord* handle) {
  if (!is_descriptor(handle)) return STATUS_BAD_DESCRIPTOR;
  if (!handle->commit_routine) return STATUS_INTERNAL;
  DftiRecord* own = handle;
  const int status = handle->commit_routine(&own);
  handle->io_arg_count = orb_dft_determine_nioargs(handle);
  return status;
}
ORB_EXPORT int orb_dft_dfti_commit_descriptor_external(DftiRecord** handle) {
  return handle ? DftiCommitDescriptor(*handle) : STATUS_BAD_PARAMETER;
}

ORB_EXPORT int DftiCopyDescriptor(DftiRecord* source, DftiRecord** copy) {
  if (!is_descriptor(source)) return STATUS_BAD_DESCRIPTOR;
  if (!copy) return STATUS_BAD_PARAMETER;
  DftiRecord* made;
  if (const int status = create_like(source, &made)) return status;
  memcpy(made->name, source->name, sizeof made->name);
  DftiRecord* to = made;
  for_each_record(source, [&](const DftiRecord* from) {
    copy_configuration(*from, *to, source->precision);
    to = to->next;
  });
  if (source->commit_status == VAL_COMMITTED)
    if (const int status = DftiCommitDescriptor(made)) {
      DftiFreeDescriptor(&made);
      return status;
    }
  *copy = made;
  return STATUS_OK;
}
ORB_EXPORT int orb_dft_dfti_copy_descriptor_external(DftiRecord** source, DftiRecord** copy) {
  return source ? DftiCopyDescriptor(*source, copy) : STATUS_BAD_PARAMETER;
}

ORB_EXPORT int orb_dft_dfti_free_descriptor_external(DftiRecord** handle) {
  if (!handle) return STATUS_BAD_PARAMETER;
  DftiRecord* head = *handle;
  if (!is_descriptor(head)) return STATUS_BAD_DESCRIPTOR;
  orb_dft_free_allocated_buffers(head);
  if (head->backend) head->backend->myfree(head->backend, head);
  orb_serv_orb_free(head);
  *handle = nullptr;
  return STATUS_OK;
}
ORB_EXPORT int DftiFreeDescriptor(DftiRecord** handle) {
  return orb_dft_dfti_free_descriptor_external(handle);
}
