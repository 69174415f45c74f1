// The first step of the products with beta.
#pragma once

#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"
#include "serv/kernel/zero.h"

namespace orb::blas {

// y = beta y over n elements from y on. beta == 0 stores zeros without reading, so that a NaN goes; beta == 1
// leaves y alone.
template <class T>
void scale(int n, T beta, T* y, int incy) {
  if (is_one(beta)) return;
  const auto over = [=](auto step) {
    if (incy == 1) return compiled_loop(n, y, [=]<class V>(int i) { step.template operator()<V>(y + i); });
    for (int i = 0; i < n; ++i) step.template operator()<one_of<T>>(y + i * incy);
  };
  if (is_zero(beta))
    over([]<class V>(T* p) { V::zero().store(p); });
  else
    over([=]<class V>(T* p) { (V::splat(beta) * V::load(p)).store(p); });
}

}  // namespace orb::blas
