// The inner kernel of the products that run on tiles: a register of rows by up to six registers of sums, each
// a running sum in rising k. A complex column has two, of a(i, k) Re b(k, j) and of a(i, k) Im b(k, j), so
// that the inner loop has no shuffles; they are joined at the end:
//   Re = Re(first) - Im(second)   Im = Im(first) + Re(second)
#pragma once

#include "blas/kernel/level3/scalars.h"
#include "blas/kernel/level3/tile_pack.h"

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

// How the sums of a tile reach C: C = alpha sum + beta C. `rows` is an Int for a whole register.
template <class T>
struct Finish {
  using V = vector_of<T>;
  enum Old { ignored, kept, scaled };
  Join<T> join;
  Scale<T> alpha, beta;
  Old old;

  Finish(T product, T previous, bool conjugate_a, bool conjugate_b)
      : join(conjugate_a, conjugate_b), alpha(product), beta(previous), old(use_of(previous)) {}
  static Old use_of(T factor) { return is_zero(factor) ? ignored : is_one(factor) ? kept : scaled; }

  template <class R, class Rows>
  ORB_INLINE void operator()(const R* sum, T* c, Rows rows) const {
    V x = alpha * join(sum);
    if (old == kept) x += load_rows(c, rows);
    if (old == scaled) x += beta * load_rows(c, rows);
    store_rows(x, c, rows);
  }
};

// sum[s] += the terms of one strip; b holds the splatted columns.
template <int columns, class T, class R>
ORB_INLINE void add_terms(int depth, const T* a, real_of<T>* b, R (&sum)[columns * parts<T>]) {
  constexpr int sums = columns * parts<T>;
  const auto add = [&](auto k) ORB_INLINE_BODY {
    const R rows = R::load(reinterpret_cast<const real_of<T>*>(a) + k * R::lanes);
    unroll<sums>([&](auto s) ORB_INLINE_BODY { sum[s] += rows * R::load(b + (k * sums + s) * R::lanes); });
    if constexpr (sums % 2 == 0) keep_in_registers(sum);
  };
  constexpr int height = RowStrips<T>::height;
  for (; depth >= 4; depth -= 4, a += 4 * height, b += 4 * sums * R::lanes) unroll<4>(add);
  for (; depth > 0; --depth, a += height, b += sums * R::lanes) add(Int<0>{});
}
// The same for the first strip, which fills b from op(B) on its way.
template <int columns, class T, class R>
ORB_INLINE void add_terms_first(int depth, const T* a, const T* from, int down, int across, real_of<T>* b,
                                R (&sum)[columns * parts<T>]) {
  constexpr int height = RowStrips<T>::height;
  for (; depth > 0; --depth, a += height, from += down, b += columns * parts<T> * R::lanes) {
    const R rows = R::load(reinterpret_cast<const real_of<T>*>(a));
    unroll<columns>([&](auto q) ORB_INLINE_BODY {
      const auto* const x = reinterpret_cast<const real_of<T>*>(from + q * across);
      unroll<parts<T>>([&](auto part) ORB_INLINE_BODY {
        constexpr int s = q * parts<T> + part;
        const R factor = R::splat(x[part]);
        factor.store(b + s * R::lanes);
        sum[s] += rows * factor;
      });
    });
  }
}

// The panel's rows by `columns` columns of op(B) from (k, column) on. write(q, i, sum, rows) takes the sums
// of column q in the strip from row i on.
template <int columns, class T, class Write>
ORB_INLINE void multiply_strips(int rows, RowStrips<T> a, const Operand<T>& b, int k, int column,
                                real_of<T>* splats, Write write) {
  using R = vector_of<real_of<T>>;
  const auto strip = [&](auto first, int i, auto count) ORB_INLINE_BODY {
    R sum[columns * parts<T>];
    unroll<columns * parts<T>>([&](auto s) ORB_INLINE_BODY { sum[s] = R::zero(); });
    if constexpr (first)
      add_terms_first<columns>(a.depth, a.at(i, 0), b.at(k, column), b.down, b.across, splats, sum);
    else
      add_terms<columns>(a.depth, a.at(i, 0), splats, sum);
    unroll<columns>([&](auto q) ORB_INLINE_BODY { write(q, i, sum + q * parts<T>, count); });
  };
  if (rows < a.height) return strip(Int<true>{}, 0, rows);
  const Int<RowStrips<T>::height> whole;
  strip(Int<true>{}, 0, whole);
  int i = a.height;
  for (; rows - i >= a.height; i += a.height) strip(Int<false>{}, i, whole);
  if constexpr (RowStrips<T>::height > 1)
    if (i < rows) strip(Int<false>{}, i, rows - i);
}

// add(Int<count>{}) for a count of at most `most`, known at run time only.
template <int most, class Add>
ORB_INLINE void last_columns(int count, Add add) {
  unroll<most>([&](auto less) ORB_INLINE_BODY {
    if (count == less + 1) add(Int<less + 1>{});
  });
}

}  // namespace orb::blas::tiles
