// What the dense chapter's files share.
#pragma once

#include <string>
#include <vector>

#include "tour/chapter.h"
#include "tour/singular.h"

namespace orb::tour {

// One rebuilt map, or the original with no components.
struct Map {
  std::string name;   // of its files
  std::string title;  // above its picture
  Matrix heights;     // rows from south to north, columns from east to west
};

void draw_maps(const Tour&, const std::vector<Map>&);
void draw_spectrum(const Tour&, const std::vector<double>& all, const Components& leading);

// A large product of random matrices: its speed, and whether it is right.
void time_product(Report&);

}  // namespace orb::tour
