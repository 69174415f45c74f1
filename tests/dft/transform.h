// Transforms by plain means: sums in long double, and layouts of many-dimensional data.
#pragma once

#include <math.h>

#include <complex>
#include <vector>

#include "tests/dft/handle.h"
#include "tests/support/element.h"

namespace orb::test {

template <class T>
struct ComplexFor {
  using type = c32;
};
template <>
struct ComplexFor<double> {
  using type = c64;
};
template <class T>
using complex_for = typename ComplexFor<T>::type;
template <class T>
constexpr int precision_for = sizeof(T) == 8 ? int(VAL_DOUBLE) : int(VAL_SINGLE);
template <class T>
DftiLine line_of(const DftiRecord* r, bool forward) {
  if (sizeof(T) == 8) return forward ? r->fwd_d : r->bwd_d;
  return forward ? r->fwd_s : r->bwd_s;
}

using Wide = std::complex<long double>;

// X[k] = sum over j of x[j] exp(-+ 2 pi i j k / n)
inline std::vector<Wide> definition(const std::vector<Wide>& x, bool forward) {
  const size_t n = x.size();
  std::vector<Wide> root(n), sum(n);
  for (size_t k = 0; k < n; ++k)
    root[k] = std::polar(1.0L, (forward ? -2 : 2) * acosl(-1) * (long double)(k) / (long double)(n));
  for (size_t k = 0; k < n; ++k)
    for (size_t j = 0; j < n; ++j) sum[k] += x[j] * root[j * k % n];
  return sum;
}

// The root of the summed squares of the errors, in units of that of the values.
template <class Get>
double relative_error(const std::vector<Wide>& expected, Get got) {
  long double error = 0, size = 0;
  for (size_t k = 0; k < expected.size(); ++k) {
    error += std::norm(Wide(got(int(k))) - expected[k]);
    size += std::norm(expected[k]);
  }
  return double(size > 0 ? sqrtl(error / size) : sqrtl(error));
}

// What the kernels promise for any length, in the precision of T, with one more rounding for a scale.
template <class T>
double promised_error(int n) {
  const double eps = sizeof(T) == 8 ? 0x1p-52 : 0x1p-23;
  return 1.6 * eps * sqrt(log2(n < 2 ? 2.0 : n)) + eps;
}

// Where the elements of a batch stand; dimensions fastest first.
struct Layout {
  std::vector<int> strides;
  int offset = 0, distance = 0;

  int at(const std::vector<int>& index, int t) const {
    int place = offset + t * distance;
    for (size_t k = 0; k < strides.size(); ++k) place += index[k] * strides[k];
    return place;
  }
  std::vector<int> offset_and_strides() const {  // leftmost first
    std::vector<int> v = {offset};
    v.insert(v.end(), strides.rbegin(), strides.rend());
    return v;
  }
};
inline int product(const std::vector<int>& lengths) {
  int n = 1;
  for (int length : lengths) n *= length;
  return n;
}

enum Shape { dense, spaced, interleaved, transposed };
inline Layout layout(Shape shape, const std::vector<int>& lengths, int count) {
  Layout l;
  int step = shape == spaced ? 3 : shape == interleaved ? count : 1;
  if (shape == spaced) l.offset = 2;
  l.strides.resize(lengths.size());
  for (size_t i = 0; i < lengths.size(); ++i) {
    const size_t k = shape == transposed ? lengths.size() - 1 - i : i;
    l.strides[k] = step;
    step = step * lengths[k] + (shape == spaced ? 1 : 0);
  }
  l.distance = shape == interleaved ? 1 : step;
  return l;
}

// Calls body(index, i) for every combination of indices, i counting them densely, fastest first.
template <class Body>
void for_each_index(const std::vector<int>& lengths, Body body) {
  std::vector<int> index(lengths.size(), 0);
  for (int i = 0; i < product(lengths); ++i) {
    body(index, i);
    for (size_t k = 0; k < lengths.size() && ++index[k] == lengths[k]; ++k) index[k] = 0;
  }
}
inline int extent(const Layout& l, const std::vector<int>& lengths, int count) {
  int last = -1;
  for (int t = 0; t < count; ++t)
    for_each_index(lengths,
                   [&](const std::vector<int>& index, int) { last = std::max(last, l.at(index, t)); });
  return last + 1;
}

}  // namespace orb::test
