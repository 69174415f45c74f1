// Compute routines and batch drivers of real descriptors of one dimension.
#include "dft/kernel/batch.h"
#include "dft/kernel/user_slot.h"
#include "orb/dft_real.h"

namespace orb::dft {
namespace {

bool complex_result(const DftiRecord* head) { return head->conjugate_even_storage == VAL_COMPLEX_COMPLEX; }

// Reals on the packed side of a line.
int packed_reals(const DftiRecord* head) {
  const int n = head->length;
  if (head->packed_format != VAL_CCS_FORMAT) return n;
  return 2 * (n / 2 + 1);
}

template <class T, bool forward>
constexpr auto real_line_field() {
  if constexpr (forward)
    return by_precision<T>(&DftiRecord::real_fwd_s, &DftiRecord::real_fwd_d);
  else
    return by_precision<T>(&DftiRecord::real_inv_s, &DftiRecord::real_inv_d);
}

// Elements of one side of a line.
template <class E>
int elements(const DftiRecord* head, bool transform_side) {
  if constexpr (Complex<E>)
    return head->half_length;
  else
    return transform_side ? packed_reals(head) : head->length;
}

// A batch from elements of type A to elements of type B. Strided lines go through a buffer.
template <class T, bool forward, class A, class B>
int transform_real(DftiRecord* head, const A* in, Side in_side, B* out, Side out_side, int count,
                   void* work) {
  if (head->rank > 1) return STATUS_UNIMPLEMENTED;
  constexpr auto line = real_line_field<T, forward>();
  const int from = head->*in_side.stride, to = head->*out_side.stride;
  const bool straight = from == 1 && to == 1;
  const Work buffer = Work::of<T>(straight ? 0 : head->length + 2);
  if (!straight && !buffer) return STATUS_MEMORY;
  for (int t = 0; t < count; ++t) {
    const A* source = in + t * head->*in_side.distance;
    B* target = out + t * head->*out_side.distance;
    if (!straight) copy(elements<A>(head, !forward), source, from, buffer.as<A>(), 1);
    const int status = straight ? (head->*line)(source, target, head, work)
                                : (head->*line)(buffer.as<A>(), buffer.as<B>(), head, work);
    if (status) return status;
    if (!straight) copy(elements<B>(head, forward), buffer.as<B>(), 1, target, to);
  }
  return STATUS_OK;
}

// The outer layer's entries for one precision and direction: packed, and with complex numbers.
template <class A, class B>
struct Upward {
  int (*in_place)(DftiRecord* const* head, A* data);
  int (*apart)(DftiRecord* const* head, const A* in, B* out);
};
template <class T, bool forward>
constexpr Upward<T, T> upward_packed = {orb_dft_compute_forward_s_par, orb_dft_compute_forward_s_out_par};
template <>
constexpr Upward<float, float> upward_packed<float, false> = {orb_dft_compute_backward_s_par,
                                                              orb_dft_compute_backward_s_out_par};
template <>
constexpr Upward<double, double> upward_packed<double, true> = {orb_dft_compute_forward_d_par,
                                                                orb_dft_compute_forward_d_out_par};
template <>
constexpr Upward<double, double> upward_packed<double, false> = {orb_dft_compute_backward_d_par,
                                                                 orb_dft_compute_backward_d_out_par};
template <class T, bool forward>
constexpr Upward<float, c32> upward_complex = {orb_dft_compute_forward_sc_par,
                                               orb_dft_compute_forward_sc_out_par};
template <>
constexpr Upward<c32, float> upward_complex<float, false> = {orb_dft_compute_backward_cs_par,
                                                             orb_dft_compute_backward_cs_out_par};
template <>
constexpr Upward<double, c64> upward_complex<double, true> = {orb_dft_compute_forward_dz_par,
                                                              orb_dft_compute_forward_dz_out_par};
template <>
constexpr Upward<c64, double> upward_complex<double, false> = {orb_dft_compute_backward_zd_par,
                                                               orb_dft_compute_backward_zd_out_par};

// One call of a committed descriptor whose data has elements of types A and B. In place, packed data lies
// where the input fields say; complex numbers have another stride than reals, so the output fields count.
template <class T, bool forward, bool in_place, class A, class B>
struct RealCall {
  static constexpr auto line = real_line_field<T, forward>();
  static constexpr bool one_side = in_place && __is_same(A, B);
  static constexpr Side out_side = one_side ? input_side : output_side;
  DftiRecord* head;
  const A* in;
  B* out;

  RealCall(DftiRecord* h, void* a1, void* a2)
      : head(h),
        in(static_cast<const A*>(a1) + h->input_offset),
        out(static_cast<B*>(in_place ? a1 : a2) + (one_side ? h->input_offset : h->output_offset)) {}

  int at_once(void* work) const { return (head->*line)(in, out, head, work); }
  int batch(void* work) const {
    return transform_real<T, forward>(head, in, input_side, out, out_side, head->number_of_transforms, work);
  }
  int on_user_thread() const {
    const UserSlot slot(head);
    if (!slot) return STATUS_NO_THREAD_SLOT;
    return head->mode_flags & DFT_MODE_ONE_LINE ? at_once(slot.work()) : batch(slot.work());
  }
  int on_threads() const {
    constexpr auto& upward = []() -> auto& {
      if constexpr (__is_same(A, B))
        return upward_packed<T, forward>;
      else
        return upward_complex<T, forward>;
    }
    ();
    if constexpr (in_place)
      return upward.in_place(&head, const_cast<A*>(in));
    else
      return upward.apart(&head, in, out);
  }
  int run() const {
    if (head->mode_flags & DFT_MODE_AT_ONCE) return at_once(head->work_buffer);
    if (head->number_of_user_threads > 1) return on_user_thread();
    if (head->thread_count == 1) return batch(head->work_buffer);
    return on_threads();
  }
};

template <class T, bool forward, bool in_place>
int compute_real(DftiRecord* head, void* a1, void* a2) {
  using C = complex_of<T>;
  if (!complex_result(head)) return RealCall<T, forward, in_place, T, T>(head, a1, a2).run();
  if constexpr (forward)
    return RealCall<T, forward, in_place, T, C>(head, a1, a2).run();
  else
    return RealCall<T, forward, in_place, C, T>(head, a1, a2).run();
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

#define COMPUTE_REAL(in_place, apart, T, forward)                               \
  ORB_EXPORT int in_place(DftiRecord* head, void* a1, void* a2, void*, void*) { \
    return compute_real<T, forward, true>(head, a1, a2);                        \
  }                                                                             \
  ORB_EXPORT int apart(DftiRecord* head, void* a1, void* a2, void*, void*) {    \
    return compute_real<T, forward, false>(head, a1, a2);                       \
  }
COMPUTE_REAL(orb_dft_compute_fwd_s_r2c_1d_i, orb_dft_compute_fwd_s_r2c_1d_o, float, true)
COMPUTE_REAL(orb_dft_compute_bwd_s_r2c_1d_i, orb_dft_compute_bwd_s_r2c_1d_o, float, false)
COMPUTE_REAL(orb_dft_compute_fwd_d_r2c_1d_i, orb_dft_compute_fwd_d_r2c_1d_o, double, true)
COMPUTE_REAL(orb_dft_compute_bwd_d_r2c_1d_i, orb_dft_compute_bwd_d_r2c_1d_o, double, false)

#define PACKED_BATCH(in_place, apart, T, forward)                                               \
  ORB_EXPORT int in_place(DftiRecord* record, T* data, int count, void* work) {                 \
    return transform_real<T, forward>(record, data, input_side, data, input_side, count, work); \
  }                                                                                             \
  ORB_EXPORT int apart(DftiRecord* record, const T* in, T* out, int count, void* work) {        \
    return transform_real<T, forward>(record, in, input_side, out, output_side, count, work);   \
  }
PACKED_BATCH(orb_dft_xsforward, orb_dft_xsforward_out, float, true)
PACKED_BATCH(orb_dft_xsbackward, orb_dft_xsbackward_out, float, false)
PACKED_BATCH(orb_dft_xdforward, orb_dft_xdforward_out, double, true)
PACKED_BATCH(orb_dft_xdbackward, orb_dft_xdbackward_out, double, false)

#define COMPLEX_BATCH(name, T, forward, A, B)                                                 \
  ORB_EXPORT int name(DftiRecord* record, const A* in, B* out, int count, void* work) {       \
    return transform_real<T, forward>(record, in, input_side, out, output_side, count, work); \
  }
COMPLEX_BATCH(orb_dft_xscforward, float, true, float, orb_complex_float)
COMPLEX_BATCH(orb_dft_xscforward_out, float, true, float, orb_complex_float)
COMPLEX_BATCH(orb_dft_xcsbackward, float, false, orb_complex_float, float)
COMPLEX_BATCH(orb_dft_xcsbackward_out, float, false, orb_complex_float, float)
COMPLEX_BATCH(orb_dft_xdzforward, double, true, double, orb_complex_double)
COMPLEX_BATCH(orb_dft_xdzforward_out, double, true, double, orb_complex_double)
COMPLEX_BATCH(orb_dft_xzdbackward, double, false, orb_complex_double, double)
COMPLEX_BATCH(orb_dft_xzdbackward_out, double, false, orb_complex_double, double)
