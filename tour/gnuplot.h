// Pictures are drawn by gnuplot, where it is installed.
#pragma once

#include <filesystem>

namespace orb::tour {

enum class Drawn { yes, no_gnuplot, failed };

// Runs a script. Paths in it are taken from the folder in which this program runs.
Drawn run_gnuplot(const std::filesystem::path& script);

}  // namespace orb::tour
