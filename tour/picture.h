// Scripts for gnuplot beside the pictures that they make, and a line of the report about each.
#pragma once

#include <fstream>
#include <string>

#include "tour/chapter.h"

namespace orb::tour {

// Opens NAME.gp, which writes NAME.png of this many pixels.
std::ofstream open_script(const Tour&, const std::string& name, int width, int height);

// Closes and draws it, and says what came of it.
void finish(const Tour&, std::ofstream& script, const std::string& name);

}  // namespace orb::tour
