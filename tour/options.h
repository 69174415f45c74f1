// The command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace orb::tour {

struct Options {
  std::string data = "tour/data";
  std::string out = "build/tour";
  std::string matrix = {};    // a file for the sparse chapter, which alone is then shown if no chapter is named
  std::vector<int> chapters;  // empty: all
  bool help = false;
};

inline constexpr char usage[] =
    "orb-tour [--data DIR] [--out DIR] [--matrix FILE] [CHAPTER...]\n"
    "  --data DIR   the input files (tour/data)\n"
    "  --out DIR    where the pictures go (build/tour)\n"
    "  --matrix F   a matrix of your own, in Matrix Market form, for the sparse chapter (4)\n"
    "  CHAPTER      numbers of the chapters to show; all of them if none is given\n";

inline constexpr int sparse_chapter = 4;

// The options, or a sentence that says what is wrong with them. `last` is the number of the last chapter.
std::variant<Options, std::string> parse_options(const std::vector<std::string>& arguments, int last);

}  // namespace orb::tour
