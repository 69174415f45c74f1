// Reflectors against the formula in wide arithmetic.
#include "tests/blas/lapack/table.h"

using namespace orb::test;

namespace {

template <class T>
constexpr auto larfx = entry_of<T>(orb_blas_slarfx, orb_blas_dlarfx, orb_blas_clarfx, orb_blas_zlarfx);

template <class T>
class Larfx : public Factor<T> {};
TYPED_TEST_SUITE(Larfx, ElementTypes);

// A row or column x of C becomes x - tau v (v^H x): a sum of `order` products, two products and a difference.
TYPED_TEST(Larfx, EveryOrderOnBothSides) {
  using T = TypeParam;
  for (char side : {'L', 'r'})
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 25})
      for (int lines : {1, 2, 3, 4, 5, 9}) {
        const bool left = side == 'L';
        const int m = left ? order : lines, n = left ? lines : order;
        const Table<T> c(m, n, m + lines % 3, order % 4);
        c.randomise(unsigned(order));
        const auto start = c.all();
        const auto v = random_vector<T>(order, 5);
        const T tau = narrow<T>({1.25, is_complex<T> ? -0.5 : 0});
        const Table<T> work(lines, 1, lines);
        const auto untouched = work.all();
        spy().reset();
        call(larfx<T>, &side, &m, &n, v.data(), &tau, c.data(), &c.ld, work.data());
        EXPECT_EQ(spy().gemv_calls, order > 10 ? 1 : 0);
        if (order <= 10) {
          EXPECT_TRUE(same_elements(work.all(), untouched));
        }
        const auto old = [&](int k, int line) {
          return wide(start[size_t(left ? k + line * c.ld : line + k * c.ld)]);
        };
        for (int line = 0; line < lines; ++line) {
          Wide sum = 0;
          long double size = 0;
          for (int k = 0; k < order; ++k) {
            const Wide factor = left ? std::conj(wide(v[size_t(k)])) : wide(v[size_t(k)]);
            sum += factor * old(k, line), size += std::abs(factor * old(k, line));
          }
          for (int k = 0; k < order; ++k) {
            const Wide factor = wide(tau) * (left ? wide(v[size_t(k)]) : std::conj(wide(v[size_t(k)])));
            const long double bound = std::abs(old(k, line)) + std::abs(factor) * size;
            ASSERT_LE(std::abs(wide(left ? c(k, line) : c(line, k)) - (old(k, line) - factor * sum)),
                      (order + 4) * rounding<T> * bound)
                << side << " order " << order << " lines " << lines;
          }
        }
      }
}

TYPED_TEST(Larfx, TauZeroReadsAndWritesNothing) {
  using T = TypeParam;
  const T tau{};
  for (int order : {0, 1, 7, 30}) {
    const Table<T> c(order, order, order + 1);
    const auto start = c.all();
    for (const char* side : {"L", "R"})
      call(larfx<T>, side, &order, &order, nullptr, &tau, c.data(), &c.ld, nullptr);
    EXPECT_TRUE(same_elements(c.all(), start));
  }
}

}  // namespace
