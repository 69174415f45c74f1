// The divided routines other than the real products (gemm_threads_test.cpp): the same bits for every number
// of threads.
#include "gtest/gtest.h"
#include "orb/blas.h"
#include "orb/orb.h"
#include "orb/services.h"
#include "tests/outer/numbers.h"
#include "tests/support/bits.h"

using namespace orb::test;

namespace {

template <class T>
struct Names;
#define NAMES(T, p, plain, adjoint, rank)                               \
  template <>                                                           \
  struct Names<T> {                                                     \
    static constexpr auto gemv = p##gemv_, upward = orb_blas_##p##gemv; \
    static constexpr auto ger = p##plain##_;                            \
    static constexpr auto gemm = p##gemm_;                              \
    static constexpr auto gemmt = p##gemmt_;                            \
    static constexpr auto symm = p##symm_, hemm = p##adjoint##_;        \
    static constexpr auto syrk = p##syrk_;                              \
    static constexpr auto syr2k = p##syr2k_;                            \
    static constexpr auto herk = p##rank##_;                            \
    static constexpr auto trmm = p##trmm_, trsm = p##trsm_;             \
  };
NAMES(float, s, ger, symm, syrk)
NAMES(double, d, ger, symm, syrk)
NAMES(orb_complex_float, c, geru, hemm, herk)
NAMES(orb_complex_double, z, geru, hemm, herk)

// Numbers with full mantissas.
template <class T>
std::vector<T> fractions(int n, unsigned seed) {
  std::vector<T> x(static_cast<size_t>(n));
  const auto next = [&] {
    return part_of<T>(int(seed = seed * 1664525u + 1013904223u)) / part_of<T>(3u << 29);
  };
  for (T& e : x) {
    if constexpr (is_complex<T>)
      e = {next(), next()};
    else
      e = next();
  }
  return x;
}

// call(out) with `size` elements to work on, by one thread and by more.
template <class T, class Call>
testing::AssertionResult same_for_all(int size, Call call) {
  const auto result = [&](int threads) {
    auto out = fractions<T>(size, 9);
    orb_set_num_threads(threads);
    call(out.data());
    orb_set_num_threads(0);
    return out;
  };
  const auto one = result(1);
  for (int threads : {2, 3, 4})
    if (const auto equal = same_elements(result(threads), one); !equal)
      return testing::AssertionFailure() << threads << " threads: " << equal.message();
  return testing::AssertionSuccess();
}

template <class T>
class Threads : public testing::Test {
 protected:
  const T alpha = fractions<T>(1, 5)[0], beta = fractions<T>(1, 6)[0];
};
using Types = testing::Types<float, double, orb_complex_float, orb_complex_double>;
TYPED_TEST_SUITE(Threads, Types);

TYPED_TEST(Threads, MatrixAndVector) {
  using T = TypeParam;
  // above the size from which they are divided, in single precision too
  for (const auto& [m, n] : {std::pair{803, 702}, {1403, 401}, {130, 4301}}) {
    const int lda = m + 1;
    const auto a = fractions<T>(lda * n, 1), x = fractions<T>(2 * (m + n), 2);
    for (char trans : {'N', 'T', 'C'})
      for (int incx : {1, -2})
        for (int incy : {1, -1}) {
          const auto run = [&, m = m, n = n](auto entry) {
            return same_for_all<T>(m + n, [&](T* y) {
              entry(&trans, &m, &n, &this->alpha, a.data(), &lda, x.data(), &incx, &this->beta, y, &incy);
            });
          };
          EXPECT_TRUE(run(Names<T>::gemv)) << trans << m << " " << n << " " << incx << " " << incy;
          EXPECT_TRUE(run(Names<T>::upward)) << trans << m << " " << n;
        }
    for (int inc : {1, -1})
      EXPECT_TRUE(same_for_all<T>(lda * n,
                                  [&, m = m, n = n](T* c) {
                                    Names<T>::ger(&m, &n, &this->alpha, x.data(), &inc, x.data() + m, &inc, c,
                                                  &lda);
                                  }))
          << m << " " << n << " " << inc;
  }
}

TYPED_TEST(Threads, Products) {
  using T = TypeParam;
  for (const auto& [m, n, k] : {std::tuple{130, 67, 83},
                                {200, 199, 131},
                                {7, 700, 80},
                                {700, 7, 80},
                                {333, 70, 64},
                                {65, 140, 90},
                                {40, 501, 40}}) {
    const auto a = fractions<T>((m + k) * (m + k), 1), b = fractions<T>((k + n) * (k + n), 2);
    const int lda = m + k, ldb = k + n;
    for (char transa : {'N', 'C'})
      for (char transb : {'N', 'T', 'C'})
        EXPECT_TRUE(same_for_all<T>(m * n,
                                    [&, m = m, n = n, k = k](T* c) {
                                      Names<T>::gemm(&transa, &transb, &m, &n, &k, &this->alpha, a.data(),
                                                     &lda, b.data(), &ldb, &this->beta, c, &m);
                                    }))
            << transa << transb << m << " " << n << " " << k;
  }
}

TYPED_TEST(Threads, TrianglesOfProducts) {
  using T = TypeParam;
  using R = part_of<T>;
  const R half = R(1) / 3;
  for (const auto& [n, k] : {std::pair{200, 60}, {386, 33}, {431, 100}, {193, 200}}) {
    const int ld = n + k;
    const auto a = fractions<T>(ld * ld, 1), b = fractions<T>(ld * ld, 2);
    for (char uplo : {'U', 'L'})
      for (char trans : {'N', 'T'}) {
        SCOPED_TRACE(testing::Message() << uplo << trans << n << " " << k);
        EXPECT_TRUE(same_for_all<T>(n * n, [&, n = n, k = k](T* c) {
          Names<T>::syrk(&uplo, &trans, &n, &k, &this->alpha, a.data(), &ld, &this->beta, c, &n);
        }));
        EXPECT_TRUE(same_for_all<T>(n * n, [&, n = n, k = k](T* c) {
          Names<T>::syr2k(&uplo, &trans, &n, &k, &this->alpha, a.data(), &ld, b.data(), &ld, &this->beta, c,
                          &n);
        }));
        const char adjoint = trans == 'N' ? 'N' : 'C';
        EXPECT_TRUE(same_for_all<T>(n * n, [&, n = n, k = k](T* c) {
          Names<T>::herk(&uplo, &adjoint, &n, &k, &half, a.data(), &ld, &half, c, &n);
        }));
        EXPECT_TRUE(same_for_all<T>(n * n, [&, n = n, k = k](T* c) {
          Names<T>::gemmt(&uplo, &trans, "N", &n, &k, &this->alpha, a.data(), &ld, b.data(), &ld, &this->beta,
                          c, &n);
        }));
      }
  }
}

TYPED_TEST(Threads, SymmetricAndTriangular) {
  using T = TypeParam;
  for (const auto& [m, n] : {std::pair{150, 170}, {70, 333}, {340, 65}, {97, 98}}) {
    const int order = std::max(m, n);
    auto a = fractions<T>(order * order, 1);
    const auto b = fractions<T>(m * n, 2);
    for (T& e : a) e = multiply(part_of<T>(1.0 / order), e);
    for (int i = 0; i < order; ++i) a[size_t(i * (order + 1))] = number<T>({1.25, 0.5});
    for (char side : {'L', 'R'})
      for (char uplo : {'U', 'L'}) {
        SCOPED_TRACE(testing::Message() << side << uplo << m << " " << n);
        for (auto entry : {Names<T>::symm, Names<T>::hemm})
          EXPECT_TRUE(same_for_all<T>(m * n, [&, m = m, n = n](T* c) {
            entry(&side, &uplo, &m, &n, &this->alpha, a.data(), &order, b.data(), &m, &this->beta, c, &m);
          }));
        for (char trans : {'N', 'T', 'C'})
          for (auto entry : {Names<T>::trmm, Names<T>::trsm})
            EXPECT_TRUE(same_for_all<T>(m * n, [&, m = m, n = n](T* c) {
              entry(&side, &uplo, &trans, "N", &m, &n, &this->alpha, a.data(), &order, c, &m);
            })) << trans;
      }
  }
}

}  // namespace
