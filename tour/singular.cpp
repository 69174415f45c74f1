#include "tour/singular.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "tour/blas.h"
#include "tour/progress.h"
#include "tour/report.h"

namespace orb::tour {
namespace {

constexpr int most_steps = 20000, most_sweeps = 60;

Matrix random_matrix(int rows, int columns) {
  std::minstd_rand random(1);
  Matrix a(rows, columns);
  for (double& element : a.elements) element = double(random()) / double(random.max()) - 0.5;
  return a;
}

// Orthonormal columns with the same span. Each column is swept twice: what the first sweep leaves of the
// others is rounding error, which the second removes.
void orthonormalise(Matrix& q) {
  const int n = q.rows;
  for (int j = 0; j < q.columns; ++j) {
    for (int sweep = 0; sweep < 2; ++sweep)
      for (int i = 0; i < j; ++i)
        cblas_daxpy(n, -cblas_ddot(n, q.column(i), 1, q.column(j), 1), q.column(i), 1, q.column(j), 1);
    cblas_dscal(n, 1 / cblas_dnrm2(n, q.column(j), 1), q.column(j), 1);
  }
}

// Given Q and W = X'X Q: the squares of the singular values, and how far each column is from its own
// multiple.
std::vector<double> squares_of(const Matrix& q, const Matrix& w) {
  std::vector<double> squares;
  for (int j = 0; j < q.columns; ++j) squares.push_back(cblas_ddot(q.rows, q.column(j), 1, w.column(j), 1));
  return squares;
}

std::vector<double> residuals_of(const Matrix& q, Matrix w, const std::vector<double>& squares) {
  std::vector<double> residuals;
  for (int j = 0; j < q.columns; ++j) {
    cblas_daxpy(q.rows, -squares[std::size_t(j)], q.column(j), 1, w.column(j), 1);
    residuals.push_back(cblas_dnrm2(q.rows, w.column(j), 1) / squares[0]);
  }
  return residuals;
}

}  // namespace

Components leading_components(const Matrix& x, int k) {
  Progress progress("orthogonal iteration");
  const double enough = (x.rows + x.columns) * unit_roundoff;
  Components found{random_matrix(x.columns, k), {}, {}};
  Matrix& q = found.directions;
  orthonormalise(q);
  Matrix z(x.rows, k), w(x.columns, k);
  for (int step = 0; step < most_steps && !found.converged; ++step) {
    if (step > 0) {
      q = w;
      orthonormalise(q);
    }
    multiply(1, x, CblasNoTrans, q, CblasNoTrans, 0, z);
    multiply(1, x, CblasTrans, z, CblasNoTrans, 0, w);
    found.values = squares_of(q, w);
    found.residuals.push_back(residuals_of(q, w, found.values));
    const auto& residuals = found.residuals.back();
    found.converged =
        std::all_of(residuals.begin(), residuals.end(), [=](double residual) { return residual <= enough; });
    progress.at(text("step %d, residuals from %.1e to %.1e", step, residuals.front(), residuals.back()));
  }
  for (double& value : found.values) value = std::sqrt(value);
  return found;
}

std::vector<double> all_singular_values(Matrix x) {
  Progress progress("rotations");
  const int m = x.rows, n = x.columns;
  bool rotated = true;
  for (int sweep = 0; sweep < most_sweeps && rotated; ++sweep) {
    rotated = false;
    progress.at(text("sweep %d", sweep));
    for (int p = 0; p < n; ++p)
      for (int q = p + 1; q < n; ++q) {
        const double pp = cblas_ddot(m, x.column(p), 1, x.column(p), 1);
        const double qq = cblas_ddot(m, x.column(q), 1, x.column(q), 1);
        const double pq = cblas_ddot(m, x.column(p), 1, x.column(q), 1);
        if (std::abs(pq) <= m * unit_roundoff * std::sqrt(pp * qq)) continue;
        rotated = true;
        const double zeta = (qq - pp) / (2 * pq);
        const double t = std::copysign(1, zeta) / (std::abs(zeta) + std::sqrt(1 + zeta * zeta));
        const double c = 1 / std::sqrt(1 + t * t);
        cblas_drot(m, x.column(p), 1, x.column(q), 1, c, -c * t);
      }
  }
  std::vector<double> values;
  for (int j = 0; j < n; ++j) values.push_back(cblas_dnrm2(m, x.column(j), 1));
  std::sort(values.rbegin(), values.rend());
  return values;
}

}  // namespace orb::tour
