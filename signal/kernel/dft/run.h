// Runs a factor plan over given views: each pass is found by its factor and by what its registers hold.
#pragma once

#include "signal/kernel/dft/passes.h"
#include "signal/kernel/dft/plan.h"

namespace orb::signal {

// Calls body(factor) with the factor's code. Passes of single numbers take direct code for all odd factors.
template <class V, bool odd, class T, class Body>
ORB_INLINE void with_factor(const PlanEntry<T>& e, Body body) {
  if constexpr (!odd) {
    if (e.factor == 2) return body(FixedFactor<2>{});
    if (e.factor == 4) return body(FixedFactor<4>{});
  }
  if (e.factor == 3) return body(FixedFactor<3>{});
  if constexpr (V::lanes > 1) {
    if (e.factor == 5) return body(FixedFactor<5>{});
    if (e.factor == 7) return body(FixedFactor<7>{});
    if (e.factor == 11) return body(FixedFactor<11>{});
  }
  body(AnyFactor<T>{e.factor, e.direct_table});
}

// Arrays that passes exchange: the parts of n numbers in the lower or the upper half of the buffer.
template <class V, bool aligned, class T>
Rows<V, aligned> work_rows(T* buffer, int n, int half) {
  T* const re = buffer + 2 * half * plan_part<T>(n);
  return {re, re + plan_part<T>(n)};
}

template <class V, bool aligned, bool real, class T>
__attribute__((noinline)) void middle_pass(const PlanEntry<T>& e, int n, T* buffer, int from) {
  const auto in = work_rows<V, aligned>(buffer, n, from);
  const auto out = work_rows<V, aligned>(buffer, n, 1 - from);
  with_factor<V, real>(
      e, [&](auto f) { factor_pass<real, false>(f, in, out, e.done, e.remaining, e.twiddles); });
}
template <class V, bool real, class Source, class T>
__attribute__((noinline)) void first_pass(const PlanEntry<T>& e, int n, Source source, T* buffer) {
  const auto out = work_rows<V, false>(buffer, n, 0);
  with_factor<V, real>(e, [&](auto f) {
    factor_pass<real, true>(f, source.template with<V>(), out, 1, e.remaining,
                            static_cast<const T*>(nullptr));
  });
}
template <class V, bool real, class Target, class T>
__attribute__((noinline)) void final_pass(const PlanEntry<T>& e, int n, T* buffer, int from, Target target) {
  const auto in = work_rows<V, false>(buffer, n, from);
  with_factor<V, real>(
      e, [&](auto f) { last_pass<real>(f, in, target.template with<V>(), e.done, e.twiddles); });
}

// Where a plan reads and writes, as views of any register.
template <class T, bool swapped>
struct PairsAt {
  T* p;
  template <class V>
  Pairs<V, swapped> with() const {
    return {p};
  }
};
template <class T>
struct PartsAt {
  T *re, *im;
  template <class V>
  Rows<V, false> with() const {
    return {re, im};
  }
};
template <class T>
struct RealsAt {
  const T* p;
  template <class V>
  Reals<V> with() const {
    return {p};
  }
};

template <bool real, class T, class Source, class Target>
void run_passes(const DftSpec<T>& spec, int n, Source source, Target target, T* buffer) {
  using V = vector_of<T>;
  using One = Lane<T>;
  const int last = spec.last_factor;
  const bool aligned = spec.plan[last].factor % V::lanes == 0;
  const auto& first = spec.plan[0];
  first.lanes > 1 ? first_pass<V, real>(first, n, source, buffer)
                  : first_pass<One, real>(first, n, source, buffer);
  int from = 0;
  for (int i = 1; i < last; ++i, from = 1 - from) {
    const auto& e = spec.plan[i];
    if (e.lanes == 1)
      middle_pass<One, false, real>(e, n, buffer, from);
    else if (!real && aligned)
      middle_pass<V, true, false>(e, n, buffer, from);
    else
      middle_pass<V, false, real>(e, n, buffer, from);
  }
  const auto& e = real ? spec.real_last : spec.plan[last];
  e.lanes > 1 ? final_pass<V, real>(e, n, buffer, from, target)
              : final_pass<One, real>(e, n, buffer, from, target);
}

}  // namespace orb::signal
