#include "gtest/gtest.h"
#include "orb/blas_gemm.h"
#include "tests/blas/level3/matrix.h"
#include "tests/support/call.h"

using orb::test::call;
using orb::test::Matrix;
using orb::test::same;

namespace {

// Every block edge and start; in each block one NaN and one infinity. scale(c, beta) against rule(beta, x).
template <class T, class Scale, class Rule>
void check(std::initializer_list<T> betas, Scale scale, Rule rule) {
  for (T beta : betas)
    for (int m : {0, 1, 2, 3, 4, 5, 7, 8, 9, 12, 15, 16, 17, 33})
      for (int n : {0, 1, 3, 4, 5, 9})
        for (int place = 0; place < 4; ++place) {
          const Matrix<T> c(m, n, m + place, place);
          c.randomise(6);
          if (m > 0 && n > 0) c(m / 2, n / 2) = T(NAN), c(m - 1, 0) = T(INFINITY);
          auto expected = c.all();
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < m; ++i) {
              T& e = expected[size_t(i + j * c.ld)];
              e = rule(beta, e);
            }
          scale(c, beta);
          ASSERT_TRUE(same(c.all(), expected)) << m << " by " << n << " beta " << beta << " place " << place;
        }
}

template <class T>
T product(T beta, T x) {
  return beta * x;
}
template <class T>
T product_or_zero(T beta, T x) {
  return beta == 0 ? T(0) : beta * x;
}

TEST(BlockScale, ZeromClears) {
  check<double>(
      {0.}, [](const Matrix<double>& c, double) { call(orb_blas_dzerom, &c.rows, &c.cols, c.data(), &c.ld); },
      product_or_zero<double>);
}

TEST(BlockScale, ScalmMultipliesEvenByZero) {
  check<double>(
      {0., -2.5},
      [](const Matrix<double>& c, double beta) {
        call(orb_blas_dscalm, &c.rows, &c.cols, &beta, c.data(), &c.ld);
      },
      product<double>);
}

TEST(BlockScale, MscaleMultipliesOrClears) {
  check<double>(
      {0., -0., 1. / 3},
      [](const Matrix<double>& c, double beta) {
        call(orb_blas_dgemm_mscale, &c.rows, &c.cols, &beta, c.data(), &c.ld);
      },
      product_or_zero<double>);
  check<float>(
      {0.f, -0.f, 1.f / 3},
      [](const Matrix<float>& c, float beta) {
        call(orb_blas_sgemm_mscale, &c.rows, &c.cols, &beta, c.data(), &c.ld);
      },
      product_or_zero<float>);
}

}  // namespace
