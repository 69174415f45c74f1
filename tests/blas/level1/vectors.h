// Vectors of any stride and place for the level-1 tests, and the shapes to try.
#pragma once

#include <limits.h>
#include <stdint.h>
#include <string.h>

#include <array>
#include <ostream>
#include <vector>

#include "gtest/gtest.h"
#include "orb/blas_level1.h"
#include "tests/support/call.h"
#include "tests/support/element.h"
#include "tests/support/guarded.h"

namespace orb::test {

template <class T>
constexpr int parts = is_complex<T> ? 2 : 1;

// The numbers as a vector of their real parts and imaginary parts in turn.
template <class T>
const part_of<T>* as_parts(const T* x) {
  return reinterpret_cast<const part_of<T>*>(x);
}

template <class T>
bool same_bits(const T& a, const T& b) {
  return memcmp(&a, &b, sizeof(T)) == 0;
}

// n elements `inc` apart in a guarded array that starts at word `place` of a 16-byte line. Elements hold
// varied values of both signs and several magnitudes, what lies between them NaN.
template <class T>
class Vector {
 public:
  Vector(int n, int inc, int place, uint32_t seed = 1)
      : n_(n), inc_(inc), memory_(n > 0 ? (n - 1) * abs(inc) + 1 : 0, place) {
    memset(static_cast<void*>(data()), 0xFF, bytes());
    for (int i = 0; i < n; ++i)
      for (int p = 0; p < parts<T>; ++p) {
        seed = seed * 1664525u + 1013904223u;
        const_cast<part_of<T>*>(as_parts(&at(i)))[p] =
            part_of<T>(int(seed) >> 9) / part_of<T>(3 << (seed % 16));
      }
  }
  T* data() const { return memory_.data(); }
  // Element i from 0, as the BLAS counts.
  T& at(int i) const { return data()[(inc_ < 0 ? i + 1 - n_ : i) * inc_]; }
  size_t bytes() const { return size_t(memory_.size()) * sizeof(T); }
  std::vector<unsigned char> image() const {
    const auto* p = reinterpret_cast<const unsigned char*>(data());
    return {p, p + bytes()};
  }

 private:
  int n_, inc_;
  Guarded<T> memory_;
};

struct Shape {
  int n, incx, incy, placex, placey;
};
inline std::ostream& operator<<(std::ostream& out, const Shape& s) {
  return out << "n " << s.n << " incx " << s.incx << " incy " << s.incy << " places " << s.placex << " "
             << s.placey;
}

inline const int lengths[] = {INT_MIN, -1, 0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11,
                              12,      15, 16, 17, 31, 32, 33, 34, 47, 63, 64, 65, 99, 131};
inline const int strides[] = {1, -1, 2, -3, 0};

// f for every length, stride and place of one vector.
template <class F>
void for_each_shape(F f) {
  for (int n : lengths)
    for (int inc : strides)
      for (int place = 0; place < 4; ++place) f(Shape{n, inc, 0, place, 0});
}
// The same for two; all pairs of places where both strides are 1 or -1, the only ones to which alignment
// matters.
template <class F>
void for_each_pair(F f) {
  for_each_shape([&](Shape s) {
    for (int incy : strides)
      for (int placey = 0; placey < 4; ++placey) {
        const bool whole = abs(s.incx) == 1 && abs(incy) == 1;
        if (whole || s.placex + placey == 0) f(Shape{s.n, s.incx, incy, s.placex, placey});
      }
  });
}

// Elements from a start at this place of a 16-byte line to the next line, or -1 if they never meet one.
template <class T>
int peel_at(int place) {
  const int bytes = (16 - 4 * place) % 16;
  return bytes % sizeof(T) ? -1 : bytes / int(sizeof(T));
}

// The promised order of a reduction in blocks over n terms: the first `peel` by themselves, then blocks of
// `widest` and of a half, a quarter and an eighth of it, then the rest by themselves. Block terms go to the
// lanes of `sums` accumulators in rotation, terms by themselves to the first accumulator; those come in
// groups of `unit`, one lane for each of a group. Returns the accumulators added up, lane by lane.
template <class S, class Term>
std::array<S, 4> rotated_sums(int n, int peel, int widest, int lanes, int sums, int unit, Term term) {
  S acc[4][4] = {};
  int i = 0;
  for (; i < peel && i < n; ++i) acc[0][i % unit] += term(i);
  for (int width : {widest, widest / 2, widest / 4, widest / 8})
    for (; n - i >= width; i += width)
      for (int j = 0; j < width; ++j) acc[j / lanes % sums][j % lanes] += term(i + j);
  for (; i < n; ++i) acc[0][i % unit] += term(i);
  std::array<S, 4> total;
  for (int l = 0; l < 4; ++l) total[l] = acc[0][l] + acc[1][l] + acc[2][l] + acc[3][l];
  return total;
}
template <class S>
S sum_lanes(const std::array<S, 4>& l, int lanes) {
  return lanes == 2 ? l[0] + l[1] : (l[0] + l[2]) + (l[1] + l[3]);
}

}  // namespace orb::test
