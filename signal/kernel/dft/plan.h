// Factor plans.
#pragma once

#include "signal/kernel/dft/spec.h"

namespace orb::signal {

// Factors n, 17 at least, into spec.plan. False: no plan (a prime, or a prime factor above 150).
template <class T>
bool make_plan(DftSpec<T>& spec, int n);

// Twiddles and direct tables of the plan from the roots of unity of a multiple of its length. False: no
// memory.
template <class T>
bool make_plan_tables(DftSpec<T>& spec, const complex_of<T>* base, int base_length, bool odd_real);

// Bytes of the work arrays of a plan: two copies of the parts of n numbers, each part on a register boundary.
template <class T>
constexpr int plan_part(int n) {
  return (n + 7) & ~7;
}
template <class T>
constexpr int plan_bytes(int n) {
  return 4 * plan_part<T>(n) * int(sizeof(T));
}

// Runs the plan of n numbers. The buffer has plan_bytes(n).
template <Direction d, class T>
void run_plan(const DftSpec<T>& spec, int n, Interleaved<const T> in, Interleaved<T> out, T* buffer);
template <Direction d, class T>
void run_plan(const DftSpec<T>& spec, int n, Apart<const T> in, Apart<T> out, T* buffer);
// Real input of an odd n; numbers 0 to n/2 of the transform, parts alternating.
template <class T>
void run_real_plan(const DftSpec<T>& spec, int n, const T* in, T* half_spectrum, T* buffer);

}  // namespace orb::signal
