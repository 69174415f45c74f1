// Batches on threads: as many transforms on each as come to it.
#include "orb/dft_compute.h"
#include "orb/dft_real.h"
#include "outer/dft/many_dimensions.h"
#include "outer/dft/pieces.h"
#include "outer/kernels.h"

namespace orb::dft {
namespace {

// One by one where the transforms of the batch depend on their order.
template <class A, class B, class Batch>
int divide_batch(DftiRecord* head, const A* in, B* out, Side out_side, bool apart, Batch batch) {
  const int count = head->number_of_transforms;
  const auto some = [&](int first, int end, void* work) {
    return batch(in + first * head->input_distance, out + first * head->*out_side.distance, end - first,
                 work);
  };
  return apart ? in_pieces(head, count, some) : some(0, count, head->work_buffer);
}

// Too few for the threads, many-dimensional transforms are divided themselves, one after the other.
template <class C, bool forward, class Batch>
int complex_batch(DftiRecord* head, const C* in, C* out, Side out_side, Batch batch) {
  const int count = head->number_of_transforms;
  if (head->rank == 1 || count >= head->thread_count)
    return divide_batch(head, in, out, out_side, are_apart(head, out_side, head->length), batch);
  int status = 0;
  for (int t = 0; t < count && !status; ++t)
    status = transform_in_pieces<forward>(head, in + t * head->input_distance,
                                          out + t * head->*out_side.distance, out_side);
  return status;
}

// Elements on the side of the transform that packed data of any format does not exceed.
int packed_length(const DftiRecord* head) { return head->length + 2; }

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;
using orb::call;

#define COMPLEX_PAR(in_place, apart, batch, batch_apart, C, forward)                                \
  ORB_EXPORT int in_place(DftiRecord* const* head, C* data) {                                       \
    return complex_batch<C, forward>(                                                               \
        *head, data, data, input_side,                                                              \
        [=](const C*, C* x, int count, void* work) { return call<batch>(*head, x, count, work); }); \
  }                                                                                                 \
  ORB_EXPORT int apart(DftiRecord* const* head, const C* in, C* out) {                              \
    return complex_batch<C, forward>(*head, in, out, output_side,                                   \
                                     [=](const C* x, C* y, int count, void* work) {                 \
                                       return call<batch_apart>(*head, x, y, count, work);          \
                                     });                                                            \
  }
COMPLEX_PAR(orb_dft_compute_forward_c_par, orb_dft_compute_forward_c_out_par, orb_dft_xcforward,
            orb_dft_xcforward_out, orb_complex_float, true)
COMPLEX_PAR(orb_dft_compute_backward_c_par, orb_dft_compute_backward_c_out_par, orb_dft_xcbackward,
            orb_dft_xcbackward_out, orb_complex_float, false)
COMPLEX_PAR(orb_dft_compute_forward_z_par, orb_dft_compute_forward_z_out_par, orb_dft_xzforward,
            orb_dft_xzforward_out, orb_complex_double, true)
COMPLEX_PAR(orb_dft_compute_backward_z_par, orb_dft_compute_backward_z_out_par, orb_dft_xzbackward,
            orb_dft_xzbackward_out, orb_complex_double, false)

// In place, packed transforms take as much room as the larger of both sides.
#define PACKED_PAR(in_place, apart, batch, batch_apart, T)                                                \
  ORB_EXPORT int in_place(DftiRecord* const* head, T* data) {                                             \
    return divide_batch(                                                                                  \
        *head, data, data, input_side, are_apart(*head, input_side, packed_length(*head)),                \
        [=](const T*, T* x, int count, void* work) { return call<batch>(*head, x, count, work); });       \
  }                                                                                                       \
  ORB_EXPORT int apart(DftiRecord* const* head, const T* in, T* out) {                                    \
    return divide_batch(*head, in, out, output_side, are_apart(*head, output_side, packed_length(*head)), \
                        [=](const T* x, T* y, int count, void* work) {                                    \
                          return call<batch_apart>(*head, x, y, count, work);                             \
                        });                                                                               \
  }
PACKED_PAR(orb_dft_compute_forward_s_par, orb_dft_compute_forward_s_out_par, orb_dft_xsforward,
           orb_dft_xsforward_out, float)
PACKED_PAR(orb_dft_compute_backward_s_par, orb_dft_compute_backward_s_out_par, orb_dft_xsbackward,
           orb_dft_xsbackward_out, float)
PACKED_PAR(orb_dft_compute_forward_d_par, orb_dft_compute_forward_d_out_par, orb_dft_xdforward,
           orb_dft_xdforward_out, double)
PACKED_PAR(orb_dft_compute_backward_d_par, orb_dft_compute_backward_d_out_par, orb_dft_xdbackward,
           orb_dft_xdbackward_out, double)

// In place, transform t writes where another may still have to read: only equal places may go at once.
#define MIXED_PAR(in_place, apart, batch, A, B, same_places)                                             \
  ORB_EXPORT int in_place(DftiRecord* const* head, A* data) {                                            \
    DftiRecord* h = *head;                                                                               \
    const bool disjoint = same_places && are_apart(h, input_side, packed_length(h)) &&                   \
                          are_apart(h, output_side, packed_length(h));                                   \
    return divide_batch(                                                                                 \
        h, data, reinterpret_cast<B*>(data), output_side, disjoint,                                      \
        [=](const A* x, B* y, int count, void* work) { return call<batch>(h, x, y, count, work); });     \
  }                                                                                                      \
  ORB_EXPORT int apart(DftiRecord* const* head, const A* in, B* out) {                                   \
    return divide_batch(                                                                                 \
        *head, in, out, output_side, are_apart(*head, output_side, packed_length(*head)),                \
        [=](const A* x, B* y, int count, void* work) { return call<batch>(*head, x, y, count, work); }); \
  }
MIXED_PAR(orb_dft_compute_forward_sc_par, orb_dft_compute_forward_sc_out_par, orb_dft_xscforward_out, float,
          orb_complex_float, h->input_distance == 2 * h->output_distance)
MIXED_PAR(orb_dft_compute_forward_dz_par, orb_dft_compute_forward_dz_out_par, orb_dft_xdzforward_out, double,
          orb_complex_double, h->input_distance == 2 * h->output_distance)
MIXED_PAR(orb_dft_compute_backward_cs_par, orb_dft_compute_backward_cs_out_par, orb_dft_xcsbackward_out,
          orb_complex_float, float, 2 * h->input_distance == h->output_distance)
MIXED_PAR(orb_dft_compute_backward_zd_par, orb_dft_compute_backward_zd_out_par, orb_dft_xzdbackward_out,
          orb_complex_double, double, 2 * h->input_distance == h->output_distance)
