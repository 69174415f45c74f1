// Packed sparse vectors against one entry after another in plain arithmetic.
#include <string.h>

#include <algorithm>
#include <cmath>

#include "gtest/gtest.h"
#include "orb/blas_level1.h"
#include "tests/support/bits.h"
#include "tests/support/call.h"
#include "tests/support/guarded.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto axpyi = orb_blas_saxpyi;
  static constexpr auto gthr = orb_blas_sgthr;
  static constexpr auto gthrz = orb_blas_sgthrz;
  static constexpr auto sctr = orb_blas_ssctr;
  static constexpr auto roti = orb_blas_sroti;
  static constexpr auto doti = orb_blas_sdoti;
};
template <>
struct Entry<double> {
  static constexpr auto axpyi = orb_blas_daxpyi;
  static constexpr auto gthr = orb_blas_dgthr;
  static constexpr auto gthrz = orb_blas_dgthrz;
  static constexpr auto sctr = orb_blas_dsctr;
  static constexpr auto roti = orb_blas_droti;
  static constexpr auto doti = orb_blas_ddoti;
};
template <>
struct Entry<c32> {
  static constexpr auto axpyi = orb_blas_caxpyi;
  static constexpr auto gthr = orb_blas_cgthr;
  static constexpr auto gthrz = orb_blas_cgthrz;
  static constexpr auto sctr = orb_blas_csctr;
  static constexpr auto dotui = orb_blas_cdotui;
  static constexpr auto dotci = orb_blas_cdotci;
};
template <>
struct Entry<c64> {
  static constexpr auto axpyi = orb_blas_zaxpyi;
  static constexpr auto gthr = orb_blas_zgthr;
  static constexpr auto gthrz = orb_blas_zgthrz;
  static constexpr auto sctr = orb_blas_zsctr;
  static constexpr auto dotui = orb_blas_zdotui;
  static constexpr auto dotci = orb_blas_zdotci;
};

constexpr int lengths[] = {-2, -1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33};

// Places in rising, falling and scattered order, all at one place, and in pairs that repeat.
const struct {
  const char* name;
  int (*place)(int i, int n);
} orders[] = {{"rising", [](int i, int) { return 2 * i + 1; }},
              {"falling", [](int i, int n) { return n - i; }},
              {"scattered", [](int i, int n) { return i * 29 % (2 * n + 1) + 1; }},
              {"one place", [](int, int n) { return n; }},
              {"repeated", [](int i, int) { return i / 2 + 1; }}};

// One run: packed x and full y, both ending at a guard page or starting at a given word, and copies of them
// on which the model works.
template <class T>
struct Run {
  int n;
  Guarded<T> x, y;
  Guarded<int> indx;
  std::vector<T> model_x, model_y;

  Run(int n_, int (*place)(int, int), int place_x, int place_y)
      : n(n_), x(std::max(n, 0), place_x), y(n > 0 ? 2 * n + 1 : 0, place_y), indx(std::max(n, 0)) {
    for (int i = 0; i < x.size(); ++i) x[i] = value<T>(i + 3), indx[i] = place(i, n);
    for (int i = 0; i < y.size(); ++i) y[i] = value<T>(i + 50);
    model_x.assign(x.begin(), x.end());
    model_y.assign(y.begin(), y.end());
  }
  T& at_place(int i) { return model_y[size_t(indx[i] - 1)]; }
  T& at(int i) { return model_x[size_t(i)]; }
  void check() {
    ASSERT_TRUE(same_elements(x, model_x)) << "x";
    ASSERT_TRUE(same_elements(y, model_y)) << "y";
  }
};

template <class T, class Body>
void for_runs(Body body) {
  for (int n : lengths)
    for (const auto& order : orders)
      for (int place = -1; place < 4; ++place) {
        SCOPED_TRACE(testing::Message() << "nz " << n << " " << order.name << " place " << place);
        Run<T> run(n, order.place, place, place < 0 ? -1 : 3 - place);
        body(run);
        if (testing::Test::HasFatalFailure()) return;
      }
}

template <class T>
class Packed : public testing::Test {};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(Packed, Types);

TYPED_TEST(Packed, Axpyi) {
  using T = TypeParam;
  const T alpha = value<T>(8);
  for_runs<T>([&](Run<T>& r) {
    for (int i = 0; i < r.n; ++i) r.at_place(i) = add(r.at_place(i), multiply(alpha, r.at(i)));
    call(Entry<T>::axpyi, &r.n, &alpha, r.x.data(), r.indx.data(), r.y.data());
    r.check();
  });
}

TYPED_TEST(Packed, AxpyiWithZeroAlphaTouchesNothing) {
  using T = TypeParam;
  Run<T> r(9, orders[0].place, 0, 0);
  for (T alpha : {T{}, subtract(T{}, T{}), multiply(T{}, value<T>(0))}) {  // zeros of both signs
    memset(r.x.data(), 0xFF, 9 * sizeof(T));                               // NaN
    call(Entry<T>::axpyi, &r.n, &alpha, r.x.data(), r.indx.data(), r.y.data());
    EXPECT_TRUE(same_elements(r.y, r.model_y));
  }
}

// Moves keep every bit, those of signalling NaN too.
TYPED_TEST(Packed, MovesKeepEveryBit) {
  using T = TypeParam;
  for_runs<T>([](Run<T>& r) {
    for (int i = 0; i < r.y.size(); i += 2) {
      const uint32_t signalling[4] = {0x7FA00001u + unsigned(i), 0x7FF00001u, 0xFFA00007u, 0x7FF40000u};
      memcpy(&r.y[i], signalling, sizeof(T));
    }
    const auto bytes_are = [](const Guarded<T>& got, const std::vector<T>& want) {
      return want.empty() || memcmp(got.data(), want.data(), want.size() * sizeof(T)) == 0;
    };
    r.model_y.assign(r.y.begin(), r.y.end());
    for (int i = 0; i < r.n; ++i) r.at(i) = r.at_place(i);
    call(Entry<T>::gthr, &r.n, const_cast<const T*>(r.y.data()), r.x.data(), r.indx.data());
    ASSERT_TRUE(bytes_are(r.x, r.model_x) && bytes_are(r.y, r.model_y)) << "gthr";

    for (int i = 0; i < r.n; ++i) r.at(i) = r.at_place(i), r.at_place(i) = T{};
    call(Entry<T>::gthrz, &r.n, r.y.data(), r.x.data(), r.indx.data());
    ASSERT_TRUE(bytes_are(r.x, r.model_x) && bytes_are(r.y, r.model_y)) << "gthrz";

    for (int i = 0; i < r.n; ++i) r.at_place(i) = r.at(i);
    call(Entry<T>::sctr, &r.n, r.x.data(), r.indx.data(), r.y.data());
    ASSERT_TRUE(bytes_are(r.x, r.model_x) && bytes_are(r.y, r.model_y)) << "sctr";
  });
}

// Even and odd entries have a sum each, added together before the last entry of an odd count.
template <class T, class Product>
T dot_model(int n, Product product) {
  T even{}, odd{};
  for (int i = 0; i + 1 < n; i += 2) even = add(even, product(i)), odd = add(odd, product(i + 1));
  const T sum = add(even, odd);
  return n > 0 && n % 2 ? add(sum, product(n - 1)) : sum;
}

TYPED_TEST(Packed, Dots) {
  using T = TypeParam;
  for_runs<T>([](Run<T>& r) {
    const int* n = &r.n;
    if constexpr (is_complex<T>) {
      T u = value<T>(1), c = value<T>(1);
      call(Entry<T>::dotui, &u, n, r.x.data(), r.indx.data(), r.y.data());
      call(Entry<T>::dotci, &c, n, r.x.data(), r.indx.data(), r.y.data());
      const T want_u = dot_model<T>(r.n, [&](int i) { return multiply(r.at(i), r.at_place(i)); });
      const T want_c = dot_model<T>(r.n, [&](int i) { return multiply(conjugate(r.at(i)), r.at_place(i)); });
      ASSERT_TRUE(same(u, want_u)) << shown(u) << " " << shown(want_u);
      ASSERT_TRUE(same(c, want_c)) << shown(c) << " " << shown(want_c);
    } else {
      const T got = call(Entry<T>::doti, n, r.x.data(), r.indx.data(), r.y.data());
      const T want = dot_model<T>(r.n, [&](int i) { return multiply(r.at(i), r.at_place(i)); });
      ASSERT_TRUE(same(got, want)) << got << " " << want;
    }
    r.check();
  });
}

template <class T>
class PackedReal : public testing::Test {};
using RealTypes = testing::Types<float, double>;
TYPED_TEST_SUITE(PackedReal, RealTypes);

TYPED_TEST(PackedReal, Roti) {
  using T = TypeParam;
  const struct { T c, s; } rows[] = {{T(0.6), T(-0.8)}, {1, T(0.5)}, {0, 0}};
  for (const auto& row : rows)
    for_runs<T>([&](Run<T>& r) {
      for (int i = 0; i < r.n; ++i) {
        const T x = r.at(i), y = r.at_place(i);
        r.at(i) = row.c * x + row.s * y;
        r.at_place(i) = row.c * y - row.s * x;
      }
      call(Entry<T>::roti, &r.n, r.x.data(), r.indx.data(), r.y.data(), &row.c, &row.s);
      r.check();
    });
}

// The identity returns at once: 0 times infinity would be seen.
TYPED_TEST(PackedReal, RotiIdentityTouchesNothing) {
  using T = TypeParam;
  Run<T> r(9, orders[0].place, 0, 0);
  r.x[4] = r.model_x[4] = T(INFINITY);
  const T one = 1;
  for (T zero : {T(0), T(-0.0)}) {
    call(Entry<T>::roti, &r.n, r.x.data(), r.indx.data(), r.y.data(), &one, const_cast<const T*>(&zero));
    r.check();
  }
}

}  // namespace
