#include "bench/results_file.h"

#include <fstream>

#include "bench/format.h"
#include "bench/machine.h"

namespace orb::bench {
namespace {

void write_result(std::ostream& out, const Result& result, const Libraries& libraries) {
  const Case& subject = *result.subject;
  const auto ratio = ratio_to_peers(result, libraries.ours);
  for (std::size_t i = 0; i < result.by_library.size(); ++i) {
    const auto& measurement = result.by_library[i];
    if (!measurement) continue;
    out << '"' << subject.group << "\"," << subject.entry << ',' << subject.type << ",\"" << subject.shape
        << "\"," << subject.alignment << ',' << cache_that_holds(subject.footprint) << ','
        << libraries.open[i].name << ',' << measurement->best << ',' << measurement->median << ','
        << rate(subject.work, measurement->best) << ',' << name_of(subject.work.unit) << ','
        << measurement->error << ',' << (ratio && i == 0 ? formatted("%.4f", *ratio) : "") << '\n';
  }
}

}  // namespace

bool write_results(const std::filesystem::path& file, const std::vector<std::string>& heading,
                   const std::vector<Result>& results, const Libraries& libraries) {
  std::ofstream out(file);
  for (const std::string& line : heading) out << "# " << line << '\n';
  out << "group,routine,type,shape,alignment,hot_in,library,best_seconds,median_seconds,rate,unit,"
         "error_over_bound,ratio_to_best_peer\n";
  for (const Result& result : results) write_result(out, result, libraries);
  return bool(out.flush());
}

}  // namespace orb::bench
