// The walk of the routines that only move elements between two vectors, place by place.
#pragma once

#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {

// A register that goes in and out at any address.
template <class V>
struct Unaligned : V {
  template <class T>
  static ORB_INLINE Unaligned load(const T* p) {
    return {V::loadu(p)};
  }
  template <class T>
  ORB_INLINE void store(T* p) const {
    this->storeu(p);
  }
};

// Unit strides, `widest` registers a round.
template <class V, int widest, class X, class Y, class Move>
ORB_INLINE void move_blocks(int n, X* x, Y* y, Move move) {
  constexpr int w = V::lanes;
  int i = ladder<widest * w, widest / 2 * w, widest / 4 * w, w>(0, n, [=](auto width, int at) {
    unroll<width / w>([=](auto k) { move.template operator()<V>(x + at + k * w, y + at + k * w); });
  });
  for (; i < n; ++i) move.template operator()<one_of<Y>>(x + i, y + i);
}

template <class X, class Y, class Move>
ORB_INLINE void move_strided(int n, X* x, int incx, Y* y, int incy, Move move) {
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  int i = 0;
  for (; n - i >= 4; i += 4) {
    prefetch_once(x, 4, incx);
    prefetch_once(y, 4, incy);
    unroll<4>([=](auto k) { move.template operator()<Unaligned<one_of<Y>>>(x + k * incx, y + k * incy); });
    x += 4 * incx, y += 4 * incy;
  }
  for (; i < n; ++i, x += incx, y += incy) move.template operator()<Unaligned<one_of<Y>>>(x, y);
}

// move.template operator()<V>(x, y) for V::lanes elements at x and y, to be reached by V::load and V::store.
template <class X, class Y, class Move>
ORB_INLINE void pairwise(int n, X* x, int incx, Y* y, int incy, Move move) {
  using V = vector_of<Y>;
  if (n <= 0) return;
  if (incx != 1 || incy != 1) return move_strided(n, x, incx, y, incy, move);
  if constexpr (Complex<Y>)
    pairwise(2 * n, &x->re, 1, &y->re, 1, move);
  else if (is_aligned(x) && is_aligned(y))
    move_blocks<V, 4>(n, x, y, move);
  else
    move_blocks<Unaligned<V>, 8>(n, x, y, move);
}

}  // namespace orb::blas
