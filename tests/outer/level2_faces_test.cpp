// The Fortran and C faces of the matrix-vector routines against plain models over small integers, which every
// order of operations treats exactly: each name must reach its kernel with its arguments in order, in both
// layouts.
#include "gtest/gtest.h"
#include "orb/blas.h"
#include "tests/outer/stored.h"

using namespace orb::test;

namespace {

template <class T>
struct Names;
#define BOTH(routine, entry) static constexpr auto routine = std::make_pair(entry##_, cblas_##entry)
#define NAMES(T, p, sy, sp, sb, plain, conjugated) \
  template <>                                      \
  struct Names<T> {                                \
    BOTH(gemv, p##gemv);                           \
    BOTH(gbmv, p##gbmv);                           \
    BOTH(ger, p##plain);                           \
    BOTH(gerc, p##conjugated);                     \
    BOTH(symv, p##sy##mv);                         \
    BOTH(sbmv, p##sb##mv);                         \
    BOTH(spmv, p##sp##mv);                         \
    BOTH(syr, p##sy##r);                           \
    BOTH(spr, p##sp##r);                           \
    BOTH(syr2, p##sy##r2);                         \
    BOTH(spr2, p##sp##r2);                         \
    BOTH(trmv, p##trmv);                           \
    BOTH(trsv, p##trsv);                           \
    BOTH(tbmv, p##tbmv);                           \
    BOTH(tbsv, p##tbsv);                           \
    BOTH(tpmv, p##tpmv);                           \
    BOTH(tpsv, p##tpsv);                           \
  };
NAMES(float, s, sy, sp, sb, ger, ger)
NAMES(double, d, sy, sp, sb, ger, ger)
NAMES(orb_complex_float, c, he, hp, hb, geru, gerc)
NAMES(orb_complex_double, z, he, hp, hb, geru, gerc)

template <class T>
struct Vector {
  int n, inc;
  std::vector<T> data = integers<T>(extent(n, inc), 4 * n + inc);
  Wide operator[](int i) const { return wide(data[place(i, n, inc)]); }
  void set(int i, Wide z) { data[place(i, n, inc)] = number<T>(z); }
  auto arguments() { return std::tuple(data.data(), inc); }
};

template <class Run, class... Tuple>
void run_with(Run run, Tuple... arguments) {
  std::apply(run, std::tuple_cat(arguments...));
}

template <class T>
class Level2 : public testing::Test {
 protected:
  static constexpr bool hermitian = is_complex<T>;
  const T alpha = number<T>({2, 1}), beta = number<T>({-1, 1});

  // y = alpha A x + beta y with element (i, j) of A from element(i, j).
  template <class Element>
  Vector<T> product(Element element, const Vector<T>& x, Vector<T> y) const {
    for (int i = 0; i < y.n; ++i) {
      Wide sum = 0;
      for (int j = 0; j < x.n; ++j) sum += element(i, j) * x[j];
      y.set(i, wide(alpha) * sum + wide(beta) * y[i]);
    }
    return y;
  }
};
using Types = testing::Types<float, double, orb_complex_float, orb_complex_double>;
TYPED_TEST_SUITE(Level2, Types);

constexpr int strides[][2] = {{1, 1}, {-2, 3}, {2, -1}};

template <class T>
std::tuple<T*, int> whole(Stored<T>& a) {
  return {a.data.data(), a.ld};
}
template <class T>
std::tuple<T*> packed(Stored<T>& a) {
  return {a.data.data()};
}

TYPED_TEST(Level2, GeneralProducts) {
  using T = TypeParam;
  const int m = 7, n = 5;
  for (char trans : {'N', 'T', 'C'})
    for (const auto& [incx, incy] : strides) {
      Vector<T> x{trans == 'N' ? n : m, incx};
      const Vector<T> start{trans == 'N' ? m : n, incy};
      const auto check = [&](auto names, Stored<T> a, auto band) {
        each_face(names.first, names.second, [&](auto run, bool by_rows) {
          SCOPED_TRACE(testing::Message() << trans << (by_rows ? " by rows " : " by columns ") << incx);
          a.by_rows = by_rows;
          a.fill(1);
          Vector<T> y = start;
          run_with(run, std::tuple(Letter{trans}, m, n), band, std::tuple(this->alpha), whole(a),
                   x.arguments(), std::tuple(this->beta), y.arguments());
          const auto element = [&](int i, int j) { return a.op(trans, i, j); };
          EXPECT_TRUE(matches(y.data, this->product(element, x, start).data));
        });
      };
      check(Names<T>::gemv, Stored<T>{m, n, false}, std::tuple());
      check(Names<T>::gbmv, Stored<T>{m, n, false, Storage::band, 2, 1}, std::tuple(2, 1));
    }
}

TYPED_TEST(Level2, SymmetricProducts) {
  using T = TypeParam;
  const int n = 6, k = 2;
  for (char uplo : {'U', 'L'})
    for (const auto& [incx, incy] : strides) {
      Vector<T> x{n, incx};
      const Vector<T> start{n, incy};
      const auto check = [&](auto names, auto arguments, Stored<T> a, auto band) {
        each_face(names.first, names.second, [&](auto run, bool by_rows) {
          SCOPED_TRACE(testing::Message() << uplo << (by_rows ? " by rows " : " by columns ") << incx);
          a.triangle = uplo;
          a.by_rows = by_rows;
          a.fill(2);
          Vector<T> y = start;
          run_with(run, std::tuple(Letter{uplo}, n), band, std::tuple(this->alpha), arguments(a),
                   x.arguments(), std::tuple(this->beta), y.arguments());
          const auto element = [&](int i, int j) { return a.full(i, j, this->hermitian); };
          EXPECT_TRUE(matches(y.data, this->product(element, x, start).data));
        });
      };
      check(Names<T>::symv, whole<T>, {n, n, false}, std::tuple());
      check(Names<T>::spmv, packed<T>, {n, n, false, Storage::packed}, std::tuple());
      const int below = uplo == 'U' ? 0 : k;
      Stored<T> band{n, n, false, Storage::band, below, k - below};
      check(Names<T>::sbmv, whole<T>, band, std::tuple(k));
    }
}

TYPED_TEST(Level2, GeneralUpdates) {
  using T = TypeParam;
  const int m = 7, n = 5;
  for (const auto& [incx, incy] : strides) {
    Vector<T> x{m, incx}, y{n, incy};
    const auto check = [&](auto names, bool conjugated) {
      each_face(names.first, names.second, [&](auto run, bool by_rows) {
        SCOPED_TRACE(testing::Message() << (by_rows ? " by rows " : " by columns ") << incx);
        Stored<T> a{m, n, by_rows};
        Stored<T> expected = a.fill(3);
        for (int j = 0; j < n; ++j)
          for (int i = 0; i < m; ++i)
            expected(i, j) =
                number<T>(a.at(i, j) + wide(this->alpha) * x[i] * (conjugated ? std::conj(y[j]) : y[j]));
        run_with(run, std::tuple(m, n, this->alpha), x.arguments(), y.arguments(), whole(a));
        EXPECT_TRUE(matches(a.data, expected.data));
      });
    };
    check(Names<T>::ger, false);
    check(Names<T>::gerc, true);
  }
}

TYPED_TEST(Level2, SymmetricUpdates) {
  using T = TypeParam;
  using R = part_of<T>;
  const int n = 6;
  const auto other = [](Wide z) { return is_complex<T> ? std::conj(z) : z; };
  for (char uplo : {'U', 'L'})
    for (const auto& [incx, incy] : strides) {
      Vector<T> x{n, incx}, y{n, incy};
      const auto check = [&](auto names, auto arguments, Stored<T> a, auto factor, auto second) {
        each_face(names.first, names.second, [&](auto run, bool by_rows) {
          SCOPED_TRACE(testing::Message() << uplo << (by_rows ? " by rows " : " by columns ") << incx);
          a.triangle = uplo;
          a.by_rows = by_rows;
          Stored<T> expected = a.fill(4);
          const Wide f = wide(factor);
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < n; ++i)
              if (a.holds(i, j))
                expected(i, j) = number<T>(a.full(i, j, this->hermitian) +
                                           (std::tuple_size_v<decltype(second)>
                                                ? f * x[i] * other(y[j]) + other(f) * y[i] * other(x[j])
                                                : f * x[i] * other(x[j])));
          run_with(run, std::tuple(Letter{uplo}, n, factor), x.arguments(), second, arguments(a));
          EXPECT_TRUE(matches(a.data, expected.data));
        });
      };
      const Stored<T> a{n, n, false}, ap{n, n, false, Storage::packed};
      check(Names<T>::syr, whole<T>, a, R(2), std::tuple());
      check(Names<T>::spr, packed<T>, ap, R(2), std::tuple());
      check(Names<T>::syr2, whole<T>, a, this->alpha, y.arguments());
      check(Names<T>::spr2, packed<T>, ap, this->alpha, y.arguments());
    }
}

// x = op(A) x, and back again by the solve: pivots are powers of two.
TYPED_TEST(Level2, TriangularProductsAndSolves) {
  using T = TypeParam;
  const int n = 6, k = 2;
  for (char uplo : {'U', 'L'})
    for (char trans : {'N', 'T', 'C'})
      for (char diag : {'N', 'U'})
        for (int inc : {1, -2}) {
          const Vector<T> start{n, inc};
          const auto check = [&](auto names, bool solve, auto arguments, Stored<T> a, auto band) {
            each_face(names.first, names.second, [&](auto run, bool by_rows) {
              SCOPED_TRACE(testing::Message()
                           << uplo << trans << diag << (by_rows ? " by rows" : " by columns")
                           << (solve ? " solve" : ""));
              a.triangle = uplo;
              a.by_rows = by_rows;
              a.fill(5);
              for (int i = 0; i < n; ++i)
                a(i, i) = diag == 'U' ? not_a_number<T>() : number<T>(i % 3 ? 2 : -1);
              Vector<T> result = start;
              for (int i = 0; i < n; ++i) {
                Wide sum = 0;
                for (int j = 0; j < n; ++j) sum += a.op(trans, i, j, diag) * start[j];
                result.set(i, sum);
              }
              Vector<T> x = solve ? result : start;
              run_with(run, std::tuple(Letter{uplo}, Letter{trans}, Letter{diag}, n), band, arguments(a),
                       x.arguments());
              EXPECT_TRUE(matches(x.data, (solve ? start : result).data));
            });
          };
          const int below = uplo == 'U' ? 0 : k;
          const Stored<T> a{n, n, false}, ap{n, n, false, Storage::packed},
              ab{n, n, false, Storage::band, below, k - below};
          check(Names<T>::trmv, false, whole<T>, a, std::tuple());
          check(Names<T>::trsv, true, whole<T>, a, std::tuple());
          check(Names<T>::tpmv, false, packed<T>, ap, std::tuple());
          check(Names<T>::tpsv, true, packed<T>, ap, std::tuple());
          check(Names<T>::tbmv, false, whole<T>, ab, std::tuple(k));
          check(Names<T>::tbsv, true, whole<T>, ab, std::tuple(k));
        }
}

}  // namespace
