// What the level-3 drivers ask of alpha and beta.
#pragma once

#include "serv/kernel/complex.h"

namespace orb::blas {

template <Real T>
ORB_INLINE bool is_zero(T x) {
  return x == 0;
}
template <Complex C>
ORB_INLINE bool is_zero(C x) {
  return x.re == 0 && x.im == 0;
}
template <Real T>
ORB_INLINE bool is_one(T x) {
  return x == 1;
}
template <Complex C>
ORB_INLINE bool is_one(C x) {
  return x.re == 1 && x.im == 0;
}

template <Real T>
ORB_INLINE T real(T x) {
  return x;
}
template <Complex C>
ORB_INLINE real_of<C> real(C x) {
  return x.re;
}

// A T, or a real number as a T.
template <class T>
ORB_INLINE T number(T x) {
  return x;
}
template <Complex C>
ORB_INLINE C number(real_of<C> x) {
  return {x, 0};
}

}  // namespace orb::blas
