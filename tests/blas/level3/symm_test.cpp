// Products with symmetric and Hermitian matrices.
#include "orb/blas_level3.h"
#include "tests/blas/level3/integer_matrix.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using namespace orb::test;

namespace {

template <class Element, bool is_hermitian, auto function>
struct Routine {
  using T = Element;
  static constexpr bool hermitian = is_hermitian;
  static constexpr auto entry = function;
};

template <class R>
class Symmetric : public testing::Test {
 public:
  using T = typename R::T;
  Symmetric() { spy().reset(); }
  ~Symmetric() override { EXPECT_EQ(spy().faults(), ""); }

  static void run(char side, char uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb,
                  T beta, T* c, int ldc) {
    call(R::entry, &side, &uplo, &m, &n, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);
  }

  static T full(const IntegerMatrix<T>& a, char uplo, int i, int j) {
    if constexpr (R::hermitian)
      if (i == j) return {a(i, i).re, 0};
    if (i == j || (i < j) == (uplo == 'U' || uplo == 'u')) return a(i, j);
    return R::hermitian ? conjugate(a(j, i)) : a(j, i);
  }

  static void check(char side, char uplo, int m, int n, T alpha, T beta, int turn) {
    const bool left = side == 'L' || side == 'l';
    const IntegerMatrix<T> a(left ? m : n, left ? m : n, 1, 1, turn & 3);
    hide_other_triangle<R::hermitian>(a, uplo == 'U' || uplo == 'u');
    const IntegerMatrix<T> b(m, n, 2, 2, turn >> 1 & 3), c(m, n, 3, turn % 2, turn >> 2 & 3);
    if (same(beta, T{})) c(m - 1, n - 1) = element<T>(NAN, NAN);
    auto expected = c.all();
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) {
        T sum{};
        for (int t = 0; t < a.cols; ++t)
          sum = add(sum,
                    left ? multiply(full(a, uplo, i, t), b(t, j)) : multiply(b(i, t), full(a, uplo, t, j)));
        T& e = expected[size_t(i + j * c.ld)];
        e = finished(alpha, sum, beta, e);
      }
    run(side, uplo, m, n, alpha, a.data(), a.ld, b.data(), b.ld, beta, c.data(), c.ld);
    ASSERT_TRUE(equal_numbers(c.all(), expected)) << side << uplo << ' ' << m << " by " << n;
    ASSERT_TRUE(c.canaries_whole());
    ASSERT_EQ(spy().faults(), "");
  }
};

using Routines =
    testing::Types<Routine<float, false, orb_blas_xssymm>, Routine<double, false, orb_blas_xdsymm>,
                   Routine<c32, false, orb_blas_xcsymm>, Routine<c64, false, orb_blas_xzsymm>,
                   Routine<c32, true, orb_blas_xchemm>, Routine<c64, true, orb_blas_xzhemm>>;
TYPED_TEST_SUITE(Symmetric, Routines);

const char* const options[] = {"LU", "lL", "rU", "RL"};

TYPED_TEST(Symmetric, EveryEdge) {
  using Number = typename TestFixture::T;
  const Number betas[] = {element<Number>(1), element<Number>(0), element<Number>(2, -1)};
  int turn = 0;
  for (const char* o : options)
    for (int m : {1, 2, 3, 5, 8, 33})
      for (int n : {1, 2, 4, 7, 9, 34}) {
        ++turn;
        this->check(o[0], o[1], m, n, element<Number>(2, 1), betas[turn % 3], turn % 16);
      }
}

TYPED_TEST(Symmetric, SeveralBlocks) {
  using Number = typename TestFixture::T;
  for (const char* o : options)
    for (const auto& [order, other] : {std::pair{65, 9}, {130, 31}, {257, 33}, {515, 32}}) {
      const bool left = o[0] == 'L' || o[0] == 'l';
      this->check(o[0], o[1], left ? order : other, left ? other : order, element<Number>(-1, 1),
                  element<Number>(order % 3), order % 16);
    }
}

// A and B are null pointers where they may not be read.
TYPED_TEST(Symmetric, NothingToMultiply) {
  using Number = typename TestFixture::T;
  const Number none{};
  for (double beta : {0., 1., 3.}) {
    const IntegerMatrix<Number> c(20, 11, 4, 1);
    auto expected = c.all();
    for (int j = 0; j < 11; ++j)
      for (int i = 0; i < 20; ++i) {
        Number& e = expected[size_t(i + j * c.ld)];
        e = finished(Number{}, Number{}, element<Number>(beta), e);
      }
    if (beta == 0) c(3, 4) = element<Number>(NAN, NAN);
    this->run('R', 'U', 20, 11, none, nullptr, 11, nullptr, 20, element<Number>(beta), c.data(), c.ld);
    EXPECT_TRUE(equal_numbers(c.all(), expected)) << "beta " << beta;
  }
  for (const auto& [m, n] : {std::pair{0, 5}, {5, 0}, {-1, 5}, {5, -3}})
    this->run('L', 'L', m, n, element<Number>(1), nullptr, 5, nullptr, 5, none, nullptr, 5);
  EXPECT_TRUE(spy().scratch.empty());
}

TYPED_TEST(Symmetric, ScratchOfItsOwnAtLines) {
  using Number = typename TestFixture::T;
  this->check('L', 'L', 300, 40, element<Number>(1), element<Number>(1), 0);
  ASSERT_FALSE(spy().scratch.empty());
  EXPECT_EQ(spy().scratch[0].alignment, 64);
}

}  // namespace
