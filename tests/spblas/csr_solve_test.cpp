// Systems with one and with many right-hand sides.
#include "gtest/gtest.h"
#include "tests/spblas/csr_model.h"
#include "tests/spblas/dense.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using namespace orb::test;

namespace {

template <class T>
class CsrSolve : public testing::Test {
 public:
  // The triangle takes what lies in the other one, and a stored diagonal under one of ones, for nothing.
  static Matrix<T> matrix(const Name& name, int m, Data data, int variant) {
    return ordered<T>(m, data, !(name.unit() && variant == 1));
  }
};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(CsrSolve, Types);

// A right-hand side, and its solution: op(A) x and alpha^(0 or 1) x for exact data, the model's for others.
template <class T>
std::vector<T> right_hand_side(const Name& name, const Matrix<T>& a, Data data, int seed) {
  const auto x = data_vector<T>(a.m(), data, seed);
  if (data == Data::rounding) return x;
  return plus_product(std::vector<T>(x.size()), whole<T>(1, 0), expanded(name, a, 1, a.m()), x);
}
template <class T>
std::vector<T> solution(const Name& name, const Matrix<T>& a, Data data, int seed, T alpha,
                        bool by_reciprocal) {
  auto x = data_vector<T>(a.m(), data, seed);
  if (data == Data::rounding)
    Model<T>(name, a, alpha).solve(x, by_reciprocal);
  else if (name.kind == 'd')
    for (T& e : x) e = multiply(alpha, e);
  return x;
}

TYPED_TEST(CsrSolve, OneRightHandSide) {
  using T = TypeParam;
  for (const auto& kernel : lists<T>().sv)
    for (Data data : {Data::exact, Data::rounding})
      for (int m : {0, 1, 2, 5, 37})
        for (int variant : {0, 1}) {
          SCOPED_TRACE(testing::Message() << kernel.name << " m " << m);
          const Name name(kernel.name);
          const Matrix<T> a = this->matrix(name, m, data, variant);
          const Stored<T> arrays(a, name.first_number(), 10 * variant, variant);
          const T alpha = datum<T>(data, 5);
          const auto b = right_hand_side(name, a, data, 1);
          Guarded<T> y(m);
          std::copy(b.begin(), b.end(), y.data());
          call(kernel.entry, &m, &alpha, arrays.values.data(), arrays.columns.data(), arrays.begin.data(),
               arrays.end.data(), y.data());
          if (data == Data::exact)
            for (T& e : y) e = add(e, T{});
          ASSERT_TRUE(same_elements(y, solution(name, a, data, 1, alpha, false)));
        }
}

TYPED_TEST(CsrSolve, ManyRightHandSides) {
  using T = TypeParam;
  const struct {
    int n, first, last;
  } ranges[] = {{1, 1, 1}, {3, 1, 2}, {8, 1, 8}, {9, 1, 9}, {21, 2, 20}, {40, 1, 40}, {5, 4, 3}};
  for (const auto& kernel : lists<T>().sm)
    for (Data data : {Data::exact, Data::rounding})
      for (const auto& r : ranges)
        for (bool refused : {false, true}) {
          const int m = 17, place = r.n % 4;
          SCOPED_TRACE(testing::Message() << kernel.name << " columns " << r.first << " to " << r.last);
          const Name name(kernel.name);
          const bool asks = !name.transposes() && name.kind == 't' && name.lower(), runs = r.first <= r.last;
          if (refused && !asks) continue;
          const Matrix<T> a = this->matrix(name, m, data, r.n % 2);
          const Stored<T> arrays(a, name.first_number(), 1, 0);
          const T alpha = datum<T>(data, 5);
          const Dense<T> c(name.by_rows(), m, r.n, 2, place), expected(name.by_rows(), m, r.n, 2, place);
          for (int j = 0; j < r.n; ++j) {
            const bool solved = j + 1 >= r.first && j < r.last;
            const auto b = right_hand_side(name, a, data, j);
            c.set_column(j, b);
            expected.set_column(
                j, solved ? solution(name, a, data, j, alpha, !refused && !name.transposes()) : b);
          }
          spy().reset();
          spy().refuse_scratch_at = refused;
          call(kernel.entry, &r.first, &r.last, &m, &r.n, &alpha, arrays.values.data(), arrays.columns.data(),
               arrays.begin.data(), arrays.end.data(), c.data(), &c.ld);
          EXPECT_EQ(spy().scratch.size(), asks && runs ? 1u : 0u);
          for (const auto& request : spy().scratch)
            EXPECT_EQ(request, (MemoryRequest{r.n * int(sizeof(T)), 128}));
          EXPECT_EQ(spy().faults(), "");
          if (data == Data::exact) {
            drop_zero_signs(c, m, r.n);
            drop_zero_signs(expected, m, r.n);
          }
          ASSERT_TRUE(same_elements(c.image(), expected.image()));
        }
}

// A lower row without entries divides by the entry at which the row before it stopped.
TYPED_TEST(CsrSolve, EmptyRowTakesTheDivisorBefore) {
  using T = TypeParam;
  const int m = 2;
  for (const auto& kernel : lists<T>().sv) {
    const Name name(kernel.name);
    if (name.kind != 't' || name.transposes() || !name.lower() || name.unit()) continue;
    const Stored<T> arrays(Matrix<T>{2, {{{0, whole<T>(4, 0)}}, {}}}, name.first_number(), 0, 0);
    T y[] = {whole<T>(8, 0), whole<T>(12, 0)};
    const T alpha = whole<T>(1, 0);
    call(kernel.entry, &m, &alpha, arrays.values.data(), arrays.columns.data(), arrays.begin.data(),
         arrays.end.data(), y);
    EXPECT_TRUE(same(y[0], whole<T>(2, 0)) && same(y[1], whole<T>(3, 0))) << kernel.name;
  }
}

// The quotient of complex numbers is held in 80 bits: squares beyond the range of the type do no harm.
TEST(CsrSolveComplex, DivisorsWhoseSquaresOverflow) {
  const int m = 1;
  for (const auto& kernel : lists<c64>().sv) {
    const Name name(kernel.name);
    if (name.kind != 't' || name.unit()) continue;
    const Stored<c64> arrays(Matrix<c64>{1, {{{0, {0x1p700, 0x1p700}}}}}, name.first_number(), 0, 0);
    const double sign = name.op == 'n' || name.op == 't' ? -1 : 1;
    c64 y = {0x1p700, 0};
    call(kernel.entry, &m, &y, arrays.values.data(), arrays.columns.data(), arrays.begin.data(),
         arrays.end.data(), &y);
    EXPECT_TRUE(same(y, c64{0.5, sign * 0.5})) << kernel.name;
  }
}

}  // namespace
