// Chapter 3: spots on the sun. More than two centuries of monthly counts, the cycle that stands out of their
// spectrum, and what is left of the series when all but that cycle is taken out.
#include "tour/spectrum.h"

#include <algorithm>
#include <cmath>

#include "tour/csv.h"

namespace orb::tour {
namespace {

constexpr int year_column = 0, month_column = 1, spots_column = 2;

Observations read_observations(const std::filesystem::path& file) {
  const Matrix table = read_named_csv(file).values;
  if (table.columns != 3 || table.rows < 50 * months_a_year)
    throw BadFile(file.string() + ": year, month and a number are needed, for fifty years or more");
  auto month = [&](int i) { return months_a_year * table(i, year_column) + table(i, month_column); };
  for (int i = 1; i < table.rows; ++i)
    if (month(i) != month(i - 1) + 1)
      throw BadFile(file.string() + text(":%d: this is not the month after the one before", i + 2));
  return {(month(0) - 0.5) / months_a_year,
          Series(table.column(spots_column), table.column(spots_column) + table.rows)};
}

std::string factors_of(int n) {
  std::string product;
  for (int p = 2; n > 1; ++p)
    for (; n % p == 0; n /= p) product += text(product.empty() ? "%d" : " x %d", p);
  return product;
}

double years_of(const Observations& sun) { return double(sun.values.size()) / months_a_year; }

// The frequency at which the power is greatest, whole and refined.
struct Peak {
  int frequency;
  double refined;
};

// A parabola through the peak and its neighbours has its top less than one half from the peak. Frequency 0 is
// the mean, no oscillation, and is nobody's neighbour; the last one has none on its right.
Peak find_peak(const Spectrum& s) {
  const auto top = std::max_element(s.begin() + 2, s.end() - 1,
                                    [](auto a, auto b) { return std::norm(a) < std::norm(b); });
  const double left = std::norm(top[-1]), middle = std::norm(*top), right = std::norm(top[1]);
  const double bend = left - 2 * middle + right;
  const int frequency = int(top - s.begin());
  return {frequency, bend < 0 ? frequency + 0.5 * (left - right) / bend : frequency};
}

// Three quarters to four thirds of the peak: cycles of the sun differ by years in length, which spreads them
// over frequencies on both sides of it.
Band band_round(const Peak& peak, const Spectrum& s) {
  const int last = int(s.size()) - 1;
  return {int(std::ceil(0.75 * peak.refined)), std::min(int(peak.refined / 0.75), last)};
}

Spectrum keep(Spectrum s, const Band& band) {
  for (int k = 1; k < int(s.size()); ++k)
    if (!band.holds(k)) s[std::size_t(k)] = 0;
  return s;
}

long double sum_of_squares(const Series& x) {
  long double sum = 0;
  for (const long double value : x) sum += value * value;
  return sum;
}

// What the frequencies of a band hold of the sum of squares of the series, conjugates counted in.
long double energy(const Spectrum& s, const Band& band, std::size_t n) {
  long double sum = 0;
  for (int k = band.first; k <= band.last; ++k) {
    const long double re = s[std::size_t(k)].real(), im = s[std::size_t(k)].imag();
    const bool own_conjugate = k == 0 || 2 * std::size_t(k) == n;
    sum += (own_conjugate ? 1 : 2) * (re * re + im * im);
  }
  return sum / (long double)(n);
}

double relative_distance(const Series& a, const Series& b) {
  Series difference = a;
  for (std::size_t i = 0; i < b.size(); ++i) difference[i] -= b[i];
  return double(std::sqrt(sum_of_squares(difference) / sum_of_squares(b)));
}

void check_transforms(Report& report, const Transform& transform, const Series& x, const Spectrum& s) {
  const double once = transform_bound(x.size());
  report.check("there and back again: the series returns", relative_distance(transform.backward(s), x),
               2 * once);
  const long double in_time = sum_of_squares(x);
  const long double in_frequency = energy(s, {0, int(s.size()) - 1}, x.size());
  report.check("Parseval: squares add up to the same in time and in frequency",
               double(std::abs(in_frequency - in_time) / in_time), 2 * once);
}

void show_peak(Report& report, const Observations& sun, const Spectrum& s, const Peak& peak) {
  const double years = years_of(sun);
  report.line("frequency, cycles in all    period, years    amplitude, spots");
  for (int k = std::max(1, peak.frequency - 2); k <= std::min(int(s.size()) - 1, peak.frequency + 2); ++k)
    report.line(text("%12d %27.2f %17.1f%s", k, years / k, amplitude(s, k, sun.values.size()),
                     k == peak.frequency ? "   the highest of all" : ""));
  report.gap();
}

void show_cycle(Report& report, const Observations& sun, const Spectrum& s, const Cycle& cycle) {
  const std::size_t n = sun.values.size();
  const long double all = energy(s, {1, int(s.size()) - 1}, n);
  report.fact("period", text("%.2f years, at the top of the parabola through the peak and its neighbours",
                             cycle.period));
  report.fact("band", text("frequencies %d to %d of %d, which hold %.0f %% of the variance", cycle.band.first,
                           cycle.band.last, int(s.size()) - 1, double(100 * energy(s, cycle.band, n) / all)));
}

}  // namespace

void spectrum(Tour& tour) {
  const auto file = tour.data / "sunspots-monthly.csv";
  const Observations sun = read_observations(file);
  const int n = int(sun.values.size());
  tour.report.paragraph(
      text("Spots on the sun have been counted for longer than most things. %d months make a series whose "
           "length is no power of two, %s, and a descriptor for real data transforms it as it is. An "
           "oscillation that recurs shows as a peak of the spectrum; transforming back nothing but the "
           "frequencies round it leaves the cycle without the noise of single months.",
           n, factors_of(n).c_str()));
  tour.report.fact("data", file.string());
  tour.report.gap();

  const Transform transform(n);
  const Spectrum s = transform.forward(sun.values);
  const Peak peak = find_peak(s);
  show_peak(tour.report, sun, s, peak);
  const Band band = band_round(peak, s);
  const Cycle cycle{years_of(sun) / peak.refined, band, transform.backward(keep(s, band))};
  show_cycle(tour.report, sun, s, cycle);
  tour.report.gap();
  check_transforms(tour.report, transform, sun.values, s);
  tour.report.check(
      "the band-passed series has nothing outside of its band",
      relative_distance(transform.backward(keep(transform.forward(cycle.smooth), band)), cycle.smooth),
      2 * transform_bound(sun.values.size()));
  tour.report.check("the period is that of the sun: 11 years, give or take one", std::abs(cycle.period - 11),
                    1);
  draw_cycle(tour, sun, s, cycle);
}

}  // namespace orb::tour
