// Plans over complex data. The inverse transform is the forward one of exchanged parts, with exchanged parts.
#include "signal/kernel/dft/run.h"

namespace orb::signal {

template <Direction d, class T>
void run_plan(const DftSpec<T>& spec, int n, Interleaved<const T> in, Interleaved<T> out, T* buffer) {
  constexpr bool swapped = d == inverse;
  run_passes<false>(spec, n, PairsAt<T, swapped>{const_cast<T*>(in.p)}, PairsAt<T, swapped>{out.p}, buffer);
}
template <Direction d, class T>
void run_plan(const DftSpec<T>& spec, int n, Apart<const T> in, Apart<T> out, T* buffer) {
  T *const re = const_cast<T*>(in.re), *const im = const_cast<T*>(in.im);
  if constexpr (d == forward)
    run_passes<false>(spec, n, PartsAt<T>{re, im}, PartsAt<T>{out.re, out.im}, buffer);
  else
    run_passes<false>(spec, n, PartsAt<T>{im, re}, PartsAt<T>{out.im, out.re}, buffer);
}

#define PLANS(direction, T)                                                                            \
  template void run_plan<direction>(const DftSpec<T>&, int, Interleaved<const T>, Interleaved<T>, T*); \
  template void run_plan<direction>(const DftSpec<T>&, int, Apart<const T>, Apart<T>, T*);
PLANS(forward, float)
PLANS(inverse, float)
PLANS(forward, double)
PLANS(inverse, double)

}  // namespace orb::signal
