// Complex and mixed matrix products.
#include <complex>
#include <string>

#include "orb/blas_level3.h"
#include "tests/blas/level3/integer_matrix.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using namespace orb::test;

namespace {

struct CGemm {
  using A = c32;
  using T = c32;
  static constexpr auto entry = orb_blas_xcgemm;
};
struct ZGemm {
  using A = c64;
  using T = c64;
  static constexpr auto entry = orb_blas_xzgemm;
};
struct CGemm3m : CGemm {
  static constexpr auto entry = orb_blas_xcgemm3m;
};
struct ZGemm3m : ZGemm {
  static constexpr auto entry = orb_blas_xzgemm3m;
};
struct SCGemm {
  using A = float;
  using T = c32;
  static constexpr auto entry = orb_blas_xscgemm;
};
struct DZGemm {
  using A = double;
  using T = c64;
  static constexpr auto entry = orb_blas_xdzgemm;
};

struct Shape {
  std::string trans;
  int m, n, k;
};
std::ostream& operator<<(std::ostream& out, const Shape& s) {
  return out << s.trans << ' ' << s.m << " by " << s.n << " by " << s.k;
}

template <class P>
class Product : public testing::Test {
 public:
  using A = typename P::A;
  using T = typename P::T;
  Product() { spy().reset(); }
  ~Product() override { EXPECT_EQ(spy().faults(), ""); }

  static T sum(const Shape& s, const IntegerMatrix<A>& a, const IntegerMatrix<T>& b, int i, int j) {
    T total{};
    for (int t = 0; t < s.k; ++t)
      total = add(total, multiply(op(a, s.trans[0], i, t), op(b, s.trans[1], t, j)));
    return total;
  }
  static void run(const Shape& s, T alpha, const A* a, int lda, const T* b, int ldb, T beta, T* c, int ldc) {
    call(P::entry, &s.trans[0], &s.trans[1], &s.m, &s.n, &s.k, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);
  }
  // One call on integers, the matrices starting at the words `turn` of 16 bytes.
  static void check(const Shape& s, T alpha, T beta, int turn) {
    const auto a = operand<A>(s.trans[0], s.m, s.k, 1, turn & 3);
    const auto b = operand<T>(s.trans[1], s.k, s.n, 2, turn >> 2 & 3);
    const IntegerMatrix<T> c(s.m, s.n, 3, turn % 3, turn >> 1 & 3);
    if (same(beta, T{})) c(s.m / 2, s.n / 2) = element<T>(NAN, NAN);
    auto expected = c.all();
    for (int j = 0; j < s.n; ++j)
      for (int i = 0; i < s.m; ++i) {
        T& e = expected[size_t(i + j * c.ld)];
        e = finished(alpha, sum(s, a, b, i, j), beta, e);
      }
    run(s, alpha, a.data(), a.ld, b.data(), b.ld, beta, c.data(), c.ld);
    ASSERT_TRUE(equal_numbers(c.all(), expected)) << s << " turn " << turn;
    ASSERT_TRUE(c.canaries_whole()) << s;
    ASSERT_EQ(spy().faults(), "") << s;
  }
};

using Products = testing::Types<CGemm, ZGemm, CGemm3m, ZGemm3m, SCGemm, DZGemm>;
TYPED_TEST_SUITE(Product, Products);

const char* const transposes[] = {"NN", "nT", "NC", "tn", "TT", "TC", "Cn", "CT", "cc"};

TYPED_TEST(Product, EveryEdge) {
  using Number = typename TestFixture::T;
  const Number factors[] = {element<Number>(1), element<Number>(0), element<Number>(-2, 1),
                            element<Number>(0, 2)};
  int turn = 0;
  for (const char* trans : transposes)
    for (int m : {1, 2, 3, 5, 8})
      for (int n : {1, 2, 3, 4, 5, 7})
        for (int k : {1, 2, 4, 7, 9}) {
          ++turn;
          this->check({trans, m, n, k}, factors[turn % 3 * 3 % 4], factors[turn / 2 % 4], turn % 16);
        }
}

TYPED_TEST(Product, SlicesAndBlocks) {
  using Number = typename TestFixture::T;
  int turn = 0;
  for (const char* trans : transposes) {
    const auto check = [&](int m, int n, int k) {
      ++turn;
      this->check({trans, m, n, k}, element<Number>(1, -1), element<Number>(turn % 3), turn % 16);
    };
    for (int k : {127, 128, 129, 257}) check(5, 4, k), check(37, 7, k);
    for (int m : {255, 257, 511, 513}) check(m, 4, 9);
    for (int n : {239, 241, 481}) check(5, n, 9);
    if (trans == transposes[2])
      check(513, 4, 130), check(515, 50, 49), check(50, 515, 49), check(49, 50, 515);
    check(65, 64, 65), check(64, 65, 64), check(70, 68, 66);
  }
}

TYPED_TEST(Product, NothingToMultiply) {
  using Number = typename TestFixture::T;
  for (double beta : {0., 1., -2.})
    for (int k : {0, -1, 40}) {
      const int m = 37, n = 5;
      const IntegerMatrix<Number> c(m, n, 4, 2, 1);
      if (beta == 0) c(m - 1, n - 1) = element<Number>(NAN, NAN);
      auto expected = c.all();
      if (beta != 1)
        for (int j = 0; j < n; ++j)
          for (int i = 0; i < m; ++i) {
            Number& e = expected[size_t(i + j * c.ld)];
            e = beta == 0 ? Number{} : multiply(element<Number>(beta), e);
          }
      // A and B are null pointers: they may not be read.
      this->run({"NC", m, n, k}, element<Number>(k > 0 ? -0. : 3), nullptr, m, nullptr, n,
                element<Number>(beta), c.data(), c.ld);
      EXPECT_TRUE(equal_numbers(c.all(), expected)) << "beta " << beta << " k " << k;
    }
  for (const auto& [m, n] : {std::pair{0, 50}, {50, 0}, {-1, 50}, {50, -7}})
    this->run({"NN", m, n, 9}, element<Number>(2), nullptr, 50, nullptr, 50, Number{}, nullptr, 50);
  EXPECT_TRUE(spy().scratch.empty());
}

// Rounding data: |C - ref| <= 2 sqrt(2) (k + 2) u (|alpha| |A| |B| + |beta| |C0|), moduli of whole numbers;
// with three products, whose imaginary part takes (|Ar| + |Ai|) (|Br| + |Bi|) and two differences, 4 (k + 5)
// u.
TYPED_TEST(Product, ErrorBound) {
  using Number = typename TestFixture::T;
  using Wide = std::complex<long double>;
  const auto wide = [](auto x) {
    if constexpr (is_complex<decltype(x)>)
      return Wide(x.re, x.im);
    else
      return Wide(x);
  };
  const Number alpha = element<Number>(0.7, -1.3), beta = element<Number>(-0.4, 0.9);
  constexpr bool three = std::is_same_v<TypeParam, CGemm3m> || std::is_same_v<TypeParam, ZGemm3m>;
  for (const char* trans : {"NN", "CT", "TC", "NC"})
    for (const int k : {3, 100, 300}) {
      const Shape s{trans, 61, 55, k};
      const auto a = operand<typename TestFixture::A>(s.trans[0], s.m, k, 5, 0);
      const auto b = operand<Number>(s.trans[1], k, s.n, 6, 1);
      const IntegerMatrix<Number> c(s.m, s.n, 7), start(s.m, s.n, 7);
      for (int j = 0; j < b.cols; ++j)
        for (int i = 0; i < b.rows; ++i) b(i, j) = multiply(element<Number>(1. / 3, 1. / 7), b(i, j));
      this->run(s, alpha, a.data(), a.ld, b.data(), b.ld, beta, c.data(), c.ld);
      for (int j = 0; j < s.n; ++j)
        for (int i = 0; i < s.m; ++i) {
          Wide sum = wide(beta) * wide(start(i, j));
          long double size = std::abs(sum);
          for (int t = 0; t < k; ++t) {
            const Wide term = wide(alpha) * wide(op(a, trans[0], i, t)) * wide(op(b, trans[1], t, j));
            sum += term, size += std::abs(term);
          }
          const long double u = sizeof(Number) == 16 ? 0x1p-53L : 0x1p-24L;
          ASSERT_LE(std::abs(wide(c(i, j)) - sum), u * size * (three ? 4 * (k + 5) : 2 * sqrtl(2) * (k + 2)))
              << s;
        }
    }
}

template <class P>
class Driver : public Product<P> {};
using Drivers = testing::Types<CGemm, ZGemm>;
TYPED_TEST_SUITE(Driver, Drivers);

// Whole or in pieces, an element has the same bits. The values round at nearly every step.
TYPED_TEST(Driver, CutsKeepTheBits) {
  using Number = typename TestFixture::T;
  const int k = 300;
  for (const auto& [m, n, rows, columns] : {std::array{40, 29, 7, 6}, {150, 131, 75, 66}}) {
    const IntegerMatrix<Number> a(m, k, 1), b(k, n, 2), whole(m, n, 3), pieces(m, n, 3);
    for (int i = 0; i < k * n; ++i) b.data()[i] = value<Number>(i);
    const Number alpha = element<Number>(1. / 3, 0.1), beta = element<Number>(0.3, -0.7);
    this->run({"NN", m, n, k}, alpha, a.data(), m, b.data(), k, beta, whole.data(), m);
    for (int j = 0; j < n; j += columns)
      for (int i = 0; i < m; i += rows)
        this->run({"NN", std::min(rows, m - i), std::min(columns, n - j), k}, alpha, &a(i, 0), m, &b(0, j), k,
                  beta, &pieces(i, j), m);
    EXPECT_TRUE(same_elements(pieces.all(), whole.all())) << m << " by " << n;
  }
}

TYPED_TEST(Driver, RealFactorsKeepInfinity) {
  using Number = typename TestFixture::T;
  const Number big = element<Number>(sizeof(Number) == 16 ? 1e300 : 1e30),
               infinite = element<Number>(INFINITY);
  for (const double beta : {0., 1., 2.}) {
    Number to = infinite;
    this->run({"NN", 1, 1, 1}, element<Number>(3), &big, 1, &big, 1, element<Number>(beta), &to, 1);
    EXPECT_TRUE(same(to, infinite)) << shown(to);
  }
}

TYPED_TEST(Driver, AsksForScratchOnceAndForColumnsAtTheEdge) {
  using Number = typename TestFixture::T;
  const bool twofold = sizeof(Number) == 16;
  spy().l2cache = 3;
  this->check({"NN", 8, 300, 100}, element<Number>(1), element<Number>(1), 0);
  EXPECT_TRUE(spy().scratch.empty()) << "a small product";
  EXPECT_EQ(spy().gemv_calls, 0);
  this->check({"TN", 70, 65, 66}, element<Number>(1), element<Number>(1), 0);
  EXPECT_EQ(spy().gemv_calls, twofold ? 2 : 0);
  this->check({"TC", 70, 65, 66}, element<Number>(1), element<Number>(1), 0);
  EXPECT_EQ(spy().gemv_calls, twofold ? 2 : 0) << "gemv cannot conjugate its vector";
  ASSERT_EQ(spy().scratch.size(), 2u);
  for (const auto& request : spy().scratch) EXPECT_EQ(request.alignment, 128);
}

}  // namespace
