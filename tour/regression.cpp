// Chapter 2: a regression that was made to be hard. Employment is explained by six series that nearly explain
// each other; the coefficients are known to fifteen digits, and each road to them shows how many it keeps.
#include "tour/regression.h"

#include <algorithm>
#include <cmath>

#include "tour/blas.h"
#include "tour/csv.h"
#include "tour/least_squares.h"
#include "tour/singular.h"

namespace orb::tour {
namespace {

// In the units of the table, from rational arithmetic: the constant first, then one for each series.
constexpr double certified[] = {-3482.25863459582,   0.0150618722713733,  -0.035819179292591,
                                -0.0202022980381683, -0.0103322686717359, -0.0511041056535807,
                                1.82915146461355};
constexpr int count = std::size(certified), year_column = count - 1;
constexpr double most_digits = 15;

struct Problem {
  std::vector<std::string> names;
  Matrix x, y;
  std::vector<double> exact;  // coefficients
};

Problem read_problem(const std::filesystem::path& file) {
  const NamedColumns table = read_named_csv(file);
  const Matrix& values = table.values;
  if (values.columns != count || values.rows < count)
    throw BadFile(file.string() + text(": %d columns and as many rows or more are needed", count));
  Problem problem{{"constant"},
                  Matrix(values.rows, count),
                  Matrix(values.rows, 1),
                  {std::begin(certified), std::end(certified)}};
  problem.names.insert(problem.names.end(), table.names.begin(), table.names.end() - 1);
  std::fill_n(problem.x.column(0), values.rows, 1.0);
  std::copy(values.column(0), values.column(year_column), problem.x.column(1));
  std::copy(values.column(year_column), values.column(count), problem.y.column(0));
  return problem;
}

std::vector<double> lengths_of(const Matrix& x) {
  std::vector<double> lengths;
  for (int j = 0; j < x.columns; ++j) lengths.push_back(cblas_dnrm2(x.rows, x.column(j), 1));
  return lengths;
}

double condition(const std::vector<double>& singular_values) {
  return singular_values.front() / singular_values.back();
}

// The matrix with columns of length 1, which is what both roads really work on: lengths of columns pass
// through them without making digits worse.
struct Balanced {
  std::vector<double> lengths, singular_values;
  double kappa;
  explicit Balanced(const Matrix& x) : lengths(lengths_of(x)) {
    Matrix unit = x;
    for (int j = 0; j < x.columns; ++j) cblas_dscal(x.rows, 1 / lengths[std::size_t(j)], unit.column(j), 1);
    singular_values = all_singular_values(unit);
    kappa = condition(singular_values);
  }
  // The length of a vector of coefficients as the balanced problem counts it.
  double length(std::vector<double> b) const {
    for (std::size_t j = 0; j < b.size(); ++j) b[j] *= lengths[j];
    return cblas_dnrm2(int(b.size()), b.data(), 1);
  }
};

Matrix residual(const Problem& problem, const std::vector<double>& coefficients) {
  Matrix b(count, 1), r = problem.y;
  b.elements = coefficients;
  multiply(-1, problem.x, CblasNoTrans, b, CblasNoTrans, 1, r);
  return r;
}

// What theory allows the coefficients to be off by, in the balanced length and relative to it.
// N. J. Higham, Accuracy and Stability of Numerical Algorithms, theorems 20.1 and 20.3 (a constant of 6 for
// each step of each reflector), and section 20.4.
struct Bounds {
  double normal_equations, reflectors;
  Bounds(const Problem& problem, const Balanced& balanced) {
    const double m = problem.x.rows, n = count, kappa = balanced.kappa;
    const double image = balanced.singular_values[0] * balanced.length(problem.exact);  // |X| |b|
    const double off = norm(residual(problem, problem.exact)) / image;
    normal_equations =
        kappa * kappa * unit_roundoff * (2 * m * n + 12 * n * n + 4 * n) * (1 + norm(problem.y) / image);
    const double step = 6 * m * n * std::sqrt(n) * unit_roundoff * kappa;
    reflectors = step < 1 ? step / (1 - step) * (2 + (kappa + 1) * off) : INFINITY;
  }
};

// In the balanced length; a road that ended before has none that is known.
double error_of(const Fit& fit, const Problem& problem, const Balanced& balanced) {
  if (fit.coefficients.empty()) return NAN;
  std::vector<double> difference = fit.coefficients;
  cblas_daxpy(count, -1, problem.exact.data(), 1, difference.data(), 1);
  return balanced.length(difference) / balanced.length(problem.exact);
}

double relative_error(double got, double exact) { return std::abs(got - exact) / std::abs(exact); }

double digits(double got, double exact) {
  const double error = relative_error(got, exact);
  return error == 0 ? most_digits : std::clamp(-std::log10(error), 0.0, most_digits);
}

void describe(Report& report, const Problem& problem, const std::string& file) {
  report.paragraph(text(
      "In 1967 J. W. Longley gave the regression programs of his day %d years of the economy of the United "
      "States, and many returned hardly a correct digit: prices, product, population and the year rise "
      "together, so that each nearly tells the others. How many people were employed? A constant and %d "
      "series are fitted to it by least squares; the coefficients are known to fifteen digits.",
      problem.x.rows, count - 1));
  report.fact("data", file);
}

// What the condition of the matrix says before anything is solved.
void foretell(Report& report, const Problem& problem, const Balanced& balanced) {
  const double kappa = balanced.kappa, all = -std::log10(unit_roundoff);
  const double unscaled = condition(all_singular_values(problem.x));
  report.fact(
      "condition",
      text("%.2e as the table stands, %.2e with columns of length 1: the quotient of the", unscaled, kappa));
  report.fact("", "largest and the smallest singular value, by plane rotations (ddot, drot)");
  report.gap();
  report.paragraph(text(
      "The condition tells how much of an error in the data comes out in the coefficients. Doubles carry "
      "%.1f digits; at a condition of %.1e, rounding the data alone may cost %.1f of them, by whatever road. "
      "But the normal equations X'X b = X'y have the square of it, %.1e: once X'X is rounded, twice "
      "as many digits are gone, %.1f of %.1f, and no care afterwards brings them back. (Of the %.0e that "
      "the table shows as it stands, all but this is the size of its columns, which costs nothing.)",
      all, kappa, std::log10(kappa), kappa * kappa, 2 * std::log10(kappa), all, unscaled));
}

std::vector<Digits> compare(Report& report, const Problem& problem, const Fit& normal, const Fit& reflected) {
  std::vector<Digits> rows;
  report.line("                                      normal equations            reflectors");
  report.line(
      "                        certified    dsyrk, potrf, dtrsm   digits   larfx, dtrsm         digits");
  for (std::size_t j = 0; j < count; ++j) {
    const double exact = problem.exact[j], a = normal.coefficients[j], b = reflected.coefficients[j];
    rows.push_back({problem.names[j], digits(a, exact), digits(b, exact)});
    report.line(text("%-13s %19.15g   %19.15g   %6.1f   %19.15g   %6.1f", problem.names[j].c_str(), exact, a,
                     rows.back().normal_equations, b, rows.back().reflectors));
  }
  report.gap();
  return rows;
}

// Reflectors leave the exact solution of a problem that is off by a few roundings: its residual is orthogonal
// to the columns but for those.
void check_residual(Report& report, const Problem& problem, const Balanced& balanced, const Fit& fit) {
  Matrix angles(count, 1);
  multiply(1, problem.x, CblasTrans, residual(problem, fit.coefficients), CblasNoTrans, 0, angles);
  for (std::size_t j = 0; j < count; ++j) angles.elements[j] /= balanced.lengths[j];
  const double frobenius = std::sqrt(double(count));
  const double step = 6.0 * problem.x.rows * count * unit_roundoff;
  report.check("the residual after the reflectors is orthogonal to the columns", norm(angles),
               3 * step * frobenius * (frobenius * balanced.length(fit.coefficients) + norm(problem.y)));
}

void show_mixtures(Report& report, const std::vector<Mixture>& mixtures) {
  report.gap();
  report.paragraph(
      "Now the table is made harder: in the place of the population stands the population plus s times the "
      "year. The coefficients are still known, but two columns come to look alike. The worst relative error "
      "of the six slopes grows with the condition by reflectors, and with its square by the normal "
      "equations, "
      "until X'X as rounded is no longer positive definite:");
  report.line("         s    condition    normal equations   reflectors");
  for (const Mixture& m : mixtures)
    report.line(text("%10.0f    %9.1e    %16s   %10.1e", m.s, m.condition,
                     m.normal_equations < 0 ? "potrf refuses" : text("%.1e", m.normal_equations).c_str(),
                     m.reflectors));
  report.gap();
}

// Population + s year in the place of the population, which makes two columns more and more alike. The
// coefficient of the population stays; that of the year is less by s times it.
Problem mixed(Problem problem, double s) {
  cblas_daxpy(problem.x.rows, s, problem.x.column(year_column), 1, problem.x.column(year_column - 1), 1);
  problem.exact[year_column] -= s * problem.exact[year_column - 1];
  return problem;
}

// The worst relative error of a slope; -1 if there are none.
double worst_slope(const Problem& problem, const Fit& fit) {
  double most = -1;
  for (std::size_t j = 1; j < fit.coefficients.size(); ++j)
    most = std::max(most, relative_error(fit.coefficients[j], problem.exact[j]));
  return most;
}

// Errors beyond a bound of 1 mean nothing, so the bounds are asked only where they are below.
std::vector<Mixture> make_harder(Report& report, const Problem& problem) {
  std::vector<Mixture> mixtures;
  Worst normal_worst, reflected_worst;
  for (double s : {0.0, 8.0, 32.0, 128.0, 512.0, 2048.0, 8192.0, 32768.0, 131072.0, 524288.0}) {
    const Problem harder = mixed(problem, s);
    const Balanced balanced(harder.x);
    const Bounds bounds(harder, balanced);
    const Fit normal = by_normal_equations(harder.x, harder.y), reflected = by_reflectors(harder.x, harder.y);
    if (bounds.normal_equations < 1)
      normal_worst.see(error_of(normal, harder, balanced), bounds.normal_equations);
    if (bounds.reflectors < 1) reflected_worst.see(error_of(reflected, harder, balanced), bounds.reflectors);
    mixtures.push_back({s, balanced.kappa, worst_slope(harder, normal), worst_slope(harder, reflected)});
  }
  show_mixtures(report, mixtures);
  report.check("coefficients by the normal equations, wherever theory promises any", normal_worst);
  report.check("coefficients by reflectors, likewise", reflected_worst);
  return mixtures;
}

}  // namespace

void regression(Tour& tour) {
  const auto file = tour.data / "longley.csv";
  const Problem problem = read_problem(file);
  describe(tour.report, problem, file.string());
  const Balanced balanced(problem.x);
  foretell(tour.report, problem, balanced);

  const Fit normal = by_normal_equations(problem.x, problem.y);
  const Fit reflected = by_reflectors(problem.x, problem.y);
  if (normal.failing_minor)
    throw BadFile(file.string() + ": the columns are too much alike for the normal equations");
  const std::vector<Digits> digits = compare(tour.report, problem, normal, reflected);
  check_residual(tour.report, problem, balanced, reflected);
  draw_regression(tour, digits, make_harder(tour.report, problem));
}

}  // namespace orb::tour
