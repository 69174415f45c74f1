#include <array>

#include "gtest/gtest.h"
#include "orb/blas_gemm.h"
#include "tests/blas/level3/matrix.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using orb::test::call;
using orb::test::Matrix;
using orb::test::MemoryRequest;
using orb::test::op;
using orb::test::plain;
using orb::test::same;
using orb::test::spy;

namespace {

struct Case {
  const char* trans;
  int m, n, k;
  double alpha = 1, beta = 1;
};
std::ostream& operator<<(std::ostream& out, const Case& s) {
  return out << s.trans << ' ' << s.m << " by " << s.n << " by " << s.k << ", alpha " << s.alpha << ", beta "
             << s.beta;
}

// op(X), rows by cols, as the letter has it stand.
Matrix<double> operand(char letter, int rows, int cols, int place) {
  const int height = plain(letter) ? rows : cols;
  return {height, plain(letter) ? cols : rows, height + place % 3, place};
}

// One call's matrices, starting at the words `place` of 16 bytes. A C to be replaced is full of NaN.
struct Operands : Case {
  Matrix<double> a, b, c;
  explicit Operands(const Case& s, int place = 0)
      : Case(s),
        a(operand(s.trans[0], m, k, place & 3)),
        b(operand(s.trans[1], k, n, place >> 2 & 3)),
        c(m, n, m + place % 2, place >> 1 & 3) {
    a.randomise(1), b.randomise(2);
    if (beta != 0) c.randomise(3);
  }
  double a_at(int i, int t) const { return op(a, trans[0], i, t); }
  double b_at(int t, int j) const { return op(b, trans[1], t, j); }
  void run() const {
    call(orb_blas_xdgemm, trans, trans + 1, &m, &n, &k, &alpha, a.data(), &a.ld, b.data(), &b.ld, &beta,
         c.data(), &c.ld);
  }

  // Rows from i on and the first `cols` columns take the `terms` terms from t on, by the small path.
  void add_small(const Matrix<double>& to, int i, int rows, int cols, int t, int terms, double scale) const {
    orb_blas_dgemmpst(trans, trans + 1, &rows, &cols, &terms, &alpha,
                      a.data() + (plain(trans[0]) ? i + t * a.ld : t + i * a.ld), &a.ld,
                      b.data() + (plain(trans[1]) ? t : t * b.ld), &b.ld, &scale, to.data() + i, &to.ld);
  }
  // `terms` terms from t on: one sum for each element of the packed rows, the small path for an odd last row.
  void add_panel(const Matrix<double>& to, int t, int terms, double scale) const {
    for (int j = 0; j < n / 4 * 4; ++j)
      for (int i = 0; i < m / 2 * 2; ++i) {
        double sum = 0;
        for (int u = t; u < t + terms; ++u) sum += alpha * a_at(i, u) * b_at(u, j);
        to(i, j) = scale == 0 ? sum : scale * to(i, j) + sum;
      }
    add_small(to, m / 2 * 2, m % 2, n / 4 * 4, t, terms, scale);
  }
  // The last k mod 128 terms (or 128) with beta, then panels of 128 from the front; the columns beyond a
  // multiple of 4 as the spy's gemv has them, one sum.
  void add_blocked(const Matrix<double>& to) const {
    const int first = k % 128 ? k % 128 : 128;
    add_panel(to, k - first, first, beta);
    for (int t = 0; t < k - first; t += 128) add_panel(to, t, 128, 1);
    for (int j = n / 4 * 4; j < n; ++j)
      for (int i = 0; i < m; ++i) {
        double sum = 0;
        for (int t = 0; t < k; ++t) sum += a_at(i, t) * b_at(t, j);
        to(i, j) = beta == 0 ? alpha * sum : alpha * sum + beta * to(i, j);
      }
  }
};

class DoubleProduct : public testing::Test {
 public:
  DoubleProduct() { spy().reset(); }
  ~DoubleProduct() override { EXPECT_EQ(spy().faults(), ""); }

  // The promised order to the bit, what is asked of the outer layer, and the bound
  // |C - ref| <= (k + 2) u (|alpha| |A| |B| + |beta| |C0|).
  static void check(const Case& s, int place) {
    const Operands x(s, place);
    const auto [trans, m, n, k, alpha, beta] = s;
    const Matrix<double> start(m, n, m), expected(m, n, x.c.ld);
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) expected(i, j) = start(i, j) = x.c(i, j);
    const bool blocked = m >= 4 && n >= 8 && k >= 8;
    if (blocked)
      x.add_blocked(expected);
    else
      x.add_small(expected, 0, m, n, 0, k, beta);
    spy().reset();
    x.run();
    ASSERT_TRUE(same(x.c.all(), expected.all())) << s << " place " << place;
    std::vector<MemoryRequest> scratch;
    if (blocked) scratch.push_back({std::min(n, 2000) * 1024 + 551168, 128});
    ASSERT_EQ(spy().scratch, scratch) << s;
    ASSERT_EQ(spy().gemv_calls, blocked ? n % 4 : 0) << s;
    ASSERT_EQ(spy().faults(), "") << s;
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) {
        long double sum = beta == 0 ? 0 : (long double)beta * start(i, j), size = fabsl(sum);
        for (int t = 0; t < k; ++t) {
          const long double term = (long double)alpha * x.a_at(i, t) * x.b_at(t, j);
          sum += term, size += fabsl(term);
        }
        ASSERT_LE(fabsl(x.c(i, j) - sum), (k + 2) * 0x1p-53L * size) << s << " at " << i << ", " << j;
      }
  }
};

const char* const transposes[] = {"NN", "nT", "tN", "Cc"};

TEST_F(DoubleProduct, EveryEdgeOfRowsColumnsAndDepth) {
  int turn = 0;
  for (const char* trans : transposes)
    for (int m : {4, 5, 6, 7, 13, 18})
      for (int n : {8, 9, 10, 11, 12, 21})
        for (int k : {8, 9, 10, 11, 12, 15, 16, 33}) {
          ++turn;
          check({trans, m, n, k, turn % 3 * 0.7 - 0.6, turn % 4 - 1.}, turn % 16);
        }
}

TEST_F(DoubleProduct, TheShortPanelComesFirst) {
  int turn = 0;
  for (const char* trans : transposes)
    for (int k : {127, 128, 129, 130, 255, 256, 257, 389})
      for (double beta : {0., 1., -2.}) {
        ++turn;
        check({trans, 5 + turn % 2, 9 + turn % 4, k, -1.1, beta}, turn % 16);
      }
}

TEST_F(DoubleProduct, SeveralBlocksOfRowsAndColumns) {
  for (const char* trans : transposes) {
    for (int n : {2000, 2001, 2004, 4003}) check({trans, 5, n, 9, 2, -1}, 6);
    for (int m : {511, 512, 513, 514, 1027}) check({trans, m, 13, 132, 1, 3}, 9);
  }
}

TEST_F(DoubleProduct, TooThinForPanels) {
  for (const char* trans : transposes)
    for (double beta : {0., 0.5}) {
      check({trans, 3, 1000, 300, 2, beta}, 1);
      check({trans, 300, 7, 200, 2, beta}, 2);
      check({trans, 40, 50, 7, 2, beta}, 4);
      check({trans, 40, 50, 0, 2, beta}, 4);
    }
}

// A and B are null pointers: they may not be read.
TEST_F(DoubleProduct, AlphaZeroOnlyScales) {
  const int m = 37, n = 30, k = 100;
  for (double alpha : {0., -0.})
    for (double beta : {0., -0., 1., -3.}) {
      const Matrix<double> c(m, n, m + 2, 1);
      c.randomise(4);
      c(m - 1, n - 1) = NAN;
      auto expected = c.all();
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < m; ++i) {
          double& e = expected[size_t(i + j * c.ld)];
          e = beta == 0 ? 0 : beta * e;
        }
      call(orb_blas_xdgemm, "N", "T", &m, &n, &k, &alpha, nullptr, &m, nullptr, &n, &beta, c.data(), &c.ld);
      EXPECT_TRUE(same(c.all(), expected)) << "alpha " << alpha << " beta " << beta;
    }
  EXPECT_TRUE(spy().scratch.empty());
}

TEST_F(DoubleProduct, NoRowsOrColumnsMeansNothingToDo) {
  const double alpha = 2, beta = 0;
  const int k = 100;
  for (const auto& [m, n] : {std::array{0, 50}, {50, 0}, {-1, 50}, {50, -7}})
    call(orb_blas_xdgemm, "N", "N", &m, &n, &k, &alpha, nullptr, &k, nullptr, &k, &beta, nullptr, &k);
  EXPECT_TRUE(spy().scratch.empty());
  EXPECT_EQ(spy().gemv_calls, 0);
}

}  // namespace
