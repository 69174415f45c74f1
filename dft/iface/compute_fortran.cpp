// The Fortran entries of computation, each for as many arrays as its name has letters.
#include "dft/kernel/record.h"

namespace orb::dft {
namespace {

// A committed descriptor for this many arrays goes straight on; everything else is a matter of saying why
// not.
int compute(int arrays, DftiRecord** handle, DftiCompute DftiRecord::*routine, void* a1, void* a2 = nullptr,
            void* a3 = nullptr, void* a4 = nullptr) {
  if (!handle || !*handle) return STATUS_BAD_DESCRIPTOR;
  DftiRecord* head = *handle;
  if (head->io_arg_count == arrays && head->*routine) return (head->*routine)(head, a1, a2, a3, a4);
  if (!is_descriptor(head)) return STATUS_BAD_DESCRIPTOR;
  return head->io_arg_count == arrays ? STATUS_INVALID_ARGUMENT : STATUS_BAD_PARAMETER;
}

template <class T>
void* word(T* p) {
  return const_cast<void*>(static_cast<const void*>(p));
}

}  // namespace
}  // namespace orb::dft

using orb::dft::compute;
using orb::dft::word;

#define COMPUTE_1(name, routine, T) \
  ORB_EXPORT int name(DftiRecord** handle, T* a) { return compute(1, handle, &DftiRecord::routine, word(a)); }
#define COMPUTE_2(name, routine, S, T)                                 \
  ORB_EXPORT int name(DftiRecord** handle, S* a, T* b) {               \
    return compute(2, handle, &DftiRecord::routine, word(a), word(b)); \
  }
#define COMPUTE_4(name, routine, T)                                                      \
  ORB_EXPORT int name(DftiRecord** handle, const T* a, const T* b, T* c, T* d) {         \
    return compute(4, handle, &DftiRecord::routine, word(a), word(b), word(c), word(d)); \
  }
#define COMPUTE_OUT(name, same, S, T) \
  ORB_EXPORT int name(DftiRecord** handle, S* a, T* b) { return same(handle, a, b); }

COMPUTE_1(orb_dft_dfti_compute_forward_c, compute_forward, orb_complex_float)
COMPUTE_OUT(orb_dft_dfti_compute_forward_c_out, orb_dft_dfti_compute_forward_cc, const orb_complex_float,
            orb_complex_float)
COMPUTE_2(orb_dft_dfti_compute_forward_cc, compute_forward, const orb_complex_float, orb_complex_float)
COMPUTE_2(orb_dft_dfti_compute_forward_cs, compute_forward, const orb_complex_float, float)
COMPUTE_1(orb_dft_dfti_compute_forward_d, compute_forward, double)
COMPUTE_OUT(orb_dft_dfti_compute_forward_d_out, orb_dft_dfti_compute_forward_dd, double, double)
COMPUTE_2(orb_dft_dfti_compute_forward_dd, compute_forward, double, double)
COMPUTE_4(orb_dft_dfti_compute_forward_dddd, compute_forward, double)
COMPUTE_2(orb_dft_dfti_compute_forward_dz, compute_forward, const double, orb_complex_double)
COMPUTE_OUT(orb_dft_dfti_compute_forward_dz_out, orb_dft_dfti_compute_forward_dz, const double,
            orb_complex_double)
COMPUTE_1(orb_dft_dfti_compute_forward_s, compute_forward, float)
COMPUTE_OUT(orb_dft_dfti_compute_forward_s_out, orb_dft_dfti_compute_forward_ss, float, float)
COMPUTE_2(orb_dft_dfti_compute_forward_sc, compute_forward, const float, orb_complex_float)
COMPUTE_OUT(orb_dft_dfti_compute_forward_sc_out, orb_dft_dfti_compute_forward_sc, const float,
            orb_complex_float)
COMPUTE_2(orb_dft_dfti_compute_forward_ss, compute_forward, float, float)
COMPUTE_4(orb_dft_dfti_compute_forward_ssss, compute_forward, float)
COMPUTE_1(orb_dft_dfti_compute_forward_z, compute_forward, orb_complex_double)
COMPUTE_OUT(orb_dft_dfti_compute_forward_z_out, orb_dft_dfti_compute_forward_zz, const orb_complex_double,
            orb_complex_double)
COMPUTE_2(orb_dft_dfti_compute_forward_zd, compute_forward, const orb_complex_double, double)
COMPUTE_2(orb_dft_dfti_compute_forward_zz, compute_forward, const orb_complex_double, orb_complex_double)
COMPUTE_1(orb_dft_dfti_compute_backward_c, compute_backward, orb_complex_float)
COMPUTE_OUT(orb_dft_dfti_compute_backward_c_out, orb_dft_dfti_compute_backward_cc, const orb_complex_float,
            orb_complex_float)
COMPUTE_2(orb_dft_dfti_compute_backward_cc, compute_backward, const orb_complex_float, orb_complex_float)
COMPUTE_2(orb_dft_dfti_compute_backward_cs, compute_backward, const orb_complex_float, float)
COMPUTE_OUT(orb_dft_dfti_compute_backward_cs_out, orb_dft_dfti_compute_backward_cs, const orb_complex_float,
            float)
COMPUTE_1(orb_dft_dfti_compute_backward_d, compute_backward, double)
COMPUTE_OUT(orb_dft_dfti_compute_backward_d_out, orb_dft_dfti_compute_backward_dd, double, double)
COMPUTE_2(orb_dft_dfti_compute_backward_dd, compute_backward, double, double)
COMPUTE_4(orb_dft_dfti_compute_backward_dddd, compute_backward, double)
COMPUTE_2(orb_dft_dfti_compute_backward_dz, compute_backward, const double, orb_complex_double)
COMPUTE_1(orb_dft_dfti_compute_backward_s, compute_backward, float)
COMPUTE_OUT(orb_dft_dfti_compute_backward_s_out, orb_dft_dfti_compute_backward_ss, float, float)
COMPUTE_2(orb_dft_dfti_compute_backward_sc, compute_backward, const float, orb_complex_float)
COMPUTE_2(orb_dft_dfti_compute_backward_ss, compute_backward, float, float)
COMPUTE_4(orb_dft_dfti_compute_backward_ssss, compute_backward, float)
COMPUTE_1(orb_dft_dfti_compute_backward_z, compute_backward, orb_complex_double)
COMPUTE_OUT(orb_dft_dfti_compute_backward_z_out, orb_dft_dfti_compute_backward_zz, const orb_complex_double,
            orb_complex_double)
COMPUTE_2(orb_dft_dfti_compute_backward_zd, compute_backward, const orb_complex_double, double)
COMPUTE_OUT(orb_dft_dfti_compute_backward_zd_out, orb_dft_dfti_compute_backward_zd, const orb_complex_double,
            double)
COMPUTE_2(orb_dft_dfti_compute_backward_zz, compute_backward, const orb_complex_double, orb_complex_double)
