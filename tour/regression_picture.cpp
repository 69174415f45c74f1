// Picture of the regression chapter: digits of the coefficients, and errors against the condition.
#include "tour/picture.h"
#include "tour/regression.h"

namespace orb::tour {

void draw_regression(const Tour& tour, const std::vector<Digits>& digits,
                     const std::vector<Mixture>& mixtures) {
  auto script = open_script(tour, "2-regression", 1300, 520);
  script << "$digits << END\n";
  for (const Digits& d : digits)
    script << '"' << d.name << "\" " << d.normal_equations << ' ' << d.reflectors << '\n';
  script << "END\n$mixtures << END\n";
  for (const Mixture& m : mixtures) {
    script << m.condition << ' ';
    m.normal_equations < 0 ? script << "NaN" : script << m.normal_equations;
    script << ' ' << m.reflectors << '\n';
  }
  script
      << "END\n"
      << "red = '#c0392b'\nblue = '#2471a3'\nset multiplot layout 1,2\nset grid ytics linecolor '#dddddd'\n"
      << "set key top left opaque\n"
      << "set title 'Correct digits of each coefficient'\nset style data histogram\nset style fill solid "
         "noborder\nset boxwidth 0.85\nset yrange [0:17]\nset ytics 0,3,15 nomirror\nset xtics nomirror "
         "rotate by "
         "-25\nset ylabel 'digits, of 15 that are certified'\n"
      << "plot $digits using 2:xtic(1) linecolor rgb red title 'normal equations', $digits using 3 linecolor "
         "rgb blue title 'reflectors'\n"
      << "set title 'The same regression made harder'\nset style data linespoints\nset "
         "logscale xy\nset format x '10^{%L}'\nset format y '10^{%L}'\nset xtics norotate autofreq\nset "
         "ytics "
         "autofreq\nset yrange [1e-13:10]\nset xlabel 'condition of the matrix, columns of length 1'\nset "
         "ylabel 'worst relative error of a slope'\nu = 2.0**-53\nset key bottom right\n"
      << "plot $mixtures using 1:2 pointtype 7 linewidth 2 linecolor rgb red title 'normal equations', "
         "$mixtures using 1:3 pointtype 7 linewidth 2 linecolor rgb blue title 'reflectors', "
         "u*x**2 linecolor rgb red dashtype 2 with lines title 'u times the condition squared', "
         "u*x linecolor rgb blue dashtype 2 with lines title 'u times the condition'\n"
      << "unset multiplot\n";
  finish(tour, script, "2-regression");
}

}  // namespace orb::tour
