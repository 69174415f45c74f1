// The command line.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "bench/library.h"

namespace orb::bench {

struct Options {
  std::string filter = "";    // regular expression on a case's name; empty takes all
  bool quick = false;         // the short list of cases
  double min_time = 0;        // seconds of one repetition; 0 chooses by `quick`
  int repetitions = 7;        // of each library in each case
  std::string library{};      // our library
  std::vector<Peer> peers{};  // further ones
  int threads = 1;
  unsigned seed = 0;     // of the order of the cases; 0 draws one
  std::string folder{};  // for the results and charts
  bool help = false;
};

// The options, or a sentence that says what is wrong with them.
std::variant<Options, std::string> parse_options(const std::vector<std::string>& arguments);

extern const char usage[];

}  // namespace orb::bench
