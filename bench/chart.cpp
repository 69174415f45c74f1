#include "bench/chart.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>

#include "tour/gnuplot.h"

namespace orb::bench {
namespace {

using Curve = std::vector<const Result*>;  // one routine and type, by rising size

struct Family {
  std::vector<std::string> routines, types;
  std::map<std::string, Curve> curves;  // by type and routine
};

void remember(std::vector<std::string>& list, const std::string& item) {
  if (std::find(list.begin(), list.end(), item) == list.end()) list.push_back(item);
}

std::map<std::string, Family> families_of(const std::vector<Result>& results) {
  std::map<std::string, Family> families;
  std::map<std::string, Curve> curves;
  for (const Result& result : results) {
    const Case& subject = *result.subject;
    if (!subject.abscissa) continue;
    Curve& curve = curves[subject.type + subject.routine];
    curve.push_back(&result);
    if (curve.size() < 2) continue;  // a point is no curve
    Family& family = families[subject.family];
    remember(family.routines, subject.routine);
    remember(family.types, subject.type);
    family.curves[subject.type + subject.routine] = curve;
  }
  return families;
}

// Line styles: ours first, then the peers in their order.
constexpr const char* styles[] = {"linecolor '#c0392b' pointtype 7 pointsize 0.7 linewidth 2.5",
                                  "linecolor '#2471a3' pointtype 5 pointsize 0.5",
                                  "linecolor '#239b56' pointtype 9 pointsize 0.6",
                                  "linecolor '#7f8c8d' pointtype 11 pointsize 0.6"};

const char* style_of(std::size_t library, const Libraries& libraries) {
  const std::size_t place = library + (libraries.ours ? 0 : 1);
  return styles[std::min(place, std::size(styles) - 1)];
}

// A curve's data block: names of routines may have spaces, those of blocks not.
std::string block_of(std::string name) {
  std::replace(name.begin(), name.end(), ' ', '_');
  return '$' + name;
}

void write_data(std::ostream& out, const std::string& name, const Curve& curve) {
  out << block_of(name) << " << END\n";
  for (const Result* result : curve) {
    out << result->subject->abscissa;
    for (const auto& m : result->by_library)
      out << ' ' << (m ? std::to_string(rate(result->subject->work, m->best)) : "NaN");
    out << '\n';
  }
  out << "END\n";
}

void write_panel(std::ostream& out, const std::string& name, const Curve& curve, const Libraries& libraries) {
  const Case& subject = *curve[0]->subject;
  const std::string& routine = subject.routine;
  const std::string option = routine.find(' ') < routine.size() ? routine.substr(routine.find(' ')) : "";
  out << "set title '" << subject.entry << option << "'\nset ylabel '" << name_of(subject.work.unit)
      << "'\nplot";
  for (std::size_t i = 0; i < libraries.open.size(); ++i)
    out << (i ? ", " : " ") << block_of(name) << " using 1:" << i + 2 << " with linespoints linetype "
        << i + 1 << " notitle";
  out << '\n';
}

// One key for all panels: strokes and names across the top of the page.
void write_key(std::ostream& out, const Libraries& libraries, double height) {
  for (std::size_t i = 0; i < libraries.open.size(); ++i) {
    const double x = 0.04 + 0.2 * double(i), y = 1 - 15 / height;
    out << "set arrow " << i + 1 << " from screen " << x << ',' << y << " to screen " << x + 0.03 << ',' << y
        << " nohead linetype " << i + 1 << '\n'
        << "set label " << i + 1 << " '" << libraries.open[i].name << "' at screen " << x + 0.04 << ',' << y
        << '\n';
  }
}

void write_script(std::ostream& out, const std::string& file, const Family& family,
                  const Libraries& libraries) {
  for (const auto& [name, curve] : family.curves) write_data(out, name, curve);
  const std::size_t columns = family.types.size(), rows = family.routines.size();
  const bool few = rows * columns <= 4;
  const std::size_t width = few ? 560 : 340, height = few ? 400 : 230, head = 30;
  const std::size_t total = head + height * rows;
  out << "set terminal svg size " << width * columns << ',' << total
      << " font 'DejaVu Sans,11' background 'white'\nset output '" << file << "'\nset multiplot layout "
      << rows << ',' << columns << " title ' '\n"
      << "set logscale x\nset format x '10^{%L}'\nset yrange [0:*]\nset grid linecolor '#dddddd'\n"
      << "set xlabel 'n' offset 0,0.5\n";
  for (std::size_t i = 0; i < libraries.open.size(); ++i)
    out << "set linetype " << i + 1 << ' ' << style_of(i, libraries) << '\n';
  write_key(out, libraries, double(total));
  for (const std::string& routine : family.routines)
    for (const std::string& type : family.types) {
      const auto curve = family.curves.find(type + routine);
      if (curve == family.curves.end())
        out << "set multiplot next\n";
      else
        write_panel(out, curve->first, curve->second, libraries);
      out << "unset label\nunset arrow\n";
    }
  out << "unset multiplot\n";
}

}  // namespace

void draw_charts(const std::filesystem::path& folder, const std::vector<Result>& results,
                 const Libraries& libraries) {
  for (const auto& [name, family] : families_of(results)) {
    const auto script = folder / (name + ".gp"), picture = folder / (name + ".svg");
    std::ofstream out(script);
    write_script(out, picture, family, libraries);
    out.close();
    if (tour::run_gnuplot(script) == tour::Drawn::yes)
      std::printf("chart: %s\n", picture.c_str());
    else
      std::printf("no chart of %s: gnuplot is missing or failed; its script is %s\n", name.c_str(),
                  script.c_str());
  }
}

}  // namespace orb::bench
