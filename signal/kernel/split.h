// Complex numbers in registers with the parts apart, one register of real and one of imaginary parts: the
// butterflies of all transforms are written in these words, for vectors and for single numbers alike.
#pragma once

#include <type_traits>

#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::signal {

// Sign of the exponent: forward exp(-i...), inverse exp(+i...). Tables hold the forward twiddles.
enum class Direction { forward, inverse };
constexpr Direction forward = Direction::forward, inverse = Direction::inverse;

template <class V>
struct Split {
  V re, im;

  friend ORB_INLINE Split operator+(Split a, Split b) { return {a.re + b.re, a.im + b.im}; }
  friend ORB_INLINE Split operator-(Split a, Split b) { return {a.re - b.re, a.im - b.im}; }
  friend ORB_INLINE Split operator*(V s, Split a) { return {s * a.re, s * a.im}; }
};

// a + (-i) b forward, a + i b inverse; rotate_sub: a - (...).
template <Direction d, class V>
ORB_INLINE Split<V> rotate_add(Split<V> a, Split<V> b) {
  if constexpr (d == forward)
    return {a.re + b.im, a.im - b.re};
  else
    return {a.re - b.im, a.im + b.re};
}
template <Direction d, class V>
ORB_INLINE Split<V> rotate_sub(Split<V> a, Split<V> b) {
  return rotate_add < d == forward ? inverse : forward > (a, b);
}

// x times the twiddle w forward, times its conjugate inverse. w.im of a table is -sin.
template <Direction d, class V>
ORB_INLINE Split<V> twiddled(Split<V> x, Split<V> w) {
  if constexpr (d == forward)
    return {x.re * w.re - x.im * w.im, x.im * w.re + x.re * w.im};
  else
    return {x.re * w.re + x.im * w.im, x.im * w.re - x.re * w.im};
}

// Where numbers stand. A view loads and stores the V::lanes numbers from number x on; view + x begins at x.

// In blocks of one register of real parts and one of imaginary parts, on 16-byte boundaries: the work format.
// x is a multiple of the lanes.
template <class T>
struct Blocked {
  using V = vector_of<std::remove_const_t<T>>;
  T* p;
  ORB_INLINE Split<V> load(int x) const { return {V::load(p + 2 * x), V::load(p + 2 * x + V::lanes)}; }
  ORB_INLINE void store(int x, Split<V> a) const { a.re.store(p + 2 * x), a.im.store(p + 2 * x + V::lanes); }
  friend ORB_INLINE Blocked operator+(Blocked a, int x) { return {a.p + 2 * x}; }
};

// One number, or a register of them with their parts side by side: the words of simd_complex.h.
template <class T>
struct ComplexOf;
template <>
struct ComplexOf<float> {
  using type = c32;
};
template <>
struct ComplexOf<double> {
  using type = c64;
};
template <class T>
using complex_of = typename ComplexOf<T>::type;

// As users have them, at any address: parts alternating ...
template <class T>
struct Interleaved {
  using V = vector_of<std::remove_const_t<T>>;
  using C = complex_of<std::remove_const_t<T>>;
  T* p;
  ORB_INLINE Split<V> load(int x) const {
    const V a = V::loadu(p + 2 * x), b = V::loadu(p + 2 * x + V::lanes);
    return {V::even(a, b), V::odd(a, b)};
  }
  ORB_INLINE void store(int x, Split<V> a) const {
    V::low_halves(a.re, a.im).storeu(p + 2 * x);
    V::high_halves(a.re, a.im).storeu(p + 2 * x + V::lanes);
  }
  // Z is the full register of whole numbers or its one-number twin.
  template <class Z>
  ORB_INLINE Z numbers(int x) const {
    return Z::loadu(reinterpret_cast<const C*>(p) + x);
  }
  template <class Z>
  ORB_INLINE void put(int x, Z a) const {
    a.storeu(reinterpret_cast<C*>(p) + x);
  }
  friend ORB_INLINE Interleaved operator+(Interleaved a, int x) { return {a.p + 2 * x}; }
};

// ... or in two arrays.
template <class T>
struct Apart {
  using V = vector_of<std::remove_const_t<T>>;
  using C = complex_of<std::remove_const_t<T>>;
  T *re, *im;
  ORB_INLINE Split<V> load(int x) const { return {V::loadu(re + x), V::loadu(im + x)}; }
  ORB_INLINE void store(int x, Split<V> a) const { a.re.storeu(re + x), a.im.storeu(im + x); }
  template <class Z>
  ORB_INLINE Z numbers(int x) const {
    if constexpr (Z::lanes == 1)
      return {V::pair_at(re + x, im + x)};
    else
      return {V::low_halves(V::load_pair(re + x), V::load_pair(im + x))};
  }
  template <class Z>
  ORB_INLINE void put(int x, Z a) const {
    static_assert(Z::lanes == 1);
    re[x] = a.v.first(), im[x] = swap_parts(a.v).first();
  }
  friend ORB_INLINE Apart operator+(Apart a, int x) { return {a.re + x, a.im + x}; }
};

// Stores what `view` stores, times a factor.
template <class View>
struct Scaled {
  using V = typename View::V;
  View view;
  typename V::scalar factor;
  ORB_INLINE void store(int x, Split<V> a) const { view.store(x, V::splat(factor) * a); }
  template <class Z>
  ORB_INLINE void put(int x, Z a) const {
    view.put(x, Z::splat(factor) * a);
  }
};

// -i times z forward, i times z inverse, of every number of a register.
template <Direction d, class Z>
ORB_INLINE Z rotated(Z z) {
  const auto swapped = swap_parts(z.v);
  return {d == forward ? swapped.flip_odd() : swapped.flip_even()};
}

}  // namespace orb::signal
