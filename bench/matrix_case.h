// A case of a matrix routine, of whatever level: `Routine` tells names, work, call and error, Operands<T>
// holds its operands of order n.
#pragma once

#include "bench/case.h"
#include "bench/operand.h"

namespace orb::bench {

// Spread of the elements beside the diagonal (matrix.h): for repeated calls, and for the one that is checked.
constexpr double steady_spread = 1.0 / (1 << 20), checked_spread = 1;

template <class Routine, template <class> class Operands, class T>
class MatrixExperiment : public Experiment {
 public:
  explicit MatrixExperiment(int n) : operands_(n) {}
  bool offered_by(const Library& library) const override { return entry(library); }
  void time(const Library& library, benchmark::State& state) override {
    auto* routine = entry(library);
    operands_.fill(steady_spread);
    for (auto _ : state) Routine::template call<T>(routine, operands_);
  }
  double check(const Library& library) override {
    Operands<T> before(operands_.n);
    before.fill(checked_spread);
    operands_.fill(checked_spread);
    Routine::template call<T>(entry(library), operands_);
    return Routine::template error<T>(before, operands_);
  }

 private:
  static auto* entry(const Library& library) {
    return library.find<typename Routine::template Entry<T>>(std::string(Routine::names[Scalar<T>::index]) +
                                                             '_');
  }
  Operands<T> operands_;
};

struct MatrixLevel {
  int level;     // 2 or 3, the power of n in the work
  int matrices;  // of the operands
};

// `option` is said in the shape; `curve` sets the routine apart from others of its name in the chart.
template <class Routine, template <class> class Operands, class T>
void add_matrix_cases(std::vector<Case>& cases, MatrixLevel l, const std::string& option,
                      const std::string& curve) {
  const std::string level = std::to_string(l.level);
  for (int n : {10, 50, 200, 1000}) {
    const double elements = double(n) * n, terms = l.level == 3 ? elements * n : elements;
    cases.push_back({.group = "level " + level + ", " + letter_of<T>(),
                     .family = "level-" + level,
                     .routine = Routine::routine + curve,
                     .type = letter_of<T>(),
                     .entry = Routine::names[Scalar<T>::index],
                     .shape = option + "n " + std::to_string(n),
                     .alignment = "16",
                     .work = {Routine::operations * terms * (Scalar<T>::is_complex ? 4 : 1), Unit::gflops},
                     .footprint = l.matrices * elements * sizeof(T),
                     .quick = n == 200,
                     .abscissa = n,
                     .set_up = [n] { return std::make_unique<MatrixExperiment<Routine, Operands, T>>(n); }});
  }
}

}  // namespace orb::bench
