// Matrices of the tests whose results are exact: small integers of any element type in guarded memory, NaN
// between the columns. Every order of additions gives the same bits, so models are plain loops.
#pragma once

#include <math.h>

#include <algorithm>
#include <random>
#include <vector>

#include "tests/support/bits.h"
#include "tests/support/guarded.h"

namespace orb::test {

template <class T>
constexpr T element(double re, double im = 0) {
  if constexpr (is_complex<T>)
    return {part_of<T>(re), part_of<T>(im)};
  else
    return T(re);
}

template <class T>
class IntegerMatrix {
 public:
  // `more` elements behind each column; `place` as in Guarded.
  IntegerMatrix(int height, int width, unsigned seed, int more = 0, int place = -1)
      : rows(height),
        cols(width),
        ld(height + more),
        data_(rows > 0 && cols > 0 ? (cols - 1) * ld + rows : 0, place) {
    std::minstd_rand random(seed);
    const auto part = [&] { return int(random() % 7) - 3; };
    std::fill(data_.begin(), data_.end(), element<T>(NAN, NAN));
    for (int j = 0; j < cols; ++j)
      for (int i = 0; i < rows; ++i) (*this)(i, j) = element<T>(part(), part());
  }
  T* data() const { return data_.data(); }
  T& operator()(int i, int j) const { return data_[i + j * ld]; }
  std::vector<T> all() const { return {data_.begin(), data_.end()}; }
  bool canaries_whole() const { return data_.canaries_whole(); }

  const int rows, cols;
  int ld;

 private:
  Guarded<T> data_;
};

inline bool stands_plain(char letter) { return (letter | 0x20) == 'n'; }

// op(X), `rows` by `cols`, as `letter` has it stand.
template <class T>
IntegerMatrix<T> operand(char letter, int rows, int cols, unsigned seed, int place) {
  if (!stands_plain(letter)) std::swap(rows, cols);
  return {rows, cols, seed, int(seed) % 3, place};
}
template <class T>
T op(const IntegerMatrix<T>& x, char letter, int i, int j) {
  if (stands_plain(letter)) return x(i, j);
  return (letter | 0x20) == 'c' ? conjugate(x(j, i)) : x(j, i);
}

// Leaves of a symmetric matrix the triangle that may be read, of a Hermitian diagonal the real parts.
template <bool hermitian, class T>
void hide_other_triangle(const IntegerMatrix<T>& x, bool upper) {
  for (int j = 0; j < x.cols; ++j)
    for (int i = 0; i < x.rows; ++i) {
      if (i != j && (i < j) != upper) x(i, j) = element<T>(NAN, NAN);
      if constexpr (hermitian)
        if (i == j) x(i, j).im = part_of<T>(NAN);
    }
}

// Equal but for the signs of zeros.
template <class T>
testing::AssertionResult equal_numbers(std::vector<T> got, std::vector<T> want) {
  for (auto* x : {&got, &want})
    for (T& e : *x) e = add(e, T{});
  return same_elements(got, want);
}

// alpha sum + beta old, which is not read for beta 0.
template <class T>
T finished(T alpha, T sum, T beta, T old) {
  const T product = multiply(alpha, sum);
  return same(beta, T{}) ? product : add(product, multiply(beta, old));
}

}  // namespace orb::test
