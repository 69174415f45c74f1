// The upward matrix-vector products against a plain model.
#include "gtest/gtest.h"
#include "orb/services.h"
#include "tests/outer/numbers.h"

using namespace orb::test;

namespace {

template <class T>
constexpr auto gemv = orb_blas_sgemv;
template <>
constexpr auto gemv<double> = orb_blas_dgemv;
template <>
constexpr auto gemv<orb_complex_float> = orb_blas_cgemv;
template <>
constexpr auto gemv<orb_complex_double> = orb_blas_zgemv;

template <class T>
class Gemv : public testing::Test {};
using Types = testing::Types<float, double, orb_complex_float, orb_complex_double>;
TYPED_TEST_SUITE(Gemv, Types);

TYPED_TEST(Gemv, EveryShapeStrideAndFactor) {
  using T = TypeParam;
  const std::pair<Wide, Wide> factors[] = {{1, 1}, {{2, -1}, {-1, 3}}, {3, 0}, {0, 2}, {0, 0}};
  for (char trans : {'N', 'n', 'T', 't', 'C', 'c'})
    for (const auto& [m, n] : {std::pair{0, 3}, {1, 1}, {3, 4}, {4, 3}, {9, 5}, {5, 8}, {17, 7}, {7, 17}})
      for (const auto& [incx, incy] : {std::pair{1, 1}, {2, 1}, {-1, 1}, {1, -3}, {-2, 2}})
        for (const auto& [alpha, beta] : factors) {
          SCOPED_TRACE(testing::Message() << trans << " m " << m << " n " << n << " incx " << incx << " incy "
                                          << incy << " alpha " << alpha << " beta " << beta);
          const bool plain = (trans | 0x20) == 'n', conjugate = (trans | 0x20) == 'c';
          const int lda = m + 2, terms = plain ? n : m, length = m && n ? (plain ? m : n) : 0;
          const auto a = integers<T>(lda * n, 1), x = integers<T>(extent(terms, incx), 2);
          auto y = integers<T>(extent(length, incy), 3);
          const T used_alpha = number<T>(alpha), used_beta = number<T>(beta);
          auto expected = wide(y);
          for (int i = 0; i < length; ++i) {
            Wide sum = 0;
            for (int k = 0; k < terms; ++k) {
              const Wide e = wide(a[size_t(plain ? i + k * lda : k + i * lda)]);
              sum += (conjugate ? conj(e) : e) * wide(x[place(k, terms, incx)]);
            }
            Wide& e = expected[place(i, length, incy)];
            e = wide(used_alpha) * sum + wide(used_beta) * e;
            if (beta == 0.0) y[place(i, length, incy)] = number<T>({NAN, NAN});  // must not be read
          }
          call_face(gemv<T>, &trans, m, n, used_alpha, a.data(), lda, x.data(), incx, used_beta, y.data(),
                    incy);
          ASSERT_EQ(wide(y), expected);
        }
}

// An element's bits must not depend on how many rows are asked for, nor on where they stand.
TYPED_TEST(Gemv, CutAnywhereGivesTheSameBits) {
  using T = TypeParam;
  const int k = 37, rows = 11, one = 1;
  const T alpha = number<T>({1.0 / 3, 0.7}), beta = number<T>({0.1, 1.1});
  auto a = integers<T>(64 * 64, 1), x = integers<T>(k + 1, 2), y = integers<T>(rows, 3);
  for (T& e : a) e = number<T>(wide(e) / 7.0);
  for (char trans : {'N', 'T', 'C'})
    for (int skew : {0, 1}) {
      const bool plain = trans == 'N';
      const int lda = 63;
      auto whole = y;
      call_face(gemv<T>, &trans, plain ? rows : k, plain ? k : rows, alpha, a.data() + skew, lda,
                x.data() + skew, one, beta, whole.data(), one);
      for (int cut = 1; cut < rows; ++cut) {
        auto parts = y;
        const int rest = rows - cut;
        call_face(gemv<T>, &trans, plain ? cut : k, plain ? k : cut, alpha, a.data() + skew, lda,
                  x.data() + skew, one, beta, parts.data(), one);
        call_face(gemv<T>, &trans, plain ? rest : k, plain ? k : rest, alpha,
                  a.data() + skew + cut * (plain ? 1 : lda), lda, x.data() + skew, one, beta,
                  parts.data() + cut, one);
        ASSERT_EQ(wide(parts), wide(whole)) << trans << " cut " << cut;
      }
    }
}

}  // namespace
