#include "bench/report.h"

#include <cmath>
#include <map>

#include "bench/format.h"
#include "bench/machine.h"
#include "bench/statistics.h"

namespace orb::bench {
namespace {

constexpr double clear_difference = 0.97;  // closer than 3 % is noise

std::string rate_of(const Case& subject, const std::optional<Measurement>& measurement) {
  return measurement ? formatted("%.2f", rate(subject.work, measurement->best)) : "-";
}

std::string ratio_text(const Result& result, const Libraries& libraries) {
  const auto ratio = ratio_to_peers(result, libraries.ours);
  if (!ratio) return "-";
  return formatted("%.2f ", *ratio) + libraries.open[*fastest_peer(result, libraries.ours)].name;
}

void print_heading(const Libraries& libraries) {
  std::string line = "routine shape                     align hot in ";
  if (libraries.ours) line += "      best    median";
  for (const Library& library : libraries.open) line += right(library.name, 10);
  std::printf("%s  unit     ratio to the best peer\n", line.c_str());
}

void print_line(const Result& result, const Libraries& libraries) {
  const Case& subject = *result.subject;
  std::string line = left(subject.entry, 8) + left(subject.shape, 26) + left(subject.alignment, 6) +
                     left(cache_that_holds(subject.footprint), 7);
  if (libraries.ours) {
    const auto& ours = result.by_library[0];
    line += right(ours ? duration(ours->best) : "-", 10) + right(ours ? duration(ours->median) : "-", 10);
  }
  for (const auto& measurement : result.by_library) line += right(rate_of(subject, measurement), 10);
  line += "  " + left(std::string(name_of(subject.work.unit)), 9) + ratio_text(result, libraries);
  std::printf("%s\n", line.c_str());
}

struct Group {
  std::vector<double> ratios;
  const Result* worst = nullptr;
  double worst_ratio = 0;

  void add(const Result& result, double ratio) {
    ratios.push_back(ratio);
    if (!worst || ratio < worst_ratio) worst = &result, worst_ratio = ratio;
  }
};

void print_group(const std::string& name, const Group& group) {
  std::printf("%s%5zu   %6.2f   %6.2f  %s\n", left(name, 12).c_str(), group.ratios.size(),
              geometric_mean(group.ratios), group.worst_ratio, group.worst->subject->name().c_str());
}

}  // namespace

std::vector<std::string> describe_run(const Libraries& libraries, const Options& options) {
  std::vector<std::string> lines = describe_machine();
  lines.push_back("run        " + std::to_string(options.threads) + " thread(s), " +
                  std::to_string(options.repetitions) + " repetitions of " +
                  formatted("%g s", options.min_time) + ", seed " + std::to_string(options.seed));
  for (const Library& library : libraries.open)
    lines.push_back(left(library.name, 11) + library.path + " (" + library.version + ")");
  for (const Missing& missing : libraries.missing)
    lines.push_back(left(missing.name, 11) + "not found: " + missing.reason);
  return lines;
}

void print_table(const std::vector<Result>& results, const Libraries& libraries) {
  const std::string* family = nullptr;
  for (const Result& result : results) {
    if (!family || *family != result.subject->family) {
      family = &result.subject->family;
      std::printf("\n");
      print_heading(libraries);
    }
    print_line(result, libraries);
  }
}

void print_summary(const std::vector<Result>& results, const Libraries& libraries) {
  std::map<std::string, Group> groups;
  Group all;
  for (const Result& result : results)
    if (const auto ratio = ratio_to_peers(result, libraries.ours)) {
      groups[result.subject->group].add(result, *ratio);
      all.add(result, *ratio);
    }
  if (groups.empty()) return;
  std::printf("\nRatios of the best peer's time to ours: above 1 we are faster.\n");
  std::printf("group       cases  geo.mean   worst  case\n");
  for (const auto& [name, group] : groups) print_group(name, group);
  print_group("all", all);
  std::printf("\nCases in which a peer is faster by more than 3 %%:\n");
  for (const Result& result : results)
    if (const auto ratio = ratio_to_peers(result, libraries.ours); ratio && *ratio < clear_difference)
      std::printf("  %s  %s\n", ratio_text(result, libraries).c_str(), result.subject->name().c_str());
}

int report_errors(const std::vector<Result>& results, const Libraries& libraries) {
  int wrong = 0;
  for (const Result& result : results)
    for (std::size_t i = 0; i < result.by_library.size(); ++i) {
      const auto& measurement = result.by_library[i];
      if (!measurement || measurement->error <= 1) continue;
      ++wrong;
      std::printf("WRONG: %s by %s: error is %.3g of its bound\n", result.subject->name().c_str(),
                  libraries.open[i].name.c_str(), measurement->error);
    }
  return wrong;
}

}  // namespace orb::bench
