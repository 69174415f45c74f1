// Matrices of the factorisation tests in all four element types, and the wide numbers that models and bounds
// are computed with.
#pragma once

#include <math.h>

#include <algorithm>
#include <complex>
#include <limits>
#include <random>
#include <vector>

#include "orb/blas_lapack.h"
#include "tests/support/bits.h"
#include "tests/support/call.h"
#include "tests/support/element.h"
#include "tests/support/guarded.h"
#include "tests/support/spy.h"

namespace orb::test {

using Wide = std::complex<long double>;
template <class T>
Wide wide(T x) {
  if constexpr (is_complex<T>)
    return {x.re, x.im};
  else
    return x;
}
template <class T>
T narrow(Wide x) {
  if constexpr (is_complex<T>)
    return {part_of<T>(x.real()), part_of<T>(x.imag())};
  else
    return T(x.real());
}

// What one rounded operation may be off by, relative to its operands: complex ones by 2 sqrt(2) u.
template <class T>
constexpr long double rounding = (is_complex<T> ? 2.8285L : 1) * std::numeric_limits<part_of<T>>::epsilon() /
                                 2;

template <class T>
T random_element(std::minstd_rand& random) {
  const auto part = [&] { return 2 * (long double)random() / random.max() - 1; };
  return narrow<T>(Wide(part(), is_complex<T> ? part() : 0));
}
template <class T>
std::vector<T> random_vector(int n, unsigned seed) {
  std::minstd_rand random(seed);
  std::vector<T> x(size_t(std::max(n, 0)));
  for (T& e : x) e = random_element<T>(random);
  return x;
}

// Column-major in guarded memory; NaN between the columns.
template <class T>
class Table {
 public:
  Table(int height, int width, int distance, int place = -1)
      : rows(height), cols(width), ld(distance), data_(rows && cols ? (cols - 1) * ld + rows : 0, place) {
    std::fill(data_.begin(), data_.end(), narrow<T>(Wide(NAN, NAN)));
  }
  T* data() const { return data_.data(); }
  T& operator()(int i, int j) const { return data_[i + j * ld]; }
  std::vector<T> all() const { return {data_.begin(), data_.end()}; }
  void randomise(unsigned seed) const {
    std::minstd_rand random(seed);
    for (int j = 0; j < cols; ++j)
      for (int i = 0; i < rows; ++i) (*this)(i, j) = random_element<T>(random);
  }

  const int rows, cols, ld;

 private:
  Guarded<T> data_;
};

// A small dense matrix of wide numbers.
struct WideMatrix {
  int rows, cols;
  std::vector<Wide> elements = std::vector<Wide>(size_t(rows * cols));
  Wide& operator()(int i, int j) { return elements[size_t(i * cols + j)]; }
  Wide operator()(int i, int j) const { return elements[size_t(i * cols + j)]; }
};

// Of the four entries of a routine, the one for elements of type T.
template <class T, class S, class D, class C, class Z>
constexpr auto entry_of(S s, D d, C c, Z z) {
  if constexpr (is_complex<T>)
    return std::get<sizeof(T) == sizeof(c64)>(std::pair(c, z));
  else
    return std::get<sizeof(T) == sizeof(double)>(std::pair(s, d));
}

using ElementTypes = testing::Types<float, double, c32, c64>;

// A suite in which no call may leave scratch behind or write beside it.
template <class T>
class Factor : public testing::Test {
 protected:
  Factor() { spy().reset(); }
  ~Factor() override { EXPECT_EQ(spy().faults(), ""); }
};

}  // namespace orb::test
