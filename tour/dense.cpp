// Chapter 1: the principal components of a map. Each column of the map is a line of heights that runs from
// south to north; from each its mean is taken. The singular values of what is left tell how many patterns the
// map is made of, and the map is rebuilt from the first few.
#include "tour/dense.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "tour/blas.h"
#include "tour/csv.h"
#include "tour/progress.h"

namespace orb::tour {
namespace {

constexpr int components_wanted = 10;
constexpr int rebuilt_from[] = {1, 3, 10};

// The mean of each column in every row of it.
Matrix column_means(const Matrix& a) {
  const Matrix ones = [&] {
    Matrix column(a.rows, 1);
    std::fill(column.elements.begin(), column.elements.end(), 1.0);
    return column;
  }();
  Matrix sums(1, a.columns), means(a.rows, a.columns);
  multiply(1.0 / a.rows, ones, CblasTrans, a, CblasNoTrans, 0, sums);
  multiply(1, ones, CblasNoTrans, sums, CblasNoTrans, 0, means);
  return means;
}

Matrix difference(Matrix a, const Matrix& b) {
  cblas_daxpy(int(a.elements.size()), -1, b.elements.data(), 1, a.elements.data(), 1);
  return a;
}

// Means + X Q Q', Q the first k directions.
Matrix rebuild(const Matrix& means, const Matrix& x, const Matrix& directions, int k) {
  Matrix q(directions.rows, k), z(x.rows, k), map = means;
  std::copy(directions.elements.begin(), directions.elements.begin() + long(q.elements.size()),
            q.elements.begin());
  multiply(1, x, CblasNoTrans, q, CblasNoTrans, 0, z);
  multiply(1, z, CblasNoTrans, q, CblasTrans, 1, map);
  return map;
}

// Root of the sum of squares, from the smallest up.
double root_of_squares(const std::vector<double>& values, std::size_t first) {
  return std::sqrt(std::accumulate(values.rbegin(), values.rend() - long(first), 0.0,
                                   [](double sum, double value) { return sum + value * value; }));
}

double share(const std::vector<double>& values, int k) {
  const double rest = root_of_squares(values, std::size_t(k)) / root_of_squares(values, 0);
  return 100 * (1 - rest * rest);
}

void describe(Report& report, const Matrix& heights, const std::string& file) {
  const auto [low, high] = std::minmax_element(heights.elements.begin(), heights.elements.end());
  report.paragraph(
      text("Maunga Whau is one of the volcanoes that Auckland stands on. Its map holds %d x %d heights, 10 m "
           "apart, from %.0f to %.0f m above the sea. How many patterns is a mountain made of? The "
           "mean is taken from each south-north line; the principal components of the rest are its "
           "singular vectors, and the squares of its singular values the variance that each explains.",
           heights.rows, heights.columns, *low, *high));
  report.fact("data", file);
}

// Each of the leading values against the same value by the other road. A residual of (m + n) u s_1^2 in X'X
// moves s by no more than that over s; the rotations keep s to within (m + n) u s_1.
void compare_values(Report& report, const Components& leading, const std::vector<double>& all,
                    const Matrix& x) {
  Worst worst;
  for (std::size_t j = 0; j < leading.values.size(); ++j)
    worst.see(std::abs(leading.values[j] - all[j]),
              2 * (x.rows + x.columns) * unit_roundoff * all[0] * all[0] / all[j]);
  report.check("the same singular values by plane rotations (ddot, drot)", worst);
}

void show_values(Report& report, const std::vector<double>& values, const std::vector<double>& all) {
  report.gap();
  report.line("component   singular value   variance   together");
  for (int j = 0; j < int(values.size()); ++j)
    report.line(text("%9d   %14.6f   %6.2f %%   %6.2f %%", j + 1, values[std::size_t(j)],
                     share(all, j + 1) - share(all, j), share(all, j + 1)));
  report.gap();
}

Components find_components(Report& report, const Matrix& x) {
  const Stopwatch watch;
  Components leading = leading_components(x, components_wanted);
  const double seconds = watch.seconds(), steps = double(leading.residuals.size());
  const double operations = steps * 4.0 * x.rows * x.columns * components_wanted;
  report.fact("method", text("orthogonal iteration by dgemm, ddot, daxpy, dnrm2 and dscal"));
  report.fact("cost", text("%.0f steps, %.1f ms, %.1f GFLOP/s in all", steps, 1e3 * seconds,
                           operations / seconds * 1e-9));
  Worst worst;
  for (double residual : leading.residuals.back()) worst.see(residual, (x.rows + x.columns) * unit_roundoff);
  report.check("residuals |X'X q - s^2 q| / s_1^2 are down to rounding", worst);
  return leading;
}

// The best map of k components misses the original by exactly what the other singular values hold. Each of
// its elements is a sum of m + n + k rounded terms at most, which bounds the difference.
Map rebuilt_map(Report& report, const Matrix& heights, const Matrix& means, const Matrix& x,
                const Components& leading, const std::vector<double>& all, int k) {
  Map map{text("%02d-components", k), "", rebuild(means, x, leading.directions, k)};
  const double missed = distance(heights, map.heights), rest = root_of_squares(all, std::size_t(k));
  const double bound = (x.rows + x.columns + k) * (std::sqrt(k) + 2) * unit_roundoff * norm(heights);
  const double typical = missed / std::sqrt(double(heights.elements.size()));
  report.check(text("map from %d component%s: off by %.3f m in all, the rest of the spectrum", k,
                    k == 1 ? "" : "s", missed),
               std::abs(missed - rest), bound);
  map.title = text("%d component%s: %.1f %% of the variance\\noff by %.2f m a point", k, k == 1 ? "" : "s",
                   share(all, k), typical);
  return map;
}

}  // namespace

void dense(Tour& tour) {
  const auto file = tour.data / "maunga-whau-elevation.csv";
  const Matrix heights = read_csv(file);
  if (std::min(heights.rows, heights.columns) <= components_wanted)
    throw BadFile(file.string() + text(": a map of more than %d x %d heights is needed", components_wanted,
                                       components_wanted));
  describe(tour.report, heights, file.string());
  const Matrix means = column_means(heights), x = difference(heights, means);

  const Components leading = find_components(tour.report, x);
  const std::vector<double> all = all_singular_values(x);
  compare_values(tour.report, leading, all, x);
  tour.report.check(text("the squares of all %zu values add up to |X|^2 (dnrm2)", all.size()),
                    std::abs(root_of_squares(all, 0) - norm(x)),
                    (x.rows + x.columns) * unit_roundoff * norm(x));
  show_values(tour.report, leading.values, all);

  std::vector<Map> maps{{"original", "Maunga Whau\\nas surveyed", heights}};
  for (int k : rebuilt_from) maps.push_back(rebuilt_map(tour.report, heights, means, x, leading, all, k));
  time_product(tour.report);
  tour.report.gap();
  draw_maps(tour, maps);
  draw_spectrum(tour, all, leading);
}

}  // namespace orb::tour
