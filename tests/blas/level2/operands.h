// Matrices of the level-2 tests in every layout, and what a kernel's results are held against.
#pragma once

#include <math.h>

#include <complex>
#include <limits>
#include <memory>

#include "orb/blas_level2.h"
#include "tests/blas/level1/vectors.h"
#include "tests/support/bits.h"

namespace orb::test {

using EveryType = testing::Types<float, double, c32, c64>;

template <class T>
T number(double re, double im = 0) {
  using R = part_of<T>;
  if constexpr (is_complex<T>)
    return {R(re), R(im)};
  else
    return R(re);
}
template <class T>
const T not_a_number = number<T>(NAN, NAN);

enum class Layout { whole, packed, band };

// The elements a(i, j) with j - i <= above and i - j <= below, in memory; all else is NaN. Whole matrices and
// bands have a row to spare between their columns, and a guard page stands behind the last element.
template <class T>
class Stored {
 public:
  Stored(Layout layout, int rows, int cols, int below, int above)
      : layout_(layout),
        rows_(rows),
        cols_(cols),
        below_(below),
        above_(above),
        data_(std::make_unique<Guarded<T>>(elements())) {
    std::fill(data_->begin(), data_->end(), not_a_number<T>);
    for (int j = 0; j < cols; ++j)
      for (int i = 0; i < rows; ++i)
        if (has(i, j)) at(i, j) = value<T>(7 * i + 3 * j + 1);
  }
  static Stored triangle(Layout layout, bool upper, int n, int reach) {
    if (layout != Layout::band) reach = std::max(n - 1, 0);
    return {layout, n, n, upper ? 0 : reach, upper ? reach : 0};
  }
  bool has(int i, int j) const { return j - i <= above_ && i - j <= below_; }
  T& at(int i, int j) const { return (*data_)[place(i, j)]; }
  T operator()(int i, int j) const { return has(i, j) ? at(i, j) : T{}; }
  T* data() const { return data_->data(); }
  std::vector<T> all() const { return {data_->begin(), data_->end()}; }
  int size() const { return rows_; }
  int ld() const { return (layout_ == Layout::band ? below_ + above_ + 1 : rows_) + 1; }

 private:
  int place(int i, int j) const {
    if (layout_ == Layout::whole) return i + j * ld();
    if (layout_ == Layout::band) return above_ + i - j + j * ld();
    return below_ == 0 ? i + j * (j + 1) / 2 : i - j + j * (2 * rows_ - j + 1) / 2;
  }
  int elements() const {
    if (rows_ == 0 || cols_ == 0) return 0;
    if (layout_ == Layout::packed) return rows_ * (rows_ + 1) / 2;
    return cols_ * ld() - 1;
  }
  Layout layout_;
  int rows_, cols_, below_, above_;
  std::unique_ptr<Guarded<T>> data_;
};

using Wide = std::complex<long double>;
template <class T>
Wide widened(T a) {
  if constexpr (is_complex<T>)
    return {a.re, a.im};
  else
    return a;
}

// A sum of products in wider precision, and the sum of their magnitudes.
struct Sum {
  Wide value = 0;
  long double size = 0;
  void add(Wide a, Wide b, Wide c = 1) {
    value += a * b * c;
    size += std::abs(a) * std::abs(b) * std::abs(c);
  }
};

// |got - sum| <= (terms + 2) u size, 2 sqrt(2) times that for complex numbers, at most second-order terms
// more.
template <class T>
bool within(T got, const Sum& sum, int terms) {
  const long double u = std::numeric_limits<part_of<T>>::epsilon() / 2, k = (terms + 2) * u;
  return std::abs(widened(got) - sum.value) <= (is_complex<T> ? sqrtl(8) : 1) * k / (1 - 8 * k) * sum.size;
}

// Is what lies between the elements of v as it was made?
template <class T>
bool gaps_whole(const Vector<T>& v, int n, int inc, int place) {
  const Vector<T> fresh(n, inc, place);
  for (int i = 0; i < n; ++i) fresh.at(i) = v.at(i);
  return fresh.image() == v.image();
}

template <class T>
T op(char letter, T a) {
  return letter == 'C' || letter == 'c' ? conjugate(a) : a;
}
inline bool is_plain(char letter) { return letter == 'N' || letter == 'n'; }

}  // namespace orb::test
