// Runs a factor plan over given views: each pass is found by its factor and by what its registers hold.
#pragma once

#include <utility>

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

template <class V, bool real, class In, class Out, class T>
__attribute__((noinline)) void middle_pass(const PlanEntry<T>& e, In in, Out out) {
  with_factor<V, real>(
      e, [&](auto f) { factor_pass<real, false>(f, in, out, e.done, e.remaining, e.twiddles); });
}
template <class V, bool real, class In, class Out, class T>
__attribute__((noinline)) void first_pass(const PlanEntry<T>& e, In in, Out out) {
  with_factor<V, real>(e, [&](auto f) {
    factor_pass<real, true>(f, in, out, 1, e.remaining, static_cast<const T*>(nullptr));
  });
}
template <class V, bool real, class In, class Out, class T>
__attribute__((noinline)) void final_pass(const PlanEntry<T>& e, In in, Out out) {
  with_factor<V, real>(e, [&](auto f) { last_pass<real>(f, in, out, e.done, e.twiddles); });
}
// From blocks: the factor is a multiple of the lanes.
template <class Out, class T>
__attribute__((noinline)) void final_pass(const PlanEntry<T>& e, Blocked<T> in, Out out) {
  if constexpr (Blocked<T>::V::lanes == 2)
    if (e.factor == 2) return last_pass<false>(FixedFactor<2>{}, in, out, e.done, e.twiddles);
  last_pass<false>(FixedFactor<4>{}, in, out, e.done, e.twiddles);
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
  Rows<V> with() const {
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

// Whole registers throughout: the last factor, and so every count before it, is a multiple of the lanes.
template <class T, class Source, class Target>
void run_in_blocks(const DftSpec<T>& spec, int n, Source source, Target target, T* buffer) {
  using V = vector_of<T>;
  Blocked<T> from{buffer}, to{buffer + 2 * plan_part<T>(n)};
  first_pass<V, false>(spec.plan[0], source.template with<V>(), from);
  for (int i = 1; i < spec.last_factor; ++i) {
    middle_pass<V, false>(spec.plan[i], from, to);
    std::swap(from, to);
  }
  final_pass(spec.plan[spec.last_factor], from, target.template with<V>());
}

// Calls body with the passes' registers: full ones, or single numbers.
template <class T, class Body>
ORB_INLINE void with_register(const PlanEntry<T>& e, Body body) {
  e.lanes > 1 ? body.template operator()<vector_of<T>>() : body.template operator()<Lane<T>>();
}

template <bool real, class T, class Source, class Target>
void run_in_rows(const DftSpec<T>& spec, int n, Source source, Target target, T* buffer) {
  const int part = plan_part<T>(n);
  T *from = buffer, *to = buffer + 2 * part;
  const auto rows = [=]<class V>(T* p) { return Rows<V>{p, p + part}; };
  const auto& first = spec.plan[0];
  with_register(first, [&]<class V> {
    first_pass<V, real>(first, source.template with<V>(), rows.template operator()<V>(from));
  });
  for (int i = 1; i < spec.last_factor; ++i) {
    const auto& e = spec.plan[i];
    with_register(e, [&]<class V> {
      middle_pass<V, real>(e, rows.template operator()<V>(from), rows.template operator()<V>(to));
    });
    std::swap(from, to);
  }
  const auto& last = real ? spec.real_last : spec.plan[spec.last_factor];
  with_register(last, [&]<class V> {
    final_pass<V, real>(last, rows.template operator()<V>(from), target.template with<V>());
  });
}

template <bool real, class T, class Source, class Target>
void run_passes(const DftSpec<T>& spec, int n, Source source, Target target, T* buffer) {
  if constexpr (!real)
    if (spec.plan[spec.last_factor].factor % vector_of<T>::lanes == 0)
      return run_in_blocks(spec, n, source, target, buffer);
  run_in_rows<real>(spec, n, source, target, buffer);
}

}  // namespace orb::signal
