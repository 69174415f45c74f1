#include "gtest/gtest.h"
#include "tests/spblas/csr_model.h"
#include "tests/spblas/dense.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using namespace orb::test;

namespace {

template <class T>
class CsrMm : public testing::Test {};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(CsrMm, Types);

struct Columns {
  int n, first, last;
};
// Every width and rest of a panel, wherever it starts.
const Columns ranges[] = {{1, 1, 1}, {2, 1, 2}, {3, 1, 3},   {5, 2, 4},
                          {9, 1, 7}, {8, 1, 8}, {19, 3, 19}, {4, 4, 3}};

// One call for each kind of data. `entry(arrays, range, m, k, alpha, b, c)` calls the kernel.
template <class T, class Call>
void try_columns(const char* text, int m, int columns, const Columns& range, int place, Call entry) {
  const Name name(text);
  for (Data data : {Data::exact, Data::rounding}) {
    SCOPED_TRACE(testing::Message() << text << " m " << m << " columns " << range.first << " to "
                                    << range.last << " of " << range.n);
    const Matrix<T> a = scattered<T>(m, columns, data);
    const Stored<T> arrays(a, name.first_number(), name.first_number(), 0);
    const T alpha = datum<T>(data, 5);
    const int nb = name.transposes() ? m : columns, nc = name.transposes() ? columns : m;
    const Dense<T> b(name.by_rows(), nb, range.n, 3, place), c(name.by_rows(), nc, range.n, 1, 3 - place),
        expected(name.by_rows(), nc, range.n, 1, 3 - place);
    for (int j = 0; j < range.n; ++j) {
      const auto x = data_vector<T>(nb, data, j), y = data_vector<T>(nc, data, j + 7);
      b.set_column(j, x);
      c.set_column(j, y);
      auto z = y;
      if (j + 1 >= range.first && j < range.last) {
        if (data == Data::exact)
          z = plus_product(y, alpha, expanded(name, a, 1, m), x);
        else
          Model<T>(name, a, alpha).mm(x, z);
      }
      expected.set_column(j, z);
    }
    entry(arrays, range, m, columns, alpha, b, c);
    if (data == Data::exact) {
      drop_zero_signs(c, nc, range.n);
      drop_zero_signs(expected, nc, range.n);
    }
    ASSERT_TRUE(same_elements(c.image(), expected.image()));
  }
}

TYPED_TEST(CsrMm, RangesOfColumns) {
  using T = TypeParam;
  for (const auto& kernel : lists<T>().mm_par) {
    const auto entry = [&](auto& a, const Columns& range, int m, int k, T alpha, auto& b, auto& c) {
      call(kernel.entry, &range.first, &range.last, &m, &k, &alpha, a.values.data(), a.columns.data(),
           a.begin.data(), a.end.data(), b.data(), &b.ld, c.data(), &c.ld);
    };
    int place = 0;
    for (const Columns& range : ranges) {
      try_columns<T>(kernel.name, 13, 13, range, place++ % 4, entry);
      if (Name(kernel.name).kind == 'g') try_columns<T>(kernel.name, 9, 17, range, place % 4, entry);
    }
    try_columns<T>(kernel.name, 1, 1, ranges[2], 0, entry);
  }
}

TYPED_TEST(CsrMm, DiagonalMatrices) {
  using T = TypeParam;
  for (const auto& kernel : lists<T>().mm_seq) {
    const Name name(kernel.name);
    const auto entry = [&](auto& a, const Columns& range, int m, int, T alpha, auto& b, auto& c) {
      spy().reset();
      call(kernel.entry, &m, &range.n, &alpha, a.values.data(), a.columns.data(), a.begin.data(),
           a.end.data(), b.data(), &b.ld, c.data(), &c.ld);
      EXPECT_EQ(spy().axpy_calls, !name.unit() ? 0 : name.by_rows() ? m : range.n);
    };
    for (const Columns& range : ranges)
      if (range.first == 1) try_columns<T>(kernel.name, 13, 13, {range.n, 1, range.n}, 0, entry);
  }
}

// Long enough to be worked on in blocks of rows, in some types of one row each: the same bits as column by
// column.
TYPED_TEST(CsrMm, BlocksOfRowsDoNotShow) {
  using T = TypeParam;
  const int m = 12, k = 400000, n = 3, one = 1;
  const T alpha = value<T>(2);
  for (const auto& kernel : lists<T>().mm_par) {
    const Name name(kernel.name);
    if (name.kind != 'g' || name.transposes() || name.by_rows()) continue;
    const Matrix<T> a = scattered<T>(m, k, Data::rounding);
    const Stored<T> arrays(a, 1, 1, 0);
    const auto b = data_vector<T>(k * n, Data::rounding, 1);
    std::vector<T> c(m * n);
    auto expected = c;
    call(kernel.entry, &one, &n, &m, &k, &alpha, arrays.values.data(), arrays.columns.data(),
         arrays.begin.data(), arrays.end.data(), b.data(), &k, c.data(), &m);
    for (int j = 0; j < n; ++j) {
      std::vector<T> y(m);
      Model<T>(name, a, alpha).mm({b.begin() + j * k, b.begin() + (j + 1) * k}, y);
      std::copy(y.begin(), y.end(), expected.begin() + j * m);
    }
    EXPECT_TRUE(same_elements(c, expected)) << kernel.name;
  }
}

}  // namespace
