// Breakdown 1: short lines whose work memory fits on the stack, with scales that the kernels apply.
#include <string.h>

#include "dft/kernel/breakdown.h"

namespace orb::dft {
namespace {

constexpr int longest = 4096;
constexpr int stack_bytes = 2048;

struct State {
  VspsDFTSpec* spec;
  int length, scale_flag, reserved;
};
static_assert(sizeof(State) == 16);

State* state_of(DftiRecord* head) { return static_cast<State*>(head->backend_state); }

template <class T>
struct Kernels;
template <>
struct Kernels<float> {
  static constexpr auto init = t7_vspsDFTInitAlloc_C_32fc;
  static constexpr auto free = t7_vspsDFTFree_C_32fc;
  static constexpr auto work_size = t7_vspsDFTGetBufSize_C_32fc;
  static constexpr auto forward = t7_vspsDFTFwd_CToC_32fc;
  static constexpr auto backward = t7_vspsDFTInv_CToC_32fc;
};
template <>
struct Kernels<double> {
  static constexpr auto init = t7_vspsDFTInitAlloc_C_64fc;
  static constexpr auto free = t7_vspsDFTFree_C_64fc;
  static constexpr auto work_size = t7_vspsDFTGetBufSize_C_64fc;
  static constexpr auto forward = t7_vspsDFTFwd_CToC_64fc;
  static constexpr auto backward = t7_vspsDFTInv_CToC_64fc;
};

template <class T, bool forward, bool in_place>
ORB_ENTRY int compute(DftiRecord* head, void* a1, void* a2, void*, void*) {
  using C = complex_of<T>;
  alignas(16) char work[stack_bytes];
  constexpr auto kernel = forward ? Kernels<T>::forward : Kernels<T>::backward;
  return orb_dft_transfer_vsp_orb_error(
      kernel(static_cast<const C*>(a1), static_cast<C*>(in_place ? a1 : a2), state_of(head)->spec, work));
}

template <class T>
ORB_ENTRY double applicable(const DftiBreakdown*, DftiRecord* head) {
  return is_plain_line<T>(head) && head->length >= 1 && head->length <= longest &&
         orb_dft_vsp_can_scale(head, nullptr);
}

template <class T>
ORB_ENTRY int release(const DftiBreakdown*, DftiRecord* head) {
  State* state = state_of(head);
  if (!state) return STATUS_OK;
  const VspStatus status = state->spec ? Kernels<T>::free(state->spec) : VspStatus(VSP_OK);
  orb_serv_orb_free(state);
  head->backend_state = nullptr;
  return orb_dft_transfer_vsp_orb_error(status);
}

// The tables that stand may serve again.
template <class T>
VspStatus make_tables(State& state, int length, int flag, int* bytes) {
  if (state.spec && (state.length != length || state.scale_flag != flag || state.reserved != 0)) {
    Kernels<T>::free(state.spec);
    state.spec = nullptr;
  }
  if (!state.spec)
    if (const VspStatus status = Kernels<T>::init(&state.spec, length, flag, 0)) return status;
  state.length = length;
  state.scale_flag = flag;
  return Kernels<T>::work_size(state.spec, bytes);
}

template <class T>
ORB_ENTRY int commit(const DftiBreakdown* self, DftiRecord* head) {
  take_over(self, head);
  if (!head->backend_state) {
    head->backend_state = orb_serv_orb_malloc(int(sizeof(State)), 16);
    if (!head->backend_state) return give_up(head, STATUS_MEMORY);
    memset(head->backend_state, 0, sizeof(State));
  }
  int flag = 0, bytes = 0;
  orb_dft_vsp_can_scale(head, &flag);
  const VspStatus status = make_tables<T>(*state_of(head), head->length, flag, &bytes);
  if (status != VSP_OK || bytes > stack_bytes) {
    release<T>(self, head);
    return give_up(head, status != VSP_OK ? orb_dft_transfer_vsp_orb_error(status) : int(DFT_GAVE_UP));
  }
  if (head->placement == VAL_INPLACE) return finish(head, compute<T, true, true>, compute<T, false, true>);
  return finish(head, compute<T, true, false>, compute<T, false, false>);
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

extern "C" __attribute__((visibility("default"))) constexpr DftiBreakdown orb_dft_bkd1_c = {
    applicable<float>, commit<float>, release<float>};
extern "C" __attribute__((visibility("default"))) constexpr DftiBreakdown orb_dft_bkd1_z = {
    applicable<double>, commit<double>, release<double>};
