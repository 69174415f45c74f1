// Cholesky factorisation of a matrix that fits into the first-level cache.
#pragma once

#include <algorithm>

#include "blas/kernel/lapack/arithmetic.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {

// The lower triangle in columns of their own, each on a 16-byte boundary: both triangles come here, an upper
// one transposed. Rows are taken in blocks, which may begin above the diagonal and end below the matrix:
// those elements are zeros at first and never looked at.
template <class T>
class CholeskyLeaf {
 public:
  static constexpr int most = 32;

  CholeskyLeaf(bool upper, int n, const T* a, int lda) : n_(n) {
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < j; ++i) column(j)[i] = T{};
      for (int i = j; i < n; ++i) column(j)[i] = upper ? conj(a[j + i * lda]) : a[i + j * lda];
      for (int i = n; i < most; ++i) column(j)[i] = T{};
    }
  }
  // 0, or the place from 1 of the first pivot that is not above 0.
  int factor() {
    for (int j = 0; j < n_; ++j) {
      for (int i = j / rows * rows; i < n_; i += rows) subtract_columns(i, j);
      const real_of<T> pivot = real_part(column(j)[j]);
      column(j)[j] = element<T>(pivot);
      if (!(pivot > 0)) return j + 1;
      const real_of<T> root = std::sqrt(pivot);
      column(j)[j] = element<T>(root);
      for (int i = j + 1; i < n_; ++i) column(j)[i] = over(column(j)[i], root);
    }
    return 0;
  }
  void copy_to(bool upper, T* a, int lda) const {
    for (int j = 0; j < n_; ++j)
      for (int i = j; i < n_; ++i)
        (upper ? a[j + i * lda] : a[i + j * lda]) = upper ? conj(column(j)[i]) : column(j)[i];
  }

 private:
  using V = vector_of<T>;
  static constexpr int registers = 4, rows = registers * V::lanes;
  static_assert(most % rows == 0);

  T* column(int j) { return columns_ + j * most; }
  const T* column(int j) const { return columns_ + j * most; }

  static T over(T x, real_of<T> root) {
    if constexpr (Complex<T>)
      return {x.re / root, x.im / root};
    else
      return x / root;
  }

  // Takes the columns before j from `rows` rows of column j, from row i on.
  void subtract_columns(int i, int j) {
    T* const to = column(j) + i;
    V x[registers];
    unroll<registers>([&](auto r) { x[r] = V::load(to + r * V::lanes); });
    for (int k = 0; k < j; ++k) {
      const auto factor = V::splat(conj(column(k)[j]));
      unroll<registers>([&](auto r) { x[r] = x[r] - factor * V::load(column(k) + i + r * V::lanes); });
    }
    unroll<registers>([&](auto r) { x[r].store(to + r * V::lanes); });
  }

  int n_;
  alignas(16) T columns_[most * most];
};

}  // namespace orb::blas
