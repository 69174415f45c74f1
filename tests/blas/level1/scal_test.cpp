#include <cmath>

#include "tests/blas/level1/vectors.h"

using namespace orb::test;

namespace {

template <class V, class A, void (*entry)(const int*, const A*, V*, const int*)>
struct Case {
  using Element = V;
  using Alpha = A;
  static constexpr auto scal = entry;
};

template <class C>
class Scal : public testing::Test {};
using Cases = testing::Types<Case<float, float, orb_blas_sscal>, Case<double, double, orb_blas_dscal>,
                             Case<c32, c32, orb_blas_cscal>, Case<c64, c64, orb_blas_zscal>,
                             Case<c32, float, orb_blas_csscal>, Case<c64, double, orb_blas_zdscal>>;
TYPED_TEST_SUITE(Scal, Cases);

TYPED_TEST(Scal, EveryLengthAlignmentAndStride) {
  using T = typename TypeParam::Element;
  typename TypeParam::Alpha alpha{};
  for (int p = 0; p < parts<decltype(alpha)>; ++p)
    reinterpret_cast<part_of<T>*>(&alpha)[p] = part_of<T>(p ? -0.7 : 1.1);
  for_each_shape([&](Shape s) {
    const Vector<T> x(s.n, s.incx, s.placex), expected(s.n, s.incx, s.placex);
    for (int i = 0; i < s.n; ++i) expected.at(i) = multiply(alpha, expected.at(i));
    call(TypeParam::scal, &s.n, &alpha, x.data(), &s.incx);
    EXPECT_EQ(x.image(), expected.image()) << s;
  });
}

// Zero is multiplied like any other number.
TYPED_TEST(Scal, ZeroAlphaKeepsNaN) {
  using T = typename TypeParam::Element;
  using P = part_of<T>;
  const typename TypeParam::Alpha alpha{};
  for (int inc : {1, 2}) {
    const int n = 21;
    Vector<T> x(n, inc, 0);
    auto* part = const_cast<P*>(as_parts(&x.at(13)));
    *part = P(INFINITY);
    *const_cast<P*>(as_parts(&x.at(2))) = P(NAN);
    call(TypeParam::scal, &n, &alpha, x.data(), &inc);
    EXPECT_TRUE(std::isnan(*as_parts(&x.at(2))) && std::isnan(*part)) << inc;
    EXPECT_EQ(*as_parts(&x.at(5)), 0) << inc;
  }
}

}  // namespace
