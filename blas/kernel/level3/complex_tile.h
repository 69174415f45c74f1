// The inner kernel of the complex matrix products: a register of rows by up to three columns of C. Every
// column has two running sums in rising k, of a(i, k) Re b(k, j) and of a(i, k) Im b(k, j), so that the inner
// loop has no shuffles; the sums are joined at the end:
//   Re = Re(first) - Im(second)   Im = Im(first) + Re(second)
#pragma once

#include "blas/kernel/level3/complex_panels.h"
#include "blas/kernel/level3/scalars.h"

namespace orb::blas::complex_product {

// A factor of whole registers. A real one takes no products with its imaginary part, which would make NaN of
// infinity.
template <Complex C>
struct Scalar {
  using V = vector_of<C>;
  Factor<V> factor;
  bool real;
  explicit Scalar(C x) : factor(V::splat(x)), real(x.im == 0) {}
  ORB_INLINE V operator*(V x) const { return real ? V{factor.re * x.v} : factor * x; }
};

// How the sums of a tile reach C: C = alpha sum + beta C.
template <Complex C>
struct Finish {
  using V = vector_of<C>;
  using R = typename V::Register;
  enum Old { ignored, kept, scaled };
  R first_signs, second_signs;  // what conjugation makes of the sums
  Scalar<C> alpha, beta;
  Old old;

  Finish(C alpha, C beta, bool conjugate_a, bool conjugate_b)
      : alpha(alpha),
        beta(beta),
        old(is_zero(beta)  ? ignored
            : is_one(beta) ? kept
                           : scaled) {
    const real_of<C> a = conjugate_a ? -1 : 1, b = conjugate_b ? -1 : 1;
    const C first[] = {{1, a}, {1, a}}, second[] = {{b, a * b}, {b, a * b}};
    first_signs = V::loadu(first).v, second_signs = V::loadu(second).v;
  }

  template <class W>  // all rows of a register, or one
  ORB_INLINE void write(V x, C* c) const {
    if (old == kept) x += V{W::loadu(c).v};
    if (old == scaled) x += beta * V{W::loadu(c).v};
    W{x.v}.storeu(c);
  }
  ORB_INLINE void operator()(R first, R second, C* c, int rows) const {
    const V x = alpha * V{R::addsub(first * first_signs, swap_parts(second * second_signs))};
    if (rows >= V::lanes)
      write<V>(x, c);
    else
      write<one_of<C>>(x, c);
  }
};

template <class R, int sums, class T>
ORB_INLINE void add_terms(int depth, const T* a, const T* b, R (&sum)[sums]) {
  const auto add = [&](auto k) ORB_INLINE_BODY {
    const R rows = R::load(a + k * R::lanes);
    unroll<sums>([&](auto s) ORB_INLINE_BODY { sum[s] += rows * R::load(b + (k * sums + s) * R::lanes); });
    keep_in_registers(sum);
  };
  for (; depth >= 4; depth -= 4, a += 4 * R::lanes, b += 4 * sums * R::lanes) unroll<4>(add);
  for (; depth > 0; --depth, a += R::lanes, b += sums * R::lanes) add(Int<0>{});
}

// All rows of the panel by the splatted columns.
template <Complex C, int columns>
__attribute__((noinline)) void multiply_strips(int rows, RowStrips<C> a, SplatColumns<C, columns> b, C* c,
                                               int ldc, const Finish<C>& finish) {
  using R = typename vector_of<C>::Register;
  for (int i = 0; i < rows; i += a.height) {
    R sum[2 * columns];
    unroll<2 * columns>([&](auto s) ORB_INLINE_BODY { sum[s] = R::zero(); });
    add_terms(a.depth, &a.at(i, 0)->re, b.p, sum);
    unroll<columns>([&](auto q)
                        ORB_INLINE_BODY { finish(sum[2 * q], sum[2 * q + 1], c + i + q * ldc, rows - i); });
  }
}

}  // namespace orb::blas::complex_product
