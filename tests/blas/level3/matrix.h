// Matrices of the level-3 tests: column-major in guarded memory, NaN between the columns.
#pragma once

#include <math.h>
#include <string.h>

#include <algorithm>
#include <random>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/guarded.h"

namespace orb::test {

// The last element is the last of its column, so that the guard page stands right behind it (or at most 15
// bytes behind, for a chosen `place` of the first element).
template <class T>
class Matrix {
 public:
  Matrix(int height, int width, int distance, int place = -1)
      : rows(height), cols(width), ld(distance), data_(rows && cols ? (cols - 1) * ld + rows : 0, place) {
    std::fill(data_.begin(), data_.end(), T(NAN));
  }
  T* data() const { return data_.data(); }
  T& operator()(int i, int j) const { return data_[i + j * ld]; }
  std::vector<T> all() const { return {data_.begin(), data_.end()}; }

  // Values in [-1, 1) with few trailing zeros: sums round at nearly every step.
  void randomise(unsigned seed) const {
    std::minstd_rand random(seed);
    for (int j = 0; j < cols; ++j)
      for (int i = 0; i < rows; ++i) (*this)(i, j) = T(2) * T(random()) / T(random.max()) - T(1);
  }

  const int rows, cols, ld;

 private:
  Guarded<T> data_;
};

inline bool plain(char letter) { return letter == 'N' || letter == 'n'; }

// op(X)(i, j) of an X that was built to be read so.
template <class T>
T op(const Matrix<T>& x, char letter, int i, int j) {
  return plain(letter) ? x(i, j) : x(j, i);
}

// The same bits, but any NaN for a NaN.
template <class T>
bool same(T a, T b) {
  return (isnan(a) && isnan(b)) || memcmp(&a, &b, sizeof a) == 0;
}
template <class T>
bool same(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](T p, T q) { return same(p, q); });
}

}  // namespace orb::test
