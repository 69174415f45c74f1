// Routines that make rotations: exact rows, and the identities that define a rotation, checked in extended
// precision. Bounds count the roundings of the formulas, `u` being half the spacing at 1.
#include <cmath>
#include <complex>
#include <limits>
#include <random>

#include "gtest/gtest.h"
#include "orb/blas_level1.h"
#include "tests/support/bits.h"
#include "tests/support/call.h"

using namespace orb::test;

namespace {

using Wide = long double;
using WideComplex = std::complex<Wide>;

template <class T>
constexpr Wide u = std::numeric_limits<T>::epsilon() / 2;
template <class T>
constexpr Wide tiny = std::numeric_limits<T>::denorm_min();

template <class T>
struct Entry;
template <>
struct Entry<float> {
  using Complex = orb_complex_float;
  static constexpr auto rotg = orb_blas_srotg;
  static constexpr auto complex_rotg = orb_blas_crotg;
  static constexpr auto rotmg = orb_blas_srotmg;
};
template <>
struct Entry<double> {
  using Complex = orb_complex_double;
  static constexpr auto rotg = orb_blas_drotg;
  static constexpr auto complex_rotg = orb_blas_zrotg;
  static constexpr auto rotmg = orb_blas_drotmg;
};

template <class T>
class MakeRotation : public testing::Test {};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(MakeRotation, Types);

TYPED_TEST(MakeRotation, ExactRows) {
  using T = TypeParam;
  const T inf = T(INFINITY), nan = T(NAN), root = std::sqrt(T(2));
  const struct {
    T a, b, r, z, c, s;
  } rows[] = {
      {0, 0, 0, 0, 1, 0},
      {T(-0.0), T(-0.0), 0, 0, 1, 0},
      {2, 0, 2, 0, 1, 0},
      {-2, 0, -2, T(-0.0), 1, T(-0.0)},
      {0, 2, 2, 1, 0, 1},
      {0, -2, -2, 1, T(-0.0), 1},
      {4, 3, 5, T(0.6), T(0.8), T(0.6)},
      {-4, 3, -5, T(-0.6), T(0.8), T(-0.6)},
      {4, -3, 5, T(-0.6), T(0.8), T(-0.6)},
      {3, 4, 5, 1 / T(0.6), T(0.6), T(0.8)},
      {3, -4, -5, 1 / T(-0.6), T(-0.6), T(0.8)},
      {-3, -4, -5, 1 / T(0.6), T(0.6), T(0.8)},
      // equal sizes count as b the larger
      {-1, 1, root, -root, -1 / root, 1 / root},
      {2, -2, -2 * root, -root, -1 / root, 1 / root},
      {nan, 1, nan, 1, nan, nan},
      {1, nan, nan, 1, nan, nan},
      {inf, 1, nan, nan, nan, nan},
  };
  for (const auto& row : rows) {
    T a = row.a, b = row.b, c = 9, s = 9;
    call(Entry<T>::rotg, &a, &b, &c, &s);
    const T got[] = {a, b, c, s}, want[] = {row.r, row.z, row.c, row.s};
    for (int i = 0; i < 4; ++i)
      EXPECT_TRUE(same(got[i], want[i]) ||
                  std::abs(Wide(got[i]) - want[i]) <= 4 * u<T> * std::abs(Wide(want[i])))
          << "rotg(" << row.a << ", " << row.b << ") "
          << "rzcs"[i] << " is " << got[i] << ", not " << want[i];
  }
}

// Pairs of all sizes whose scale stays finite.
template <class Check>
void for_pairs_of_sizes(int reach, Check check) {
  std::mt19937 random(1979);
  std::uniform_real_distribution<double> mantissa(-2, 2);
  std::uniform_int_distribution<int> exponent(-reach, reach), near(-3, 3);
  for (int i = 0; i < 4000; ++i) {
    const int e = exponent(random), f = i % 2 ? exponent(random) : e + near(random);
    check(i, [&](int which) { return std::ldexp(mantissa(random), which ? f : e); });
  }
}

template <class T>
constexpr int reach = std::numeric_limits<T>::max_exponent - 8;

TYPED_TEST(MakeRotation, ClearsTheSecondElement) {
  using T = TypeParam;
  for_pairs_of_sizes(reach<T>, [](int i, auto draw) {
    const T a = T(draw(0)), b = T(draw(1));
    T r = a, z = b, c = 9, s = 9;
    call(Entry<T>::rotg, &r, &z, &c, &s);
    const Wide A = a, B = b, R = r, C = c, S = s, size = std::hypot(A, B);
    if (size < std::numeric_limits<T>::min() * 16) return;  // r itself subnormal: no relative bound
    const Wide underflow = tiny<T> * size;
    EXPECT_LE(std::abs(C * A + S * B - R), 12 * u<T> * size + underflow)
        << "draw " << i << " " << a << " " << b;
    EXPECT_LE(std::abs(C * B - S * A), 4 * u<T> * std::min(std::abs(A), std::abs(B)) + underflow)
        << "draw " << i;
    EXPECT_LE(std::abs(C * C + S * S - 1), 20 * u<T>) << "draw " << i;
    const bool a_larger = std::abs(a) > std::abs(b);
    EXPECT_EQ(std::signbit(r), std::signbit(a_larger ? a : b)) << "draw " << i;
    EXPECT_EQ(z, a_larger ? s : c != 0 ? 1 / c : 1) << "draw " << i;
  });
}

TYPED_TEST(MakeRotation, PowersOfTwoOnlyScaleR) {
  using T = TypeParam;
  for_pairs_of_sizes(10, [](int i, auto draw) {
    const T a = T(draw(0)), b = T(draw(1)), power = std::ldexp(T(1), i % 2 ? reach<T> - 30 : 30 - reach<T>);
    T r = a, z = b, c, s, r2 = a * power, z2 = b * power, c2, s2;
    call(Entry<T>::rotg, &r, &z, &c, &s);
    call(Entry<T>::rotg, &r2, &z2, &c2, &s2);
    EXPECT_TRUE(same(r2, r * power) && same(z2, z) && same(c2, c) && same(s2, s)) << "draw " << i;
  });
}

TYPED_TEST(MakeRotation, ComplexOne) {
  using T = TypeParam;
  using Complex = typename Entry<T>::Complex;
  // the modulus is a plain square root of squares: it lives on half the exponents
  for_pairs_of_sizes(reach<T> / 2 - 20, [](int i, auto draw) {
    const Complex a = {T(draw(0)), T(draw(0))}, b = {T(draw(1)), T(draw(1))};
    Complex r = a, s = {9, 9};
    T c = 9;
    call(Entry<T>::complex_rotg, &r, &b, &c, &s);
    const WideComplex A(a.re, a.im), B(b.re, b.im), R(r.re, r.im), S(s.re, s.im);
    const Wide C = c, size = std::hypot(std::abs(A), std::abs(B)), underflow = 4 * tiny<T> * (1 + size);
    EXPECT_LE(std::abs(C * A + S * B - R), 30 * u<T> * size + underflow) << "draw " << i;
    EXPECT_LE(std::abs(C * B - std::conj(S) * A), 20 * u<T> * std::min(std::abs(A), std::abs(B)) + underflow)
        << "draw " << i;
    EXPECT_LE(std::abs(C * C + std::norm(S) - 1), 40 * u<T>) << "draw " << i;
    EXPECT_LE(std::abs(std::imag(std::conj(A) * R)), 4 * u<T> * std::abs(A) * size + underflow)
        << "draw " << i;
    EXPECT_GT(std::real(std::conj(A) * R), 0) << "draw " << i;
    EXPECT_GE(c, 0) << "draw " << i;
  });
}

TYPED_TEST(MakeRotation, ComplexRowsWithoutAFirstElement) {
  using T = TypeParam;
  using Complex = typename Entry<T>::Complex;
  const T below = std::ldexp(T(1), -reach<T> / 2 - 80);  // its square is zero, and so is its modulus
  for (Complex a : {Complex{0, 0}, Complex{T(-0.0), 0}, Complex{below, -below}})
    for (Complex b : {Complex{0, 0}, Complex{3, T(-0.25)}}) {
      Complex r = a, s = {9, 9};
      T c = 9;
      call(Entry<T>::complex_rotg, &r, &b, &c, &s);
      EXPECT_TRUE(same(r, b) && same(s, Complex{1, 0}) && same(c, T(0))) << shown(a) << " " << shown(b);
    }
}

// The quotients of doubles are extended: r, c and s of whole triangles come out as if rounded once.
TEST(MakeRotation, DoubleComplexRoundsOnce) {
  const int triangles[][3] = {{3, 4, 5}, {5, 12, 13}, {15, 8, 17}, {7, 24, 25}, {21, 20, 29}, {9, 40, 41}};
  for (const auto& t : triangles)
    for (double k : {1.0, 7.0, 1e6 + 3}) {
      orb_complex_double a = {0, t[0] * k}, b = {t[1] * k, 0}, s;
      double c;
      call(orb_blas_zrotg, &a, const_cast<const orb_complex_double*>(&b), &c, &s);
      const double r = t[2];
      EXPECT_TRUE(same(a, orb_complex_double{0, r * k}) && same(s, orb_complex_double{0, t[1] / r}) &&
                  c == t[0] / r)
          << t[2] << " times " << k;
    }
}

template <class T>
struct Modified {
  T d1, d2, x1, y1, param[5] = {7, 8, 8, 8, 8};
  void make() { call(Entry<T>::rotmg, &d1, &d2, &x1, const_cast<const T*>(&y1), param); }
};

TYPED_TEST(MakeRotation, ModifiedExactRows) {
  using T = TypeParam;
  const T big = 1 << 30, gamsq = 16777216, rgamsq = T(5.960464477539e-8), keep = 8;
  const struct {
    T d1, d2, x1, y1, new_d1, new_d2, new_x1, param[5];
  } rows[] = {
      // nothing to clear: only the flag is written
      {2, 3, 5, 0, 2, 3, 5, {-2, keep, keep, keep, keep}},
      {2, 0, 5, 7, 2, 0, 5, {-2, keep, keep, keep, keep}},
      {0, 0, 5, 7, 0, 0, 5, {-2, keep, keep, keep, keep}},
      // refused: a negative weight that no real rotation fits
      {-1, 3, 5, 7, 0, 0, 0, {-1, 0, 0, 0, 0}},
      {-1, 3, 5, 0, 0, 0, 0, {-1, 0, 0, 0, 0}},
      {1, -3, 5, 7, 0, 0, 0, {-1, 0, 0, 0, 0}},
      // |q1| > |q2|: h11 = h22 = 1
      {1, 1, 2, 1, T(0.8), T(0.8), T(2.5), {0, keep, T(-0.5), T(0.5), keep}},
      {1, -1, 2, 1, 1 / T(0.75), -1 / T(0.75), T(1.5), {0, keep, T(-0.5), T(-0.5), keep}},
      // |q1| <= |q2|: h12 = 1, h21 = -1
      {1, 1, 1, 2, T(0.8), T(0.8), T(2.5), {1, T(0.5), keep, keep, T(0.5)}},
      {1, 1, 1, 1, T(0.5), T(0.5), 2, {1, 1, keep, keep, 1}},
      {0, 4, 3, 2, 4, 0, 2, {1, 0, keep, keep, T(1.5)}},
      {3, 4, 0, 2, 4, 3, 2, {1, 0, keep, keep, 0}},
      // rescaled, all of H written
      {big, big, 2, 1, T(51.2), T(51.2), 10240, {-1, 4096, -2048, 2048, 4096}},
      {big, big, 1, 2, T(51.2), T(51.2), 10240, {-1, 2048, -4096, 4096, 2048}},
      {1 / big, 1, 65536, 1, T(0.0125), T(0.8), 20, {-1, T(1) / 4096, T(-1) / 65536, 4, 1}},
      // the bounds of rescaling, at u = 1: the weights change places
      {1, gamsq / 2, 0, 1, gamsq / 2, 1, 1, {1, 0, keep, keep, 0}},
      {1, gamsq, 0, 1, 1, 1, 4096, {-1, 0, -1, 4096, 0}},
      {1, gamsq * gamsq, 0, 1, 1, 1, gamsq, {-1, 0, -1, gamsq, 0}},
      {1, 2 / gamsq, 0, 1, 2 / gamsq, 1, 1, {1, 0, keep, keep, 0}},
      {1, rgamsq, 0, 1, rgamsq * gamsq, 1, T(1) / 4096, {-1, 0, -1, T(1) / 4096, 0}},
      {1, 1 / (2 * gamsq), 0, 1, T(0.5), 1, T(1) / 4096, {-1, 0, -1, T(1) / 4096, 0}},
      {gamsq, 1, 0, 1, 1, 1, 1, {-1, 0, -4096, 1, 0}},
  };
  for (const auto& row : rows) {
    Modified<T> m{row.d1, row.d2, row.x1, row.y1};
    m.make();
    const T got[] = {m.d1, m.d2, m.x1, m.y1, m.param[0], m.param[1], m.param[2], m.param[3], m.param[4]};
    const T want[] = {row.new_d1,   row.new_d2,   row.new_x1,   row.y1,      row.param[0],
                      row.param[1], row.param[2], row.param[3], row.param[4]};
    for (int i = 0; i < 9; ++i)
      EXPECT_EQ(got[i], want[i]) << "d1 " << row.d1 << " d2 " << row.d2 << " x1 " << row.x1 << " y1 "
                                 << row.y1 << ", word " << i;
  }
}

// H maps (x1, y1) to (new x1, 0) and carries one pair of weights into the other: transpose(H) D' H = D.
TYPED_TEST(MakeRotation, ModifiedKeepsItsIdentities) {
  using T = TypeParam;
  for_pairs_of_sizes(20, [](int i, auto draw) {
    const T d1 = std::abs(std::ldexp(T(draw(0)), i % 40 - 20)), d2 = std::ldexp(T(draw(1)), 20 - i / 40 % 40);
    const Wide x1 = T(draw(0)), y1 = T(draw(1));
    Modified<T> m{d1, d2, T(x1), T(y1)};
    m.make();
    const T flag = m.param[0];
    const Wide h11 = flag == 0 ? 1 : m.param[1], h21 = flag == 1 ? -1 : m.param[2],
               h12 = flag == 1 ? 1 : m.param[3], h22 = flag == 0 ? 1 : m.param[4];
    if (h11 == 0 && h12 == 0) {
      EXPECT_LE(d2 * y1 * y1, -d1 * x1 * x1 * (1 - 4 * u<T>)) << "refused draw " << i;
      return;
    }
    const auto near = [&](const char* what, Wide left, Wide right, Wide want) {
      EXPECT_LE(std::abs(left + right - want), 12 * u<T> * (std::abs(left) + std::abs(right)))
          << what << ", draw " << i << ": d1 " << d1 << " d2 " << d2 << " x1 " << x1 << " y1 " << y1;
    };
    near("second element", h21 * x1, h22 * y1, 0);
    near("first element", h11 * x1, h12 * y1, m.x1);
    near("d1", m.d1 * h11 * h11, m.d2 * h21 * h21, d1);
    near("d2", m.d1 * h12 * h12, m.d2 * h22 * h22, d2);
    near("crossed", m.d1 * h11 * h12, m.d2 * h21 * h22, 0);
    for (T d : {m.d1, m.d2})
      EXPECT_TRUE(std::abs(d) >= 0x1p-24 && std::abs(d) < 0x1p24) << "draw " << i << " " << d;
  });
}

// d2 is so close to -d1 x1^2 / y1^2 that the pivot 1 - h12 h21 may round to 0: refused then, never divided
// by.
TYPED_TEST(MakeRotation, ModifiedNearlySingular) {
  using T = TypeParam;
  int refused = 0;
  for (int i = 1; i < 8000; ++i) {
    const T x1 = T(i % 20 + 1) / 7, y1 = T(i / 20 % 50 + 1) / 11, d1 = T(i / 1000 + 1) / 3;
    Modified<T> m{d1, std::nextafter(-d1 * x1 * x1 / (y1 * y1), T(0)), x1, y1};
    m.make();
    EXPECT_TRUE(std::isfinite(m.d1) && std::isfinite(m.d2)) << d1 << " " << x1 << " " << y1;
    refused += m.d1 == 0;
  }
  EXPECT_GT(refused, 0);
}

// Whatever comes in, the rescaling ends; infinities and NaN are handed on.
TYPED_TEST(MakeRotation, ModifiedEndsForEveryInput) {
  using T = TypeParam;
  const T least = std::numeric_limits<T>::denorm_min(), most = std::numeric_limits<T>::max();
  const T all[] = {0, T(-0.0), 1, -1, least, -least, most, -most, T(INFINITY), T(-INFINITY), T(NAN)};
  for (T d1 : all)
    for (T d2 : all)
      for (T x1 : all)
        for (T y1 : all) {
          Modified<T> m{d1, d2, x1, y1};
          m.make();
          const T flag = m.param[0];
          EXPECT_TRUE(flag == -2 || flag == -1 || flag == 0 || flag == 1) << flag;
          EXPECT_EQ(flag == -1 && d1 < 0, d1 < 0) << d1;
          for (T d : {m.d1, m.d2})
            EXPECT_TRUE(flag == -2 || !(d != 0 && std::isfinite(d)) ||
                        (std::abs(d) >= T(0x1p-24) && std::abs(d) < T(0x1p24)))
                << d1 << " " << d2 << " " << x1 << " " << y1 << " left " << d;
        }
}

}  // namespace
