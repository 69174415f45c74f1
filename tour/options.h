// The command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace orb::tour {

struct Options {
  std::string data = "tour/data";
  std::string out = "build/tour";
  std::vector<int> chapters;  // empty: all
  bool help = false;
};

inline constexpr char usage[] =
    "orb-tour [--data DIR] [--out DIR] [CHAPTER...]\n"
    "  --data DIR   the input files (tour/data)\n"
    "  --out DIR    where the pictures go (build/tour)\n"
    "  CHAPTER      numbers of the chapters to show; all of them if none is given\n";

// The options, or a sentence that says what is wrong with them. `last` is the number of chapters.
std::variant<Options, std::string> parse_options(const std::vector<std::string>& arguments, int last);

}  // namespace orb::tour
