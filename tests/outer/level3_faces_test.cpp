// The Fortran and C faces of the matrix-matrix routines against plain models over small integers, in both
// layouts. (The argument errors of all faces: refusals_test.cpp.)
#include "gtest/gtest.h"
#include "orb/blas.h"
#include "tests/outer/stored.h"

using namespace orb::test;

namespace {

template <class T>
struct Names;
#define BOTH(routine, entry) static constexpr auto routine = std::make_pair(entry##_, cblas_##entry)
#define NAMES(T, p, three, hemm_, herk_, her2k_) \
  template <>                                    \
  struct Names<T> {                              \
    BOTH(gemm, p##gemm);                         \
    BOTH(gemm3m, p##three);                      \
    BOTH(gemmt, p##gemmt);                       \
    BOTH(symm, p##symm);                         \
    BOTH(hemm, p##hemm_);                        \
    BOTH(syrk, p##syrk);                         \
    BOTH(herk, p##herk_);                        \
    BOTH(syr2k, p##syr2k);                       \
    BOTH(her2k, p##her2k_);                      \
    BOTH(trmm, p##trmm);                         \
    BOTH(trsm, p##trsm);                         \
  };
NAMES(float, s, gemm, symm, syrk, syr2k)
NAMES(double, d, gemm, symm, syrk, syr2k)
NAMES(orb_complex_float, c, gemm3m, hemm, herk, her2k)
NAMES(orb_complex_double, z, gemm3m, hemm, herk, her2k)

template <class T>
class Level3 : public testing::Test {
 protected:
  static constexpr bool hermitian = is_complex<T>;
  const T alpha = number<T>({2, 1}), beta = number<T>({-1, 1});

  // C = factor * sum(i, j) + scale * C where C is stored.
  template <class Sum>
  static Stored<T> model(Stored<T> c, Wide factor, Sum sum, Wide scale, bool real_diagonal = false) {
    for (int j = 0; j < c.columns; ++j)
      for (int i = 0; i < c.rows; ++i)
        if (c.holds(i, j)) {
          const Wide old = i == j && real_diagonal ? c.at(i, j).real() : c.at(i, j);
          c(i, j) = number<T>(factor * sum(i, j) + scale * old);
        }
    return c;
  }
};
using Types = testing::Types<float, double, orb_complex_float, orb_complex_double>;
TYPED_TEST_SUITE(Level3, Types);

template <class Term>
Wide sum_of(int k, Term term) {
  Wide sum = 0;
  for (int l = 0; l < k; ++l) sum += term(l);
  return sum;
}

// A matrix that op turns into one of rows by columns.
template <class T>
Stored<T> operand(char trans, int rows, int columns, bool by_rows, int seed) {
  Stored<T> a{trans == 'N' ? rows : columns, trans == 'N' ? columns : rows, by_rows};
  return a.fill(seed);
}

TYPED_TEST(Level3, GeneralProducts) {
  using T = TypeParam;
  for (const auto& [m, n, k] : {std::tuple{5, 4, 3}, {13, 9, 11}, {0, 3, 2}})
    for (char transa : {'N', 'T', 'C'})
      for (char transb : {'N', 'T', 'C'}) {
        const auto check = [&, m = m, n = n, k = k](auto names) {
          each_face(names.first, names.second, [&](auto run, bool by_rows) {
            SCOPED_TRACE(testing::Message()
                         << transa << transb << (by_rows ? " by rows " : " by columns ") << m);
            Stored<T> a = operand<T>(transa, m, k, by_rows, 1), b = operand<T>(transb, k, n, by_rows, 2);
            Stored<T> c = operand<T>('N', m, n, by_rows, 3);
            const auto sum = [&](int i, int j) {
              return sum_of(k, [&](int l) { return a.op(transa, i, l) * b.op(transb, l, j); });
            };
            const auto expected = this->model(c, wide(this->alpha), sum, wide(this->beta));
            run(Letter{transa}, Letter{transb}, m, n, k, this->alpha, a.data.data(), a.ld, b.data.data(),
                b.ld, this->beta, c.data.data(), c.ld);
            EXPECT_TRUE(matches(c.data, expected.data));
          });
        };
        check(Names<T>::gemm);
        check(Names<T>::gemm3m);
      }
}

TYPED_TEST(Level3, OneTriangleOfAProduct) {
  using T = TypeParam;
  for (const auto& [n, k] : {std::pair{6, 3}, {150, 5}})
    for (char uplo : {'U', 'L'})
      for (char transa : {'N', 'T'})
        for (char transb : {'N', 'C'})
          each_face(Names<T>::gemmt.first, Names<T>::gemmt.second, [&, n = n, k = k](auto run, bool by_rows) {
            SCOPED_TRACE(testing::Message()
                         << uplo << transa << transb << (by_rows ? " by rows " : " by columns ") << n);
            Stored<T> a = operand<T>(transa, n, k, by_rows, 1), b = operand<T>(transb, k, n, by_rows, 2);
            Stored<T> c{n, n, by_rows};
            c.triangle = uplo;
            c.fill(3);
            const auto sum = [&](int i, int j) {
              return sum_of(k, [&](int l) { return a.op(transa, i, l) * b.op(transb, l, j); });
            };
            const auto expected = this->model(c, wide(this->alpha), sum, wide(this->beta));
            run(Letter{uplo}, Letter{transa}, Letter{transb}, n, k, this->alpha, a.data.data(), a.ld,
                b.data.data(), b.ld, this->beta, c.data.data(), c.ld);
            EXPECT_TRUE(matches(c.data, expected.data));
          });
}

TYPED_TEST(Level3, SymmetricProducts) {
  using T = TypeParam;
  const int m = 7, n = 5;
  for (char side : {'L', 'R'})
    for (char uplo : {'U', 'L'}) {
      const auto check = [&](auto names, bool adjoint) {
        each_face(names.first, names.second, [&](auto run, bool by_rows) {
          SCOPED_TRACE(testing::Message() << side << uplo << (by_rows ? " by rows" : " by columns"));
          const int order = side == 'L' ? m : n;
          Stored<T> a{order, order, by_rows};
          a.triangle = uplo;
          a.fill(1);
          Stored<T> b = operand<T>('N', m, n, by_rows, 2), c = operand<T>('N', m, n, by_rows, 3);
          const auto sum = [&](int i, int j) {
            return sum_of(order, [&](int l) {
              return side == 'L' ? a.full(i, l, adjoint) * b.at(l, j) : b.at(i, l) * a.full(l, j, adjoint);
            });
          };
          const auto expected = this->model(c, wide(this->alpha), sum, wide(this->beta));
          run(Letter{side}, Letter{uplo}, m, n, this->alpha, a.data.data(), a.ld, b.data.data(), b.ld,
              this->beta, c.data.data(), c.ld);
          EXPECT_TRUE(matches(c.data, expected.data));
        });
      };
      check(Names<T>::symm, false);
      check(Names<T>::hemm, this->hermitian);
    }
}

TYPED_TEST(Level3, RankKUpdates) {
  using T = TypeParam;
  using R = part_of<T>;
  const int n = 6, k = 4;
  for (char uplo : {'U', 'L'})
    for (char trans : {'N', 'T', 'C'}) {
      // One product for syrk, two for syr2k.
      const auto check = [&](auto names, bool adjoint, auto factor, auto scale, auto two) {
        if (is_complex<T> && trans == (adjoint ? 'T' : 'C')) return;
        each_face(names.first, names.second, [&](auto run, bool by_rows) {
          SCOPED_TRACE(testing::Message()
                       << uplo << trans << (by_rows ? " by rows" : " by columns") << adjoint);
          Stored<T> a = operand<T>(trans, n, k, by_rows, 1), b = operand<T>(trans, n, k, by_rows, 2),
                    c{n, n, by_rows};
          c.triangle = uplo;
          c.fill(3);
          // The row i of op(A) times the row j of op(B), the latter conjugated for Hermitian results.
          const auto dot = [&](const Stored<T>& p, const Stored<T>& q, int i, int j) {
            const char op = trans == 'N' ? 'N' : adjoint ? 'C' : 'T';
            return sum_of(k, [&](int l) {
              const Wide other = q.op(op, j, l);
              return p.op(op, i, l) * (adjoint ? std::conj(other) : other);
            });
          };
          const Wide f = wide(factor), g = adjoint ? std::conj(f) : f;
          const auto sum = [&](int i, int j) {
            return two() ? f * dot(a, b, i, j) + g * dot(b, a, i, j) : f * dot(a, a, i, j);
          };
          const auto expected = this->model(c, 1, sum, wide(scale), adjoint);
          if constexpr (two())
            run(Letter{uplo}, Letter{trans}, n, k, factor, a.data.data(), a.ld, b.data.data(), b.ld, scale,
                c.data.data(), c.ld);
          else
            run(Letter{uplo}, Letter{trans}, n, k, factor, a.data.data(), a.ld, scale, c.data.data(), c.ld);
          EXPECT_TRUE(matches(c.data, expected.data));
        });
      };
      check(Names<T>::syrk, false, this->alpha, this->beta, std::false_type());
      check(Names<T>::syr2k, false, this->alpha, this->beta, std::true_type());
      check(Names<T>::herk, this->hermitian, R(2), R(-1), std::false_type());
      check(Names<T>::her2k, this->hermitian, this->alpha, R(-1), std::true_type());
    }
}

// B = alpha op(A) B or alpha B op(A), and back again by the solve with 1 / alpha: pivots are powers of two.
TYPED_TEST(Level3, TriangularProductsAndSolves) {
  using T = TypeParam;
  const int m = 6, n = 5;
  const T twice = number<T>(2), inverse = number<T>(0.5);
  for (char side : {'L', 'R'})
    for (char uplo : {'U', 'L'})
      for (char trans : {'N', 'T', 'C'})
        for (char diag : {'N', 'U'}) {
          const auto check = [&](auto names, bool solve) {
            each_face(names.first, names.second, [&](auto run, bool by_rows) {
              SCOPED_TRACE(testing::Message()
                           << side << uplo << trans << diag << (by_rows ? " by rows" : " by columns")
                           << (solve ? " solve" : ""));
              const int order = side == 'L' ? m : n;
              Stored<T> a{order, order, by_rows};
              a.triangle = uplo;
              a.fill(1);
              for (int i = 0; i < order; ++i)
                a(i, i) = diag == 'U' ? not_a_number<T>() : number<T>(i % 3 ? 2 : -1);
              const Stored<T> start = operand<T>('N', m, n, by_rows, 2);
              const auto sum = [&](int i, int j) {
                return sum_of(order, [&](int l) {
                  return side == 'L' ? a.op(trans, i, l, diag) * start.at(l, j)
                                     : start.at(i, l) * a.op(trans, l, j, diag);
                });
              };
              const Stored<T> result = this->model(start, wide(twice), sum, 0);
              Stored<T> b = solve ? result : start;
              run(Letter{side}, Letter{uplo}, Letter{trans}, Letter{diag}, m, n, solve ? inverse : twice,
                  a.data.data(), a.ld, b.data.data(), b.ld);
              EXPECT_TRUE(matches(b.data, (solve ? start : result).data));
            });
          };
          check(Names<T>::trmm, false);
          check(Names<T>::trsm, true);
        }
}

}  // namespace
