// Charts by gnuplot: for each family small panels, one for each routine and type, rate over size.
#pragma once

#include <filesystem>

#include "bench/engine.h"

namespace orb::bench {

// Leaves FAMILY.gp, and FAMILY.svg where gnuplot is installed. Says what was written.
void draw_charts(const std::filesystem::path& folder, const std::vector<Result>& results,
                 const Libraries& libraries);

}  // namespace orb::bench
