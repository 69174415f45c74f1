// The plain products, and how many kernels there are.
#include "gtest/gtest.h"
#include "tests/spblas/csr_matrix.h"
#include "tests/support/bits.h"
#include "tests/support/call.h"

using namespace orb::test;

namespace {

template <class T>
class Sparse : public testing::Test {};
using Types = testing::Types<float, double, c32, c64>;
TYPED_TEST_SUITE(Sparse, Types);

TYPED_TEST(Sparse, KernelsOfEachJobAndForm) {
  using T = TypeParam;
  const auto all = lists<T>();
  const size_t expected[2][6] = {{22, 14, 32, 4, 18, 18}, {60, 26, 80, 6, 36, 36}};
  const size_t got[] = {all.mv_par.size(), all.mv_seq.size(), all.mm_par.size(),
                        all.mm_seq.size(), all.sv.size(),     all.sm.size()};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(got[i], expected[is_complex<T>][i]) << i;
}

template <class T>
constexpr auto block_product = orb_spblas_sbsr1ng__f__gemvout_par;
template <>
constexpr auto block_product<double> = orb_spblas_dbsr1ng__f__gemvout_par;
template <>
constexpr auto block_product<c32> = orb_spblas_cbsr1ng__f__gemvout_par;
template <>
constexpr auto block_product<c64> = orb_spblas_zbsr1ng__f__gemvout_par;

// Terms in stored order on one sum, the last (number mod 4) on one of their own.
template <class T>
T summed(const std::vector<T>& terms) {
  T sum{}, tail{};
  for (size_t t = 0; t < terms.size(); ++t) {
    T& target = t < terms.size() / 4 * 4 ? sum : tail;
    target = add(target, terms[t]);
  }
  return add(sum, tail);
}

TYPED_TEST(Sparse, ProductsOfBlocks) {
  using T = TypeParam;
  const int m = 13, first = 3, last = 12, none = 0;
  for (int order : {1, 2, 3, 4, 5, 9}) {
    const Matrix<T> blocks = scattered<T>(m, 8, Data::rounding);
    const Stored<T> arrays(blocks, 1, 5, 0);
    std::vector<int> pointers(arrays.begin.begin(), arrays.begin.end());
    pointers.push_back(arrays.end[m - 1]);
    const int count = arrays.values.size();
    Guarded<T> values(count * order * order), x(8 * order), y(m * order);
    for (int i = 0; i < values.size(); ++i) values[i] = value<T>(i);
    for (int i = 0; i < x.size(); ++i) x[i] = value<T>(i + 3);
    for (T& e : y) e = whole<T>(77, 77);
    std::vector<T> expected(y.begin(), y.end());
    for (int i = first - 1; i < last; ++i)
      for (int r = 0; r < order; ++r) {
        std::vector<T> terms;
        for (int k = pointers[size_t(i)]; k < pointers[size_t(i) + 1]; ++k)
          for (int q = 0; q < order; ++q)
            terms.push_back(multiply(x[(arrays.columns[k - 5] - 1) * order + q],
                                     values[(k - 5) * order * order + q * order + r]));
        expected[size_t(i * order + r)] = summed(terms);
      }
    call(block_product<T>, &first, &last, nullptr, &order, values.data(), arrays.columns.data(),
         pointers.data(), nullptr, x.data(), y.data());
    ASSERT_TRUE(same_elements(y, expected)) << "blocks of order " << order;
    call(block_product<T>, &first, &none, nullptr, &order, nullptr, nullptr, nullptr, nullptr, nullptr,
         nullptr);
    if constexpr (std::is_same_v<T, double>)
      if (order == 1) {
        for (T& e : y) e = 77;
        call(orb_spblas_dcsr1ng__f__gemvout_par, &first, &last, nullptr, nullptr, values.data(),
             arrays.columns.data(), pointers.data(), nullptr, x.data(), y.data());
        ASSERT_TRUE(same_elements(y, expected));
      }
  }
}

}  // namespace
