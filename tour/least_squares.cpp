#include "tour/least_squares.h"

#include <algorithm>
#include <cmath>

#include "orb/lapack.h"
#include "tour/blas.h"

namespace orb::tour {
namespace {

// op(U) b = b in place, U the upper triangle of the first columns of A.
void solve_triangle(const Matrix& a, CBLAS_TRANSPOSE trans, int order, double* b) {
  cblas_dtrsm(CblasColMajor, CblasLeft, CblasUpper, trans, CblasNonUnit, order, 1, 1, a.elements.data(),
              a.rows, b, order);
}

// v = (1, ...) and tau of the reflector I - tau v v' that turns x into a multiple of the first unit vector,
// away from which it points: no digits cancel in x[0] - beta.
double make_reflector(std::vector<double>& x) {
  const int n = int(x.size());
  const double beta = -std::copysign(cblas_dnrm2(n, x.data(), 1), x[0]), difference = x[0] - beta;
  cblas_dscal(n, 1 / difference, x.data(), 1);
  x[0] = 1;
  return -difference / beta;
}

}  // namespace

Fit by_normal_equations(const Matrix& x, const Matrix& y) {
  const int n = x.columns;
  Matrix products(n, n), b(n, 1);
  cblas_dsyrk(CblasColMajor, CblasUpper, CblasTrans, n, x.rows, 1, x.elements.data(), x.rows, 0,
              products.elements.data(), n);
  multiply(1, x, CblasTrans, y, CblasNoTrans, 0, b);
  Fit fit;
  orb_dpotrf("U", &n, products.elements.data(), &n, &fit.failing_minor);
  if (fit.failing_minor) return fit;
  solve_triangle(products, CblasTrans, n, b.elements.data());
  solve_triangle(products, CblasNoTrans, n, b.elements.data());
  fit.coefficients = b.elements;
  return fit;
}

Fit by_reflectors(const Matrix& x, const Matrix& y) {
  const int m = x.rows, n = x.columns;
  Matrix a(m, n + 1);  // X and y side by side
  std::copy(x.elements.begin(), x.elements.end(), a.elements.begin());
  std::copy(y.elements.begin(), y.elements.end(), a.column(n));
  std::vector<double> work(std::size_t(n + 1));
  for (int k = 0; k < n; ++k) {
    std::vector<double> v(a.column(k) + k, a.column(k) + m);
    const double tau = make_reflector(v);
    const int rows = m - k, columns = n + 1 - k;
    orb_dlarfx("L", &rows, &columns, v.data(), &tau, a.column(k) + k, &m, work.data());
  }
  Fit fit;
  fit.coefficients.assign(a.column(n), a.column(n) + n);
  solve_triangle(a, CblasNoTrans, n, fit.coefficients.data());
  return fit;
}

}  // namespace orb::tour
