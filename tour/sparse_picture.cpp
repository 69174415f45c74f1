// Where the entries of the matrix stand, and how the residuals fall.
#include <fstream>

#include "tour/gnuplot.h"
#include "tour/sparse.h"

namespace orb::tour {
namespace {

void write_block(std::ostream& script, const char* name, const std::vector<double>& residuals) {
  script << '$' << name << " << end\n";
  for (std::size_t k = 0; k < residuals.size(); ++k) script << k << ' ' << residuals[k] << '\n';
  script << "end\n";
}

// Of a large matrix one entry in so many is shown.
void write_pattern(std::ostream& script, const SparseMatrix<double>& a) {
  const std::size_t every = a.values.size() / 20000 + 1;
  script << "$pattern << end\n";
  for (int i = 0; i < a.rows; ++i)
    for (int k = a.begin[std::size_t(i)]; k < a.begin[std::size_t(i) + 1]; ++k)
      if (std::size_t(k) % every == 0) {
        const int j = a.column[std::size_t(k)];
        script << j + 1 << ' ' << i + 1 << '\n' << i + 1 << ' ' << j + 1 << '\n';
      }
  script << "end\n";
}

}  // namespace

void draw_descents(const Tour& tour, const SparseMatrix<double>& a, const Descent& plain,
                   const Descent& preconditioned) {
  const auto file = tour.pictures / "4-gradients.gp", picture = tour.pictures / "4-gradients.png";
  std::ofstream script(file);
  script << "set terminal pngcairo size 1200,520 font 'DejaVu Sans,11'\nset output '" << picture.string()
         << "'\nset encoding utf8\n";
  write_pattern(script, a);
  write_block(script, "plain", plain.residuals);
  write_block(script, "preconditioned", preconditioned.residuals);
  script
      << "set multiplot layout 1,2\nset size ratio -1\nset title 'Entries of the matrix'\nset xrange [0.5:"
      << a.columns << ".5]\nset yrange [" << a.rows
      << ".5:0.5]\nunset key\nplot $pattern with points pointtype 7 pointsize 0.3 linecolor '#2c3e50'\n"
      << "set size noratio\nset autoscale\nunset xrange\nset yrange [*:*] noreverse\nset logscale y\nset "
         "format y "
         "'10^{%T}'\nset key top right\nset grid\nset title 'Conjugate gradients'\nset xlabel 'step'\nset "
         "ylabel "
         "'residual |r| / |b|'\n"
      << "plot $plain with lines linewidth 2 linecolor '#c0392b' title 'plain', $preconditioned with lines "
         "linewidth 2 linecolor '#2980b9' title 'symmetric Gauss-Seidel'\nunset multiplot\n";
  script.close();
  const Drawn drawn = script ? run_gnuplot(file) : Drawn::failed;
  if (drawn == Drawn::yes)
    tour.report.fact("picture", picture.string());
  else
    tour.report.fact("no picture",
                     std::string(drawn == Drawn::no_gnuplot ? "gnuplot is not installed" : "gnuplot failed") +
                         "; script and data are there: " + file.string());
}

}  // namespace orb::tour
