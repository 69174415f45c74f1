#include <cmath>
#include <vector>

#include "gtest/gtest.h"
#include "orb/blas_level1.h"
#include "tests/support/call.h"
#include "tests/support/guarded.h"

using orb::test::call;
using orb::test::Guarded;

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

template <class T>
class Axpy : public testing::Test {};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Axpy, Types);

// Every element takes one rounded product and one rounded sum, whatever the path: equal to the bit.
TYPED_TEST(Axpy, EveryLengthAlignmentAndStride) {
  using T = TypeParam;
  const T alpha = T(1) / 3;
  for (int n : {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33})
    for (int incx : {1, -1, 2, -3, 0})
      for (int incy : {1, -1, 2, -3})
        for (int place = 0; place < 16; ++place) {
          const int nx = n ? (n - 1) * abs(incx) + 1 : 0, ny = n ? (n - 1) * abs(incy) + 1 : 0;
          Guarded<T> x(nx, place % 4), y(ny, place / 4);
          for (int i = 0; i < nx; ++i) x[i] = T(i + 1) / 7;
          for (int i = 0; i < ny; ++i) y[i] = T(i - 5) / 11;
          std::vector<T> expected(y.begin(), y.end());
          for (int i = 0; i < n; ++i) {
            T& e = expected[size_t((incy < 0 ? 1 - n : 0) * incy + i * incy)];
            e = e + alpha * x[(incx < 0 ? 1 - n : 0) * incx + i * incx];
          }
          call(Entry<T>::axpy, &n, &alpha, x.data(), &incx, y.data(), &incy);
          ASSERT_EQ(std::vector<T>(y.begin(), y.end()), expected)
              << "n " << n << " incx " << incx << " incy " << incy << " place " << place;
        }
}

TYPED_TEST(Axpy, EitherZeroAlphaTouchesNothing) {
  using T = TypeParam;
  const int n = 20, one = 1;
  std::vector<T> x(n, T(NAN)), y(n, T(3));
  for (T alpha : {T(0), T(-0.0)}) call(Entry<T>::axpy, &n, &alpha, x.data(), &one, y.data(), &one);
  EXPECT_EQ(y, std::vector<T>(n, T(3)));
}

}  // namespace
