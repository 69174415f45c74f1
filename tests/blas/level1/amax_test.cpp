// The places of extremes against the rule applied element by element.
#include <cmath>

#include "tests/blas/level1/vectors.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto amax = orb_blas_isamax, amin = orb_blas_isamin;
};
template <>
struct Entry<double> {
  static constexpr auto amax = orb_blas_idamax, amin = orb_blas_idamin;
};
template <>
struct Entry<c32> {
  static constexpr auto amax = orb_blas_icamax, amin = orb_blas_icamin;
};
template <>
struct Entry<c64> {
  static constexpr auto amax = orb_blas_izamax, amin = orb_blas_izamin;
};

template <class T>
class Extreme : public testing::Test {
 protected:
  using Part = part_of<T>;
  static Part magnitude(const T& a) {
    Part sum = 0;
    for (int p = 0; p < parts<T>; ++p) sum += std::abs(as_parts(&a)[p]);
    return sum;
  }
  static void set(T& a, Part value) {
    a = T{};
    const_cast<Part*>(as_parts(&a))[parts<T> - 1] = value;
  }
  template <class Keeps>
  static int place(const Vector<T>& x, int n, int inc, Keeps keeps) {
    if (n < 1 || inc < 1) return 0;
    int best = 0;
    for (int i = 1; i < n; ++i)
      if (!keeps(magnitude(x.at(best)), magnitude(x.at(i)))) best = i;
    return best + 1;
  }
  static void compare(const Vector<T>& x, Shape s, const char* what) {
    const int largest = place(x, s.n, s.incx, [](Part best, Part m) { return best >= m; });
    const int smallest = place(x, s.n, s.incx, [](Part best, Part m) { return best <= m; });
    EXPECT_EQ(call(Entry<T>::amax, &s.n, x.data(), &s.incx), largest) << s << what;
    EXPECT_EQ(call(Entry<T>::amin, &s.n, x.data(), &s.incx), smallest) << s << what;
  }
};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(Extreme, Types);

TYPED_TEST(Extreme, EveryLengthAlignmentAndStride) {
  using T = TypeParam;
  for_each_shape([](Shape s) {
    Vector<T> x(s.n, s.incx, s.placex);
    TestFixture::compare(x, s, " varied");
    for (int i = 0; i < s.n; ++i) TestFixture::set(x.at(i), part_of<T>(i % 2 ? i : -i));
    TestFixture::compare(x, s, " rising");
    for (int i = 0; i < s.n; ++i) TestFixture::set(x.at(i), part_of<T>((i * 37 % 11 - 5)));
    TestFixture::compare(x, s, " with ties");
  });
}

// A NaN, an infinity, a zero or a tie at every place, alone and with a second special value behind it.
TYPED_TEST(Extreme, SpecialValuesAtEveryPlace) {
  using T = TypeParam;
  using P = part_of<T>;
  const int n = 75;
  const P special[] = {P(NAN), P(INFINITY), P(-0.0), 7, 1};
  for (int i = 0; i < n; ++i)
    for (P first : special)
      for (P second : special)
        for (int j : {i, i + 1, i + 9, n - 1}) {
          Vector<T> x(n, 1, i % 4);
          for (int k = 0; k < n; ++k)
            TestFixture::set(x.at(k), k == n / 2 ? 7 : k == n / 3 ? 1 : P(2 + k % 5));
          TestFixture::set(x.at(i), first);
          if (j > i && j < n) TestFixture::set(x.at(j), second);
          TestFixture::compare(x, Shape{n, 1, 0, i % 4, 0}, " special");
        }
}

}  // namespace
