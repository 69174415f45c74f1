// orb-bench: each routine beside the same routine of the other libraries that are installed, in one run.
#include <cstdio>
#include <filesystem>
#include <random>
#include <regex>

#include "bench/chart.h"
#include "bench/engine.h"
#include "bench/report.h"
#include "bench/results_file.h"
#include "tour/progress.h"

namespace {

using namespace orb::bench;
namespace tour = orb::tour;

std::vector<Case> chosen_cases(const Options& options) {
  const std::regex pattern(options.filter);
  std::vector<Case> cases;
  for (Case& candidate : all_cases())
    if ((candidate.quick || !options.quick) && std::regex_search(candidate.name(), pattern))
      cases.push_back(std::move(candidate));
  return cases;
}

// In random order, as order alone can shift results; back in the order of the report.
std::vector<Result> run_all(const std::vector<Case>& cases, const Libraries& libraries,
                            const Options& options) {
  std::vector<std::size_t> order(cases.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::shuffle(order.begin(), order.end(), std::mt19937(options.seed));
  std::vector<Result> results(cases.size());
  Engine engine(options);
  tour::Progress progress("measuring");
  std::size_t done = 0;
  for (std::size_t i : order) {
    progress.at(std::to_string(++done) + " of " + std::to_string(cases.size()) + ", " + cases[i].name());
    results[i] = engine.run(cases[i], libraries.open);
  }
  return results;
}

int run(Options options) {
  if (options.seed == 0) options.seed = std::random_device{}() % 1000000 + 1;
  const Libraries libraries = open_libraries(options.library, options.peers, options.threads);
  const std::vector<std::string> heading = describe_run(libraries, options);
  for (const std::string& line : heading) std::printf("%s\n", line.c_str());
  std::fflush(stdout);
  const std::vector<Case> cases = chosen_cases(options);
  if (cases.empty() || libraries.open.empty()) {
    std::fprintf(stderr, "orb-bench: there is nothing to measure\n");
    return 2;
  }
  const std::vector<Result> results = run_all(cases, libraries, options);
  print_table(results, libraries);
  print_summary(results, libraries);
  std::filesystem::create_directories(options.folder);
  const auto file = std::filesystem::path(options.folder) / "results.csv";
  const bool written = write_results(file, heading, results, libraries);
  std::printf("\n%s %s\n", written ? "results:" : "cannot write", file.c_str());
  draw_charts(options.folder, results, libraries);
  return report_errors(results, libraries) || !written ? 1 : 0;
}

}  // namespace

int main(int count, char** arguments) {
  const auto parsed = parse_options({arguments + 1, arguments + count});
  if (const auto* wrong = std::get_if<std::string>(&parsed)) {
    std::fprintf(stderr, "orb-bench: %s\n%s", wrong->c_str(), usage);
    return 2;
  }
  const Options& options = std::get<Options>(parsed);
  if (options.help) return std::fputs(usage, stdout), 0;
  try {
    return run(options);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "orb-bench: %s\n", failure.what());
    return 2;
  }
}
