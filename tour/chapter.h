// A chapter of the tour: one family of routines at work on real data. Each is a file of its own and a row in
// the table of main.cpp.
#pragma once

#include <filesystem>

#include "tour/report.h"

namespace orb::tour {

struct Tour {
  std::filesystem::path data;      // input files
  std::filesystem::path pictures;  // where pictures, their data and scripts go
  Report& report;
  std::filesystem::path matrix = {};  // the user's own, for the sparse chapter
};

struct Chapter {
  int number;
  const char* title;
  void (*run)(Tour&);
};

void dense(Tour&);
void sparse(Tour&);
void regression(Tour&);
void spectrum(Tour&);

// Which libraries were loaded, for which class of processor, and how many threads they may use.
void introduce(Report&);

}  // namespace orb::tour
