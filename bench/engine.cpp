#include "bench/engine.h"

#include <map>

#include "bench/statistics.h"

namespace orb::bench {
namespace {

// Keeps the seconds a call of every repetition instead of printing them.
class Collector : public benchmark::BenchmarkReporter {
 public:
  explicit Collector(bool wall_clock) : wall_clock_(wall_clock) {}
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration)
        seconds_[run.run_name.function_name].push_back(
            1e-9 * (wall_clock_ ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime()));
  }
  const std::vector<double>& seconds(const std::string& name) { return seconds_[name]; }

 private:
  bool wall_clock_;
  std::map<std::string, std::vector<double>> seconds_;
};

}  // namespace

Engine::Engine(const Options& options) : options_(options) {
  std::string program = "orb-bench", interleave = "--benchmark_enable_random_interleaving=true";
  char* arguments[] = {program.data(), interleave.data(), nullptr};
  int count = 2;
  benchmark::Initialize(&count, arguments);
}

// On one thread the clock is the processor time of the whole process: time taken by other processes does not
// count, and a library that starts threads unasked gains nothing. On more threads it is the wall clock.
Result Engine::run(const Case& subject, const std::vector<Library>& libraries) {
  const auto experiment = subject.set_up();
  const bool wall_clock = options_.threads > 1;
  Collector collector(wall_clock);
  Result result{&subject, {}};
  for (const Library& library : libraries) {
    auto& measurement = result.by_library.emplace_back();
    if (!experiment->offered_by(library) || subject.work.amount > library.most_work) continue;
    measurement.emplace().error = experiment->check(library);
    auto* timed = benchmark::RegisterBenchmark(
        library.name.c_str(), [&](benchmark::State& state) { experiment->time(library, state); });
    timed->Unit(benchmark::kNanosecond)->MinTime(options_.min_time)->Repetitions(options_.repetitions);
    if (wall_clock)
      timed->UseRealTime();
    else
      timed->MeasureProcessCPUTime();
  }
  benchmark::RunSpecifiedBenchmarks(&collector);
  benchmark::ClearRegisteredBenchmarks();
  for (std::size_t i = 0; i < libraries.size(); ++i) {
    if (!result.by_library[i]) continue;
    const auto& seconds = collector.seconds(libraries[i].name);
    result.by_library[i]->best = *std::min_element(seconds.begin(), seconds.end());
    result.by_library[i]->median = median(seconds);
  }
  return result;
}

}  // namespace orb::bench
