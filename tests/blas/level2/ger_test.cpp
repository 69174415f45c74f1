// Rank-1 updates: pairs of columns round as 16-byte registers do, single ones as the floating-point stack
// does.
#include <pmmintrin.h>

#include "tests/blas/level2/operands.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto ger = orb_blas_sger;
  static constexpr auto gerin = orb_blas_sgerin;
};
template <>
struct Entry<double> {
  static constexpr auto ger = orb_blas_dger;
  static constexpr auto gerin = orb_blas_dgerin;
};
template <>
struct Entry<c32> {
  static constexpr auto ger = orb_blas_cgeru, gerc = orb_blas_cgerc;
};
template <>
struct Entry<c64> {
  static constexpr auto ger = orb_blas_zgeru, gerc = orb_blas_zgerc;
};

template <class T>
class Ger : public testing::Test {
 protected:
  template <class F>
  static void check(F ger, bool conjugated, int m, int n, int incx, int incy, int place) {
    const T alpha = number<T>(1.0 / 3, -0.7);
    const Stored<T> a(Layout::whole, m, n, m, n);
    const Vector<T> x(m, incx, place), y(n, incy, 0);
    const int ld = a.ld();
    std::vector<T> want = a.all();
    for (int j = 0; j < n; ++j) {
      const T t = multiply(conjugated ? conjugate(y.at(j)) : y.at(j), alpha);
      for (int i = 0; i < m; ++i) {
        T& e = want[size_t(i + j * ld)];
        if constexpr (is_complex<T>)
          e = add(e, multiply(t, x.at(i)));
        else if (incx == 1 && j < n / 2 * 2)
          e += T(t * x.at(i));
        else
          e = T((long double)t * x.at(i) + e);
      }
    }
    call(ger, &m, &n, &alpha, x.data(), &incx, y.data(), &incy, a.data(), &ld);
    ASSERT_TRUE(same_elements(a.all(), want)) << m << " by " << n << ", strides " << incx << ' ' << incy;
  }
};
TYPED_TEST_SUITE(Ger, EveryType);

TYPED_TEST(Ger, EveryEdgeStrideAndPlace) {
  using E = Entry<TypeParam>;
  for (int m : {1, 2, 3, 4, 5, 7, 9, 34})
    for (int n : {1, 2, 3, 4, 5, 6, 7, 9})
      for (int incx : {1, -1, 2})
        for (int incy : {1, -3}) {
          this->check(E::ger, false, m, n, incx, incy, n % 4);
          if constexpr (is_complex<TypeParam>) this->check(E::gerc, true, m, n, incx, incy, n % 4);
        }
}

// The single column by itself: a factor whose products fill the stack's 64 bits shows every rounding.
TYPED_TEST(Ger, OneColumnOnTheStack) {
  using T = TypeParam;
  if constexpr (!is_complex<T>)
    for (int n : {-1, 0, 1, 3, 4, 5, 8, 11})
      for (int inc : {1, -2}) {
        const int count = std::max(n, 0);
        const T alpha = T(1) / 3;
        const Vector<T> x(count, inc, 0), a(count, 1, 1, 5), want(count, 1, 1, 5);
        for (int i = 0; i < n; ++i) want.at(i) = T((long double)alpha * x.at(i) + want.at(i));
        call(Entry<T>::gerin, &n, &alpha, x.data(), &inc, a.data());
        EXPECT_EQ(a.image(), want.image()) << n << " by " << inc;
      }
}

// Alpha is judged by its bits, and then nothing is read.
TYPED_TEST(Ger, QuickReturns) {
  using T = TypeParam;
  const auto ger = [](int m, int n, T alpha) {
    const int one = 1;
    call(Entry<T>::ger, &m, &n, &alpha, nullptr, &one, nullptr, &one, nullptr, &one);
  };
  ger(0, 3, number<T>(1)), ger(3, 0, number<T>(1));
  ger(3, 3, number<T>(0)), ger(3, 3, number<T>(-0.0, -0.0));
  if constexpr (!is_complex<T>) {
    const unsigned mxcsr = _mm_getcsr();
    _MM_SET_DENORMALS_ZERO_MODE(_MM_DENORMALS_ZERO_ON);
    const T tiny = std::numeric_limits<T>::denorm_min(), x[] = {NAN, NAN}, y[] = {1, 1};
    T a[] = {1, 1, 1, 1};
    const int two = 2, one = 1;
    Entry<T>::ger(&two, &two, &tiny, x, &one, y, &one, a, &two);
    _mm_setcsr(mxcsr);
    EXPECT_TRUE(isnan(a[0]) && isnan(a[3]));
  }
}

}  // namespace
