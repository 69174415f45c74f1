// Creation of descriptors, by all its names.
#include <float.h>
#include <stdarg.h>
#include <string.h>

#include <bit>

#include "dft/kernel/record.h"
#include "dft/kernel/record_layout.h"
#include "orb/dft_commit.h"
#include "orb/services.h"

namespace orb::dft {
namespace {

constexpr int max_rank = 7;
constexpr int max_real_rank = 3;

// The outer layer's commit of each kind: [double][real][more than one dimension].
constexpr DftiCommit commit_routines[2][2][2] = {
    {{orb_dft_commit_descriptor_s_c2c_1d_omp, orb_dft_commit_descriptor_s_c2c_md_omp},
     {orb_dft_commit_descriptor_s_r2c_1d_omp, orb_dft_commit_descriptor_s_r2c_md_omp}},
    {{orb_dft_commit_descriptor_d_c2c_1d_omp, orb_dft_commit_descriptor_d_c2c_md_omp},
     {orb_dft_commit_descriptor_d_r2c_1d_omp, orb_dft_commit_descriptor_d_r2c_md_omp}}};

// Products of lengths may pass 32 bits; they are not widened.
int product(int a, int b) { return int(unsigned(a) * unsigned(b)); }

void set_defaults(DftiRecord* head) {
  head->number_of_transforms = 1;
  head->complex_storage = VAL_COMPLEX_COMPLEX;
  head->real_storage = VAL_REAL_REAL;
  head->conjugate_even_storage = VAL_STORAGE_40;
  head->placement = VAL_INPLACE;
  head->packed_format = VAL_CCS_FORMAT;
  head->ordering = VAL_ORDERED;
  head->transpose = VAL_NONE;
  head->number_of_user_threads = 1;
  head->thread_count = 1;
  head->commit_status = VAL_UNCOMMITTED;
}

void set_dimension(DftiRecord* records, int k, int rank, int n) {
  DftiRecord& r = records[k];
  const DftiRecord* before = k > 0 ? &r - 1 : nullptr;
  r.magic = DFT_MAGIC;
  r.forward_scale_f = r.backward_scale_f = 1;
  r.forward_scale_d = r.backward_scale_d = 1;
  r.length = n;
  r.rank = rank;
  r.dimension_index = k;
  r.log2_length = int(std::bit_width(unsigned(n))) - 1;
  r.half_length = k == 0 ? n / 2 + 1 : n;
  r.input_stride = r.output_stride = before ? before->cumulative_length : 1;
  r.cumulative_length = product(r.input_stride, n);
  r.cumulative_half_length = product(before ? before->cumulative_half_length : 1, r.half_length);
  r.use_signal_kernels = !std::has_single_bit(unsigned(n));
  r.previous = before ? &r - 1 : nullptr;
  r.next = k + 1 < rank ? &r + 1 : nullptr;
}

int check(DftiRecord** handle, int precision, int domain, int rank, const int* lengths) {
  if (!handle || !lengths) return STATUS_BAD_PARAMETER;
  if (precision != VAL_SINGLE && precision != VAL_DOUBLE) return STATUS_INVALID_ARGUMENT;
  if (domain != VAL_COMPLEX && domain != VAL_REAL) return STATUS_INVALID_ARGUMENT;
  if (rank < 1 || rank > max_rank) return STATUS_INVALID_ARGUMENT;
  for (int k = 0; k < rank; ++k)
    if (lengths[k] < 1) return STATUS_INVALID_ARGUMENT;
  return STATUS_OK;
}

// Lengths fastest dimension first.
int create(DftiRecord** handle, int precision, int domain, int rank, const int* lengths) {
  if (const int status = check(handle, precision, domain, rank, lengths)) return status;
  DftiRecord* head;
  if (const int status = orb_dft_create_descriptor_md(&head, precision, domain, rank, lengths)) return status;
  head->commit_routine = commit_routines[precision == VAL_DOUBLE][domain == VAL_REAL][rank > 1];
  *handle = head;
  return STATUS_OK;
}

// Lengths leftmost index first, as in C.
int create_reversed(DftiRecord** handle, int precision, int domain, int rank, const int* lengths) {
  if (const int status = check(handle, precision, domain, rank, lengths)) return status;
  int fastest_first[max_rank];
  for (int k = 0; k < rank; ++k) fastest_first[k] = lengths[rank - 1 - k];
  return create(handle, precision, domain, rank, fastest_first);
}

int create_fortran(DftiRecord** handle, int precision, const int* domain, const int* rank,
                   const int* lengths) {
  if (!domain || !rank) return STATUS_BAD_PARAMETER;
  return create(handle, precision, *domain, *rank, lengths);
}

// For entries of one dimension, which take the rank all the same.
int create_fortran_1d(DftiRecord** handle, int precision, const int* domain, const int* rank,
                      const int* length) {
  if (rank && *rank != 1) return STATUS_INVALID_ARGUMENT;
  return create_fortran(handle, precision, domain, rank, length);
}

// The precision that a tag stands for, or 0, which none is: the tag's type has told the entry, its value must
// agree. A NaN does not.
template <class Tag>
int precision_of(const Tag* tag, int expected) {
  return *tag == Tag(expected) ? expected : 0;
}

}  // namespace
}  // namespace orb::dft

ORB_EXPORT int orb_dft_create_descriptor_md(DftiRecord** handle, int precision, int domain, int rank,
                                            const int* lengths) {
  const int bytes = rank * int(sizeof(DftiRecord));
  auto* records = static_cast<DftiRecord*>(orb_serv_orb_malloc(bytes, 16));
  if (!records) return STATUS_MEMORY;
  memset(records, 0, size_t(bytes));
  if (domain == VAL_REAL && rank > orb::dft::max_real_rank) {
    orb_serv_orb_free(records);
    return STATUS_UNIMPLEMENTED;
  }
  records->precision = precision;
  records->forward_domain = domain;
  orb::dft::set_defaults(records);
  int longest = 0;
  for (int k = 0; k < rank; ++k) {
    orb::dft::set_dimension(records, k, rank, lengths[k]);
    if (lengths[k] > longest) longest = lengths[k];
  }
  for (int k = 0; k < rank; ++k) records[k].max_length = longest;
  *handle = records;
  return STATUS_OK;
}

ORB_EXPORT int DftiCreateDescriptor(DftiRecord** handle, int precision, int domain, int rank, ...) {
  va_list rest;
  va_start(rest, rank);
  const int length = rank == 1 ? va_arg(rest, int) : 0;
  const int* lengths = rank > 1 && rank <= orb::dft::max_rank ? va_arg(rest, const int*) : &length;
  va_end(rest);
  return orb::dft::create_reversed(handle, precision, domain, rank, lengths);
}
ORB_EXPORT int DftiCreateDescriptor_s_1d(DftiRecord** handle, int domain, int length) {
  return orb::dft::create(handle, VAL_SINGLE, domain, 1, &length);
}
ORB_EXPORT int DftiCreateDescriptor_d_1d(DftiRecord** handle, int domain, int length) {
  return orb::dft::create(handle, VAL_DOUBLE, domain, 1, &length);
}
ORB_EXPORT int DftiCreateDescriptor_s_md(DftiRecord** handle, int domain, int rank, const int* lengths) {
  return orb::dft::create_reversed(handle, VAL_SINGLE, domain, rank, lengths);
}
ORB_EXPORT int DftiCreateDescriptor_d_md(DftiRecord** handle, int domain, int rank, const int* lengths) {
  return orb::dft::create_reversed(handle, VAL_DOUBLE, domain, rank, lengths);
}

ORB_EXPORT int orb_dft_dfti_create_descriptor_1d(DftiRecord** handle, const int* precision, const int* domain,
                                                 const int* rank, const int* length) {
  if (!precision) return STATUS_BAD_PARAMETER;
  return orb::dft::create_fortran_1d(handle, *precision, domain, rank, length);
}
ORB_EXPORT int orb_dft_dfti_create_descriptor_highd(DftiRecord** handle, const int* precision,
                                                    const int* domain, const int* rank, const int* lengths) {
  if (!precision) return STATUS_BAD_PARAMETER;
  return orb::dft::create_fortran(handle, *precision, domain, rank, lengths);
}
ORB_EXPORT int orb_dft_dfti_create_descriptor_s_1d(DftiRecord** handle, const float* precision,
                                                   const int* domain, const int* rank, const int* length) {
  if (!precision) return STATUS_BAD_PARAMETER;
  return orb::dft::create_fortran_1d(handle, orb::dft::precision_of(precision, VAL_SINGLE), domain, rank,
                                     length);
}
ORB_EXPORT int orb_dft_dfti_create_descriptor_d_1d(DftiRecord** handle, const double* precision,
                                                   const int* domain, const int* rank, const int* length) {
  if (!precision) return STATUS_BAD_PARAMETER;
  return orb::dft::create_fortran_1d(handle, orb::dft::precision_of(precision, VAL_DOUBLE), domain, rank,
                                     length);
}
ORB_EXPORT int orb_dft_dfti_create_descriptor_s_md(DftiRecord** handle, const float* precision,
                                                   const int* domain, const int* rank, const int* lengths) {
  if (!precision) return STATUS_BAD_PARAMETER;
  return orb::dft::create_fortran(handle, orb::dft::precision_of(precision, VAL_SINGLE), domain, rank,
                                  lengths);
}
ORB_EXPORT int orb_dft_dfti_create_descriptor_d_md(DftiRecord** handle, const double* precision,
                                                   const int* domain, const int* rank, const int* lengths) {
  if (!precision) return STATUS_BAD_PARAMETER;
  return orb::dft::create_fortran(handle, orb::dft::precision_of(precision, VAL_DOUBLE), domain, rank,
                                  lengths);
}
