// Conjugate gradients: the symmetric product, two triangular solutions, and level-1 routines.
#include <cmath>

#include "orb/cblas.h"
#include "orb/sparse.h"
#include "tour/progress.h"
#include "tour/report.h"
#include "tour/sparse.h"

namespace orb::tour {
namespace {

using Vector = std::vector<double>;

double dot(const Vector& x, const Vector& y) { return cblas_ddot(int(x.size()), x.data(), 1, y.data(), 1); }
double norm(const Vector& x) { return cblas_dnrm2(int(x.size()), x.data(), 1); }
void add(double alpha, const Vector& x, Vector& y) {
  cblas_daxpy(int(x.size()), alpha, x.data(), 1, y.data(), 1);
}

class GaussSeidel {
 public:
  explicit GaussSeidel(const SparseMatrix<double>& a) : a_(a), between_(std::size_t(a.rows)) {}

  // z = (D + L)'^-1 D (D + L)^-1 r
  void solve(const Vector& r, Vector& z) {
    triangular('N', r, z);
    orb_dcsrmv('N', a_.rows, a_.rows, 1, "D NC  ", a_.values.data(), a_.column.data(), a_.begin.data(),
               a_.begin.data() + 1, z.data(), 0, between_.data());
    triangular('T', between_, z);
  }

 private:
  void triangular(char op, const Vector& x, Vector& y) const {
    orb_dcsrsv(op, a_.rows, 1, "TLNC  ", a_.values.data(), a_.column.data(), a_.begin.data(),
               a_.begin.data() + 1, x.data(), y.data());
  }
  const SparseMatrix<double>& a_;
  Vector between_;
};

}  // namespace

Descent conjugate_gradients(const SparseMatrix<double>& a, const Vector& b, bool preconditioned,
                            double tolerance, int most_steps) {
  Progress progress("conjugate gradients");
  GaussSeidel preconditioner(a);
  const auto size = std::size_t(a.rows);
  Descent run{Vector(size), {1}};
  Vector r = b, z = r, ap(size);
  if (preconditioned) preconditioner.solve(r, z);
  Vector p = z;
  double rz = dot(r, z);
  const double whole = norm(b);
  for (int step = 0; step < most_steps && !run.converged; ++step) {
    multiply(a, 'N', p, ap);
    const double curvature = dot(p, ap);
    if (!(curvature > 0) || !(rz > 0)) {
      run.definite = false;
      break;
    }
    const double alpha = rz / curvature;
    add(alpha, p, run.x);
    add(-alpha, ap, r);
    run.residuals.push_back(norm(r) / whole);
    run.largest_x = std::max(run.largest_x, norm(run.x));
    run.converged = run.residuals.back() <= tolerance;
    z = r;
    if (preconditioned) preconditioner.solve(r, z);
    const double next = dot(r, z);
    cblas_dscal(a.rows, next / rz, p.data(), 1);
    add(1, z, p);
    rz = next;
    progress.at(text("step %d, residual %.1e", step, run.residuals.back()));
  }
  return run;
}

}  // namespace orb::tour
