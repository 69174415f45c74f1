// Rank-k and rank-2k updates of symmetric and Hermitian matrices.
#include <type_traits>

#include "orb/blas_level3.h"
#include "tests/blas/level3/integer_matrix.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using namespace orb::test;

namespace {

template <class Element, class AlphaType, class BetaType, bool is_hermitian, auto function>
struct Routine {
  using T = Element;
  using Alpha = AlphaType;  // real where C would not stay Hermitian
  using Beta = BetaType;
  static constexpr bool hermitian = is_hermitian;
  static constexpr auto entry = function;
};

template <class R>
class Update : public testing::Test {
 public:
  using T = typename R::T;
  using Alpha = typename R::Alpha;
  using Beta = typename R::Beta;
  static constexpr bool twofold =
      std::is_invocable_v<decltype(R::entry), const char*, const char*, const int*, const int*, const Alpha*,
                          const T*, const int*, const T*, const int*, const Beta*, T*, const int*>;
  static constexpr char across = R::hermitian ? 'c' : 't';
  Update() { spy().reset(); }
  ~Update() override { EXPECT_EQ(spy().faults(), ""); }

  static void run(char uplo, char trans, int n, int k, Alpha alpha, const T* a, int lda, const T* b, int ldb,
                  Beta beta, T* c, int ldc) {
    if constexpr (twofold)
      call(R::entry, &uplo, &trans, &n, &k, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);
    else
      call(R::entry, &uplo, &trans, &n, &k, &alpha, a, &lda, &beta, c, &ldc);
  }

  static void hide(const IntegerMatrix<T>& c, char uplo, Beta beta) {
    hide_other_triangle<R::hermitian>(c, uplo == 'U');
    if (same(beta, Beta{})) std::fill_n(c.data(), (c.cols - 1) * c.ld + c.rows, element<T>(NAN, NAN));
  }

  static void check(char uplo, char trans, int n, int k, Alpha alpha, Beta beta, int turn) {
    const auto a = operand<T>(trans, n, k, 1, turn & 3), b = operand<T>(trans, n, k, 2, turn >> 1 & 3);
    const IntegerMatrix<T> c(n, n, 3, turn % 3, turn >> 2 & 3);
    hide(c, uplo, beta);
    const char left = stands_plain(trans) ? 'n' : across;
    const auto dot = [&](const auto& x, const auto& y, int i, int j) {
      T sum{};
      for (int t = 0; t < k; ++t) {
        const T other = op(y, left, j, t);
        sum = add(sum, multiply(op(x, left, i, t), R::hermitian ? conjugate(other) : other));
      }
      return sum;
    };
    auto expected = c.all();
    for (int j = 0; j < n; ++j)
      for (int i = uplo == 'U' ? 0 : j; i < (uplo == 'U' ? j + 1 : n); ++i) {
        T& e = expected[size_t(i + j * c.ld)];
        T old = e, sum = multiply(alpha, dot(a, twofold ? b : a, i, j));
        if constexpr (R::hermitian)
          if (i == j) old.im = 0;
        if (twofold) sum = add(sum, multiply(R::hermitian ? conjugate(alpha) : alpha, dot(b, a, i, j)));
        e = same(beta, Beta{}) ? sum : add(sum, multiply(beta, old));
      }
    run(uplo, trans, n, k, alpha, a.data(), a.ld, b.data(), b.ld, beta, c.data(), c.ld);
    ASSERT_TRUE(equal_numbers(c.all(), expected)) << uplo << trans << ' ' << n << " by " << k;
    ASSERT_TRUE(c.canaries_whole());
    ASSERT_EQ(spy().faults(), "");
  }
};

using Routines = testing::Types<
    Routine<float, float, float, false, orb_blas_xssyrk>,
    Routine<double, double, double, false, orb_blas_xdsyrk>, Routine<c32, c32, c32, false, orb_blas_xcsyrk>,
    Routine<c64, c64, c64, false, orb_blas_xzsyrk>, Routine<c32, float, float, true, orb_blas_xcherk>,
    Routine<c64, double, double, true, orb_blas_xzherk>,
    Routine<float, float, float, false, orb_blas_xssyr2k>,
    Routine<double, double, double, false, orb_blas_xdsyr2k>, Routine<c32, c32, c32, false, orb_blas_xcsyr2k>,
    Routine<c64, c64, c64, false, orb_blas_xzsyr2k>, Routine<c32, c32, float, true, orb_blas_xcher2k>,
    Routine<c64, c64, double, true, orb_blas_xzher2k>>;
TYPED_TEST_SUITE(Update, Routines);

TYPED_TEST(Update, EveryEdge) {
  using Factor = typename TestFixture::Alpha;
  using Weight = typename TestFixture::Beta;
  const Weight betas[] = {element<Weight>(1), element<Weight>(0), element<Weight>(2, -1)};
  int turn = 0;
  for (char uplo : {'U', 'L'})
    for (char trans : {'N', this->across})
      for (int n : {1, 2, 3, 4, 5, 9, 17, 31, 47, 48, 49, 50, 97, 150})
        for (int k : {1, 3, 8, 130}) {
          ++turn;
          this->check(uplo, trans, n, k, element<Factor>(-2, 1), betas[turn % 3], turn % 16);
        }
}

TYPED_TEST(Update, SeveralBlocksOfRows) {
  using Factor = typename TestFixture::Alpha;
  using Weight = typename TestFixture::Beta;
  const int block = 512 * 1024 / 128 / int(sizeof(typename TestFixture::T));
  for (char uplo : {'U', 'L'})
    this->check(uplo, uplo == 'U' ? 'N' : this->across, block + 5, 9, element<Factor>(1), element<Weight>(3),
                0);
}

// A and B are null pointers: they may not be read.
TYPED_TEST(Update, NothingToMultiply) {
  using Number = typename TestFixture::T;
  using Factor = typename TestFixture::Alpha;
  using Weight = typename TestFixture::Beta;
  const int n = 60;
  for (char uplo : {'U', 'L'})
    for (double beta : {0., 1., 3.})
      for (int k : {0, -2, 5}) {
        const IntegerMatrix<Number> c(n, n, 3, 1);
        this->hide(c, uplo, element<Weight>(beta));
        auto expected = c.all();
        for (int j = 0; j < n; ++j)
          for (int i = uplo == 'U' ? 0 : j; i < (uplo == 'U' ? j + 1 : n); ++i) {
            Number& e = expected[size_t(i + j * c.ld)];
            if (beta != 1) e = beta == 0 ? Number{} : multiply(element<Weight>(beta), e);
            if constexpr (is_complex<Number> && !is_complex<Weight>)
              if (i == j && beta != 1) e.im = 0;
          }
        this->run(uplo, 'N', n, k, element<Factor>(k > 0 ? 0 : 2), nullptr, n, nullptr, n,
                  element<Weight>(beta), c.data(), c.ld);
        EXPECT_TRUE(equal_numbers(c.all(), expected)) << uplo << " beta " << beta << " k " << k;
      }
  for (int none : {0, -4})
    this->run('U', 'N', none, 5, element<Factor>(1), nullptr, 5, nullptr, 5, Weight{}, nullptr, 5);
}

TYPED_TEST(Update, ScratchOfItsOwnAtLines) {
  using Factor = typename TestFixture::Alpha;
  using Weight = typename TestFixture::Beta;
  this->check('L', 'N', 150, 70, element<Factor>(1), element<Weight>(1), 0);
  ASSERT_FALSE(spy().scratch.empty());
  EXPECT_EQ(spy().scratch[0].alignment, 64);
}

}  // namespace
