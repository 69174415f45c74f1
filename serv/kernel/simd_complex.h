// Complex numbers in registers, under the words of simd.h, their parts interleaved as in memory: the full
// register, which holds one number of doubles or two of singles, and its one-number twin.
#pragma once

#include "serv/kernel/complex.h"
#include "serv/kernel/simd.h"

namespace orb {

// The real and the imaginary part of each number exchanged.
ORB_INLINE f64x2 swap_parts(f64x2 a) { return a.swap_halves(); }
ORB_INLINE f32x4 swap_parts(f32x4 a) { return a.swap_pairs(); }

// A register of numbers `step` numbers apart.
ORB_INLINE f64x2 gather_numbers(const c64* p, int) { return f64x2::loadu(&p->re); }
ORB_INLINE f32x4 gather_numbers(const c32* p, int step) { return f32x4::load_pairs(&p->re, &p[step].re); }

// The numbers of a register added, into the first two lanes.
ORB_INLINE f64x2 sum_pairs(f64x2 a) { return a; }
ORB_INLINE f32x4 sum_pairs(f32x4 a) { return a.sum_pairs(); }

// The factor of every number of a register, or of each its own. A product is formed as in complex.h.
template <class V>
struct Factor {
  using R = typename V::Register;
  R re, im;
  friend ORB_INLINE V operator*(Factor a, V b) { return {R::addsub(a.re * b.v, a.im * swap_parts(b.v))}; }
};

// The same for a real factor.
template <class V>
struct RealFactor {
  typename V::Register re;
  friend ORB_INLINE V operator*(RealFactor a, V b) { return {a.re * b.v}; }
};

template <class V>
ORB_INLINE Factor<V> conj(Factor<V> a) {
  return {a.re, -a.im};
}
template <class V>
ORB_INLINE RealFactor<V> conj(RealFactor<V> a) {
  return a;
}
ORB_INLINE f64x2 conj(f64x2 a) { return a; }
ORB_INLINE f32x4 conj(f32x4 a) { return a; }
template <class T>
ORB_INLINE Lane<T> conj(Lane<T> a) {
  return a;
}

template <Complex C>
struct ComplexVector {
  using Register = vector_of<real_of<C>>;
  static constexpr int lanes = Register::lanes / 2;
  Register v;

  static ORB_INLINE Factor<ComplexVector> splat(C a) {
    return {Register::splat(a.re), Register::splat(a.im)};
  }
  static ORB_INLINE ComplexVector zero() { return {Register::zero()}; }
  static ORB_INLINE RealFactor<ComplexVector> splat(real_of<C> a) { return {Register::splat(a)}; }
  static ORB_INLINE Factor<ComplexVector> each(const C* p) {
    const Register numbers = Register::loadu(&p->re);
    return {numbers.dup_even(), numbers.dup_odd()};
  }
  static ORB_INLINE RealFactor<ComplexVector> each(const real_of<C>* p) { return {Register::twice(p)}; }
  static ORB_INLINE ComplexVector load(const C* p) { return {Register::load(&p->re)}; }
  static ORB_INLINE ComplexVector loadu(const C* p) { return {Register::loadu(&p->re)}; }
  static ORB_INLINE ComplexVector gather(const C* p, int step) { return {gather_numbers(p, step)}; }
  ORB_INLINE void store(C* p) const { v.store(&p->re); }
  ORB_INLINE void storeu(C* p) const { v.storeu(&p->re); }
  ORB_INLINE C sum() const {
    const Register numbers = sum_pairs(v);
    return {numbers.first(), swap_parts(numbers).first()};
  }

  friend ORB_INLINE ComplexVector operator+(ComplexVector a, ComplexVector b) { return {a.v + b.v}; }
  friend ORB_INLINE ComplexVector operator-(ComplexVector a, ComplexVector b) { return {a.v - b.v}; }
  ORB_INLINE ComplexVector& operator+=(ComplexVector b) { return *this = *this + b; }
};

// Lanes behind the number are zero in operands and factors, so they raise no floating-point flag.
template <Complex C>
struct ComplexLane {
  using Register = vector_of<real_of<C>>;
  static constexpr int lanes = 1;
  Register v;

  static ORB_INLINE Factor<ComplexLane> splat(C a) {
    return {Register::pair(a.re, a.re), Register::pair(a.im, a.im)};
  }
  static ORB_INLINE ComplexLane zero() { return {Register::zero()}; }
  static ORB_INLINE RealFactor<ComplexLane> splat(real_of<C> a) { return {Register::pair(a, a)}; }
  static ORB_INLINE Factor<ComplexLane> each(const C* p) { return splat(*p); }
  static ORB_INLINE RealFactor<ComplexLane> each(const real_of<C>* p) { return splat(*p); }
  static ORB_INLINE ComplexLane load(const C* p) { return {Register::load_pair(&p->re)}; }
  static ORB_INLINE ComplexLane loadu(const C* p) { return load(p); }
  ORB_INLINE void store(C* p) const { v.store_pair(&p->re); }
  ORB_INLINE void storeu(C* p) const { store(p); }

  friend ORB_INLINE ComplexLane operator+(ComplexLane a, ComplexLane b) { return {a.v + b.v}; }
  friend ORB_INLINE ComplexLane operator-(ComplexLane a, ComplexLane b) { return {a.v - b.v}; }
  ORB_INLINE ComplexLane& operator+=(ComplexLane b) { return *this = *this + b; }
};

template <Complex C>
ORB_INLINE void keep_in_registers(ComplexVector<C> (&sum)[4]) {
  asm volatile("" : "+x"(sum[0].v.v), "+x"(sum[1].v.v), "+x"(sum[2].v.v), "+x"(sum[3].v.v));
}

template <Complex C>
struct VectorOf<C> {
  using type = ComplexVector<C>;
};
template <Complex C>
struct OneOf<C> {
  using type = ComplexLane<C>;
};

}  // namespace orb
