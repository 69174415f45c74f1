// y = alpha x + beta y, made of the kernels that there are. A factor of 0 means that its vector is not read.
#pragma once

#include "outer/blas/element.h"
#include "outer/kernels.h"
#include "serv/kernel/loops.h"

namespace orb {

template <auto* copy, auto* scal, auto* axpy, class T>
void axpby(int n, T alpha, const T* x, int incx, T beta, T* y, int incy) {
  if (n <= 0) return;
  // Scaling knows no direction. The element in front of which a negative increment begins is y itself.
  T* const low = y;
  const int step = incy < 0 ? -incy : incy;
  if (!is_zero(beta)) {
    if (!is_one(beta)) call<scal>(&n, &beta, low, &step);
    call<axpy>(&n, &alpha, x, &incx, y, &incy);
  } else if (is_zero(alpha)) {
    for (int i = 0; i < n; ++i) low[i * step] = T{};
  } else {
    call<copy>(&n, x, &incx, y, &incy);
    call<scal>(&n, &alpha, low, &step);
  }
}

}  // namespace orb
