// Routines that apply rotations and reflectors, against one pair after another in plain arithmetic. Each
// element takes a fixed set of rounded operations, so every path must agree to the bit.
#include <cmath>

#include "tests/blas/level1/vectors.h"
#include "tests/support/bits.h"

using namespace orb::test;

namespace {

// A vector as it goes to the kernel, and what must come back, on which the model works. Infinity, NaN and a
// negative zero are among the elements of those with an odd seed.
template <class T>
struct Checked {
  Vector<T> vector;
  std::vector<T> expected;

  Checked(int n, int inc, int place, uint32_t seed) : vector(n, inc, place, seed) {
    const double specials[] = {INFINITY, NAN, -0.0};
    for (int i = 0; i < 3 && n > 12 && seed % 2; ++i)
      if constexpr (is_complex<T>)
        vector.at(3 * i + 1).re = part_of<T>(specials[i]);
      else
        vector.at(3 * i + 1) = T(specials[i]);
    expected.assign(vector.data(), vector.data() + vector.bytes() / sizeof(T));
  }
  T& operator[](int i) { return expected[size_t(&vector.at(i) - vector.data())]; }
  T* data() { return vector.data(); }
  testing::AssertionResult holds() const {
    return same_elements(std::vector<T>(vector.data(), vector.data() + expected.size()), expected);
  }
};

// x, y = c x + s y, c y - conj(s) x
template <class T, class S>
void rotate(T& x, T& y, part_of<T> c, S s) {
  const T old = x;
  x = add(multiply(c, old), multiply(s, y));
  y = subtract(multiply(c, y), multiply(conjugate(s), old));
}

template <class C>
class Rot : public testing::Test {};
template <class T_, class S_, auto entry_>
struct RotCase {
  using T = T_;
  using S = S_;
  static constexpr auto entry = entry_;
};
using RotCases =
    testing::Types<RotCase<float, float, orb_blas_xsrot>, RotCase<double, double, orb_blas_xdrot>,
                   RotCase<c32, c32, orb_blas_xcrot>, RotCase<c64, c64, orb_blas_xzrot>,
                   RotCase<c32, float, orb_blas_xcsrot>, RotCase<c64, double, orb_blas_xzdrot>>;
TYPED_TEST_SUITE(Rot, RotCases);

TYPED_TEST(Rot, EveryLengthAlignmentAndStride) {
  using T = typename TypeParam::T;
  const auto c = part_of<T>(0.7);
  const auto s = value<typename TypeParam::S>(3);
  for_each_pair([&](Shape k) {
    Checked<T> x(k.n, k.incx, k.placex, 1), y(k.n, k.incy, k.placey, 2);
    for (int i = 0; i < k.n; ++i) rotate(x[i], y[i], c, s);
    call(TypeParam::entry, &k.n, x.data(), &k.incx, y.data(), &k.incy, &c, &s);
    EXPECT_TRUE(x.holds()) << "x, " << k;
    EXPECT_TRUE(y.holds()) << "y, " << k;
  });
}

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto lartv = orb_blas_slartv;
  static constexpr auto rot2 = orb_blas_srot2;
  static constexpr auto rot3 = orb_blas_srot3;
  static constexpr auto rotm = orb_blas_srotm;
};
template <>
struct Entry<double> {
  static constexpr auto lartv = orb_blas_dlartv;
  static constexpr auto rot2 = orb_blas_drot2;
  static constexpr auto rot3 = orb_blas_drot3;
  static constexpr auto rotm = orb_blas_drotm;
};
template <>
struct Entry<c32> {
  static constexpr auto lartv = orb_blas_clartv;
  static constexpr auto rot2 = orb_blas_crot2;
  static constexpr auto rot3 = orb_blas_crot3;
};
template <>
struct Entry<c64> {
  static constexpr auto lartv = orb_blas_zlartv;
  static constexpr auto rot2 = orb_blas_zrot2;
  static constexpr auto rot3 = orb_blas_zrot3;
};

template <class T>
class Rows : public testing::Test {};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(Rows, Types);

TYPED_TEST(Rows, LartvGivesEveryPairItsOwnRotation) {
  using T = TypeParam;
  for_each_pair([&](Shape k) {
    for (int incc : {2, k.incx}) {
      Checked<T> x(k.n, k.incx, k.placex, 1), y(k.n, k.incy, k.placey, 2);
      const Vector<T> s(k.n, incc, k.placey, 4);
      const Vector<part_of<T>> c(k.n, incc, k.placex, 6);
      for (int i = 0; i < k.n; ++i) rotate(x[i], y[i], c.at(i), s.at(i));
      call(Entry<T>::lartv, &k.n, x.data(), &k.incx, y.data(), &k.incy, c.data(), s.data(), &incc);
      EXPECT_TRUE(x.holds()) << "x, " << k << " incc " << incc;
      EXPECT_TRUE(y.holds()) << "y, " << k << " incc " << incc;
    }
  });
}

// The rows of a reflector are contiguous whatever its increments say.
constexpr int ignored = 3;
template <class Check>
void for_contiguous(Check check) {
  for (int n : lengths)
    for (int place = 0; place < 16; ++place) check(Shape{n, 1, 1, place % 4, place / 4});
}

TYPED_TEST(Rows, ReflectorOnTwo) {
  using T = TypeParam;
  const T tau = value<T>(2), w = value<T>(5);
  for_contiguous([&](Shape k) {
    Checked<T> x(k.n, 1, k.placex, 1), y(k.n, 1, k.placey, 2);
    for (int i = 0; i < k.n; ++i) {
      const T t = multiply(tau, add(multiply(w, y[i]), x[i]));
      x[i] = subtract(x[i], t);
      y[i] = subtract(y[i], multiply(w, t));
    }
    call(Entry<T>::rot2, &k.n, x.data(), &ignored, y.data(), &ignored, &tau, &w);
    EXPECT_TRUE(x.holds()) << "x, " << k;
    EXPECT_TRUE(y.holds()) << "y, " << k;
  });
}

TYPED_TEST(Rows, ReflectorOnThree) {
  using T = TypeParam;
  const T tau = value<T>(2), wy = value<T>(5), wz = value<T>(9);
  for_contiguous([&](Shape k) {
    Checked<T> x(k.n, 1, k.placex, 1), y(k.n, 1, k.placex, 2), z(k.n, 1, k.placey, 4);
    for (int i = 0; i < k.n; ++i) {
      const T t = multiply(tau, add(add(multiply(wy, y[i]), x[i]), multiply(wz, z[i])));
      x[i] = subtract(x[i], t);
      y[i] = subtract(y[i], multiply(wy, t));
      z[i] = subtract(z[i], multiply(wz, t));
    }
    call(Entry<T>::rot3, &k.n, x.data(), &ignored, y.data(), &ignored, z.data(), &ignored, &tau, &wy, &wz);
    EXPECT_TRUE(x.holds()) << "x, " << k;
    EXPECT_TRUE(y.holds()) << "y, " << k;
    EXPECT_TRUE(z.holds()) << "z, " << k;
  });
}

template <class T>
class Rotm : public testing::Test {};
using RealTypes = testing::Types<float, double>;
TYPED_TEST_SUITE(Rotm, RealTypes);

// The entries of H that a flag does not call for are NaN: none may be used.
TYPED_TEST(Rotm, EveryFlag) {
  using T = TypeParam;
  const T h11 = value<T>(1), h21 = value<T>(2), h12 = value<T>(3), h22 = value<T>(4), no = T(NAN);
  const T params[][5] = {
      {-1, h11, h21, h12, h22}, {0, no, h21, h12, no}, {1, h11, no, no, h22}, {-2, no, no, no, no}};
  for (const auto& param : params)
    for_each_pair([&](Shape k) {
      Checked<T> x(k.n, k.incx, k.placex, 1), y(k.n, k.incy, k.placey, 2);
      for (int i = 0; i < k.n && param[0] != -2; ++i) {
        const T w = x[i], z = y[i];
        x[i] = (param[0] == 0 ? w : w * h11) + (param[0] == 1 ? z : z * h12);
        y[i] = (param[0] == 1 ? -w : w * h21) + (param[0] == 0 ? z : z * h22);
      }
      call(Entry<T>::rotm, &k.n, x.data(), &k.incx, y.data(), &k.incy, param);
      EXPECT_TRUE(x.holds()) << "x, flag " << param[0] << " " << k;
      EXPECT_TRUE(y.holds()) << "y, flag " << param[0] << " " << k;
    });
}

}  // namespace
