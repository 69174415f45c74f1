// results.csv: one line for each case and library, after comment lines that tell the machine and the run.
#pragma once

#include <filesystem>

#include "bench/engine.h"

namespace orb::bench {

// False if the file cannot be written.
bool write_results(const std::filesystem::path& file, const std::vector<std::string>& heading,
                   const std::vector<Result>& results, const Libraries& libraries);

}  // namespace orb::bench
