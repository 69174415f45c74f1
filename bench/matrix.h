// Square matrices of the level-2 and level-3 cases, and products with them in extended precision, by which
// results are checked.
#pragma once

#include <vector>

#include "bench/operand.h"

namespace orb::bench {

enum class Kind { general, transposed, lower, symmetric, hermitian };

// n by n, by columns. Of triangular, symmetric and Hermitian ones the lower triangle is stored.
template <class T>
struct View {
  const T* a;
  int n;
  Kind kind;

  Wide<T> operator()(int i, int j) const {
    const auto stored = [&](int r, int c) {
      return Wide<T>(a[std::size_t(r) + std::size_t(c) * std::size_t(n)]);
    };
    if (kind == Kind::general || (i >= j && kind != Kind::transposed && !(i == j && kind == Kind::hermitian)))
      return stored(i, j);
    if (kind == Kind::lower) return 0;
    if constexpr (Scalar<T>::is_complex)
      if (kind == Kind::hermitian) return i == j ? Wide<T>(stored(i, i).real()) : std::conj(stored(j, i));
    return stored(j, i);
  }
};

// The product of a matrix and a vector, and the sum of the sizes of its terms, from which bounds are made.
template <class T>
struct Sized {
  std::vector<Wide<T>> value;
  std::vector<long double> size;
};

template <class T>
Sized<T> ones(int n) {
  return {std::vector<Wide<T>>(std::size_t(n), 1), std::vector<long double>(std::size_t(n), 1)};
}

template <class T>
Sized<T> operator*(const View<T>& a, const Sized<T>& v) {
  Sized<T> product = {std::vector<Wide<T>>(v.value.size()), std::vector<long double>(v.value.size())};
  for (int j = 0; j < a.n; ++j)
    for (int i = 0; i < a.n; ++i) {
      const Wide<T> e = a(i, j);
      product.value[std::size_t(i)] += e * v.value[std::size_t(j)];
      product.size[std::size_t(i)] += std::abs(e) * v.size[std::size_t(j)];
    }
  return product;
}

template <class T>
Sized<T> operator+(Sized<T> a, const Sized<T>& b) {
  for (std::size_t i = 0; i < a.value.size(); ++i) a.value[i] += b.value[i], a.size[i] += b.size[i];
  return a;
}

// The largest difference over its bound, `roundings` of the terms' sizes.
template <class T>
double over_bound(const Sized<T>& got, const Sized<T>& expected, int roundings) {
  double worst = 0;
  for (std::size_t i = 0; i < got.value.size(); ++i)
    worst =
        std::max(worst, over_bound(got.value[i], expected.value[i],
                                   (roundings + 2) * unit_roundoff<T>() * (expected.size[i] + got.size[i])));
  return worst;
}

// A well-conditioned matrix: ones on the diagonal, `spread` over n beside it. With a tiny spread repeated
// products and solves in place stay where they are.
template <class T>
void fill_near_identity(Array<T>& a, int n, double spread, unsigned seed) {
  fill_uniform(a, seed);
  for (T& e : a) e *= Real<T>(spread / n);
  for (int i = 0; i < n; ++i) a[std::size_t(i) * std::size_t(n + 1)] = 1;
}

}  // namespace orb::bench
