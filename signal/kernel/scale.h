// Scaling of results.
#pragma once

#include "signal/kernel/split.h"

namespace orb::signal {

template <class T>
inline void multiply(T* p, int n, T factor) {
  using V = vector_of<T>;
  const V by = V::splat(factor);
  int i = 0;
  for (; i + 2 * V::lanes <= n; i += 2 * V::lanes)
    unroll<2>([&](auto u) ORB_INLINE_BODY {
      T* const at = p + i + u * V::lanes;
      (by * V::loadu(at)).storeu(at);
    });
  for (; i < n; ++i) p[i] = factor * p[i];
}

// n numbers.
template <class T>
void multiply(Interleaved<T> data, int n, T factor) {
  multiply(data.p, 2 * n, factor);
}
template <class T>
void multiply(Blocked<T> data, int n, T factor) {
  multiply(data.p, 2 * n, factor);
}
template <class T>
void multiply(Apart<T> data, int n, T factor) {
  multiply(data.re, n, factor);
  multiply(data.im, n, factor);
}

}  // namespace orb::signal
