// A loop over the pairs of two vectors.
#pragma once

#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {

// step.template operator()<V>(x + i, y + i) for every pair, V::lanes pairs at once: by the compiled loop at
// unit strides, y being its lead, pair by pair at others. Nothing for n <= 0.
template <class T, class Step>
ORB_INLINE void for_pairs(int n, T* x, int incx, T* y, int incy, Step step) {
  if (incx == 1 && incy == 1)
    return compiled_loop(n, y, [=]<class V>(int i) { step.template operator()<V>(x + i, y + i); });
  if (n <= 0) return;
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  for (int i = 0; i < n; ++i, x += incx, y += incy) step.template operator()<one_of<T>>(x, y);
}

}  // namespace orb::blas
