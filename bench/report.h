// The table and the summary for the reader's eye.
#pragma once

#include <string>
#include <vector>

#include "bench/engine.h"

namespace orb::bench {

// Machine, compiler, libraries: the lines above the table.
std::vector<std::string> describe_run(const Libraries& libraries, const Options& options);

void print_table(const std::vector<Result>& results, const Libraries& libraries);

// Per group the geometric mean and the worst of the ratios; then every case in which a peer is clearly
// faster.
void print_summary(const std::vector<Result>& results, const Libraries& libraries);

// Prints the results that miss their bound, and counts them.
int report_errors(const std::vector<Result>& results, const Libraries& libraries);

}  // namespace orb::bench
