// The arguments of the small path, op(B) reduced to a pair of strides, and the two rules of how an element's
// sum meets C.
#pragma once

#include <algorithm>

#include "serv/kernel/loops.h"

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

// `rows` elements of a column of C in `count` registers, of which only the last may be short. Lanes beyond
// them repeat an element, so that they raise no exceptions of their own.
template <int count, class W, class T>
ORB_INLINE void load_rows(const T* c, int rows, W (&x)[count]) {
  unroll<count - 1>([&](auto r) ORB_INLINE_BODY { x[r] = W::loadu(c + r * W::lanes); });
  x[count - 1] = W::load_first(c + (count - 1) * W::lanes, rows - (count - 1) * W::lanes);
}
template <int count, class W, class T>
ORB_INLINE void store_rows(const W (&x)[count], T* c, int rows) {
  unroll<count - 1>([&](auto r) ORB_INLINE_BODY { x[r].storeu(c + r * W::lanes); });
  x[count - 1].store_first(c + (count - 1) * W::lanes, rows - (count - 1) * W::lanes);
}

// The sum starts from beta C, or 0, and takes the terms A(i, k) * (alpha op(B)(k, j)).
template <class T>
struct TakeTerms {
  T alpha, beta;
  template <int count, class W>
  ORB_INLINE void start(W (&sum)[count], const T* c, int rows) const {
    if (beta != 0) load_rows(c, rows, sum);
    unroll<count>([&](auto r) ORB_INLINE_BODY { sum[r] = beta == 0 ? W::zero() : W::splat(beta) * sum[r]; });
  }
  template <class W>
  ORB_INLINE W factor(W b) const {
    return W::splat(alpha) * b;
  }
  template <int count, class W>
  ORB_INLINE void finish(W (&sum)[count], T* c, int rows) const {
    store_rows(sum, c, rows);
  }
};

// The sum is a dot product: C = alpha * dot + beta C.
template <class T>
struct ScaleDot {
  T alpha, beta;
  template <int count, class W>
  ORB_INLINE void start(W (&sum)[count], const T*, int) const {
    unroll<count>([&](auto r) ORB_INLINE_BODY { sum[r] = W::zero(); });
  }
  template <class W>
  ORB_INLINE W factor(W b) const {
    return b;
  }
  template <int count, class W>
  ORB_INLINE void finish(W (&sum)[count], T* c, int rows) const {
    unroll<count>([&](auto r) ORB_INLINE_BODY { sum[r] = W::splat(alpha) * sum[r]; });
    if (beta != 0) {
      W old[count];
      load_rows(c, rows, old);
      unroll<count>([&](auto r) ORB_INLINE_BODY { sum[r] += W::splat(beta) * old[r]; });
    }
    store_rows(sum, c, rows);
  }
};

}  // namespace orb::blas
