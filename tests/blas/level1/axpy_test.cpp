#include <pmmintrin.h>

#include <cmath>
#include <limits>

#include "tests/blas/level1/vectors.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto axpy = orb_blas_xsaxpy;
};
template <>
struct Entry<double> {
  static constexpr auto axpy = orb_blas_xdaxpy;
};
template <>
struct Entry<c32> {
  static constexpr auto axpy = orb_blas_xcaxpy, axpy_a = orb_blas_caxpy_a;
};
template <>
struct Entry<c64> {
  static constexpr auto axpy = orb_blas_xzaxpy, axpy_a = orb_blas_zaxpy_a;
};

template <class T>
class Axpy : public testing::Test {
 protected:
  using Part = part_of<T>;
  static T number(Part re, Part im) {
    if constexpr (is_complex<T>)
      return {re, im};
    else
      return re;
  }
  // Does y keep its bits when x is all NaN?
  template <class F>
  static bool leaves_y(F axpy, T alpha) {
    const int n = 20, one = 1;
    std::vector<T> x(n, number(NAN, NAN)), y(n, number(3, 3));
    call(axpy, &n, &alpha, x.data(), &one, y.data(), &one);
    for (const T& e : y)
      if (!same_bits(e, number(3, 3))) return false;
    return true;
  }
};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(Axpy, Types);

// Every element takes one rounded product and one rounded sum, whatever the path: equal to the bit.
TYPED_TEST(Axpy, EveryLengthAlignmentAndStride) {
  using T = TypeParam;
  const T alpha = this->number(part_of<T>(1) / 3, -0.7);
  for_each_pair([&](Shape s) {
    const Vector<T> x(s.n, s.incx, s.placex), y(s.n, s.incy, s.placey, 2), expected(s.n, s.incy, s.placey, 2);
    for (int i = 0; i < s.n; ++i) expected.at(i) = add(expected.at(i), multiply(alpha, x.at(i)));
    call(Entry<T>::axpy, &s.n, &alpha, x.data(), &s.incx, y.data(), &s.incy);
    EXPECT_EQ(y.image(), expected.image()) << s;
    if constexpr (is_complex<T>) {
      const Vector<T> again(s.n, s.incy, s.placey, 2);
      call(Entry<T>::axpy_a, &s.n, &alpha, x.data(), &s.incx, again.data(), &s.incy);
      EXPECT_EQ(again.image(), expected.image()) << s;
    }
  });
}

TYPED_TEST(Axpy, AnyZeroAlphaTouchesNothing) {
  using T = TypeParam;
  for (auto re : {0.0, -0.0})
    for (auto im : {0.0, -0.0}) {
      EXPECT_TRUE(this->leaves_y(Entry<T>::axpy, this->number(re, im)));
      if constexpr (is_complex<T>) {
        EXPECT_FALSE(this->leaves_y(Entry<T>::axpy_a, this->number(re, im)));
      }
    }
  EXPECT_FALSE(this->leaves_y(Entry<T>::axpy, this->number(1, 0)));
  if constexpr (is_complex<T>) {
    EXPECT_FALSE(this->leaves_y(Entry<T>::axpy, this->number(0, 1)));
  }
}

// Alpha is judged by its bits: also where the processor is set to take subnormal numbers for zero.
TYPED_TEST(Axpy, SubnormalAlphaIsNotZero) {
  using T = TypeParam;
  const auto tiny = std::numeric_limits<part_of<T>>::denorm_min();
  const unsigned mxcsr = _mm_getcsr();
  _MM_SET_DENORMALS_ZERO_MODE(_MM_DENORMALS_ZERO_ON);
  EXPECT_FALSE(this->leaves_y(Entry<T>::axpy, this->number(tiny, 0)));
  EXPECT_FALSE(this->leaves_y(Entry<T>::axpy, this->number(0, tiny)) && is_complex<T>);
  _mm_setcsr(mxcsr);
}

}  // namespace
