// The faces of the matrix products: argument errors, and row-major against column-major.
#include <stdarg.h>
#include <stdio.h>

#include <string>

#include "gtest/gtest.h"
#include "orb/blas.h"
#include "orb/cblas.h"
#include "tests/outer/numbers.h"

using namespace orb::test;

namespace {
std::string told;  // what the error handlers of this program heard last
int row_major;     // and whether the call was a row-major one

std::string report(const std::string& routine, int place, const char* more = "") {
  return testing::PrintToString(std::tuple(routine, place, std::string(more)));
}
}  // namespace

// This program's own handlers, which must win over those of the library.
extern "C" void xerbla_(const char* name, const int* place, size_t length) {
  told = report(std::string(name, length), *place);
}
extern "C" void cblas_xerbla(int place, const char* routine, const char* form, ...) {
  char text[80];
  va_list values;
  va_start(values, form);
  vsnprintf(text, sizeof text, form, values);
  va_end(values);
  told = report(routine, place, text);
  row_major = RowMajorStrg;
}

namespace {

template <class T>
struct Names;
template <>
struct Names<float> {
  static constexpr auto fortran = sgemm_;
  static constexpr auto c = cblas_sgemm;
  static constexpr const char *fortran_name = "SGEMM ", *c_name = "cblas_sgemm";
};
template <>
struct Names<double> {
  static constexpr auto fortran = dgemm_;
  static constexpr auto c = cblas_dgemm;
  static constexpr const char *fortran_name = "DGEMM ", *c_name = "cblas_dgemm";
};

template <class T>
class Gemm : public testing::Test {
 protected:
  void SetUp() override { told.clear(); }
};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Gemm, Types);

TYPED_TEST(Gemm, FortranErrorsTellTheFirstBadArgumentAndTouchNothing) {
  using T = TypeParam;
  const struct {
    char transa, transb;
    int m, n, k, lda, ldb, ldc, place;
  } cases[] = {
      {'X', 'X', -1, 2, 3, 4, 3, 4, 1},  {'N', '?', -1, 2, 3, 4, 3, 4, 2},
      {'N', 'N', -1, -1, 3, 4, 3, 4, 3}, {'N', 'N', 4, -1, -1, 4, 3, 4, 4},
      {'n', 't', 4, 2, -1, 0, 3, 4, 5},  {'N', 'N', 4, 2, 3, 3, 0, 4, 8},
      {'T', 'N', 4, 2, 3, 2, 3, 4, 8},   {'N', 'N', 0, 0, 0, 0, 1, 1, 8},
      {'N', 'N', 4, 2, 3, 4, 2, 0, 10},  {'N', 'C', 4, 2, 3, 4, 1, 4, 10},
      {'N', 'N', 0, 0, 0, 1, 0, 1, 10},  {'c', 'n', 4, 2, 3, 3, 3, 3, 13},
      {'N', 'N', 0, 2, 3, 1, 3, 0, 13},  {'N', 'N', 300, 300, 300, 300, 300, 299, 13},
  };
  const std::vector<T> a(300 * 300, 1);
  for (const auto& c : cases) {
    std::vector<T> out(300 * 300, 7);
    call_face(Names<T>::fortran, &c.transa, &c.transb, c.m, c.n, c.k, T(1), a.data(), c.lda, a.data(), c.ldb,
              T(2), out.data(), c.ldc);
    EXPECT_EQ(told, report(Names<T>::fortran_name, c.place));
    EXPECT_EQ(out, std::vector<T>(300 * 300, 7));
  }
}

// A handler of the program's own hears places of the column-major call on the transposes.
TYPED_TEST(Gemm, CErrorsReachTheHandler) {
  using T = TypeParam;
  const int N = CblasNoTrans, X = CblasTrans, C = CblasConjTrans, col = CblasColMajor, row = CblasRowMajor;
  const struct {
    int layout, transa, transb, m, n, k, lda, ldb, ldc;
    int place;
    const char* more;
  } cases[] = {
      {0, 9, N, 4, 2, 3, 4, 3, 4, 1, "Illegal layout setting, 0\n"},
      {col, 9, 8, -1, 2, 3, 4, 3, 4, 2, "Illegal TransA setting, 9\n"},
      {row, 9, 8, 4, 2, 3, 3, 2, 2, 2, "Illegal TransA setting, 9\n"},
      {row, N, 8, 4, 2, 3, 3, 2, 2, 3, "Illegal TransB setting, 8\n"},
      {col, N, N, -1, -1, 3, 4, 3, 4, 4, ""},
      {row, N, N, -1, -1, 3, 3, 2, 2, 4, ""},
      {row, N, N, -1, 2, 3, 3, 2, 2, 5, ""},
      {col, N, N, 4, -1, -1, 4, 3, 4, 5, ""},
      {row, N, N, 4, 2, -1, 3, 2, 2, 6, ""},
      {col, N, N, 4, 2, 3, 3, 2, 4, 9, ""},
      {row, N, N, 4, 2, 3, 2, 1, 2, 9, ""},
      {row, N, N, 4, 2, 3, 2, 2, 2, 11, ""},
      {row, X, N, 4, 2, 3, 3, 2, 2, 11, ""},
      {col, N, X, 4, 2, 3, 4, 1, 4, 11, ""},
      {row, N, C, 4, 2, 3, 3, 2, 2, 9, ""},
      {col, N, N, 4, 2, 3, 4, 3, 3, 14, ""},
      {row, N, N, 4, 2, 3, 3, 2, 1, 14, ""},
  };
  const std::vector<T> a(20, 1);
  for (const auto& c : cases) {
    std::vector<T> out(20, 7);
    call_face(Names<T>::c, CBLAS_LAYOUT(c.layout), CBLAS_TRANSPOSE(c.transa), CBLAS_TRANSPOSE(c.transb), c.m,
              c.n, c.k, T(1), a.data(), c.lda, a.data(), c.ldb, T(2), out.data(), c.ldc);
    EXPECT_EQ(told, report(Names<T>::c_name, c.place, c.more));
    EXPECT_EQ(row_major, c.layout == row);
    EXPECT_EQ(out, std::vector<T>(20, 7));
  }
}

// C = 2 op(A) op(B) - C over small integers; `along_rows` tells how a matrix lies.
template <class T>
struct Matrix {
  int rows, columns;
  bool along_rows;
  int ld = (along_rows ? columns : rows) + 1;
  std::vector<T> data = integers<T>(ld * (along_rows ? rows : columns), rows + columns);
  T& at(int i, int j) { return data[size_t(along_rows ? i * ld + j : j * ld + i)]; }
};

TYPED_TEST(Gemm, EveryLayoutAndTranspose) {
  using T = TypeParam;
  const CBLAS_TRANSPOSE options[] = {CblasNoTrans, CblasTrans, CblasConjTrans};
  const char letters[] = "NTC";
  for (bool along_rows : {false, true})
    for (int ta = 0; ta < 3; ++ta)
      for (int tb = 0; tb < 3; ++tb)
        for (const auto& [m, n, k] : {std::tuple{0, 2, 2}, {3, 4, 0}, {3, 5, 2}, {9, 13, 11}, {70, 69, 71}}) {
          SCOPED_TRACE(testing::Message()
                       << letters[ta] << letters[tb] << (along_rows ? " rows " : " columns ") << m << " " << n
                       << " " << k);
          Matrix<T> a{ta ? k : m, ta ? m : k, along_rows}, b{tb ? n : k, tb ? k : n, along_rows},
              c{m, n, along_rows}, expected = c;
          for (int i = 0; i < m; ++i)
            for (int j = 0; j < n; ++j) {
              T sum = 0;
              for (int l = 0; l < k; ++l)
                sum += (ta ? a.at(l, i) : a.at(i, l)) * (tb ? b.at(j, l) : b.at(l, j));
              expected.at(i, j) = 2 * sum - c.at(i, j);
            }
          Matrix<T> by_fortran = c;
          call_face(Names<T>::c, along_rows ? CblasRowMajor : CblasColMajor, options[ta], options[tb], m, n,
                    k, T(2), a.data.data(), a.ld, b.data.data(), b.ld, T(-1), c.data.data(), c.ld);
          ASSERT_EQ(c.data, expected.data);
          if (!along_rows) {
            call_face(Names<T>::fortran, &letters[ta], &letters[tb], m, n, k, T(2), a.data.data(), a.ld,
                      b.data.data(), b.ld, T(-1), by_fortran.data.data(), by_fortran.ld);
            ASSERT_EQ(by_fortran.data, expected.data);
          }
        }
  EXPECT_EQ(told, "");
}

// Nothing to do means nothing touched: the sign of a zero stays, and an infinite alpha makes no NaN.
TYPED_TEST(Gemm, NoTermsAndBetaOneTouchNothing) {
  using T = TypeParam;
  const T x[4] = {1, 1, 1, 1};
  for (const auto& [k, alpha] : {std::pair<int, T>{0, INFINITY}, {2, 0}}) {
    T c[4] = {T(-0.0), T(-0.0), NAN, 3};
    call_face(Names<T>::fortran, "T", "T", 2, 2, k, alpha, x, 2, x, 2, T(1), c, 2);
    EXPECT_TRUE(std::signbit(c[0]) && std::signbit(c[1]) && std::isnan(c[2]) && c[3] == 3) << "k " << k;
  }
}

}  // namespace
