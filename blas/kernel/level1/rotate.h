// One plane rotation of a pair of elements, the step of every routine that applies rotations.
#pragma once

#include "serv/kernel/simd_complex.h"

namespace orb::blas {

// x, y = c x + s y, c y - conj(s) x for V::lanes pairs; y is loaded aligned. c and s are factors of a V.
template <class V, class T, class C, class S>
ORB_INLINE void rotate(C c, S s, T* x, T* y) {
  const V old_x = V::loadu(x), old_y = V::load(y);
  (c * old_x + s * old_y).storeu(x);
  (c * old_y - conj(s) * old_x).store(y);
}

}  // namespace orb::blas
