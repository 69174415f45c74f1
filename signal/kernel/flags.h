// What the flag of an init asks for.
#pragma once

#include <math.h>

#include "orb/signal.h"

namespace orb::signal {

inline bool is_flag(int flag) { return flag == 1 || flag == 2 || flag == 4 || flag == 8; }

// Fills the scale fields of a record for length n.
template <class Spec>
void set_scale(Spec& spec, int flag, int n) {
  spec.do_fwd_scale = flag == VSP_FFT_DIV_FWD_BY_N || flag == VSP_FFT_DIV_BY_SQRTN;
  spec.do_inv_scale = flag == VSP_FFT_DIV_INV_BY_N || flag == VSP_FFT_DIV_BY_SQRTN;
  using T = decltype(spec.scale);
  spec.scale = flag == VSP_FFT_NODIV_BY_ANY   ? T(1)
               : flag == VSP_FFT_DIV_BY_SQRTN ? T(1 / sqrt(double(n)))
                                              : T(1 / double(n));
}

}  // namespace orb::signal
