// Routines that apply rotations and reflectors, against one pair after another in plain arithmetic. Each
// element takes a fixed set of rounded operations, so every path must agree to the bit.
#include <limits.h>

#include <cmath>

#include "gtest/gtest.h"
#include "orb/blas_level1.h"
#include "tests/support/bits.h"
#include "tests/support/call.h"
#include "tests/support/guarded.h"

using namespace orb::test;

namespace {

// A vector as a caller passes it: element i at begin + i * inc of an array that starts at word `place`.
template <class T>
struct Vector {
  Guarded<T> array;
  int inc, begin;
  std::vector<T> expected;

  Vector(int n, int inc_, int place, int seed)
      : array(n > 0 ? (n - 1) * abs(inc_) + 1 : 0, place), inc(inc_), begin(inc_ < 0 ? (1 - n) * inc_ : 0) {
    for (int i = 0; i < array.size(); ++i) array[i] = value<T>(i + seed);
    if (array.size() > 8) {
      array[1] = value<T>(1 + seed), set_real(array[1], INFINITY);
      set_real(array[3], NAN);
      set_real(array[5], -0.0);
    }
    expected.assign(array.begin(), array.end());
  }
  static void set_real(T& x, double to) {
    if constexpr (ComplexElement<T>)
      x.re = real_of<T>(to);
    else
      x = T(to);
  }
  T& operator[](int i) { return expected[size_t(begin + i * inc)]; }
  T* data() { return array.data(); }
  testing::AssertionResult holds() const { return same_bits(array, expected); }
};

struct Shape {
  int n, incx, incy, place_x, place_y;
};
std::ostream& operator<<(std::ostream& out, const Shape& s) {
  return out << "n " << s.n << " incx " << s.incx << " incy " << s.incy << " places " << s.place_x << " "
             << s.place_y;
}

constexpr int lengths[] = {-1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33};

// All alignments at unit strides; at others the path does not ask for it.
template <class Check>
void for_shapes(Check check, bool strides = true) {
  for (int n : lengths)
    for (int place = 0; place < 16; ++place) check(Shape{n, 1, 1, place % 4, place / 4});
  if (strides)
    for (int n : lengths)
      for (int incx : {1, -1, 2, -3, 0})
        for (int incy : {1, -1, 2, -3, 0}) check(Shape{n, incx, incy, 1, -1});
}

// x, y = c x + s y, c y - conj(s) x
template <class T, class S>
void rotate(T& x, T& y, real_of<T> c, S s) {
  const T old = x;
  x = add(mul(c, old), mul(s, y));
  y = sub(mul(c, y), mul(conj(s), old));
}

template <class T_, auto entry_>
struct Case {
  using T = T_;
  static constexpr auto entry = entry_;
};

template <class C>
class Rot : public testing::Test {};
using RotCases =
    testing::Types<Case<float, orb_blas_xsrot>, Case<double, orb_blas_xdrot>,
                   Case<orb_complex_float, orb_blas_xcrot>, Case<orb_complex_double, orb_blas_xzrot>,
                   Case<orb_complex_float, orb_blas_xcsrot>, Case<orb_complex_double, orb_blas_xzdrot>>;
TYPED_TEST_SUITE(Rot, RotCases);

template <class R, class T, class S>
S sine_of(R (*)(const int*, T*, const int*, T*, const int*, const real_of<T>*, const S*));

TYPED_TEST(Rot, EveryLengthAlignmentAndStride) {
  using T = typename TypeParam::T;
  using S = decltype(sine_of(TypeParam::entry));
  const real_of<T> c = real_of<T>(0.7);
  const S s = value<S>(3);
  for_shapes([&](Shape k) {
    Vector<T> x(k.n, k.incx, k.place_x, 1), y(k.n, k.incy, k.place_y, 40);
    for (int i = 0; i < k.n; ++i) rotate(x[i], y[i], c, s);
    call(TypeParam::entry, &k.n, x.data(), &k.incx, y.data(), &k.incy, &c, &s);
    ASSERT_TRUE(x.holds()) << "x, " << k;
    ASSERT_TRUE(y.holds()) << "y, " << k;
  });
}

template <class C>
class Lartv : public testing::Test {};
using LartvCases =
    testing::Types<Case<float, orb_blas_slartv>, Case<double, orb_blas_dlartv>,
                   Case<orb_complex_float, orb_blas_clartv>, Case<orb_complex_double, orb_blas_zlartv>>;
TYPED_TEST_SUITE(Lartv, LartvCases);

TYPED_TEST(Lartv, EveryPairTakesItsOwnRotation) {
  using T = typename TypeParam::T;
  for (int incc : {1, -1, 2, 0})
    for_shapes([&](Shape k) {
      Vector<T> x(k.n, k.incx, k.place_x, 1), y(k.n, k.incy, k.place_y, 40), s(k.n, incc, k.place_y, 21);
      Vector<real_of<T>> c(k.n, incc, k.place_x, 7);
      for (int i = 0; i < k.n; ++i) rotate(x[i], y[i], c[i], s[i]);
      call(TypeParam::entry, &k.n, x.data(), &k.incx, y.data(), &k.incy, c.data(), s.data(), &incc);
      ASSERT_TRUE(x.holds()) << "x, " << k << " incc " << incc;
      ASSERT_TRUE(y.holds()) << "y, " << k << " incc " << incc;
    });
}

template <class C>
class Rotm : public testing::Test {};
using RotmCases = testing::Types<Case<float, orb_blas_srotm>, Case<double, orb_blas_drotm>>;
TYPED_TEST_SUITE(Rotm, RotmCases);

// The entries of H that a flag does not call for are NaN: none may be used.
TYPED_TEST(Rotm, EveryFlag) {
  using T = typename TypeParam::T;
  const T h11 = value<T>(1), h21 = value<T>(2), h12 = value<T>(3), h22 = value<T>(4), no = T(NAN);
  const T params[][5] = {
      {-1, h11, h21, h12, h22}, {0, no, h21, h12, no}, {1, h11, no, no, h22}, {-2, no, no, no, no}};
  for (const auto& param : params)
    for_shapes([&](Shape k) {
      Vector<T> x(k.n, k.incx, k.place_x, 1), y(k.n, k.incy, k.place_y, 40);
      for (int i = 0; i < k.n && param[0] != -2; ++i) {
        const T w = x[i], z = y[i];
        x[i] = (param[0] == 0 ? w : w * h11) + (param[0] == 1 ? z : z * h12);
        y[i] = (param[0] == 1 ? -w : w * h21) + (param[0] == 0 ? z : z * h22);
      }
      call(TypeParam::entry, &k.n, x.data(), &k.incx, y.data(), &k.incy, param);
      ASSERT_TRUE(x.holds()) << "x, flag " << param[0] << " " << k;
      ASSERT_TRUE(y.holds()) << "y, flag " << param[0] << " " << k;
    });
}

template <class T_, auto two_, auto three_>
struct ReflectorCase {
  using T = T_;
  static constexpr auto two = two_;
  static constexpr auto three = three_;
};
template <class C>
class Reflector : public testing::Test {};
using ReflectorCases = testing::Types<ReflectorCase<float, orb_blas_srot2, orb_blas_srot3>,
                                      ReflectorCase<double, orb_blas_drot2, orb_blas_drot3>,
                                      ReflectorCase<orb_complex_float, orb_blas_crot2, orb_blas_crot3>,
                                      ReflectorCase<orb_complex_double, orb_blas_zrot2, orb_blas_zrot3>>;
TYPED_TEST_SUITE(Reflector, ReflectorCases);

// The rows are contiguous whatever the increments say.
TYPED_TEST(Reflector, TwoAndThreeRows) {
  using T = typename TypeParam::T;
  const T tau = value<T>(2), wy = value<T>(5), wz = value<T>(9);
  const int any = 3;
  for_shapes(
      [&](Shape k) {
        Vector<T> x(k.n, 1, k.place_x, 1), y(k.n, 1, k.place_y, 40);
        for (int i = 0; i < k.n; ++i) {
          const T t = mul(tau, add(mul(wy, y[i]), x[i]));
          x[i] = sub(x[i], t);
          y[i] = sub(y[i], mul(wy, t));
        }
        call(TypeParam::two, &k.n, x.data(), &any, y.data(), &any, &tau, &wy);
        ASSERT_TRUE(x.holds()) << "two rows, x, " << k;
        ASSERT_TRUE(y.holds()) << "two rows, y, " << k;
      },
      false);
  for_shapes(
      [&](Shape k) {
        Vector<T> x(k.n, 1, k.place_x, 1), y(k.n, 1, -1, 40), z(k.n, 1, k.place_y, 60);
        for (int i = 0; i < k.n; ++i) {
          const T t = mul(tau, add(add(mul(wy, y[i]), x[i]), mul(wz, z[i])));
          x[i] = sub(x[i], t);
          y[i] = sub(y[i], mul(wy, t));
          z[i] = sub(z[i], mul(wz, t));
        }
        call(TypeParam::three, &k.n, x.data(), &any, y.data(), &any, z.data(), &any, &tau, &wy, &wz);
        ASSERT_TRUE(x.holds()) << "three rows, x, " << k;
        ASSERT_TRUE(y.holds()) << "three rows, y, " << k;
        ASSERT_TRUE(z.holds()) << "three rows, z, " << k;
      },
      false);
}

}  // namespace
