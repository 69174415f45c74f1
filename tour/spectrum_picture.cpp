// Picture of the spectrum chapter: the series, what the band leaves of it, and the spectrum.
#include "tour/picture.h"
#include "tour/spectrum.h"

namespace orb::tour {
namespace {

void write_data(std::ostream& script, const Observations& sun, const Spectrum& s, const Cycle& cycle) {
  const std::size_t n = sun.values.size();
  script << "$series << END\n";
  for (std::size_t i = 0; i < n; ++i)
    script << text("%.3f %.6g %.6g\n", sun.start + double(i) / months_a_year, sun.values[i], cycle.smooth[i]);
  script << "END\n$spectrum << END\n";
  for (int k = 1; k < int(s.size()); ++k)
    script << text("%.6g %.6g %d\n", double(n) / months_a_year / k, amplitude(s, k, n), cycle.band.holds(k));
  script << "END\n";
}

}  // namespace

void draw_cycle(const Tour& tour, const Observations& sun, const Spectrum& s, const Cycle& cycle) {
  const double years = double(sun.values.size()) / months_a_year;
  auto script = open_script(tour, "3-spectrum", 1300, 760);
  write_data(script, sun, s, cycle);
  script
      << "red = '#c0392b'\nblue = '#2471a3'\nset multiplot layout 2,1\nset tics nomirror\n"
      << "set grid ytics linecolor '#dddddd'\nset key top left horizontal opaque noenhanced\n"
      << "set title 'Spots on the sun'\nset ylabel 'monthly mean of the daily number'\n"
      << "set xlabel 'year'\nset xrange [" << sun.start << ':' << sun.start + years
      << "]\nset yrange [-40:]\n"
      << "plot $series using 1:2 with lines linewidth 0.8 linecolor rgb '#9fb8c8' title 'as counted', "
         "$series using 1:3 with lines linewidth 2.5 linecolor rgb red title 'the band round the peak, and "
         "the mean'\n"
      << "set title 'Spectrum'\nset ylabel 'amplitude, spots'\nset xlabel 'period, years'\nset logscale x\n"
      << "set xrange [0.5:" << years << "]\nset yrange [0:]\nset xtics (0.5, 1, 2, 5, 10, 20, 50, 100, 200)\n"
      << "set arrow 1 from first " << cycle.period << ", graph 0 to first " << cycle.period
      << ", graph 1 nohead dashtype 2 linecolor rgb '#888888'\n"
      << "set label 1 '" << text("%.2f years", cycle.period) << "' at first " << cycle.period
      << ", graph 0.93 offset 0.7,0\n"
      << "plot $spectrum using 1:($3 > 0 ? NaN : $2) with impulses linewidth 1.5 linecolor rgb blue title "
         "'other "
         "frequencies', $spectrum using 1:($3 > 0 ? $2 : NaN) with impulses linewidth 2.5 linecolor rgb red "
         "title 'the band'\n"
      << "unset multiplot\n";
  finish(tour, script, "3-spectrum");
}

}  // namespace orb::tour
