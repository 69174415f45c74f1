// Triangular products.
#include <limits>

#include "orb/blas_triangular.h"
#include "tests/blas/level3/triangle.h"

using namespace orb::test;

namespace {

template <class T>
struct Multiplier;
template <>
struct Multiplier<float> {
  static constexpr auto entry = orb_blas_xstrmm, step = orb_blas_strmm_l1;
};
template <>
struct Multiplier<double> {
  static constexpr auto entry = orb_blas_xdtrmm, step = orb_blas_dtrmm_l1;
};
template <>
struct Multiplier<c32> {
  static constexpr auto entry = orb_blas_xctrmm, step = orb_blas_ctrmm_l1;
};
template <>
struct Multiplier<c64> {
  static constexpr auto entry = orb_blas_xztrmm, step = orb_blas_ztrmm_l1;
};

// B = alpha op(A) B or alpha B op(A) on integers.
template <class T>
void check(BlasEntry<T> entry, TriangularCase c, int order, int others, int turn) {
  c.m = c.left() ? order : others, c.n = c.left() ? others : order;
  const Triangular<T> p(c, turn);
  const T alpha = scale<T>(turn).alpha;
  const IntegerMatrix<T> b(c.m, c.n, 2, turn % 3, turn >> 1 & 3);  // the integers of p.x
  run(entry, p, alpha, b);
  ASSERT_TRUE(same_numbers(b, ScaledProduct<T>(p, alpha))) << c << " turn " << turn;
}

template <class T>
using Products = AllTypes<T>;
TYPED_TEST_SUITE(Products, ElementTypes);

TYPED_TEST(Products, EverySmallOrder) {
  int turn = 0;
  for_all_options([&](const TriangularCase& c) {
    for (int order = 0; order <= 36; order += order < 9 ? 1 : 3)
      for (int others : {0, 1, 2, 5, 34})
        check<TypeParam>(Multiplier<TypeParam>::entry, c, order, others, ++turn);
  });
  EXPECT_TRUE(spy().scratch.empty());
}

TYPED_TEST(Products, EveryBlockEdge) {
  int turn = 0;
  for_all_options([&](const TriangularCase& c) {
    for (int order : {63, 64, 65, 127, 128, 129, 200, 300, 513})
      check<TypeParam>(Multiplier<TypeParam>::entry, c, order, order < 100 ? 37 : 9, ++turn);
  });
}

// The step takes any order without the matrix products.
TYPED_TEST(Products, StepOfAnyOrder) {
  int turn = 0;
  for_all_options([&](const TriangularCase& c) {
    for (int order : {1, 63, 64, 65, 130})
      check<TypeParam>(Multiplier<TypeParam>::step, c, order, 18 + order % 2, ++turn);
  });
  EXPECT_TRUE(spy().scratch.empty());
}

// Data without a pattern: |B - alpha op(A) X| <= (order + 4) u |alpha| |op(A)| |X|, for complex times 2
// sqrt(2), with |re| + |im| as size.
TYPED_TEST(Products, ErrorWithinTheBound) {
  using T = TypeParam;
  const T alpha = element<T>(0.7, -0.3);
  const long double unit = std::numeric_limits<part_of<T>>::epsilon() / 2 * (is_complex<T> ? 2.83L : 1);
  for_all_options([&](TriangularCase c) {
    const int order = 150, others = 11;
    c.m = c.left() ? order : others, c.n = c.left() ? others : order;
    const Triangular<T> p(c);
    const IntegerMatrix<T> b(c.m, c.n, 2);
    for (int j = 0; j < order; ++j)
      for (int i = 0; i < order; ++i)
        if (equal(p.a(i, j), p.a(i, j))) p.a(i, j) = value<T>(i + 3 * j);
    for (int j = 0; j < c.n; ++j)
      for (int i = 0; i < c.m; ++i) b(i, j) = p.x(i, j) = value<T>(5 * i + j);
    run<T>(Multiplier<T>::entry, p, alpha, b);
    for (int j = 0; j < c.n; ++j)
      for (int i = 0; i < c.m; ++i) {
        Wide rest = b(i, j);
        long double total = 0;
        p.for_terms(i, j, [&](Wide s, Wide x) {
          const Wide term = Wide(alpha) * s * x;
          rest.re -= term.re, rest.im -= term.im, total += Wide(alpha).size() * s.size() * x.size();
        });
        ASSERT_LE(rest.size(), (order + 4) * unit * total) << c << " at " << i << ", " << j;
      }
  });
}

TYPED_TEST(Products, AlphaZeroClearsAndReadsNothing) {
  using T = TypeParam;
  for (double zero : {0., -0.})
    for (char side : {'L', 'R'}) {
      const int m = 21, n = 10;
      const IntegerMatrix<T> b(m, n, 1, 2, 1);
      for (int j = 0; j < n; ++j) b(j, j) = element<T>(NAN, NAN);
      const T alpha = element<T>(zero, zero);
      call(Multiplier<T>::entry, &side, "U", "N", "N", &m, &n, &alpha, nullptr, &m, b.data(), &b.ld);
      const Triangular<T> p({side, 'U', 'N', 'N', m, n});
      ASSERT_TRUE(same_numbers(b, ScaledProduct<T>(p, T{})));
    }
  EXPECT_TRUE(spy().scratch.empty());
}

}  // namespace
