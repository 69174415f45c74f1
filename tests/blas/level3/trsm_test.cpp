// Triangular systems as a whole, and the steps under them.
#include "orb/blas_triangular.h"

#include <limits>

#include "tests/blas/level3/triangle.h"

using namespace orb::test;

namespace {

template <class T>
struct Solver;
template <>
struct Solver<float> {
  static constexpr auto entry = orb_blas_xstrsm;
};
template <>
struct Solver<double> {
  static constexpr auto entry = orb_blas_xdtrsm;
};
template <>
struct Solver<c32> {
  static constexpr auto entry = orb_blas_xctrsm;
};
template <>
struct Solver<c64> {
  static constexpr auto entry = orb_blas_xztrsm;
};

// Finds an X of integers again. Steps apply no alpha.
template <class T, class Run>
void find(const TriangularCase& c, int turn, bool with_alpha, Run run_entry) {
  const Triangular<T> p(c, turn);
  const auto s = with_alpha ? scale<T>(turn) : Scale<T>{element<T>(NAN, NAN), element<T>(1)};
  const ScaledProduct<T> b(p, s.inverse, turn);
  run_entry(p, s.alpha, b);
  ASSERT_TRUE(same_numbers(b, p.x)) << c << " turn " << turn;
}
template <class T>
void solve(const TriangularCase& c, int turn) {
  find<T>(c, turn, true, [](auto&... arguments) { run<T>(Solver<T>::entry, arguments...); });
}

template <class T>
using Systems = AllTypes<T>;
TYPED_TEST_SUITE(Systems, ElementTypes);

TYPED_TEST(Systems, EverySmallOrder) {
  int turn = 0;
  for_all_options([&](TriangularCase c) {
    for (int order = 0; order <= 36; order += order < 9 ? 1 : 3)
      for (int others : {0, 1, 2, 5, 33, 34}) {
        c.m = c.left() ? order : others, c.n = c.left() ? others : order;
        solve<TypeParam>(c, ++turn);
      }
  });
}

TYPED_TEST(Systems, EveryBlockEdge) {
  int turn = 0;
  for_all_options([&](TriangularCase c) {
    for (int order : {63, 64, 65, 128, 129, 256, 257, 260, 512, 513}) {
      const int others = order == 63 ? 1030 : order == 64 ? 129 : order == 65 ? 257 : 9;
      c.m = c.left() ? order : others, c.n = c.left() ? others : order;
      solve<TypeParam>(c, ++turn);
    }
  });
}

// Data without a pattern: |op(A) X - alpha B| <= (order + 4) u |op(A)| |X|, for complex times 2 sqrt(2), with
// |re| + |im| as size.
TYPED_TEST(Systems, ResidualWithinTheBound) {
  using T = TypeParam;
  const T alpha = element<T>(0.7, -0.3);
  const long double unit = std::numeric_limits<part_of<T>>::epsilon() / 2 * (is_complex<T> ? 2.83L : 1);
  int turn = 0;
  for_all_options([&](TriangularCase c) {
    const int order = turn++ % 5 == 0 ? 277 : 71, others = 11;
    c.m = c.left() ? order : others, c.n = c.left() ? others : order;
    const Triangular<T> p(c);
    for (int j = 0; j < order; ++j)
      for (int i = 0; i < order; ++i)
        if (equal(p.a(i, j), p.a(i, j)))
          p.a(i, j) = i == j ? element<T>(1.5 + i % 3 / 7., 0.3)
                             : multiply(element<T>(1. / order), value<T>(i + 3 * j));
    const ScaledProduct<T> start(p, element<T>(1)), b(p, element<T>(1));
    run(Solver<T>::entry, p, alpha, b);
    for (int j = 0; j < c.n; ++j)
      for (int i = 0; i < c.m; ++i) {
        Wide rest = Wide(alpha) * Wide(start(i, j));
        long double total = 0;
        for (int k = 0; k < order; ++k) {
          const Wide s = c.left() ? p.at(i, k) : p.at(k, j), x = c.left() ? b(k, j) : b(i, k), term = s * x;
          rest.re -= term.re, rest.im -= term.im, total += s.size() * x.size();
        }
        ASSERT_LE(rest.size(), (order + 4) * unit * total) << c << " at " << i << ", " << j;
      }
  });
}

TYPED_TEST(Systems, AlphaZeroClearsAndReadsNothing) {
  using T = TypeParam;
  for (double zero : {0., -0.})
    for (char side : {'L', 'R'}) {
      const int m = 21, n = 10;
      const IntegerMatrix<T> b(m, n, 1, 2, 1);
      for (int j = 0; j < n; ++j) b(j, j) = element<T>(NAN, NAN);
      const T alpha = element<T>(zero, zero);
      call(Solver<T>::entry, &side, "L", "T", "N", &m, &n, &alpha, nullptr, &m, b.data(), &b.ld);
      const Triangular<T> p({side, 'U', 'N', 'N', m, n});
      ASSERT_TRUE(same_numbers(b, ScaledProduct<T>(p, T{})));
    }
  EXPECT_TRUE(spy().scratch.empty());
}

TYPED_TEST(Systems, ZeroOnTheDiagonalGivesNothingFinite) {
  using T = TypeParam;
  for (char side : {'L', 'R'}) {
    const Triangular<T> p({side, 'L', 'N', 'N', 6, 6});
    const ScaledProduct<T> b(p, element<T>(1));
    p.a(5, 5) = T{};
    run(Solver<T>::entry, p, element<T>(1), b);
    EXPECT_FALSE(isfinite(Wide(b(5, 5)).size()));
    EXPECT_EQ(isfinite(Wide(b(4, 4)).size()), side == 'L');
  }
}

// run(p, alpha, b) for orders around the edges of the steps, on the sides that it knows.
template <class T, class Run>
void check_step(const char* sides, Run run_step) {
  int turn = 0;
  for_all_options([&](TriangularCase c) {
    ++turn;
    if (strchr(sides, c.side & ~0x20) == nullptr) return;
    for (int order : {1, 5, 64, 65, 130, 200}) {
      const int others = order == 5 ? 1027 : order == 65 ? 261 : 37;
      c.m = c.left() ? order : others, c.n = c.left() ? others : order;
      find<T>(c, turn + order, false, run_step);
    }
  });
}
template <class T>
void check_entry(const char* sides, BlasEntry<T> entry) {
  check_step<T>(sides, [=](auto&... arguments) { run<T>(entry, arguments...); });
}

class Steps : public AllTypes<void> {};

TEST_F(Steps, AnySizeWithoutAlpha) {
  check_entry<double>("R", orb_blas_dtrsm_i);
  check_entry<double>("R", orb_blas_dtrsm_l2);
  check_entry<double>("R", orb_blas_dtrsm_l1);
  check_entry<float>("R", orb_blas_strsm_i);
  check_entry<float>("LR", orb_blas_strsm_l2);
  check_entry<float>("LR", orb_blas_strsm_l1);
  check_entry<c32>("LR", orb_blas_ctrsm_l2);
  check_entry<c32>("LR", orb_blas_ctrsm_l1);
}

template <class T, class Lln, class Lun, class Lt, class Rn, class Rt>
void check_innermost(const char* sides, Lln lln, Lun lun, Lt lt, Rn rn, Rt rt) {
  check_step<T>(sides, [=](const Triangular<T>& p, T, const IntegerMatrix<T>& b) {
    const auto finish = [&](auto entry, auto... options) {
      call(entry, options..., &p.diag, &p.m, &p.n, p.a.data(), &p.a.ld, b.data(), &b.ld);
    };
    if (p.left() && p.plain()) return finish(p.upper() ? lun : lln);
    if constexpr (is_complex<T>) {
      if (p.left()) return finish(lt, &p.uplo, &p.trans);
      p.plain() ? finish(rn, &p.uplo) : finish(rt, &p.uplo, &p.trans);
    } else {
      finish(lt, &p.uplo);
    }
  });
}

TEST_F(Steps, InnermostTriangles) {
  check_innermost<float>("L", orb_blas_strsmlln, orb_blas_strsmlun, orb_blas_strsmlt, 0, 0);
  check_innermost<c32>("LR", orb_blas_ctrsmlln, orb_blas_ctrsmlun, orb_blas_ctrsmlt, orb_blas_ctrsmrn,
                       orb_blas_ctrsmrt);
  check_innermost<c64>("LR", orb_blas_ztrsmlln, orb_blas_ztrsmlun, orb_blas_ztrsmlt, orb_blas_ztrsmrn,
                       orb_blas_ztrsmrt);
  EXPECT_TRUE(spy().scratch.empty());
}

}  // namespace
