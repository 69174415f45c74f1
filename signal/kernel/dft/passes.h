// The passes of a mixed-radix transform that sorts itself (Stockham), forward, between arrays that do not
// overlap. Inverse transforms exchange real and imaginary parts on the way in and on the way out.
//
// Before a pass with factor p, `done` is the product of the factors so far and the array holds done rows of
// p * count numbers: row k has number k of the transforms of the subsequences. A pass takes number i of the
// count-long pieces r of row k, times exp(-2 pi i k r / (done p)), and gives number i of the rows k + done t.
// Real input keeps rows 0 to done/2 of the odd number of rows; the rest are their conjugates.
// Source: C. Van Loan, Computational Frameworks for the Fast Fourier Transform, SIAM 1992, sections 1.7, 2.3.
#pragma once

#include "signal/kernel/dft/butterflies.h"

namespace orb::signal {

// Views of the passes, by the register that they move: two arrays at any address (the blocks of split.h where
// all counts are multiples of a register's lanes) ...
template <class V_>
struct Rows {
  using V = V_;
  using T = typename V::scalar;
  T *re, *im;
  ORB_INLINE Split<V> load(int x) const { return {V::loadu(re + x), V::loadu(im + x)}; }
  ORB_INLINE void store(int x, Split<V> a) const { a.re.storeu(re + x), a.im.storeu(im + x); }
  // Number x of each of V::lanes pieces that are `step` numbers long.
  ORB_INLINE Split<V> gather(int x, int step) const {
    if constexpr (V::lanes == 1)
      return load(x);
    else
      return {V::gather(re + x, step), V::gather(im + x, step)};
  }
};
// ... or parts alternating; `swapped` exchanges them.
template <class V_, bool swapped>
struct Pairs {
  using V = V_;
  using T = typename V::scalar;
  T* p;
  ORB_INLINE Split<V> load(int x) const {
    Split<V> a;
    if constexpr (V::lanes == 1)
      a = {{p[2 * x]}, {p[2 * x + 1]}};
    else
      a = Interleaved<T>{p}.load(x);
    return swapped ? Split<V>{a.im, a.re} : a;
  }
  ORB_INLINE void store(int x, Split<V> a) const {
    if constexpr (swapped) a = {a.im, a.re};
    if constexpr (V::lanes == 1)
      p[2 * x] = a.re.v, p[2 * x + 1] = a.im.v;
    else
      Interleaved<T>{p}.store(x, a);
  }
};
// Real numbers.
template <class V_>
struct Reals {
  using V = V_;
  using T = typename V::scalar;
  const T* p;
  ORB_INLINE Split<V> load(int x) const { return {V::loadu(p + x), V::zero()}; }
};

// Calls body(i) for registers from 0 on; the last may overlap the one before. n is a register at least.
template <class V, class Body>
ORB_INLINE void for_registers(int n, Body body) {
  int i = 0;
  for (; i + V::lanes <= n; i += V::lanes) body(i);
  if (i < n) body(n - V::lanes);
}

template <class V, class T>
ORB_INLINE Split<V> twiddle_at(const T* w) {
  return {V::load(w), V::load(w + V::lanes)};
}

// The numbers of a butterfly and how they are transformed: a fixed count, or any odd one with its table.
template <int p_>
struct FixedFactor {
  static constexpr int p = p_;
  template <class Number>
  struct Numbers {
    Number x[p];
  };
  template <class Number>
  ORB_INLINE void transform(Numbers<Number>& numbers) const {
    butterfly(numbers.x);
  }
  template <class Body>
  ORB_INLINE void each(Body body) const {
    unroll<p>([&](auto r) ORB_INLINE_BODY { body(r); });
  }
};
template <class T>
struct AnyFactor {
  int p;
  const T* table;
  template <class Number>
  struct Numbers {
    Number x[most_factor];
  };
  template <class Number>
  ORB_INLINE void transform(Numbers<Number>& numbers) const {
    any_butterfly(numbers.x, p, table);
  }
  template <class Body>
  ORB_INLINE void each(Body body) const {
    for (int r = 0; r < p; ++r) body(r);
  }
};

// Where row k + done * t of a result goes; a real transform's rows beyond the middle go, conjugated, to their
// partner's place.
struct Target {
  int row;
  bool conjugate;
};
template <bool real>
ORB_INLINE Target target(int k, int done, int t, int p) {
  const int row = k + done * t;
  if (real && 2 * t > p) return {done * p - row, true};
  return {row, false};
}
template <class V>
ORB_INLINE Split<V> conjugated(Split<V> a) {
  return {a.re, V::zero() - a.im};
}

// A pass but the last. `twiddles`: for each k, for r from 1 to p - 1, a register of cosines and one of
// negated sines; null in the first pass, which has done = 1.
template <bool real, bool first, class Factor, class In, class Out, class T>
ORB_INLINE void factor_pass(Factor factor, In in, Out out, int done, int count, const T* twiddles) {
  using V = typename In::V;
  const int p = factor.p, rows = real ? done / 2 + 1 : done;
  const int step = 2 * V::lanes;
  for (int k = 0; k < rows; ++k) {
    const T* const w = first ? nullptr : twiddles + k * (p - 1) * step;
    for_registers<V>(count, [&](int i) ORB_INLINE_BODY {
      typename Factor::template Numbers<Split<V>> numbers;
      factor.each([&](auto r) ORB_INLINE_BODY {
        const auto x = in.load((k * p + r) * count + i);
        numbers.x[r] = first || r == 0 ? x : twiddled<forward>(x, twiddle_at<V>(w + (r - 1) * step));
      });
      factor.transform(numbers);
      factor.each([&](auto t) ORB_INLINE_BODY {
        const Target to = target<real>(k, done, t, p);
        out.store(to.row * count + i, to.conjugate ? conjugated(numbers.x[t]) : numbers.x[t]);
      });
    });
  }
}

// x[r] takes number r of each of V::lanes pieces of p numbers from `at` on.
template <class Factor, class In, class Number>
ORB_INLINE void load_pieces(Factor factor, In in, int at, Number* x) {
  factor.each([&](auto r) ORB_INLINE_BODY { x[r] = in.gather(at + r, factor.p); });
}
// Pieces in blocks are transposed in registers.
ORB_INLINE void load_pieces(FixedFactor<4>, Blocked<float> in, int at, Split<f32x4>* x) {
  f32x4 re[4], im[4];
  unroll<4>([&](auto r) ORB_INLINE_BODY {
    const auto a = in.load(at + 4 * r);
    re[r] = a.re, im[r] = a.im;
  });
  f32x4::transpose(re);
  f32x4::transpose(im);
  unroll<4>([&](auto r) ORB_INLINE_BODY { x[r] = {re[r], im[r]}; });
}
template <int p>
ORB_INLINE void load_pieces(FixedFactor<p>, Blocked<double> in, int at, Split<f64x2>* x) {
  unroll<p / 2>([&](auto h) ORB_INLINE_BODY {
    const auto a = in.load(at + 2 * h), b = in.load(at + p + 2 * h);
    x[2 * h] = {f64x2::even(a.re, b.re), f64x2::even(a.im, b.im)};
    x[2 * h + 1] = {f64x2::odd(a.re, b.re), f64x2::odd(a.im, b.im)};
  });
}

// The last pass: count is 1, and registers run over k. `twiddles`: for each register of k (the last may
// overlap the one before), for r from 1 to p - 1, cosines and negated sines.
template <bool real, class Factor, class In, class Out, class T>
ORB_INLINE void last_pass(Factor factor, In in, Out out, int done, const T* w) {
  using V = typename In::V;
  const int p = factor.p, rows = real ? done / 2 + 1 : done;
  const int step = 2 * V::lanes;
  for_registers<V>(rows, [&](int k) ORB_INLINE_BODY {
    typename Factor::template Numbers<Split<V>> numbers;
    load_pieces(factor, in, k * p, numbers.x);
    factor.each([&](auto r) ORB_INLINE_BODY {
      if (r > 0) numbers.x[r] = twiddled<forward>(numbers.x[r], twiddle_at<V>(w + (r - 1) * step));
    });
    w += (p - 1) * step;
    factor.transform(numbers);
    factor.each([&](auto t) ORB_INLINE_BODY {
      const Target to = target<real>(k, done, t, p);
      if (to.conjugate) {  // rising k, falling rows
        const auto a = conjugated(numbers.x[t]);
        out.store(to.row - V::lanes + 1, Split<V>{a.re.reversed(), a.im.reversed()});
      } else {
        out.store(to.row, numbers.x[t]);
      }
    });
  });
}

}  // namespace orb::signal
