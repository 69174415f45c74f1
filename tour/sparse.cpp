// Chapter 4: sparse matrices. A stiffness matrix, or any matrix that the user names: its products are
// compared with sums in extended precision, and if it is symmetric, A x = b is solved by conjugate gradients,
// plain and with a preconditioner.
#include "tour/sparse.h"

#include <algorithm>
#include <cmath>

#include "tour/blas.h"
#include "tour/progress.h"

namespace orb::tour {
namespace {

constexpr double tolerance = 1e-10;

using Wide = std::complex<long double>;

// Each element of op(A) x and the sum of the magnitudes of its terms, in extended precision, from the entries
// as the file gives them.
struct Reference {
  std::vector<Wide> product;
  std::vector<long double> magnitude;
  std::vector<int> terms;

  template <class T>
  Reference(const MarketMatrix& a, bool transposes, const std::vector<T>& x)
      : product(std::size_t(transposes ? a.columns : a.rows)),
        magnitude(product.size()),
        terms(product.size()) {
    const auto add = [&](int i, int j, Wide v) {
      const auto r = std::size_t(transposes ? j : i);
      const Wide term = v * Wide(x[std::size_t(transposes ? i : j)]);
      product[r] += term;
      magnitude[r] += std::abs(term);
      ++terms[r];
    };
    for (const MarketEntry& e : a.entries) {
      const Wide v = e.value;
      add(e.row, e.column, v);
      if (a.symmetry == Symmetry::general || e.row == e.column) continue;
      const Symmetry s = a.symmetry;
      add(e.column, e.row, s == Symmetry::skew ? -v : s == Symmetry::hermitian ? std::conj(v) : v);
    }
  }
};

// A sum of t rounded products is off by at most (t + 1) u times the sum of their magnitudes, and complex
// products by 2 sqrt(2) times as much. An antisymmetric product adds what it takes off again: twice the
// terms.
template <class T>
void check_product(Report& report, const MarketMatrix& file, const SparseMatrix<T>& a, char op,
                   const char* what) {
  const bool transposes = op == 'T', skew = file.symmetry == Symmetry::skew;
  std::vector<T> x(std::size_t(transposes ? a.rows : a.columns)),
      y(std::size_t(transposes ? a.columns : a.rows));
  for (std::size_t i = 0; i < x.size(); ++i) x[i] = T(1) / T(double(1 + i % 7));
  multiply(a, op, x, y);
  const Reference expected(file, transposes, x);
  Worst worst;
  for (std::size_t i = 0; i < y.size(); ++i)
    worst.see(double(std::abs(Wide(y[i]) - expected.product[i])),
              double((skew              ? 4
                      : file.is_complex ? 2.83L
                                        : 1) *
                     (expected.terms[i] + 2) * (long double)(unit_roundoff)*expected.magnitude[i]));
  report.check(what, worst);
}

template <class T>
void check_products(Report& report, const MarketMatrix& file, const SparseMatrix<T>& a) {
  const std::string routine = file.is_complex ? "orb_zcsrmv" : "orb_dcsrmv";
  check_product(report, file, a, 'N', (routine + ": A x beside sums in extended precision").c_str());
  if (file.symmetry == Symmetry::general)
    check_product(report, file, a, 'T', (routine + ": A' x beside sums in extended precision").c_str());
}

// Frobenius norm of the whole matrix.
double norm_of(const MarketMatrix& a) {
  double sum = 0;
  for (const MarketEntry& e : a.entries)
    sum += std::norm(e.value) * (a.symmetry != Symmetry::general && e.row != e.column ? 2 : 1);
  return std::sqrt(sum);
}

// Rounding lets the true residual b - A x drift from the one of the recurrence, by no more than a few units
// for each step, (row length + 8) u |A| max |x| each. A. Greenbaum, SIAM J. Matrix Anal. Appl. 18 (1997)
// 535-551.
void check_descent(Report& report, const MarketMatrix& file, const SparseMatrix<double>& a,
                   const std::vector<double>& b, const Descent& run, const char* what) {
  const Reference ax(file, false, run.x);
  long double squares = 0;
  for (std::size_t i = 0; i < b.size(); ++i) squares += std::norm(Wide(b[i]) - ax.product[i]);
  const double whole = cblas_dnrm2(int(b.size()), b.data(), 1), steps = double(run.residuals.size());
  const double drift = steps * (2 * a.longest_row() + 8) * unit_roundoff * norm_of(file) * run.largest_x;
  report.check(text("%s: |b - A x| / |b| in extended precision", what), double(std::sqrt(squares)) / whole,
               run.residuals.back() + drift / whole);
}

std::string outcome(const Descent& run, double seconds) {
  const int steps = int(run.residuals.size()) - 1;
  const std::string words =
      text("%s after %d steps, %.2f ms, residual %.1e", run.converged ? "converged" : "stopped", steps,
           1e3 * seconds, run.residuals.back());
  return run.definite ? words : words + ": the matrix is not positive definite";
}

void solve(Tour& tour, const MarketMatrix& file, const SparseMatrix<double>& a) {
  const std::vector<double> b(std::size_t(a.rows), 1);
  const int most_steps = std::max(100, 10 * a.rows);
  tour.report.gap();
  tour.report.paragraph(
      "A x = b, every element of b being 1, by the method of conjugate gradients. Each step costs one "
      "product with A, "
      "of which only the lower triangle is stored (kind S). With the preconditioner, one symmetric sweep of "
      "Gauss and "
      "Seidel, it costs two triangular solutions more, and fewer steps are needed.");
  Descent runs[2];
  for (bool preconditioned : {false, true}) {
    const Stopwatch watch;
    runs[preconditioned] = conjugate_gradients(a, b, preconditioned, tolerance, most_steps);
    const char* name = preconditioned ? "Gauss-Seidel" : "plain";
    tour.report.fact(name, outcome(runs[preconditioned], watch.seconds()));
    check_descent(tour.report, file, a, b, runs[preconditioned], name);
  }
  tour.report.gap();
  draw_descents(tour, a, runs[0], runs[1]);
}

// The preconditioner divides by the diagonal.
bool has_positive_diagonal(const SparseMatrix<double>& a) {
  for (int i = 0; i < a.rows; ++i) {
    const int last = a.begin[std::size_t(i) + 1] - 1;
    if (last < a.begin[std::size_t(i)] || a.column[std::size_t(last)] != i ||
        !(a.values[std::size_t(last)] > 0))
      return false;
  }
  return true;
}

void describe(Report& report, const MarketMatrix& file, const std::string& name, bool own) {
  const char* const symmetries[] = {"general", "symmetric", "skew-symmetric", "Hermitian"};
  if (own)
    report.paragraph(
        "How far does a structure give way under a load? Its stiffness matrix tells, and most of its entries "
        "are zero: "
        "each joint meets only its neighbours. This one, of a small finite-element model, is number A of the "
        "two "
        "matrices of Lund in the Harwell-Boeing collection.");
  report.fact("data", name);
  report.fact("matrix", text("%d x %d, %s %s, %zu entries stored", file.rows, file.columns,
                             file.is_complex ? "complex" : "real", symmetries[int(file.symmetry)],
                             file.entries.size()));
}

}  // namespace

void sparse(Tour& tour) {
  const bool own = tour.matrix.empty();
  const auto name = own ? tour.data / "lund_a.mtx" : tour.matrix;
  const MarketMatrix file = read_market(name);
  describe(tour.report, file, name.string(), own);
  if (file.is_complex) return check_products(tour.report, file, complex_rows(file));
  const SparseMatrix<double> a = real_rows(file);
  check_products(tour.report, file, a);
  if (file.symmetry == Symmetry::symmetric && has_positive_diagonal(a))
    solve(tour, file, a);
  else
    tour.report.line("Conjugate gradients need a symmetric matrix with a positive diagonal: products only.");
}

}  // namespace orb::tour
