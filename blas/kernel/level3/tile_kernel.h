// The inner kernel of the products that run on tiles: a register of rows by up to six registers of sums, each
// a running sum in rising k. A complex column has two, of a(i, k) Re b(k, j) and of a(i, k) Im b(k, j), so
// that the inner loop has no shuffles; they are joined at the end:
//   Re = Re(first) - Im(second)   Im = Im(first) + Re(second)
#pragma once

#include "blas/kernel/level3/scalars.h"
#include "blas/kernel/level3/tile_panels.h"

namespace orb::blas::tiles {

// A factor of whole registers. A real one takes no products with its imaginary part, which would make NaN of
// infinity.
template <class T>
struct Scale {
  using V = vector_of<T>;
  V factor;
  explicit Scale(T x) : factor(V::splat(x)) {}
  ORB_INLINE V operator*(V x) const { return factor * x; }
};
template <Complex C>
struct Scale<C> {
  using V = vector_of<C>;
  Factor<V> factor;
  bool real;
  explicit Scale(C x) : factor(V::splat(x)), real(x.im == 0) {}
  ORB_INLINE V operator*(V x) const { return real ? V{factor.re * x.v} : factor * x; }
};

// What conjugation makes of a complex column's two sums, and their joining.
template <class T>
struct Join {
  using V = vector_of<T>;
  Join(bool, bool) {}
  ORB_INLINE V operator()(const V* sum) const { return *sum; }
};
template <Complex C>
struct Join<C> {
  using V = vector_of<C>;
  using R = typename V::Register;
  R first, second;
  Join(bool conjugate_a, bool conjugate_b) {
    const real_of<C> a = conjugate_a ? -1 : 1, b = conjugate_b ? -1 : 1;
    const C signs[2][2] = {{{1, a}, {1, a}}, {{b, a * b}, {b, a * b}}};
    first = V::loadu(signs[0]).v, second = V::loadu(signs[1]).v;
  }
  ORB_INLINE V operator()(const R* sum) const {
    return {R::addsub(sum[0] * first, swap_parts(sum[1] * second))};
  }
};

// The first `rows` numbers of a register at c; the others are anything.
template <Real T>
ORB_INLINE vector_of<T> load_rows(const T* c, int rows) {
  return vector_of<T>::load_first(c, rows);
}
template <Complex C>
ORB_INLINE vector_of<C> load_rows(const C* c, int rows) {
  using V = vector_of<C>;
  return rows == V::lanes ? V::loadu(c) : V{one_of<C>::loadu(c).v};
}
template <Real T>
ORB_INLINE void store_rows(vector_of<T> x, T* c, int rows) {
  x.store_first(c, rows);
}
template <Complex C>
ORB_INLINE void store_rows(vector_of<C> x, C* c, int rows) {
  if (rows == vector_of<C>::lanes)
    x.storeu(c);
  else
    one_of<C>{x.v}.storeu(c);
}

// How the sums of a tile reach C: C = alpha sum + beta C.
template <class T>
struct Finish {
  using V = vector_of<T>;
  enum Old { ignored, kept, scaled };
  Join<T> join;
  Scale<T> alpha, beta;
  Old old;

  Finish(T alpha, T beta, bool conjugate_a, bool conjugate_b)
      : join(conjugate_a, conjugate_b),
        alpha(alpha),
        beta(beta),
        old(is_zero(beta)  ? ignored
            : is_one(beta) ? kept
                           : scaled) {}

  template <class R>
  ORB_INLINE void operator()(const R* sum, T* c, int rows) const {
    V x = alpha * join(sum);
    if (rows > V::lanes) rows = V::lanes;
    if (old == kept) x += load_rows(c, rows);
    if (old == scaled) x += beta * load_rows(c, rows);
    store_rows(x, c, rows);
  }
};

template <class R, int sums, class T>
ORB_INLINE void add_terms(int depth, const T* a, const T* b, R (&sum)[sums]) {
  const auto add = [&](auto k) ORB_INLINE_BODY {
    const R rows = R::load(a + k * R::lanes);
    unroll<sums>([&](auto s) ORB_INLINE_BODY { sum[s] += rows * R::load(b + (k * sums + s) * R::lanes); });
    if constexpr (sums % 2 == 0) keep_in_registers(sum);
  };
  for (; depth >= 4; depth -= 4, a += 4 * R::lanes, b += 4 * sums * R::lanes) unroll<4>(add);
  for (; depth > 0; --depth, a += R::lanes, b += sums * R::lanes) add(Int<0>{});
}

// All rows of the panel by the splatted columns.
template <class T, int columns>
__attribute__((noinline)) void multiply_strips(int rows, RowStrips<T> a, SplatColumns<T, columns> b, T* c,
                                               int ldc, const Finish<T>& finish) {
  using R = vector_of<real_of<T>>;
  constexpr int sums = columns * parts<T>;
  for (int i = 0; i < rows; i += a.height) {
    R sum[sums];
    unroll<sums>([&](auto s) ORB_INLINE_BODY { sum[s] = R::zero(); });
    add_terms(a.depth, reinterpret_cast<const real_of<T>*>(a.at(i, 0)), b.p, sum);
    unroll<columns>([&](auto q) ORB_INLINE_BODY { finish(sum + q * parts<T>, c + i + q * ldc, rows - i); });
  }
}

}  // namespace orb::blas::tiles
