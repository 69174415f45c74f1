// A large matrix product: how fast, and whether it is right. The product is tried on a vector of ones and
// minus ones: C x is compared with A (B x), summed by plain loops in long double.
#include <algorithm>
#include <cmath>
#include <random>

#include "tour/blas.h"
#include "tour/dense.h"
#include "tour/progress.h"

namespace orb::tour {
namespace {

constexpr int order = 1000, repetitions = 3;

Matrix random_square(unsigned seed) {
  std::minstd_rand random(seed);
  Matrix a(order, order);
  for (double& element : a.elements) element = 2 * (double(random()) / double(random.max())) - 1;
  return a;
}

// A x, each element by `of` of the matrix.
template <class Of>
std::vector<long double> times(const Matrix& a, const std::vector<long double>& x, Of of) {
  std::vector<long double> y(std::size_t(a.rows));
  for (int j = 0; j < a.columns; ++j)
    for (int i = 0; i < a.rows; ++i) y[std::size_t(i)] += (long double)(of(a(i, j))) * x[std::size_t(j)];
  return y;
}

// Each element of C sums k products: it is off by at most (k + 1) u times the same sum of absolute values.
void check_product(Report& report, const Matrix& a, const Matrix& b, const Matrix& c) {
  const auto same = [](double element) { return element; };
  const auto magnitude = [](double element) { return std::abs(element); };
  std::minstd_rand random(3);
  std::vector<long double> x(order), ones(order, 1);
  for (long double& element : x) element = random() >> 8 & 1 ? 1 : -1;
  const auto got = times(c, x, same), expected = times(a, times(b, x, same), same);
  const auto sums = times(a, times(b, ones, magnitude), magnitude);
  Worst worst;
  for (std::size_t i = 0; i < order; ++i)
    worst.see(double(std::abs(got[i] - expected[i])),
              double((order + 1) * (long double)unit_roundoff * sums[i]));
  report.check("C x is A (B x), for a vector x of ones and minus ones", worst);
}

}  // namespace

void time_product(Report& report) {
  Progress progress("matrix product");
  const Matrix a = random_square(1), b = random_square(2);
  Matrix c(order, order);
  double best = 1e300;
  for (int i = 0; i < repetitions; ++i) {
    const Stopwatch watch;
    multiply(1, a, CblasNoTrans, b, CblasNoTrans, 0, c);
    best = std::min(best, watch.seconds());
    progress.at(text("%d of %d", i + 1, repetitions));
  }
  report.gap();
  report.fact("dgemm", text("%d x %d x %d in %.3f s, %.1f GFLOP/s", order, order, order, best,
                            2e-9 * order * order * order / best));
  check_product(report, a, b, c);
}

}  // namespace orb::tour
