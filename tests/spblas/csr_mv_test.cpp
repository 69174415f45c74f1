#include <cmath>

#include "gtest/gtest.h"
#include "tests/spblas/csr_model.h"
#include "tests/support/bits.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using namespace orb::test;

namespace {

template <class T>
class CsrMv : public testing::Test {};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(CsrMv, Types);

struct Rows {
  int m, columns, first, last;
};
const Rows square[] = {{1, 1, 1, 1}, {2, 2, 1, 2}, {13, 13, 1, 13}, {31, 31, 5, 23}, {31, 31, 31, 31}};
const Rows any[] = {{1, 7, 1, 1}, {13, 5, 1, 13}, {9, 40, 2, 8}};

// One call on matrices of both kinds of data. `entry(arrays, first, last, m, alpha, x, y)` calls the kernel.
template <class T, class Call>
void try_rows(const char* text, const Rows& r, bool whole, Call entry) {
  const Name name(text);
  for (Data data : {Data::exact, Data::rounding})
    for (int origin : {0, 1, 1000}) {
      SCOPED_TRACE(testing::Message() << text << " m " << r.m << " rows " << r.first << " to " << r.last);
      const int first = whole ? 1 : r.first, last = whole ? r.m : r.last;
      const Matrix<T> a = scattered<T>(r.m, r.columns, data);
      const Stored<T> arrays(a, name.first_number(), origin, origin / 500);
      const int nx = name.transposes() ? r.m : r.columns, ny = name.transposes() ? r.columns : r.m;
      const auto x = data_vector<T>(nx, data, 1), y = data_vector<T>(ny, data, 2);
      const T alpha = datum<T>(data, 5);
      Guarded<T> px(nx), py(ny);
      std::copy(x.begin(), x.end(), px.data());
      std::copy(y.begin(), y.end(), py.data());
      entry(arrays, first, last, r.m, alpha, px.data(), py.data());
      auto expected = y;
      if (data == Data::exact)
        expected = plus_product(y, alpha, expanded(name, a, first, last), x);
      else
        Model<T>(name, a, alpha).mv(first, last, x, expected);
      if (data == Data::exact)
        for (int i = 0; i < ny; ++i) py[i] = add(py[i], T{});  // a zero of either sign
      ASSERT_TRUE(same_elements(py, expected));
    }
}

TYPED_TEST(CsrMv, RangesOfRows) {
  using T = TypeParam;
  for (const auto& kernel : lists<T>().mv_par) {
    const Name name(kernel.name);
    const bool from_first = name.op == 'n' && name.kind == 's' && !name.unit();
    const auto entry = [&](auto& a, int first, int last, int m, T alpha, const T* x, T* y) {
      const int shift = from_first ? first - 1 : 0;
      call(kernel.entry, &first, &last, &m, &alpha, a.values.data(), a.columns.data(), a.begin.data(),
           a.end.data(), x + shift, y + shift);
    };
    for (const Rows& r : square) try_rows<T>(kernel.name, r, false, entry);
    if (name.kind == 'g')
      for (const Rows& r : any) try_rows<T>(kernel.name, r, false, entry);
  }
}

TYPED_TEST(CsrMv, WholeMatrices) {
  using T = TypeParam;
  for (const auto& kernel : lists<T>().mv_seq) {
    const auto entry = [&](auto& a, int, int, int m, T alpha, const T* x, T* y) {
      call(kernel.entry, &m, &alpha, a.values.data(), a.columns.data(), a.begin.data(), a.end.data(), x, y);
    };
    for (const Rows& r : square) try_rows<T>(kernel.name, r, true, entry);
    if (Name(kernel.name).kind == 'g')
      for (const Rows& r : any) try_rows<T>(kernel.name, r, true, entry);
  }
}

TYPED_TEST(CsrMv, EmptyRangesTouchNothing) {
  using T = TypeParam;
  const T* none = nullptr;
  T* untouched = nullptr;
  const int *no = nullptr, four = 4, three = 3, zero = 0;
  const T alpha = whole<T>(1, 0);
  for (const auto& kernel : lists<T>().mv_par)
    call(kernel.entry, &four, &three, &three, &alpha, none, no, no, no, none, untouched);
  for (const auto& kernel : lists<T>().mv_seq)
    call(kernel.entry, &zero, &alpha, none, no, no, no, none, untouched);
}

// A factor that is no number reaches y even from an empty row.
TYPED_TEST(CsrMv, FactorThatIsNoNumber) {
  using T = TypeParam;
  const int one = 1;
  const T alpha = multiply(part_of<T>(NAN), whole<T>(1, 0));
  for (const auto& kernel : lists<T>().mv_par) {
    const Stored<T> empty(Matrix<T>{1, {{}}}, 0, 0, 0);
    const T x = whole<T>(2, 0);
    part_of<T> y[2] = {3, 0};
    call(kernel.entry, &one, &one, &one, &alpha, empty.values.data(), empty.columns.data(),
         empty.begin.data(), empty.end.data(), &x, reinterpret_cast<T*>(y));
    EXPECT_TRUE(std::isnan(y[0])) << kernel.name;
  }
}

// A diagonal of ones is the upward axpy, called once, and the matrix is not read.
TYPED_TEST(CsrMv, UnitDiagonalGoesUp) {
  using T = TypeParam;
  const int m = 5;
  const T alpha = value<T>(3);
  for (const auto& kernel : lists<T>().mv_seq) {
    const Name name(kernel.name);
    if (name.kind != 'd' || !name.unit()) continue;
    spy().reset();
    const auto x = data_vector<T>(m, Data::rounding, 1);
    auto y = x;
    call(kernel.entry, &m, &alpha, nullptr, nullptr, nullptr, nullptr, x.data(), y.data());
    EXPECT_EQ(spy().axpy_calls, 1);
  }
}

}  // namespace
