// Sums of absolute values and norms to the bit, against plain models that add in the promised order.
#include <cmath>

#include "tests/blas/level1/vectors.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto asum = orb_blas_sasum, nrm2 = orb_blas_snrm2;
};
template <>
struct Entry<double> {
  static constexpr auto asum = orb_blas_dasum, nrm2 = orb_blas_dnrm2;
};
template <>
struct Entry<c32> {
  static constexpr auto asum = orb_blas_scasum, nrm2 = orb_blas_scnrm2;
};
template <>
struct Entry<c64> {
  static constexpr auto asum = orb_blas_dzasum, nrm2 = orb_blas_dznrm2;
};

template <class T>
class Norm : public testing::Test {
 protected:
  using Part = part_of<T>;
  static constexpr bool single = sizeof(Part) == 4;
  // The parts of all elements in turn: in order of memory for a vector without gaps, else of the BLAS.
  struct Parts {
    const Vector<T>& x;
    Shape s;
    bool whole;
    Part operator()(int i) const {
      return as_parts(whole ? &x.data()[i / parts<T>] : &x.at(i / parts<T>))[i % parts<T>];
    }
  };
  // The sum of term(0 ...) in `count` sums dealt out by turns, the last of an odd number joining the first.
  template <class S, class Term>
  static S by_turns(int n, int count, Term term) {
    S sum[4] = {};
    for (int i = 0; i < n; ++i) sum[i % count] += term(i);
    return sum[0] + sum[1] + sum[2] + sum[3];
  }
};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(Norm, Types);

TYPED_TEST(Norm, OrderOfAbsoluteSum) {
  using T = TypeParam;
  using P = part_of<T>;
  for_each_shape([](Shape s) {
    const Vector<T> x(s.n, s.incx, s.placex);
    // Of complex vectors only stride 1 is read as one of twice the length.
    const bool whole = s.incx == 1 || (s.incx == -1 && !is_complex<T>);
    const typename TestFixture::Parts part{x, s, whole};
    const auto term = [&](int i) { return std::abs(part(i)); };
    const int n = s.n < 0 ? 0 : s.n * parts<T>, peel = whole ? peel_at<P>(s.placex) : -1;
    constexpr int lanes = 16 / sizeof(P);
    const P expected =
        peel < 0 ? TestFixture::template by_turns<P>(n, is_complex<T> && !whole ? 2 : sizeof(P) / 4, term)
                 : sum_lanes(rotated_sums<P>(n, peel, 8 * lanes, lanes, 4, 1, term), lanes);
    EXPECT_EQ(call(Entry<T>::asum, &s.n, x.data(), &s.incx), expected) << s;
  });
}

TYPED_TEST(Norm, OrderOfNorm) {
  using T = TypeParam;
  using P = part_of<T>;
  const auto check = [](Shape s, uint32_t seed) {
    const Vector<T> x(s.n, s.incx, s.placex, seed);
    const bool whole = abs(s.incx) == 1;
    const typename TestFixture::Parts part{x, s, whole};
    const int n = s.n < 0 ? 0 : s.n * parts<T>;
    P expected;
    if constexpr (TestFixture::single) {
      const auto term = [&](int i) { return double(part(i)) * double(part(i)); };
      const double sum = whole
                             ? sum_lanes(rotated_sums<double>(n, peel_at<P>(s.placex), 32, 2, 4, 1, term), 2)
                             : TestFixture::template by_turns<double>(n, parts<T>, term);
      expected = P(std::sqrt(sum));
    } else {
      const auto term = [&](int i) { return static_cast<long double>(part(i)) * part(i); };
      expected = P(std::sqrt(TestFixture::template by_turns<long double>(n, whole ? 4 : 2, term)));
    }
    EXPECT_EQ(call(Entry<T>::nrm2, &s.n, x.data(), &s.incx), expected) << s << " seed " << seed;
  };
  for_each_shape([&](Shape s) { check(s, 1); });
  // The last rounding hides most of what the order changes in the wider sums, so many vectors are asked.
  for (uint32_t seed = 0; seed < 4000; ++seed) check(Shape{99, seed % 2 ? 1 : 2, 0, 0, 0}, seed);
}

// Squares and sums have a wider range than the elements, at both ends.
TYPED_TEST(Norm, HugeAndTinyElements) {
  using T = TypeParam;
  using P = part_of<T>;
  constexpr P huge = TestFixture::single ? P(1e30) : P(1e200),
              tiny = TestFixture::single ? P(1e-40) : P(1e-310);
  for (P size : {huge, tiny})
    for (int inc : {1, -2}) {
      const int n = 9;
      Vector<T> x(n, inc, 0);
      for (int i = 0; i < n; ++i) x.at(i) = T{};
      const auto part = [&](int i) { return const_cast<P*>(as_parts(&x.at(i))); };
      *part(2) = 3 * size, part(7)[parts<T> - 1] = -4 * size;
      const P norm = call(Entry<T>::nrm2, &n, x.data(), &inc);
      EXPECT_NEAR(norm / size, 5, 1e-5);
      *part(4) = P(NAN);
      EXPECT_TRUE(std::isnan(call(Entry<T>::nrm2, &n, x.data(), &inc)));
      EXPECT_TRUE(std::isnan(call(Entry<T>::asum, &n, x.data(), &inc)));
    }
}

TEST(Cabs1, AddsBothParts) {
  const c64 z{-3, -0.5};
  EXPECT_EQ(call(orb_blas_dcabs1, &z), 3.5);
}

}  // namespace
