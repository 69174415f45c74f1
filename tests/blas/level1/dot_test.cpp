// The dots to the bit, against plain models that add in the promised order.
#include "tests/blas/level1/vectors.h"

using namespace orb::test;

namespace {

bool read_forward(Shape s) { return s.incx == s.incy && abs(s.incx) == 1; }

// Elements before the blocks, or -1 if the vectors cannot run in blocks.
template <class T>
int peel_of(Shape s) {
  return read_forward(s) && s.placex == s.placey ? peel_at<T>(s.placex) : -1;
}

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto dot = orb_blas_xsdot;
};
template <>
struct Entry<double> {
  static constexpr auto dot = orb_blas_xddot;
};
template <>
struct Entry<c32> {
  static constexpr auto dotu = orb_blas_cdotu, dotc = orb_blas_xcdotc;
};
template <>
struct Entry<c64> {
  static constexpr auto dotu = orb_blas_zdotu, dotc = orb_blas_zdotc;
};

template <class T>
class RealDot : public testing::Test {};
using Reals = testing::Types<float, double>;
TYPED_TEST_SUITE(RealDot, Reals);

TYPED_TEST(RealDot, OrderOfAdditions) {
  using T = TypeParam;
  constexpr int lanes = 16 / sizeof(T);
  for_each_pair([](Shape s) {
    const Vector<T> x(s.n, s.incx, s.placex), y(s.n, s.incy, s.placey, 2);
    const int peel = peel_of<T>(s);
    const auto term = [&](int i) { return read_forward(s) ? x.data()[i] * y.data()[i] : x.at(i) * y.at(i); };
    // Not in blocks: all by themselves, into one sum.
    const auto sums = rotated_sums<T>(s.n, peel < 0 ? s.n : peel, 8 * lanes, lanes, 4, 1, term);
    EXPECT_EQ(call(Entry<T>::dot, &s.n, x.data(), &s.incx, y.data(), &s.incy), sum_lanes(sums, lanes)) << s;
  });
}

template <class T>
class ComplexDot : public testing::Test {};
using Complexes = testing::Types<c32, c64>;
TYPED_TEST_SUITE(ComplexDot, Complexes);

TYPED_TEST(ComplexDot, OrderOfAdditions) {
  using T = TypeParam;
  using P = part_of<T>;
  constexpr int lanes = 16 / sizeof(P);
  for_each_pair([](Shape s) {
    const Vector<T> x(s.n, s.incx, s.placex), y(s.n, s.incy, s.placey, 2);
    const int peel = peel_of<T>(s), n = s.n < 0 ? 0 : 2 * s.n;
    const auto part = [&](const Vector<T>& v, int i) {
      return as_parts(read_forward(s) ? &v.data()[i / 2] : &v.at(i / 2))[i % 2];
    };
    // Sums of x's real and imaginary parts, each times the part of y that `flip` chooses.
    const auto sums = [&](int flip) {
      auto l = rotated_sums<P>(n, peel < 0 ? n : 2 * peel, 8 * lanes, lanes, 2, 2,
                               [&](int i) { return part(x, i) * part(y, i ^ flip); });
      if (lanes == 4) l[0] += l[2], l[1] += l[3];
      return l;
    };
    const auto like = sums(0), crossed = sums(1);
    T u{7, 7}, c{7, 7};
    call(Entry<T>::dotu, &u, &s.n, x.data(), &s.incx, y.data(), &s.incy);
    call(Entry<T>::dotc, &c, &s.n, x.data(), &s.incx, y.data(), &s.incy);
    EXPECT_TRUE(u.re == like[0] - like[1] && u.im == crossed[0] + crossed[1]) << s;
    EXPECT_TRUE(c.re == like[0] + like[1] && c.im == crossed[0] - crossed[1]) << s;
  });
}

TEST(DoubleSumOfSingles, OrderOfAdditions) {
  for_each_pair([](Shape s) {
    const Vector<float> x(s.n, s.incx, s.placex), y(s.n, s.incy, s.placey, 2);
    for (float sb : {0.0f, -5.3f}) {
      double sum[2] = {sb, 0};
      const bool two = s.incx == s.incy && s.incx > 0;
      for (int i = 0; i < s.n; ++i) sum[two && i % 2 && i] += double(x.at(i)) * double(y.at(i));
      const double all = sum[0] + sum[1];
      EXPECT_EQ(call(orb_blas_sdsdot, &s.n, &sb, x.data(), &s.incx, y.data(), &s.incy), float(all)) << s;
      if (sb == 0) {
        EXPECT_EQ(call(orb_blas_dsdot, &s.n, x.data(), &s.incx, y.data(), &s.incy), all) << s;
      }
    }
  });
}

}  // namespace
