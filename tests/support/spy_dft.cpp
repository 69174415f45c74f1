// Descriptors under the spy: commit as any outer layer does, and batches on "threads", which are counted and
// done one transform at a time, each with the next slice of work memory.
#include "orb/dft_commit.h"
#include "orb/dft_compute.h"
#include "orb/dft_real.h"
#include "orb/dfti.h"
#include "tests/support/spy.h"

namespace orb::test {
namespace {

template <class Breakdowns, class Core>
int commit(DftiRecord** handle, Breakdowns breakdowns, Core core) {
  if (breakdowns(*handle) == STATUS_OK) return STATUS_OK;
  (*handle)->thread_count = spy().threads;
  return core(handle, 1);
}

template <class A, class B, class Batch>
int on_threads(DftiRecord* head, const A* in, B* out, int out_distance, Batch batch) {
  ++spy().par_calls;
  int status = STATUS_OK;
  for (int t = 0; t < head->number_of_transforms && !status; ++t) {
    void* work =
        static_cast<char*>(head->work_buffer) + unsigned(t % head->thread_count) * head->max_work_size;
    status = batch(head, in + t * head->input_distance, out + t * out_distance, 1, work);
  }
  return status;
}

}  // namespace
}  // namespace orb::test

using orb::test::on_threads;

extern "C" {
#define SPY_COMMIT(kind)                                                                                   \
  int orb_dft_commit_descriptor_##kind##_omp(DftiRecord** handle) {                                        \
    return orb::test::commit(handle, orb_dft_apply_bkdowns_##kind, orb_dft_commit_descriptor_core_##kind); \
  }
SPY_COMMIT(s_c2c_1d)
SPY_COMMIT(s_c2c_md)
SPY_COMMIT(s_r2c_1d)
SPY_COMMIT(s_r2c_md)
SPY_COMMIT(d_c2c_1d)
SPY_COMMIT(d_c2c_md)
SPY_COMMIT(d_r2c_1d)
SPY_COMMIT(d_r2c_md)

#define SPY_PAR(in_place, apart, batch, batch_apart, A, B)                                                   \
  int in_place(DftiRecord* const* head, A* data) {                                                           \
    const auto same = [](DftiRecord* r, const A*, A* x, int n, void* work) { return batch(r, x, n, work); }; \
    return on_threads(*head, data, data, (*head)->input_distance, same);                                     \
  }                                                                                                          \
  int apart(DftiRecord* const* head, const A* in, B* out) {                                                  \
    return on_threads(*head, in, out, (*head)->output_distance, batch_apart);                                \
  }
#define SPY_PAR_MIXED(in_place, apart, batch, A, B)                                              \
  int in_place(DftiRecord* const* head, A* data) {                                               \
    return on_threads(*head, data, reinterpret_cast<B*>(data), (*head)->output_distance, batch); \
  }                                                                                              \
  int apart(DftiRecord* const* head, const A* in, B* out) {                                      \
    return on_threads(*head, in, out, (*head)->output_distance, batch);                          \
  }
SPY_PAR(orb_dft_compute_forward_c_par, orb_dft_compute_forward_c_out_par, orb_dft_xcforward,
        orb_dft_xcforward_out, orb_complex_float, orb_complex_float)
SPY_PAR(orb_dft_compute_backward_c_par, orb_dft_compute_backward_c_out_par, orb_dft_xcbackward,
        orb_dft_xcbackward_out, orb_complex_float, orb_complex_float)
SPY_PAR(orb_dft_compute_forward_z_par, orb_dft_compute_forward_z_out_par, orb_dft_xzforward,
        orb_dft_xzforward_out, orb_complex_double, orb_complex_double)
SPY_PAR(orb_dft_compute_backward_z_par, orb_dft_compute_backward_z_out_par, orb_dft_xzbackward,
        orb_dft_xzbackward_out, orb_complex_double, orb_complex_double)
SPY_PAR(orb_dft_compute_forward_s_par, orb_dft_compute_forward_s_out_par, orb_dft_xsforward,
        orb_dft_xsforward_out, float, float)
SPY_PAR(orb_dft_compute_backward_s_par, orb_dft_compute_backward_s_out_par, orb_dft_xsbackward,
        orb_dft_xsbackward_out, float, float)
SPY_PAR(orb_dft_compute_forward_d_par, orb_dft_compute_forward_d_out_par, orb_dft_xdforward,
        orb_dft_xdforward_out, double, double)
SPY_PAR(orb_dft_compute_backward_d_par, orb_dft_compute_backward_d_out_par, orb_dft_xdbackward,
        orb_dft_xdbackward_out, double, double)
SPY_PAR_MIXED(orb_dft_compute_forward_sc_par, orb_dft_compute_forward_sc_out_par, orb_dft_xscforward_out,
              float, orb_complex_float)
SPY_PAR_MIXED(orb_dft_compute_forward_dz_par, orb_dft_compute_forward_dz_out_par, orb_dft_xdzforward_out,
              double, orb_complex_double)
SPY_PAR_MIXED(orb_dft_compute_backward_cs_par, orb_dft_compute_backward_cs_out_par, orb_dft_xcsbackward_out,
              orb_complex_float, float)
SPY_PAR_MIXED(orb_dft_compute_backward_zd_par, orb_dft_compute_backward_zd_out_par, orb_dft_xzdbackward_out,
              orb_complex_double, double)
}
