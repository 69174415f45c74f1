// The lengths 3 to 15 that are no powers of two, a number a register, by coprime factors without twiddles;
// nine, which has none, by threes with twiddles. All input is read before the first output is written.
// Source: I. J. Good, The interaction algorithm and practical Fourier analysis, J. R. Statist. Soc. B 20
// (1958).
#pragma once

#include "signal/kernel/dft/butterflies.h"

namespace orb::signal {

// z times exp(-2 pi i k / n)
template <int k, int n, class C>
ORB_INLINE ComplexLane<C> turned_by(ComplexLane<C> z) {
  using V = typename ComplexLane<C>::Register;
  using T = typename V::scalar;
  constexpr T cosine = roots_of<T, n>.re[k], sine = roots_of<T, n>.im[k];
  return by(V::splat(cosine), z) + by(V::splat(sine), rotated<forward>(z));
}

constexpr int first_factor(int n) {
  if (n % 4 == 0) return 4;
  for (int p : {2, 3, 5, 7, 11, 13})
    if (n % p == 0) return p;
  return n;
}

// x = a b: number i of column j stands at (i b + j) for nine, at (i b + j a) mod n for coprime a, b; the
// result's number u of row v at (u + 3 v), or at the place that is u mod a and v mod b.
template <int n>
struct Grid {
  static constexpr int a = first_factor(n), b = n / a;
  static constexpr bool coprime = n != 9;
  static constexpr int from(int i, int j) { return coprime ? (i * b + j * a) % n : i * b + j; }
  static constexpr int to(int u, int v) {
    if (!coprime) return u + a * v;
    int place = 0;
    while (place % a != u || place % b != v) ++place;
    return place;
  }
};

// The forward transform of x in place; inverse ones exchange numbers k and n - k.
template <int n, class Number>
ORB_INLINE void small_dft(Number (&x)[n]) {
  using G = Grid<n>;
  if constexpr (G::b == 1) {
    butterfly(x);
  } else {
    Number columns[G::a][G::b];  // number u of each column's transform in row u
    unroll<G::b>([&](auto j) ORB_INLINE_BODY {
      Number column[G::a];
      unroll<G::a>([&](auto i) ORB_INLINE_BODY { column[i] = x[G::from(i, j)]; });
      butterfly(column);
      unroll<G::a>([&](auto u) ORB_INLINE_BODY {
        columns[u][j] = G::coprime ? column[u] : turned_by<u * j, n>(column[u]);
      });
    });
    unroll<G::a>([&](auto u) ORB_INLINE_BODY {
      butterfly(columns[u]);
      unroll<G::b>([&](auto v) ORB_INLINE_BODY { x[G::to(u, v)] = columns[u][v]; });
    });
  }
}

template <int n, Direction d, class T, class In, class Out>
ORB_INLINE void straight_dft(In in, Out out) {
  using Z = one_of<complex_of<T>>;
  Z x[n];
  unroll<n>([&](auto j) ORB_INLINE_BODY { x[j] = in.template numbers<Z>(j); });
  small_dft(x);
  unroll<n>([&](auto k) ORB_INLINE_BODY { out.put(k, x[d == forward || k == 0 ? int(k) : n - k]); });
}

}  // namespace orb::signal
