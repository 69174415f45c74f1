// Copies and swaps move bits: the elements here are arbitrary patterns, signalling NaN among them.
#include "tests/blas/level1/vectors.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto copy = orb_blas_xscopy;
  static constexpr auto swap = orb_blas_xsswap;
};
template <>
struct Entry<double> {
  static constexpr auto copy = orb_blas_xdcopy;
  static constexpr auto swap = orb_blas_xdswap;
};
template <>
struct Entry<c32> {
  static constexpr auto copy = orb_blas_xccopy;
  static constexpr auto swap = orb_blas_xcswap;
};
template <>
struct Entry<c64> {
  static constexpr auto copy = orb_blas_xzcopy;
  static constexpr auto swap = orb_blas_xzswap;
};

template <class T>
struct Patterns : Vector<T> {
  Patterns(int n, int inc, int place, uint32_t seed) : Vector<T>(n, inc, place) {
    for (int i = 0; i < n; ++i)
      for (size_t w = 0; w < sizeof(T) / 4; ++w) {
        const uint32_t signalling = i % 3 == 0 ? 0x7FA00000 : 0;
        seed = seed * 1664525u + 1013904223u;
        put(i, w, seed | signalling);
      }
  }
  void put(int i, size_t word, uint32_t bits) const {
    memcpy(reinterpret_cast<unsigned char*>(&this->at(i)) + 4 * word, &bits, 4);
  }
  void take(int i, const Patterns& from) const {
    memcpy(static_cast<void*>(&this->at(i)), &from.at(i), sizeof(T));
  }
  void exchange(int i, const Patterns& other) const {
    unsigned char mine[sizeof(T)];
    memcpy(mine, &this->at(i), sizeof(T));
    take(i, other);
    memcpy(static_cast<void*>(&other.at(i)), mine, sizeof(T));
  }
};

template <class T>
class Move : public testing::Test {};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(Move, Types);

TYPED_TEST(Move, Copy) {
  using T = TypeParam;
  for_each_pair([](Shape s) {
    const Patterns<T> x(s.n, s.incx, s.placex, 1), y(s.n, s.incy, s.placey, 2),
        expected(s.n, s.incy, s.placey, 2);
    for (int i = 0; i < s.n; ++i) expected.take(i, x);
    const auto before = x.image();
    call(Entry<T>::copy, &s.n, x.data(), &s.incx, y.data(), &s.incy);
    EXPECT_EQ(y.image(), expected.image()) << s;
    EXPECT_EQ(x.image(), before) << s;
  });
}

TYPED_TEST(Move, Swap) {
  using T = TypeParam;
  for_each_pair([](Shape s) {
    const Patterns<T> x(s.n, s.incx, s.placex, 1), y(s.n, s.incy, s.placey, 2);
    const Patterns<T> to_x(s.n, s.incx, s.placex, 1), to_y(s.n, s.incy, s.placey, 2);
    for (int i = 0; i < s.n; ++i) to_x.exchange(i, to_y);
    call(Entry<T>::swap, &s.n, x.data(), &s.incx, y.data(), &s.incy);
    EXPECT_EQ(x.image(), to_x.image()) << s;
    EXPECT_EQ(y.image(), to_y.image()) << s;
  });
}

}  // namespace
