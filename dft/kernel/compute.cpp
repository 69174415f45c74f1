// Compute routines of complex descriptors, and the batch drivers under them.
#include "dft/kernel/batch.h"
#include "dft/kernel/batch_parts.h"
#include "dft/kernel/user_slot.h"
#include "orb/dft_compute.h"

namespace orb::dft {
namespace {

bool parts_apart(const DftiRecord* head) { return head->complex_storage == VAL_REAL_REAL; }

// `in` and `out` have their offsets added; for parts apart they point to Parts.
template <class T, bool forward>
int run_batch(DftiRecord* head, const void* in, Side in_side, void* out, Side out_side, int count,
              void* work) {
  using C = complex_of<T>;
  constexpr auto line = line_field<T, forward>();
  if (parts_apart(head))
    return transform_parts(*static_cast<const Parts<T>*>(in), in_side, *static_cast<const Parts<T>*>(out),
                           out_side, head->*line, head, count, work);
  return Batch<C, line>{head, in_side, out_side, work}.run(static_cast<const C*>(in), static_cast<C*>(out),
                                                           count);
}

// The outer layer's entries for one precision and direction.
template <class C>
struct Upward {
  int (*in_place)(DftiRecord* const* head, C* data);
  int (*apart)(DftiRecord* const* head, const C* in, C* out);
};
template <class T, bool forward>
constexpr Upward<complex_of<T>> upward = {orb_dft_compute_forward_c_par, orb_dft_compute_forward_c_out_par};
template <>
constexpr Upward<c32> upward<float, false> = {orb_dft_compute_backward_c_par,
                                              orb_dft_compute_backward_c_out_par};
template <>
constexpr Upward<c64> upward<double, true> = {orb_dft_compute_forward_z_par,
                                              orb_dft_compute_forward_z_out_par};
template <>
constexpr Upward<c64> upward<double, false> = {orb_dft_compute_backward_z_par,
                                               orb_dft_compute_backward_z_out_par};

// One call of a committed descriptor.
template <class T, bool forward, bool in_place>
struct Call {
  using C = complex_of<T>;
  static constexpr auto line = line_field<T, forward>();
  static constexpr Side out_side = in_place ? input_side : output_side;
  DftiRecord* head;
  void *in, *out;

  int at_once(void* work) const {
    return head->*line ? (head->*line)(in, out, head, work) : int(STATUS_UNIMPLEMENTED);
  }
  int batch(void* work) const {
    return run_batch<T, forward>(head, in, input_side, out, out_side, head->number_of_transforms, work);
  }
  int slice() const {
    const auto driver =
        reinterpret_cast<int (*)(C*, const int*, const int*, DftiLine, DftiLine, DftiRecord*, void*)>(
            head->*by_precision<T>(&DftiRecord::drv2d_c, &DftiRecord::drv2d_z));
    const DftiRecord* second = head->next;
    return driver(static_cast<C*>(in), &head->input_stride, &second->input_stride, head->*line, second->*line,
                  head, head->work_buffer);
  }
  int on_user_thread() const {
    const UserSlot slot(head);
    if (!slot) return STATUS_NO_THREAD_SLOT;
    return head->mode_flags & DFT_MODE_ONE_LINE ? at_once(slot.work()) : batch(slot.work());
  }
  int on_threads() const {
    constexpr auto par = parallel_field<T, forward>();
    if (head->rank == 1 && head->number_of_transforms == 1 && head->*par)
      return head->parallel_data ? (head->*par)(in, out, head, head->work_buffer) : int(STATUS_INTERNAL);
    if constexpr (in_place)
      return upward<T, forward>.in_place(&head, static_cast<C*>(in));
    else
      return upward<T, forward>.apart(&head, static_cast<const C*>(in), static_cast<C*>(out));
  }

  int run() const {
    if (head->mode_flags & DFT_MODE_AT_ONCE) return at_once(head->work_buffer);
    if (in_place && head->mode_flags & DFT_MODE_SLICE && !parts_apart(head)) return slice();
    if (head->number_of_user_threads > 1) return on_user_thread();
    if (head->thread_count == 1 || parts_apart(head)) return batch(head->work_buffer);
    return on_threads();
  }
};

template <class T>
Parts<T> parts_at(void* re, void* im, int offset) {
  return {static_cast<T*>(re) + offset, static_cast<T*>(im) + offset};
}

template <class T, bool forward>
int compute_in_place(DftiRecord* head, void* a1, void* a2) {
  if (!parts_apart(head)) {
    void* data = static_cast<complex_of<T>*>(a1) + head->input_offset;
    return Call<T, forward, true>{head, data, data}.run();
  }
  Parts<T> data = parts_at<T>(a1, a2, head->input_offset);
  return Call<T, forward, true>{head, &data, &data}.run();
}

template <class T, bool forward>
int compute_apart(DftiRecord* head, void* a1, void* a2, void* a3, void* a4) {
  if (!parts_apart(head)) {
    using C = complex_of<T>;
    return Call<T, forward, false>{head, static_cast<C*>(a1) + head->input_offset,
                                   static_cast<C*>(a2) + head->output_offset}
        .run();
  }
  Parts<T> in = parts_at<T>(a1, a2, head->input_offset), out = parts_at<T>(a3, a4, head->output_offset);
  return Call<T, forward, false>{head, &in, &out}.run();
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

#define COMPUTE(one, many, one_apart, many_apart, T, forward)                           \
  ORB_EXPORT int one(DftiRecord* head, void* a1, void* a2, void*, void*) {              \
    return compute_in_place<T, forward>(head, a1, a2);                                  \
  }                                                                                     \
  ORB_EXPORT int many(DftiRecord* head, void* a1, void* a2, void*, void*) {             \
    return compute_in_place<T, forward>(head, a1, a2);                                  \
  }                                                                                     \
  ORB_EXPORT int one_apart(DftiRecord* head, void* a1, void* a2, void* a3, void* a4) {  \
    return compute_apart<T, forward>(head, a1, a2, a3, a4);                             \
  }                                                                                     \
  ORB_EXPORT int many_apart(DftiRecord* head, void* a1, void* a2, void* a3, void* a4) { \
    return compute_apart<T, forward>(head, a1, a2, a3, a4);                             \
  }
COMPUTE(orb_dft_compute_fwd_s_c2c_1d_i, orb_dft_compute_fwd_s_c2c_md_i, orb_dft_compute_fwd_s_c2c_1d_o,
        orb_dft_compute_fwd_s_c2c_md_o, float, true)
COMPUTE(orb_dft_compute_bwd_s_c2c_1d_i, orb_dft_compute_bwd_s_c2c_md_i, orb_dft_compute_bwd_s_c2c_1d_o,
        orb_dft_compute_bwd_s_c2c_md_o, float, false)
COMPUTE(orb_dft_compute_fwd_d_c2c_1d_i, orb_dft_compute_fwd_d_c2c_md_i, orb_dft_compute_fwd_d_c2c_1d_o,
        orb_dft_compute_fwd_d_c2c_md_o, double, true)
COMPUTE(orb_dft_compute_bwd_d_c2c_1d_i, orb_dft_compute_bwd_d_c2c_md_i, orb_dft_compute_bwd_d_c2c_1d_o,
        orb_dft_compute_bwd_d_c2c_md_o, double, false)

#define BATCH(in_place, apart, T, forward)                                                     \
  ORB_EXPORT int in_place(DftiRecord* record, void* data, int count, void* work) {             \
    return run_batch<T, forward>(record, data, input_side, data, input_side, count, work);     \
  }                                                                                            \
  ORB_EXPORT int apart(DftiRecord* record, const void* in, void* out, int count, void* work) { \
    return run_batch<T, forward>(record, in, input_side, out, output_side, count, work);       \
  }
BATCH(orb_dft_xcforward, orb_dft_xcforward_out, float, true)
BATCH(orb_dft_xcbackward, orb_dft_xcbackward_out, float, false)
BATCH(orb_dft_xzforward, orb_dft_xzforward_out, double, true)
BATCH(orb_dft_xzbackward, orb_dft_xzbackward_out, double, false)
