// Plans over real data of odd lengths.
#include "signal/kernel/dft/run.h"

namespace orb::signal {

template <class T>
void run_real_plan(const DftSpec<T>& spec, int n, const T* in, T* half_spectrum, T* buffer) {
  run_passes<true>(spec, n, RealsAt<T>{in}, PairsAt<T, false>{half_spectrum}, buffer);
}
template void run_real_plan(const DftSpec<float>&, int, const float*, float*, float*);
template void run_real_plan(const DftSpec<double>&, int, const double*, double*, double*);

}  // namespace orb::signal
