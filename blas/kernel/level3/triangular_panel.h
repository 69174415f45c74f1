// Unblocked triangular systems and products: a triangle of at most 64 unknowns, packed, against strips of
// right-hand sides that are copied into a panel. Both sides of both problems run on the same few lines, since
// only the panel knows how B lies.
//
//   panel     unknown 0: 8 registers of right-hand sides | unknown 1: ...            x = panel + s * width
//   triangle  quads of unknowns s = 4q ... 4q + 3: their coefficients of unknown r = 0, of r = 1, ... 4q + 3
//
// Unknowns count in the order in which a system finds them, so that the triangle is always a lower one; those
// that fill up the last quad are zero. Every sum takes its terms one by one: in a system as they are found,
// in a product the diagonal first, then the terms of the quad, then the others in rising order. A panel lies
// on the stack, at most 80 KiB of it.
#pragma once

#include "blas/kernel/level3/triangular_pivot.h"
#include "blas/kernel/level3/triangular_views.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas::triangular {

inline constexpr int quad = 4, strip_registers = 8;

// A coefficient as the loops load it. A single is kept in all lanes: to spread it in the loop would take the
// ports of the additions.
template <class T>
struct Coefficient {
  T value;
  ORB_INLINE auto spread() const { return vector_of<T>::splat(value); }
};
template <class T>
requires __is_same(real_of<T>, float) struct Coefficient<T> {
  using Spread = decltype(vector_of<T>::splat(T{}));
  Spread value;
  ORB_INLINE Coefficient(T x) : value(vector_of<T>::splat(x)) {}
  Coefficient() = default;
  ORB_INLINE Spread spread() const { return value; }
};

// `Pivot` is what becomes of the diagonal: made from an element, it turns the sum of an unknown into its
// value.
template <class T, class Pivot>
class Panel {
  using V = vector_of<T>;
  static constexpr int width = strip_registers * V::lanes;

 public:
  // Coefficients off the diagonal are multiplied by `factor`. A system leaves out the pivots of a unit
  // triangle.
  template <class F, class MakePivot>
  Panel(const Triangle<T>& t, F factor, MakePivot pivot) : order_(t.order), unit_(t.unit) {
    for (int s = 0; s < order_; ++s) {
      for (int r = 0; r < s; ++r) coefficient(s, r) = {factor * t.at(s, r)};
      pivots_[s] = pivot(unit_ ? number<T>(1) : t.at(s, s));
    }
    for (int s = order_; s % quad; ++s) {
      for (int r = 0; r < s; ++r) coefficient(s, r) = {T{}};
      pivots_[s] = pivot(number<T>(1));
      for (int l = 0; l < width; ++l) panel_[s * width + l] = T{};
    }
  }

  // The terms of all earlier unknowns first, then the quad itself for all right-hand sides: one behind the
  // other, each register would wait for its own chain of pivots.
  void solve(const Unknowns<T>& b) {
    for_strips(b, [this](int registers) {
      for (int q = 0; q < order_; q += quad) {
        for (int i = 0; i < registers; ++i) reduce_quad(q, panel_ + i * V::lanes);
        for (int i = 0; i < registers; ++i) solve_quad(q, panel_ + i * V::lanes);
      }
    });
  }
  void multiply(const Unknowns<T>& b) {
    for_strips(b, [this](int registers) {
      for (int q = (order_ - 1) & ~(quad - 1); q >= 0; q -= quad)
        for (int i = 0; i < registers; ++i) multiply_quad(q, panel_ + i * V::lanes);
    });
  }

 private:
  static constexpr int coefficients_before(int q) { return q * (q + quad) / 2; }
  Coefficient<T>& coefficient(int s, int r) {
    return coefficients_[coefficients_before(s & -quad) + r * quad + s % quad];
  }

  // sum += the terms of the first `terms` unknowns
  static ORB_INLINE void add_terms(V (&sum)[quad], int terms, const Coefficient<T>* c, const T* x) {
    for (int r = 0; r < terms; r += quad)
      unroll<quad>([&](auto k) ORB_INLINE_BODY {
        const V xr = V::load(x + (r + k) * width);
        const Coefficient<T>* const cr = c + (r + k) * quad;
        unroll<quad>([&](auto s) ORB_INLINE_BODY { sum[s] += cr[s].spread() * xr; });
        keep_in_registers(sum);
      });
  }

  ORB_INLINE void reduce_quad(int q, T* x) {
    T* const own = x + q * width;
    V sum[quad];
    unroll<quad>([&](auto s) ORB_INLINE_BODY { sum[s] = V::load(own + s * width); });
    add_terms(sum, q, coefficients_ + coefficients_before(q), x);
    unroll<quad>([&](auto s) ORB_INLINE_BODY { sum[s].store(own + s * width); });
  }

  ORB_INLINE void solve_quad(int q, T* x) {
    const Coefficient<T>* const triangle = coefficients_ + coefficients_before(q) + q * quad;
    T* const own = x + q * width;
    V sum[quad];
    unroll<quad>([&](auto s) ORB_INLINE_BODY {
      sum[s] = V::load(own + s * width);
      unroll<s>([&](auto r) ORB_INLINE_BODY { sum[s] += triangle[r * quad + s].spread() * sum[r]; });
      if (!unit_) sum[s] = pivots_[q + s].apply(sum[s]);
      sum[s].store(own + s * width);
    });
  }

  ORB_INLINE void multiply_quad(int q, T* x) {
    const Coefficient<T>* const c = coefficients_ + coefficients_before(q);
    const Coefficient<T>* const triangle = c + q * quad;
    T* const own = x + q * width;
    V sum[quad];
    unroll<quad>([&](auto s) ORB_INLINE_BODY {
      const V xs = V::load(own + s * width);
      sum[s] = pivots_[q + s].apply(xs);
      unroll<s>([&](auto r) ORB_INLINE_BODY {
        sum[s] += triangle[r * quad + s].spread() * V::load(own + r * width);
      });
    });
    add_terms(sum, q, c, x);
    unroll<quad>([&](auto s) ORB_INLINE_BODY { sum[s].store(own + s * width); });
  }

  template <class Work>
  void for_strips(const Unknowns<T>& b, Work work) {
    for (int l = 0; l < b.count; l += width) {
      const int lanes = b.count - l < width ? b.count - l : width;
      const int registers = (lanes + V::lanes - 1) / V::lanes;
      for (int s = 0; s < order_; ++s) {
        fill(panel_ + s * width, &b.at(s, l), b.l_step, lanes);
        for (int i = lanes; i < registers * V::lanes; ++i) panel_[s * width + i] = T{};
      }
      work(registers);
      for (int s = 0; s < order_; ++s) empty(panel_ + s * width, &b.at(s, l), b.l_step, lanes);
    }
  }

  // body(i) for the registers that lie wholly in the strip, in straight code: a compiler that sees a loop
  // calls memcpy for a few registers. Returns the first lane behind them.
  template <class Body>
  static ORB_INLINE int whole_registers(int lanes, Body body) {
    unroll<strip_registers>([&](auto k) ORB_INLINE_BODY {
      if ((k + 1) * V::lanes <= lanes) body(k * V::lanes);
    });
    return lanes - lanes % V::lanes;
  }
  static ORB_INLINE void fill(T* line, const T* from, int step, int lanes) {
    int i = step == 1
                ? whole_registers(lanes, [=](int k) ORB_INLINE_BODY { V::loadu(from + k).store(line + k); })
                : whole_registers(lanes, [=](int k) ORB_INLINE_BODY {
                    V::gather(from + k * step, step).store(line + k);
                  });
    for (; i < lanes; ++i) line[i] = from[i * step];
  }
  static ORB_INLINE void empty(const T* line, T* to, int step, int lanes) {
    int i = step == 1
                ? whole_registers(lanes, [=](int k) ORB_INLINE_BODY { V::load(line + k).storeu(to + k); })
                : 0;
    for (; i < lanes; ++i) to[i * step] = line[i];
  }

  int order_;
  bool unit_;
  Pivot pivots_[most_unknowns];
  alignas(16) Coefficient<T> coefficients_[coefficients_before(most_unknowns)];
  alignas(16) T panel_[most_unknowns * width];
};

}  // namespace orb::blas::triangular
