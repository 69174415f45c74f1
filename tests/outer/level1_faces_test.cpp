// The Fortran and C faces of the vector routines against plain models. The data are small integers: the
// models need not know the order of additions, and what is tested is that each name reaches its kernel with
// its arguments in order, and the rules that the faces add.
#include <math.h>

#include <tuple>

#include "gtest/gtest.h"
#include "orb/blas.h"
#include "orb/cblas.h"
#include "orb/services.h"
#include "tests/outer/numbers.h"

using namespace orb::test;

namespace {

template <class T>
struct Names;
// Per routine, the entries that do the same: p is the type letter, s the letters of routines with a real
// result.
#define NAMES(T, p, s)                                                                           \
  template <>                                                                                    \
  struct Names<T> {                                                                              \
    static constexpr auto axpy = std::make_tuple(p##axpy_, cblas_##p##axpy, orb_blas_##p##axpy); \
    static constexpr auto scal = std::make_tuple(p##scal_, cblas_##p##scal);                     \
    static constexpr auto copy = std::make_tuple(p##copy_, cblas_##p##copy);                     \
    static constexpr auto swap = std::make_tuple(p##swap_, cblas_##p##swap);                     \
    static constexpr auto asum = std::make_tuple(s##asum_, cblas_##s##asum);                     \
    static constexpr auto nrm2 = std::make_tuple(s##nrm2_, cblas_##s##nrm2);                     \
    static constexpr auto amax = std::make_tuple(i##p##amax_, cblas_i##p##amax);                 \
    static constexpr auto amin = std::make_tuple(i##p##amin_, cblas_i##p##amin);                 \
    static constexpr auto axpyi = p##axpyi_;                                                     \
    static constexpr auto gthr = p##gthr_;                                                       \
    static constexpr auto gthrz = p##gthrz_;                                                     \
    static constexpr auto sctr = p##sctr_;                                                       \
  };
NAMES(float, s, s)
NAMES(double, d, d)
NAMES(orb_complex_float, c, sc)
NAMES(orb_complex_double, z, dz)

template <class F, class... Entry>
void each(const std::tuple<Entry...>& entries, F f) {
  std::apply([&](auto... entry) { (f(entry), ...); }, entries);
}

template <class T>
struct RealOf {
  using type = T;
};
template <>
struct RealOf<orb_complex_float> {
  using type = float;
};
template <>
struct RealOf<orb_complex_double> {
  using type = double;
};
template <class T>
using real = typename RealOf<T>::type;

constexpr int lengths[] = {-1, 0, 1, 2, 3, 9, 33};
constexpr int strides[][2] = {{1, 1}, {-1, -1}, {2, -3}, {-2, 1}, {0, 1}};

template <class T>
struct Vectors {
  int n, incx, incy;
  std::vector<T> x = integers<T>(extent(n, incx), 2), y = integers<T>(extent(n, incy), 6);

  Wide at(const std::vector<T>& v, int i, int inc) const { return wide(v[place(i, n, inc)]); }
};

// Runs check(vectors) over all lengths and strides.
template <class T, class Check>
void sweep(Check check) {
  for (int n : lengths)
    for (const auto& [incx, incy] : strides) {
      SCOPED_TRACE(testing::Message() << "n " << n << " incx " << incx << " incy " << incy);
      check(Vectors<T>{n, incx, incy});
    }
}

template <class T>
class Level1 : public testing::Test {};
using Types = testing::Types<float, double, orb_complex_float, orb_complex_double>;
TYPED_TEST_SUITE(Level1, Types);

TYPED_TEST(Level1, Axpy) {
  using T = TypeParam;
  sweep<T>([](const Vectors<T>& v) {
    const Wide alpha = wide(number<T>({3, -2}));
    auto expected = wide(v.y);
    for (int i = 0; i < v.n; ++i) expected[place(i, v.n, v.incy)] += alpha * v.at(v.x, i, v.incx);
    each(Names<T>::axpy, [&](auto axpy) {
      auto y = v.y;
      call_face(axpy, v.n, number<T>(alpha), v.x.data(), v.incx, y.data(), v.incy);
      EXPECT_EQ(wide(y), expected);
    });
  });
}

TYPED_TEST(Level1, CopyAndSwap) {
  using T = TypeParam;
  sweep<T>([](const Vectors<T>& v) {
    if (v.incx == 0) return;
    auto expected_x = wide(v.x), expected_y = wide(v.y);
    for (int i = 0; i < v.n; ++i)
      std::swap(expected_x[place(i, v.n, v.incx)], expected_y[place(i, v.n, v.incy)]);
    each(Names<T>::copy, [&](auto copy) {
      auto y = v.y;
      call_face(copy, v.n, v.x.data(), v.incx, y.data(), v.incy);
      EXPECT_EQ(wide(y), expected_y);
    });
    each(Names<T>::swap, [&](auto swap) {
      auto x = v.x, y = v.y;
      call_face(swap, v.n, x.data(), v.incx, y.data(), v.incy);
      EXPECT_EQ(wide(x), expected_x);
      EXPECT_EQ(wide(y), expected_y);
    });
  });
}

// A stride below 1 is an empty vector.
TYPED_TEST(Level1, RoutinesOnOneVector) {
  using T = TypeParam;
  using R = real<T>;
  for (int n : lengths)
    for (int inc : {1, 3, 0, -1, -2}) {
      SCOPED_TRACE(testing::Message() << "n " << n << " inc " << inc);
      const auto x = integers<T>(extent(n, inc) + 1, 4);
      const Wide alpha = wide(number<T>({-2, 3}));
      auto scaled = wide(x);
      double sum = 0, squares = 0, most = -1, least = 99;
      int last = inc > 0 ? n : 0, max_at = -1, min_at = -1;
      for (int i = 0; i < last; ++i) {
        const Wide e = scaled[size_t(i * inc)];
        const double size = fabs(e.real()) + fabs(e.imag());
        scaled[size_t(i * inc)] *= alpha;
        sum += size;
        squares += std::norm(e);
        if (size > most) most = size, max_at = i;
        if (size < least) least = size, min_at = i;
      }
      each(Names<T>::scal, [&](auto scal) {
        auto y = x;
        call_face(scal, n, number<T>(alpha), y.data(), inc);
        EXPECT_EQ(wide(y), scaled);
      });
      each(Names<T>::asum, [&](auto asum) { EXPECT_EQ(call_face(asum, n, x.data(), inc), R(sum)); });
      each(Names<T>::nrm2,
           [&](auto nrm2) { EXPECT_EQ(call_face(nrm2, n, x.data(), inc), R(sqrtl(squares))); });
      const auto check_place = [&](auto names, int at) {
        EXPECT_EQ(call_face(std::get<0>(names), n, x.data(), inc), at + 1);
        EXPECT_EQ(call_face(std::get<1>(names), n, x.data(), inc), CBLAS_INDEX(at < 0 ? 0 : at));
      };
      check_place(Names<T>::amax, max_at);
      check_place(Names<T>::amin, min_at);
    }
}

TYPED_TEST(Level1, SparseVectors) {
  using T = TypeParam;
  for (int nz : lengths) {
    const int full = 2 * std::max(nz, 0) + 1;
    std::vector<int> indx;
    for (int i = 0; i < nz; ++i) indx.push_back(full - 2 * i);  // from 1
    const auto x = integers<T>(std::max(nz, 0), 1), y = integers<T>(full, 3);
    const T alpha = number<T>({2, -1});
    auto added = wide(y), scattered = wide(y), cleared = wide(y);
    std::vector<Wide> gathered;
    for (int i = 0; i < nz; ++i) {
      const size_t at = size_t(indx[size_t(i)] - 1);
      added[at] += wide(alpha) * wide(x[size_t(i)]);
      gathered.push_back(wide(y[at]));
      scattered[at] = wide(x[size_t(i)]);
      cleared[at] = 0;
    }
    auto y1 = y, y2 = y, y3 = y, x1 = x, x2 = x;
    call_face(Names<T>::axpyi, nz, alpha, x.data(), indx.data(), y1.data());
    call_face(Names<T>::sctr, nz, x.data(), indx.data(), y2.data());
    call_face(Names<T>::gthr, nz, y.data(), x1.data(), indx.data());
    call_face(Names<T>::gthrz, nz, y3.data(), x2.data(), indx.data());
    EXPECT_EQ(wide(y1), added);
    EXPECT_EQ(wide(y2), scattered);
    EXPECT_EQ(wide(x1), gathered);
    EXPECT_EQ(wide(x2), gathered);
    EXPECT_EQ(wide(y3), cleared);
  }
}

// Every dot product with the list (n, x, incx, y, incy), its result widened.
template <class T>
Wide plain_dot(const Vectors<T>& v, bool conjugate) {
  Wide sum = 0;
  for (int i = 0; i < v.n; ++i) {
    const Wide e = v.at(v.x, i, v.incx);
    sum += (conjugate ? conj(e) : e) * v.at(v.y, i, v.incy);
  }
  return sum;
}

TEST(Dots, Real) {
  sweep<float>([](const Vectors<float>& v) {
    const double expected = plain_dot(v, false).real();
    for (auto sdot : {sdot_, orb_blas_sdot})
      EXPECT_EQ(call_face(sdot, v.n, v.x.data(), v.incx, v.y.data(), v.incy), expected);
    EXPECT_EQ(call_face(cblas_sdot, v.n, v.x.data(), v.incx, v.y.data(), v.incy), expected);
    EXPECT_EQ(call_face(dsdot_, v.n, v.x.data(), v.incx, v.y.data(), v.incy), expected);
    EXPECT_EQ(call_face(cblas_dsdot, v.n, v.x.data(), v.incx, v.y.data(), v.incy), expected);
    EXPECT_EQ(call_face(sdsdot_, v.n, 0.5f, v.x.data(), v.incx, v.y.data(), v.incy), expected + 0.5);
    EXPECT_EQ(call_face(cblas_sdsdot, v.n, 0.5f, v.x.data(), v.incx, v.y.data(), v.incy), expected + 0.5);
  });
  sweep<double>([](const Vectors<double>& v) {
    const double expected = plain_dot(v, false).real();
    for (auto ddot : {ddot_, orb_blas_ddot})
      EXPECT_EQ(call_face(ddot, v.n, v.x.data(), v.incx, v.y.data(), v.incy), expected);
    EXPECT_EQ(call_face(cblas_ddot, v.n, v.x.data(), v.incx, v.y.data(), v.incy), expected);
  });
}

// The compiler's complex type, and the registers that it stands for: a single complex comes in edx:eax.
template <class F, class C, class T>
void check_complex_dot(F fortran, C c, bool conjugate) {
  sweep<T>([&](const Vectors<T>& v) {
    const Wide expected = plain_dot(v, conjugate);
    const auto z = fortran(&v.n, v.x.data(), &v.incx, v.y.data(), &v.incy);
    EXPECT_EQ(Wide(__real__ z, __imag__ z), expected);
    T result{-1, -1};
    call_face(c, v.n, v.x.data(), v.incx, v.y.data(), v.incy, &result);
    EXPECT_EQ(wide(result), expected);
    if constexpr (sizeof(T) == 8) {
      using InRegisters = uint64_t (*)(const int*, const T*, const int*, const T*, const int*);
      const uint64_t pair = call(reinterpret_cast<InRegisters>(reinterpret_cast<void*>(fortran)), &v.n,
                                 v.x.data(), &v.incx, v.y.data(), &v.incy);
      memcpy(&result, &pair, sizeof pair);
      EXPECT_EQ(wide(result), expected);
    }
  });
}

TEST(Dots, Complex) {
  using c32 = orb_complex_float;
  using c64 = orb_complex_double;
  check_complex_dot<decltype(&cdotu_), decltype(&cblas_cdotu_sub), c32>(cdotu_, cblas_cdotu_sub, false);
  check_complex_dot<decltype(&cdotc_), decltype(&cblas_cdotc_sub), c32>(cdotc_, cblas_cdotc_sub, true);
  check_complex_dot<decltype(&zdotu_), decltype(&cblas_zdotu_sub), c64>(zdotu_, cblas_zdotu_sub, false);
  check_complex_dot<decltype(&zdotc_), decltype(&cblas_zdotc_sub), c64>(zdotc_, cblas_zdotc_sub, true);
}

TEST(Dots, Sparse) {
  const int nz = 3, indx[] = {5, 1, 4};
  const auto check = [&]<class T>(T, auto u, auto c) {
    const auto x = integers<T>(3, 1), y = integers<T>(5, 3);
    Wide plain = 0, conjugated = 0;
    for (int i = 0; i < 3; ++i) {
      const Wide a = wide(x[size_t(i)]), b = wide(y[size_t(indx[i] - 1)]);
      plain += a * b;
      conjugated += conj(a) * b;
    }
    const auto zu = u(&nz, x.data(), indx, y.data()), zc = c(&nz, x.data(), indx, y.data());
    EXPECT_EQ(Wide(__real__ zu, __imag__ zu), plain);
    EXPECT_EQ(Wide(__real__ zc, __imag__ zc), conjugated);
  };
  check(0.0f, sdoti_, sdoti_);
  check(0.0, ddoti_, ddoti_);
  check(orb_complex_float{}, cdotui_, cdotci_);
  check(orb_complex_double{}, zdotui_, zdotci_);
}

template <class T, class... Entry>
void check_rot(Entry... entry) {
  using R = real<T>;
  sweep<T>([&](const Vectors<T>& v) {
    if (v.incx == 0) return;
    const double c = 0.5, s = 2;
    auto ex = wide(v.x), ey = wide(v.y);
    for (int i = 0; i < v.n; ++i) {
      Wide &a = ex[place(i, v.n, v.incx)], &b = ey[place(i, v.n, v.incy)];
      const Wide old = a;
      a = c * a + s * b;
      b = c * b - s * old;
    }
    const auto check = [&](auto rot) {
      auto x = v.x, y = v.y;
      call_face(rot, v.n, x.data(), v.incx, y.data(), v.incy, R(c), R(s));
      EXPECT_EQ(wide(x), ex);
      EXPECT_EQ(wide(y), ey);
    };
    (check(entry), ...);
  });
}

TEST(Rotations, Apply) {
  check_rot<float>(srot_, cblas_srot);
  check_rot<double>(drot_, cblas_drot);
  check_rot<orb_complex_float>(csrot_, cblas_csrot);
  check_rot<orb_complex_double>(zdrot_, cblas_zdrot);
}

// 3 and 4 i make r = 5 times the direction of a; s is chosen so that b is cleared.
TEST(Rotations, Make) {
  const auto real_one = [](auto rotg, auto zero) {
    using T = decltype(zero);
    T a = 3, b = 4, c = 0, s = 0;
    call_face(rotg, &a, &b, &c, &s);
    for (const auto& [value, expected] : {std::pair<T, double>{a, 5}, {c, 0.6}, {s, 0.8}, {b, 1 / 0.6}})
      EXPECT_NEAR(value, expected, 1e-6);
  };
  real_one(srotg_, 0.0f), real_one(cblas_srotg, 0.0f), real_one(drotg_, 0.0), real_one(cblas_drotg, 0.0);
  const auto complex_one = [](auto rotg, auto zero) {
    using T = decltype(zero);
    T a{3, 0}, b{0, 4}, s{};
    real<T> c = 0;
    call_face(rotg, &a, &b, &c, &s);
    EXPECT_NEAR(std::abs(wide(a) - 5.0), 0, 1e-6);
    EXPECT_NEAR(c, 0.6, 1e-6);
    EXPECT_NEAR(std::abs(wide(s) - Wide(0, -0.8)), 0, 1e-6);
  };
  complex_one(crotg_, orb_complex_float{}), complex_one(cblas_crotg, orb_complex_float{});
  complex_one(zrotg_, orb_complex_double{}), complex_one(cblas_zrotg, orb_complex_double{});
}

// The modified rotation that rotmg makes for a pair, applied to the pair by rotm, clears its second
// component.
TEST(Rotations, Modified) {
  const auto check = [](auto rotmg, auto rotm, auto zero) {
    using T = decltype(zero);
    const auto& [d1, d2, x1, y1] = std::tuple<T, T, T, T>{2, 3, 5, 4};
    T a = d1, b = d2, x = x1, param[5] = {9, 9, 9, 9, 9};
    call_face(rotmg, &a, &b, &x, y1, param);
    T row_x[3] = {x1, 9, 9}, row_y[3] = {y1, 9, 9};
    call_face(rotm, 1, row_x, -2, row_y, 1, param);
    EXPECT_NEAR(row_x[0], x, 1e-5);
    EXPECT_NEAR(row_y[0], 0, 1e-5);
    EXPECT_EQ(row_x[1], 9);
    EXPECT_NEAR(a * x * x, d1 * x1 * x1 + d2 * y1 * y1, 1e-3);
  };
  check(srotmg_, srotm_, 0.0f), check(cblas_srotmg, cblas_srotm, 0.0f);
  check(drotmg_, drotm_, 0.0), check(cblas_drotmg, cblas_drotm, 0.0);
}

TEST(Rotations, Sparse) {
  const int nz = 2, indx[] = {3, 1};
  const auto check = [&](auto roti, auto zero) {
    using T = decltype(zero);
    T x[] = {1, 2}, y[] = {3, 4, 5};
    call_face(roti, nz, x, indx, y, T(0.5), T(2));
    EXPECT_EQ((std::vector<T>{x[0], x[1], y[0], y[1], y[2]}), (std::vector<T>{10.5, 7, -2.5, 4, 0.5}));
  };
  check(sroti_, 0.0f), check(droti_, 0.0);
}

TEST(Scalars, RealFactorsAndSizes) {
  const auto check = [](auto zero, auto scal, auto c_scal, auto cabs1, auto c_cabs1) {
    using T = decltype(zero);
    T x[] = {{1, 2}, {3, 4}, {5, 6}};
    call_face(scal, 2, real<T>(3), x, 2);
    call_face(c_scal, 1, real<T>(2), x, 1);
    call_face(scal, 3, real<T>(7), x, -1);
    call_face(c_scal, 3, real<T>(7), x, 0);
    EXPECT_EQ(wide(std::vector<T>(x, x + 3)), (std::vector<Wide>{{6, 12}, {3, 4}, {15, 18}}));
    const T z{-3, 4};
    EXPECT_EQ(call_face(cabs1, &z), 7);
    EXPECT_EQ(call_face(c_cabs1, &z), 7);
  };
  check(orb_complex_float{}, csscal_, cblas_csscal, scabs1_, cblas_scabs1);
  check(orb_complex_double{}, zdscal_, cblas_zdscal, dcabs1_, cblas_dcabs1);
}

}  // namespace
