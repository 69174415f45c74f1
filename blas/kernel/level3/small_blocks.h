// Register blocks of the small path: products with an A whose columns are contiguous. Each element of C is
// one sum in rising k; a rule says what the sum starts from and how it reaches C.
#pragma once

#include <type_traits>

#include "blas/kernel/level3/small_product.h"
#include "serv/kernel/loops.h"

namespace orb::blas {

// `height` rows of one column in registers, the widest register first.
template <class T, int height>
struct Column {
  using V = vector_of<T>;
  using Head = std::conditional_t<(height >= V::lanes), V, std::conditional_t<(height >= 2), f32x2, Lane<T>>>;
  static constexpr int head = Head::lanes;
  using Rest = Column<T, height - head>;
  static constexpr int registers = 1 + Rest::registers;
  Head first;
  Rest rest;

  static ORB_INLINE Column zero() { return {Head::zero(), Rest::zero()}; }
  static ORB_INLINE Column loadu(const T* p) { return {Head::loadu(p), Rest::loadu(p + head)}; }
  ORB_INLINE void storeu(T* p) const { first.storeu(p), rest.storeu(p + head); }
  ORB_INLINE Column times(T factor) const { return {Head::splat(factor) * first, rest.times(factor)}; }
  ORB_INLINE Column plus(Column x) const { return {first + x.first, rest.plus(x.rest)}; }
  // += x * factor, all lanes of `factor` being equal
  template <class Factor>
  ORB_INLINE void add_product(Column x, Factor factor) {
    if constexpr (std::is_same_v<Head, Lane<T>>)
      first += x.first * Lane<T>{factor.first()};
    else
      first += x.first * Head{factor.v};
    rest.add_product(x.rest, factor);
  }
};
template <class T>
struct Column<T, 0> {
  static constexpr int registers = 0;
  static ORB_INLINE Column zero() { return {}; }
  static ORB_INLINE Column loadu(const T*) { return {}; }
  ORB_INLINE void storeu(T*) const {}
  ORB_INLINE Column times(T) const { return {}; }
  ORB_INLINE Column plus(Column) const { return {}; }
  template <class Factor>
  ORB_INLINE void add_product(Column, Factor) {}
};

// C is scaled or cleared, and then takes the terms A(i, k) * (alpha op(B)(k, j)).
template <class T>
struct TakeTerms {
  T alpha, beta;
  template <class Column>
  ORB_INLINE Column start(const T* c) const {
    return beta == 0 ? Column::zero() : Column::loadu(c).times(beta);
  }
  template <class V>
  ORB_INLINE V factor(T b) const {
    return V::splat(alpha) * V::splat(b);
  }
  template <class Column>
  ORB_INLINE void finish(Column sum, T* c) const {
    sum.storeu(c);
  }
};

// C = alpha * dot + beta C.
template <class T>
struct ScaleDot {
  T alpha, beta;
  template <class Column>
  ORB_INLINE Column start(const T*) const {
    return Column::zero();
  }
  template <class V>
  ORB_INLINE V factor(T b) const {
    return V::splat(b);
  }
  template <class Column>
  ORB_INLINE void finish(Column sum, T* c) const {
    sum = sum.times(alpha);
    if (beta != 0) sum = sum.plus(Column::loadu(c).times(beta));
    sum.storeu(c);
  }
};

// `height` rows by `width` columns of C at (i, j); column k of A at p.a + k * p.lda, from row i on.
template <int height, int width, class T, class Rule>
ORB_INLINE void multiply_block(const SmallProduct<T>& p, const T* a, int i, int j, Rule rule) {
  using Rows = Column<T, height>;
  Rows sum[width];
  T* const c = p.c + i + j * p.ldc;
  unroll<width>([&](auto q) ORB_INLINE_BODY { sum[q] = rule.template start<Rows>(c + q * p.ldc); });
  const int lda = p.lda, down = p.b_down, across = p.b_across;
  const T* b = p.b + j * across;
  for (int k = p.k; k > 0; --k, a += lda, b += down) {
    const Rows column = Rows::loadu(a);
    unroll<width>([&](auto q) ORB_INLINE_BODY {
      sum[q].add_product(column, rule.template factor<typename Rows::Head>(b[q * across]));
    });
  }
  unroll<width>([&](auto q) ORB_INLINE_BODY { rule.finish(sum[q], c + q * p.ldc); });
}

// All columns for `height` rows, about four registers of sums at a time.
template <int height, class T, class Rule>
__attribute__((noinline)) void multiply_rows(SmallProduct<T> p, const T* a, int i, Rule rule) {
  constexpr int registers = Column<T, height>::registers;
  constexpr int width = registers > 4 ? 1 : 4 / registers;
  int j = 0;
  for (; p.n - j >= width; j += width) multiply_block<height, width>(p, a, i, j, rule);
  if constexpr (width > 1)
    for (; j < p.n; ++j) multiply_block<height, 1>(p, a, i, j, rule);
}

// Calls use(Int<height>{}) for this height, which lies between 1 and `most`.
template <int most, class Use>
ORB_INLINE void with_height(int height, Use use) {
  if constexpr (most == 1)
    use(Int<1>{});
  else if (height == most)
    use(Int<most>{});
  else
    with_height<most - 1>(height, use);
}

// Rows 0 to m - 1 in blocks of four registers, two registers, and the rest. rows_at(i, height) gives the
// address of A(i, 0).
template <class T, class Rule, class RowsAt>
ORB_INLINE void multiply_all_rows(const SmallProduct<T>& p, Rule rule, RowsAt rows_at) {
  constexpr int lanes = vector_of<T>::lanes;
  const int i = ladder<4 * lanes, 2 * lanes>(
      0, p.m, [&](auto height, int at) { multiply_rows<height>(p, rows_at(at, height), at, rule); });
  if (i < p.m)
    with_height<2 * lanes - 1>(p.m - i,
                               [&](auto height) { multiply_rows<height>(p, rows_at(i, height), i, rule); });
}

}  // namespace orb::blas
