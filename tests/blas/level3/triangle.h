// Triangular problems whose solutions are exact: small integers around diagonals of powers of two and of
// 1 + i. What a routine may not read is NaN.
#pragma once

#include <ostream>

#include "tests/blas/level3/integer_matrix.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

namespace orb::test {

struct TriangularCase {
  char side, uplo, trans, diag;
  int m, n;

  bool left() const { return (side | 0x20) == 'l'; }
  bool upper() const { return (uplo | 0x20) == 'u'; }
  bool plain() const { return stands_plain(trans); }
  bool unit() const { return (diag | 0x20) == 'u'; }
  int order() const { return left() ? m : n; }
};
inline std::ostream& operator<<(std::ostream& out, const TriangularCase& c) {
  return out << c.side << c.uplo << c.trans << c.diag << ' ' << c.m << " by " << c.n;
}

// Every side, triangle, transpose and diagonal, in turn in either case of the letters. visit(c) sets the
// sizes.
template <class Visit>
void for_all_options(Visit visit) {
  int turn = 0;
  for (char side : {'L', 'R'})
    for (char uplo : {'L', 'U'})
      for (char trans : {'N', 'T', 'C'})
        for (char diag : {'N', 'U'}) {
          const int fold = ++turn % 2 * 0x20;
          visit(TriangularCase{char(side | fold), char(uplo | fold), char(trans | fold), char(diag | fold), 0,
                               0});
        }
}

// A multiple of X by the triangle, and what comes of it.
template <class T>
struct Triangular : TriangularCase {
  IntegerMatrix<T> a, x;

  explicit Triangular(const TriangularCase& c, int turn = 0)
      : TriangularCase(c), a(order(), order(), 1, turn % 3, turn & 3), x(m, n, 2) {
    const T pivots[] = {element<T>(1), element<T>(-2), element<T>(0.5), element<T>(1, 1), element<T>(0, -1)};
    for (int j = 0; j < order(); ++j)
      for (int i = 0; i < order(); ++i) {
        if (i == j) a(i, j) = pivots[(i + turn) % (is_complex<T> ? 5 : 3)];
        if (i == j ? unit() : (i < j) != upper()) a(i, j) = element<T>(NAN, NAN);
      }
  }

  // op(A)(i, k), with the ones and the zeros that are not stored.
  T at(int i, int k) const {
    if (i == k && unit()) return element<T>(1);
    return i == k || (i < k) == (upper() == plain()) ? op(a, trans, i, k) : T{};
  }
  // term(s, v) for the terms of element (i, j) of op(A) X or X op(A).
  template <class Term>
  void for_terms(int i, int j, Term term) const {
    for (int k = 0; k < order(); ++k) left() ? term(at(i, k), x(k, j)) : term(at(k, j), x(i, k));
  }
  T product(int i, int j) const {
    T sum{};
    for_terms(i, j, [&](T s, T v) { sum = add(sum, multiply(s, v)); });
    return sum;
  }
};

// factor times the product, at some word of 16 bytes.
template <class T>
struct ScaledProduct : IntegerMatrix<T> {
  ScaledProduct(const Triangular<T>& p, T factor, int turn = 0)
      : IntegerMatrix<T>(p.m, p.n, 3, turn % 3, turn >> 1 & 3) {
    for (int j = 0; j < p.n; ++j)
      for (int i = 0; i < p.m; ++i) (*this)(i, j) = multiply(factor, p.product(i, j));
  }
};

template <class T>
bool equal(T a, T b) {
  if constexpr (is_complex<T>)
    return a.re == b.re && a.im == b.im;
  else
    return a == b;
}

// A number in wider precision, its imaginary part 0 if it is real.
struct Wide {
  long double re = 0, im = 0;
  Wide() = default;
  template <class T>
  Wide(T z) {
    if constexpr (is_complex<T>)
      re = z.re, im = z.im;
    else
      re = z;
  }
  friend Wide operator*(Wide a, Wide b) {
    Wide product;
    product.re = a.re * b.re - a.im * b.im, product.im = a.re * b.im + a.im * b.re;
    return product;
  }
  long double size() const { return fabsl(re) + fabsl(im); }
};

// The same numbers, whatever the signs of zeros, and NaN still between the columns.
template <class T>
testing::AssertionResult same_numbers(const IntegerMatrix<T>& got, const IntegerMatrix<T>& want) {
  for (int j = 0; j < got.cols; ++j)
    for (int i = 0; i < (got.rows > 0 ? got.ld : 0); ++i) {
      if (i < got.rows ? equal(got(i, j), want(i, j))
                       : j + 1 == got.cols || same(got(i, j), element<T>(NAN, NAN)))
        continue;
      return testing::AssertionFailure() << "row " << i << ", column " << j << ": " << shown(got(i, j));
    }
  if (!got.canaries_whole()) return testing::AssertionFailure() << "wrote outside";
  return testing::AssertionSuccess();
}

// A factor and its reciprocal, both exact.
template <class T>
struct Scale {
  T alpha, inverse;
};
template <class T>
Scale<T> scale(int turn) {
  const Scale<T> all[] = {{element<T>(1), element<T>(1)},
                          {element<T>(-2), element<T>(-0.5)},
                          {element<T>(0.5), element<T>(2)},
                          {element<T>(0, 2), element<T>(0, -0.5)}};
  return all[turn % (is_complex<T> ? 4 : 3)];
}

template <class T>
using BlasEntry = void (*)(const char*, const char*, const char*, const char*, const int*, const int*,
                           const T*, const T*, const int*, T*, const int*);

template <class T>
void run(BlasEntry<T> entry, const Triangular<T>& p, T alpha, const IntegerMatrix<T>& b) {
  call(entry, &p.side, &p.uplo, &p.trans, &p.diag, &p.m, &p.n, &alpha, p.a.data(), &p.a.ld, b.data(), &b.ld);
}

// The routines over all element types, with the services watched.
template <class T>
class AllTypes : public testing::Test {
 public:
  AllTypes() { spy().reset(); }
  ~AllTypes() override { EXPECT_EQ(spy().faults(), ""); }
};
using ElementTypes = testing::Types<float, double, c32, c64>;

}  // namespace orb::test
