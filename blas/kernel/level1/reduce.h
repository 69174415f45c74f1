// The sums of the reductions: how terms are dealt out to partial sums, and how those are added up. This order
// is part of each routine's contract.
#pragma once

#include "serv/kernel/loops.h"

namespace orb::blas {

// Four vector sums in rotation, and the way they become one.
template <class V>
struct FourSums {
  V at[4] = {V::zero(), V::zero(), V::zero(), V::zero()};

  template <int k>
  ORB_INLINE void add(Int<k>, V term) {
    at[k % 4] += term;
  }
  template <int k>
  ORB_INLINE void add(Int<k>, Lane<typename V::scalar> term) {
    at[0].add_low(term.v);
  }
  ORB_INLINE V folded() const { return at[0] + at[1] + at[2] + at[3]; }
};

// Two sums, for the terms at even places and at odd places; the last of an odd count joins the first.
template <class S, class Term>
ORB_INLINE S sum_in_two(int n, Term term, S first = 0) {
  S even = first, odd = 0;
  int i = 0;
  for (; i + 1 < n; i += 2) {
    even += term(i);
    odd += term(i + 1);
  }
  if (i < n) even += term(i);
  return even + odd;
}

}  // namespace orb::blas
