#include "tour/picture.h"

#include "tour/gnuplot.h"

namespace orb::tour {

void finish(const Tour& tour, std::ofstream& script, const std::string& name) {
  const auto file = tour.pictures / (name + ".gp"), picture = tour.pictures / (name + ".png");
  script.close();
  const Drawn drawn = script ? run_gnuplot(file) : Drawn::failed;
  if (drawn == Drawn::yes)
    tour.report.fact("picture", picture.string());
  else
    tour.report.fact("no picture",
                     std::string(drawn == Drawn::no_gnuplot ? "gnuplot is not installed" : "gnuplot failed") +
                         "; script and data are there: " + file.string());
}

std::ofstream open_script(const Tour& tour, const std::string& name, int width, int height) {
  std::ofstream script(tour.pictures / (name + ".gp"));
  script << "set terminal pngcairo size " << width << ',' << height << " font 'DejaVu Sans,11'\nset output '"
         << (tour.pictures / (name + ".png")).string() << "'\nset encoding utf8\n";
  return script;
}

}  // namespace orb::tour
