// The arguments of the small path, op(B) reduced to a pair of strides.
#pragma once

namespace orb::blas {

template <class T>
struct SmallProduct {
  int m, n, k;
  T alpha;
  const T* a;
  int lda;
  const T* b;
  int b_down, b_across;  // from op(B)(k, j) to (k + 1, j) and to (k, j + 1)
  T beta;
  T* c;
  int ldc;
};

}  // namespace orb::blas
