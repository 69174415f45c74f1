// What the regression chapter's files share.
#pragma once

#include <string>
#include <vector>

#include "tour/chapter.h"

namespace orb::tour {

// Correct decimal digits of each coefficient by each road.
struct Digits {
  std::string name;
  double normal_equations, reflectors;
};

// The same regression made harder by s: the condition of its matrix, and the worst relative error of a slope
// by each road; below 0 where the road ended before.
struct Mixture {
  double s, condition, normal_equations, reflectors;
};

void draw_regression(const Tour&, const std::vector<Digits>&, const std::vector<Mixture>&);

}  // namespace orb::tour
