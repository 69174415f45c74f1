#include "gtest/gtest.h"
#include "orb/blas_gemm.h"
#include "tests/blas/level3/matrix.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using orb::test::call;
using orb::test::Matrix;
using orb::test::op;
using orb::test::plain;
using orb::test::same;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto gemmpst = orb_blas_sgemmpst;
};
template <>
struct Entry<double> {
  static constexpr auto gemmpst = orb_blas_dgemmpst;
};

struct Case {
  char transa, transb;
  int m, n, k;
};

// The dot product of op(A)'s row i and op(B)'s column j in the promised order.
template <class T>
T dot(const Case& s, const Matrix<T>& a, const Matrix<T>& b, int i, int j) {
  const auto term = [&](int k) { return op(a, s.transa, i, k) * op(b, s.transb, k, j); };
  int k = 0;
  T total = 0;
  const auto off = reinterpret_cast<uintptr_t>(&b(0, j)) % 16;
  if (s.k >= 9 && (!plain(s.transb) || off % sizeof(T) == 0)) {
    T sum[8] = {};
    if (plain(s.transb))
      for (; (off + unsigned(k) * sizeof(T)) % 16 != 0; ++k) sum[0] += term(k);
    for (; s.k - k >= 8; k += 8)
      for (int t = 0; t < 8; ++t) sum[t] += term(k + t);
    total = ((sum[0] + sum[4]) + (sum[2] + sum[6])) + ((sum[1] + sum[5]) + (sum[3] + sum[7]));
  }
  for (; k < s.k; ++k) total += term(k);
  return total;
}

template <class T>
T element(const Case& s, T alpha, const Matrix<T>& a, const Matrix<T>& b, T beta, T c, int i, int j) {
  const T start = beta == 0 ? T(0) : beta * c;
  if (!plain(s.transa)) return beta == 0 ? alpha * dot(s, a, b, i, j) : alpha * dot(s, a, b, i, j) + start;
  T sum = start;
  for (int k = 0; k < s.k; ++k) sum += op(a, s.transa, i, k) * (alpha * op(b, s.transb, k, j));
  return sum;
}

template <class T>
class SmallProduct : public testing::Test {
 public:
  ~SmallProduct() override {
    EXPECT_TRUE(orb::test::spy().scratch.empty());
    orb::test::spy().reset();
  }
  // One call against the model, the matrices starting at the words `place` of 16 bytes.
  static void check(const Case& s, T alpha, T beta, int place) {
    const int depth = std::max(s.k, 0), more = 1 + place % 2;
    const int a_rows = plain(s.transa) ? s.m : depth, b_rows = plain(s.transb) ? depth : s.n;
    Matrix<T> a(a_rows, s.m + depth - a_rows, a_rows + more, place & 3),
        b(b_rows, depth + s.n - b_rows, b_rows + more, place >> 2 & 3),
        c(s.m, s.n, s.m + more, place >> 1 & 3);
    a.randomise(1), b.randomise(2), c.randomise(3);
    if (beta == 0) c(0, 0) = T(NAN);
    std::vector<T> expected = c.all();
    for (int j = 0; j < s.n; ++j)
      for (int i = 0; i < s.m; ++i) {
        T& e = expected[size_t(i + j * c.ld)];
        e = element(s, alpha, a, b, beta, e, i, j);
      }
    call(Entry<T>::gemmpst, &s.transa, &s.transb, &s.m, &s.n, &s.k, &alpha, a.data(), &a.ld, b.data(), &b.ld,
         &beta, c.data(), &c.ld);
    ASSERT_TRUE(same(c.all(), expected))
        << s.transa << s.transb << " m " << s.m << " n " << s.n << " k " << s.k << " alpha " << alpha
        << " beta " << beta << " place " << place;
  }
};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(SmallProduct, Types);

TYPED_TEST(SmallProduct, EveryShapeInThePromisedOrder) {
  using T = TypeParam;
  int turn = 0;
  for (char transa : {'N', 'T'})
    for (char transb : {'N', 'T'})
      for (int m : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 31, 33})
        for (int n : {1, 2, 3, 4, 5, 9})
          for (int k : {-1, 0, 1, 2, 8, 9, 10, 15, 16, 17, 31}) {
            ++turn;
            this->check({transa, transb, m, n, k}, T(1) / 3, T(turn % 3) / 7, turn % 16);
          }
}

TYPED_TEST(SmallProduct, DepthsAroundASlice) {
  using T = TypeParam;
  for (char transa : {'n', 'c'})
    for (char transb : {'n', 't'})
      for (int k : {127, 128, 129, 256, 300})
        for (int place = 0; place < 16; ++place) this->check({transa, transb, 3, 5, k}, T(-3), T(1), place);
}

TYPED_TEST(SmallProduct, ZeroBetaOverwritesAndZeroAlphaStillMultiplies) {
  using T = TypeParam;
  for (char transa : {'N', 'T'})
    for (char transb : {'N', 'T'}) {
      this->check({transa, transb, 5, 3, 0}, T(1), T(0), 0);
      this->check({transa, transb, 5, 3, 0}, T(INFINITY), T(2), 0);
      this->check({transa, transb, 5, 3, 4}, T(0), T(-0.0), 0);
      this->check({transa, transb, 5, 3, 20}, T(NAN), T(0), 0);
    }
}

TYPED_TEST(SmallProduct, EmptyShapesTouchNothing) {
  using T = TypeParam;
  for (char transa : {'N', 'T'})
    for (int m : {-1, 0, 2})
      for (int n : {-1, 0, 2})
        if (m <= 0 || n <= 0) {
          const int k = 3, ld = 5;
          const T one = 1;
          Matrix<T> c(2, 2, 2);
          c.randomise(1);
          const auto before = c.all();
          T* const nowhere = nullptr;
          call(Entry<T>::gemmpst, &transa, "N", &m, &n, &k, &one, nowhere, &ld, nowhere, &ld, &one, c.data(),
               &c.ld);
          EXPECT_EQ(c.all(), before);
        }
}

}  // namespace
