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
  float alpha = 1, beta = 1;
};
std::ostream& operator<<(std::ostream& out, const Case& s) {
  return out << s.trans << ' ' << s.m << " by " << s.n << " by " << s.k << ", alpha " << s.alpha << ", beta "
             << s.beta;
}

// op(X), rows by cols, as the letter has it stand.
Matrix<float> operand(char letter, int rows, int cols, int place) {
  const int height = plain(letter) ? rows : cols;
  return {height, plain(letter) ? cols : rows, height + place % 3, place};
}

// One call's matrices, starting at the words `place` of 16 bytes. A C to be replaced is full of NaN.
struct Operands : Case {
  Matrix<float> a, b, c;
  explicit Operands(const Case& s, int place = 0)
      : Case(s),
        a(operand(s.trans[0], m, k, place & 3)),
        b(operand(s.trans[1], k, n, place >> 2 & 3)),
        c(m, n, m + 1 + place % 2, place >> 1 & 3) {
    a.randomise(1), b.randomise(2);
    if (beta != 0) c.randomise(3);
  }
  float a_at(int i, int t) const { return op(a, trans[0], i, t); }
  float b_at(int t, int j) const { return op(b, trans[1], t, j); }
  void run() const {
    call(orb_blas_xsgemm, trans, trans + 1, &m, &n, &k, &alpha, a.data(), &a.ld, b.data(), &b.ld, &beta,
         c.data(), &c.ld);
  }

  // `terms` terms from t on of the rows from i on, by the small path.
  void add_small(const Matrix<float>& to, int i, int rows, int t, int terms) const {
    const float one = 1;
    orb_blas_sgemmpst(trans, trans + 1, &rows, &n, &terms, &alpha,
                      a.data() + (plain(trans[0]) ? i + t * a.ld : t + i * a.ld), &a.ld,
                      b.data() + (plain(trans[1]) ? t : t * b.ld), &b.ld, &one, to.data() + i, &to.ld);
  }
  // beta C; then panels of 64 terms and one of 16, 32 or 48, each a dot product in four sums; then the terms
  // left. Within 512 rows, those that make no tile of 16 (or 8, for 64 terms) take the small path.
  void add_blocked(const Matrix<float>& to) const {
    const int packed = k / 16 * 16;
    for (int t = 0, depth; t < packed; t += depth) {
      depth = std::min(64, packed - t);
      for (int top = 0; top < m; top += 512) {
        const int unit = depth == 64 ? 8 : 16, rows = std::min(512, m - top), whole = rows / unit * unit;
        for (int j = 0; j < n; ++j)
          for (int i = top; i < top + whole; ++i) {
            float sum[4] = {};
            for (int u = t; u < t + depth; ++u) sum[u % 4] += alpha * a_at(i, u) * b_at(u, j);
            to(i, j) += (sum[0] + sum[2]) + (sum[1] + sum[3]);
          }
        add_small(to, top + whole, rows - whole, t, depth);
      }
    }
    add_small(to, 0, m, packed, k - packed);
  }
};

class SingleProduct : public testing::Test {
 public:
  SingleProduct() { spy().reset(); }
  ~SingleProduct() override {
    EXPECT_EQ(spy().faults(), "");
    EXPECT_EQ(spy().gemv_calls, 0);
  }

  static bool blocked(const Operands& x) {
    spy().scratch.clear();
    x.run();
    return !spy().scratch.empty();
  }

  // The promised order to the bit, and the bound |C - ref| <= (k + 2) u (|alpha| |A| |B| + |beta| |C0|).
  static void check(const Case& s, int place) {
    const Operands x(s, place);
    const auto [trans, m, n, k, alpha, beta] = s;
    const Matrix<float> start(m, n, m), expected(m, n, x.c.ld);
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) expected(i, j) = start(i, j) = beta == 0 ? 0 : beta * x.c(i, j);
    if (blocked(x))
      x.add_blocked(expected);
    else
      x.add_small(expected, 0, m, 0, k);
    ASSERT_TRUE(same(x.c.all(), expected.all())) << s << " place " << place;
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) {
        double sum = start(i, j), size = fabs(sum);
        for (int t = 0; t < k; ++t) {
          const double term = double(alpha) * x.a_at(i, t) * x.b_at(t, j);
          sum += term, size += fabs(term);
        }
        ASSERT_LE(fabs(x.c(i, j) - sum), (k + 2) * 0x1p-24 * size) << s << " at " << i << ", " << j;
      }
  }
};

const char* const transposes[] = {"NN", "nT", "tN", "Cc"};

TEST_F(SingleProduct, EveryRestOfRowsAndDepth) {
  int turn = 0;
  for (const char* trans : transposes)
    for (int k = 0; k < 144; ++k, ++turn)
      for (int m : {8 + k % 8, 16 + k * 5 % 16, 33 + k * 3 % 16})
        check({trans, m, 17 + turn % 4, k, turn % 3 * 0.7f - 0.6f, turn % 4 - 1.f}, turn % 16);
}

TEST_F(SingleProduct, SeveralBlocksOfRowsAndColumns) {
  for (const char* trans : transposes)
    for (const auto& [l2cache, n] : {std::array{2, 241}, {3, 481}}) {
      spy().l2cache = l2cache;
      for (float beta : {0.f, 1.f, -2.f}) check({trans, 513, n, 23, 2, beta}, 7);
      check({trans, 1037, 9, 64, 1, 3}, 2);
    }
}

TEST_F(SingleProduct, SmallOnesAreNotPacked) {
  const struct {
    const char* trans;
    int cube, deepest;  // the largest of the small path: a cube, and 8 by 8 by `deepest`
  } limits[] = {{"NN", 24, 133}, {"NT", 32, 133}, {"TN", 20, 133}, {"TT", 19, 63}};
  const auto is_blocked = [](const char* trans, int m, int n, int k) {
    return blocked(Operands({trans, m, n, k}));
  };
  for (const auto& [trans, cube, deepest] : limits) {
    EXPECT_FALSE(is_blocked(trans, cube, cube, cube)) << trans;
    EXPECT_TRUE(is_blocked(trans, cube + 1, cube + 1, cube + 1)) << trans;
    EXPECT_FALSE(is_blocked(trans, 8, 8, deepest)) << trans;
    EXPECT_TRUE(is_blocked(trans, 8, 8, deepest + 1)) << trans;
    EXPECT_FALSE(is_blocked(trans, 7, 200, 200)) << trans;
    EXPECT_FALSE(is_blocked(trans, 200, 7, 200)) << trans;
    EXPECT_FALSE(is_blocked(trans, 200, 200, 7)) << trans;
  }
}

TEST_F(SingleProduct, CacheClassThreeDoublesTheColumnBlock) {
  for (const auto& [l2cache, columns] : {std::array{0, 240}, {1, 240}, {2, 240}, {3, 480}, {4, 240}}) {
    spy().l2cache = l2cache;
    ASSERT_TRUE(blocked(Operands({"NN", 30, 30, 30})));
    EXPECT_EQ(spy().scratch, (std::vector<MemoryRequest>{{columns * 256 + columns * 2048 + 16512, 128}}));
  }
}

// A and B are null pointers: they may not be read.
TEST_F(SingleProduct, AlphaZeroOnlyScales) {
  const int m = 37, n = 30, k = 100;
  for (float alpha : {0.f, -0.f})
    for (float beta : {0.f, -0.f, 1.f, -3.f}) {
      const Matrix<float> c(m, n, m + 2, 1);
      c.randomise(4);
      c(m - 1, n - 1) = float(NAN);
      auto expected = c.all();
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < m; ++i) {
          float& e = expected[size_t(i + j * c.ld)];
          e = beta == 0 ? 0 : beta * e;
        }
      call(orb_blas_xsgemm, "N", "T", &m, &n, &k, &alpha, nullptr, &m, nullptr, &n, &beta, c.data(), &c.ld);
      EXPECT_TRUE(same(c.all(), expected)) << "alpha " << alpha << " beta " << beta;
    }
  EXPECT_TRUE(spy().scratch.empty());
}

TEST_F(SingleProduct, NoRowsOrColumnsMeansNothingToDo) {
  const float alpha = 2, beta = 0;
  const int k = 100;
  for (const auto& [m, n] : {std::array{0, 50}, {50, 0}, {-1, 50}, {50, -7}})
    call(orb_blas_xsgemm, "N", "N", &m, &n, &k, &alpha, nullptr, &k, nullptr, &k, &beta, nullptr, &k);
  EXPECT_TRUE(spy().scratch.empty());
}

}  // namespace
