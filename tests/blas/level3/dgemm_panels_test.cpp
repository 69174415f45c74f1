// Packers and inner kernels of the double-precision product, each alone: panels end at a guard page and hold
// NaN before they are written.
#include "gtest/gtest.h"
#include "orb/blas_gemm_kernels.h"
#include "tests/blas/level3/matrix.h"
#include "tests/support/call.h"

using orb::test::call;
using orb::test::Matrix;
using orb::test::same;

namespace {

constexpr int private_panel = 1024;
const double alpha = 0.3;

// On a 16-byte boundary, full of NaN, a guard page behind it.
Matrix<double> panel(int n) { return {n, 1, n, 0}; }

int padded(int k) { return (k + 3) / 4 * 4; }

// Element (line, k) of a panel of strips of `width` lines.
double at(const Matrix<double>& p, int width, int depth, int line, int k) {
  return p(line / width * width * padded(depth) + k * width + line % width, 0);
}

const int depths[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 17, 127, 128};

TEST(DoublePanels, APanelHoldsScaledRowPairs) {
  for (bool plain : {true, false})
    for (int m : {2, 4, 6, 10})
      for (int k : depths)
        for (int place : {-1, 0, 1, 2, 3}) {
          const Matrix<double> a(plain ? m : k, plain ? k : m, (plain ? m : k) + (place + 1) % 3, place);
          a.randomise(5);
          const auto packed = panel(m * padded(k));
          call(plain ? orb_blas_dgcopyan : orb_blas_dgcopyat, &m, &k, a.data(), &a.ld, packed.data(), &alpha);
          for (int i = 0; i < m; ++i)
            for (int t = 0; t < padded(k); ++t)
              ASSERT_EQ(at(packed, 2, k, i, t), t >= k ? 0 : alpha * (plain ? a(i, t) : a(t, i)))
                  << "plain " << plain << " m " << m << " k " << k << " place " << place << " at " << i
                  << ", " << t;
        }
}

TEST(DoublePanels, BPanelHoldsColumnQuads) {
  for (bool plain : {true, false})
    for (int n : {4, 8, 20})
      for (int k : depths)
        for (int place : {-1, 0, 1, 2, 3}) {
          const Matrix<double> b(plain ? k : n, plain ? n : k, (plain ? k : n) + (place + 1) % 3, place);
          b.randomise(5);
          const auto packed = panel(n * padded(k));
          call(plain ? orb_blas_dgcopybn : orb_blas_dgcopybt, &k, &n, b.data(), &b.ld, packed.data());
          for (int j = 0; j < n; ++j)
            for (int t = 0; t < padded(k); ++t)
              ASSERT_EQ(at(packed, 4, k, j, t), t >= k  ? 0
                                                : plain ? b(t, j)
                                                        : b(j, t))
                  << "plain " << plain << " n " << n << " k " << k << " place " << place << " at " << t
                  << ", " << j;
        }
}

// One product of packed panels of the true depth k, against one sum in rising k for each element.
class InnerKernel : public testing::Test {
 public:
  template <class Kernel, class Update>
  static void check(int m, int n, int k, int place, Kernel kernel, Update update) {
    const Matrix<double> a(m, k, m), b(k, n, k), c(m, n, m + 1 + place % 2, place);
    a.randomise(1), b.randomise(2), c.randomise(3);
    const auto a_panel = panel(m * padded(k)), b_panel = panel(n * padded(k)), quad = panel(private_panel);
    call(orb_blas_dgcopyan, &m, &k, a.data(), &a.ld, a_panel.data(), &alpha);
    call(orb_blas_dgcopybn, &k, &n, b.data(), &b.ld, b_panel.data());
    auto expected = c.all();
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < m; ++i) {
        double sum = 0;
        for (int t = 0; t < k; ++t) sum += alpha * a(i, t) * b(t, j);
        double& e = expected[size_t(i + j * c.ld)];
        e = update(e, sum);
      }
    kernel(m, n, padded(k), a_panel.data(), b_panel.data(), c, quad.data());
    ASSERT_TRUE(same(c.all(), expected)) << "m " << m << " n " << n << " k " << k << " place " << place;
    for (int slot = 0; slot < 4 * k; ++slot)
      for (int half : {0, 1})
        ASSERT_EQ(quad(2 * slot + half, 0), b(slot / 4, n - 4 + slot % 4)) << "private panel, slot " << slot;
  }
  // kernels with the depth and the pair of beta as arguments
  static auto roll(decltype(&orb_blas_dinner_roll) kernel, const double* beta2) {
    return [=](int m, int n, int kp, const double* a, const double* b, const Matrix<double>& c,
               double* quad) { call(kernel, &m, &n, &kp, a, b, nullptr, c.data(), &c.ld, quad, beta2); };
  }
};

TEST_F(InnerKernel, EachWayOfReachingC) {
  alignas(16) const double beta2[] = {-1.7, -1.7};
  for (int m : {2, 4, 10})
    for (int n : {4, 12})
      for (int place = 0; place < 4; ++place) {
        for (int k : depths) {
          check(m, n, k, place, roll(orb_blas_dinner_roll, nullptr),
                [](double c, double sum) { return c + sum; });
          check(m, n, k, place, roll(orb_blas_dinnerb_roll, beta2),
                [=](double c, double sum) { return beta2[0] * c + sum; });
          check(m, n, k, place, roll(orb_blas_dinnerz_roll, nullptr), [](double, double sum) { return sum; });
        }
        check(
            m, n, 128, place,
            [](int rows, int columns, int, const double* a, const double* b, const Matrix<double>& c,
               double* quad) {
              call(orb_blas_dinner, &rows, &columns, nullptr, a, b, nullptr, c.data(), &c.ld, quad);
            },
            [](double c, double sum) { return c + sum; });
      }
}

TEST_F(InnerKernel, OverwritingDoesNotReadC) {
  const int m = 2, n = 4, kp = 4, ldc = 2;
  const auto a = panel(m * kp), b = panel(n * kp), c = panel(m * n), quad = panel(private_panel);
  a.randomise(1), b.randomise(2);
  call(orb_blas_dinnerz_roll, &m, &n, &kp, a.data(), b.data(), nullptr, c.data(), &ldc, quad.data(), nullptr);
  for (double x : c.all()) EXPECT_TRUE(isfinite(x));
}

}  // namespace
