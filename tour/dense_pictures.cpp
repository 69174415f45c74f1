// Pictures of the dense chapter: the maps side by side, and the spectrum.
#include <algorithm>
#include <fstream>

#include "tour/dense.h"
#include "tour/picture.h"

namespace orb::tour {
namespace {

constexpr double grid = 10;  // metres

// North is up and east is right: columns of the data run from east to west.
std::string write_map(const Tour& tour, const Map& map) {
  const auto file = tour.pictures / ("1-map-" + map.name + ".dat");
  std::ofstream out(file);
  for (int i = 0; i < map.heights.rows; ++i, out << '\n')
    for (int j = map.heights.columns - 1; j >= 0; --j)
      out << grid * (map.heights.columns - 1 - j) << ' ' << grid * i << ' ' << map.heights(i, j) << '\n';
  return file.string();
}

// Lines of equal height, every `step` metres, into a table of their own.
void write_contours(std::ostream& script, const std::string& data, const std::string& name) {
  script << "set contour base\nset cntrparam levels incremental 100,10,190\nunset surface\nset table $"
         << name << "\nsplot '" << data << "' using 1:2:3 with lines\nunset table\nunset contour\n";
}

}  // namespace

void draw_maps(const Tour& tour, const std::vector<Map>& maps) {
  const Matrix& original = maps[0].heights;
  const auto [low, high] = std::minmax_element(original.elements.begin(), original.elements.end());
  auto script = open_script(tour, "1-maps", 1500, 570);
  std::vector<std::string> data;
  for (const Map& map : maps) {
    data.push_back(write_map(tour, map));
    write_contours(script, data.back(), text("lines%zu", data.size()));
  }
  script
      << "set palette defined (0 '#2b6a4d', 0.18 '#5d9b57', 0.36 '#b5c46b', 0.54 '#e6cf8b', 0.72 '#b98a5a', "
         "0.88 '#8a6a5c', 1 '#f7f3ee')\n"
      << "set cbrange [" << *low << ':' << *high << "]\nset cblabel 'height above the sea, m'\n"
      << "set xrange [0:" << grid * (original.columns - 1)
      << "]\nset yrange [0:" << grid * (original.rows - 1)
      << "]\nset size ratio -1\nset tics out nomirror\nset xtics 200\nset ytics 200\nset xlabel 'metres "
         "east'\n"
      << "unset key\nset multiplot layout 1," << maps.size()
      << " margins 0.06,0.925,0.12,0.88 spacing 0.02,0\nset ylabel 'metres north'\n";
  for (std::size_t i = 0; i < maps.size(); ++i) {
    script
        << "set title \"" << maps[i].title << "\"\n"
        << (i + 1 == maps.size() ? "set colorbox user origin 0.94,0.12 size 0.012,0.76\n"
                                 : "unset colorbox\n")
        << "plot '" << data[i] << "' using 1:2:3 with image, $lines" << i + 1
        << " using 1:2 with lines linecolor rgb '#70402810' linewidth 0.8\nset format y ''\nunset ylabel\n";
  }
  script << "unset multiplot\n";
  finish(tour, script, "1-maps");
}

void draw_spectrum(const Tour& tour, const std::vector<double>& all, const Components& leading) {
  auto script = open_script(tour, "1-spectrum", 1200, 480);
  script << "$all << END\n";
  for (double value : all) script << value << '\n';
  script << "END\n$leading << END\n";
  for (double value : leading.values) script << value << '\n';
  script << "END\n$residuals << END\n";
  for (const auto& step : leading.residuals) {
    for (double residual : step) script << residual << ' ';
    script << '\n';
  }
  script << "END\nset linetype 1 linecolor '#c0392b'\nset linetype 2 linecolor '#2471a3'\nset linetype 3 "
            "linecolor '#239b56'\n"
         << "set linetype 4 linecolor '#8e44ad'\nset multiplot layout 1,2\nset logscale y\nset format y "
            "'10^{%L}'\nset grid linecolor "
            "'#dddddd'\n"
         << "set title 'Singular values of the map'\nset xlabel 'component'\nset ylabel 'metres'\n"
         << "set xrange [0:" << all.size() + 1 << "]\n"
         << "plot $all using ($0+1):1 with points pointtype 7 pointsize 0.7 linecolor '#2471a3' title 'plane "
            "rotations', "
            "$leading using ($0+1):1 with points pointtype 6 pointsize 1.5 linewidth 1.5 linecolor '#c0392b' "
            "title "
            "'orthogonal iteration'\n"
         << "set title 'Convergence of the orthogonal iteration'\nset xlabel 'step'\nset ylabel 'residual'\n"
         << "set xrange [0:" << leading.residuals.size() << "]\n"
         << "plot for [j in '1 3 5 10'] $residuals using ($0+1):int(j) with lines linewidth 2 title "
            "'component '.j\nunset multiplot\n";
  finish(tour, script, "1-spectrum");
}

}  // namespace orb::tour
