// Scales that the signal kernels can apply by themselves.
#include <cmath>

#include "dft/kernel/element.h"
#include "orb/dft_commit.h"
#include "serv/kernel/boundary.h"

namespace orb::dft {
namespace {

// The flag, or 0. Quotients are rounded to the precision of the scales before they are compared.
template <class T>
int flag_for(const DftiRecord* record) {
  const T forward = scale_of<T, true>(record), backward = scale_of<T, false>(record);
  const T part = T(1 / double(record->length)), root = T(1 / std::sqrt(double(record->length)));
  if (forward == 1 && backward == 1) return VSP_FFT_NODIV_BY_ANY;
  if (forward == part && backward == 1) return VSP_FFT_DIV_FWD_BY_N;
  if (forward == 1 && backward == part) return VSP_FFT_DIV_INV_BY_N;
  if (forward == root && backward == root) return VSP_FFT_DIV_BY_SQRTN;
  return 0;
}

}  // namespace
}  // namespace orb::dft

ORB_EXPORT int orb_dft_vsp_can_scale(const DftiRecord* record, int* flag) {
  const int found = record->precision == VAL_SINGLE ? orb::dft::flag_for<float>(record)
                                                    : orb::dft::flag_for<double>(record);
  if (found && flag) *flag = found;
  return found != 0;
}
