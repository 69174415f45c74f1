// What the factorisations need of numbers beyond sums, products and quotients.
#pragma once

#include <cmath>

#include "blas/kernel/level2/divide.h"

namespace orb::blas {

// A real number as an element of type T.
template <class T>
ORB_INLINE T element(real_of<T> a) {
  if constexpr (Complex<T>)
    return {a, 0};
  else
    return a;
}

template <Real T>
ORB_INLINE T real_part(T a) {
  return a;
}
template <Complex C>
ORB_INLINE real_of<C> real_part(C a) {
  return a.re;
}

template <class T>
ORB_INLINE bool is_zero(T a) {
  if constexpr (Complex<T>)
    return a.re == 0 && a.im == 0;
  else
    return a == 0;
}

// |a|, or |re a| + |im a|: what pivots are compared by.
template <class T>
ORB_INLINE real_of<T> size_of(T a) {
  if constexpr (Complex<T>)
    return std::abs(a.re) + std::abs(a.im);
  else
    return std::abs(a);
}

}  // namespace orb::blas
