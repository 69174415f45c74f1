#include "bench/machine.h"

#include <benchmark/benchmark.h>
#include <sys/utsname.h>

#include <ctime>
#include <fstream>

#include "bench/format.h"

namespace orb::bench {
namespace {

const std::vector<benchmark::CPUInfo::CacheInfo>& caches() { return benchmark::CPUInfo::Get().caches; }

std::string processor() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);)
    if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
  return "unknown processor";
}

std::string cache_sizes() {
  std::string text;
  for (const auto& cache : caches())
    if (cache.type != "Instruction")
      text += (text.empty() ? "L" : ", L") + std::to_string(cache.level) + ' ' +
              std::to_string(cache.size / 1024) + " KiB";
  return text.empty() ? "unknown" : text;
}

std::string system_name() {
  utsname system{};
  uname(&system);
  return std::string(system.sysname) + ' ' + system.release + ", 32-bit program";
}

std::string today() {
  const std::time_t now = std::time(nullptr);
  char text[64];
  std::strftime(text, sizeof text, "%Y-%m-%d %H:%M UTC", std::gmtime(&now));
  return text;
}

}  // namespace

std::vector<std::string> describe_machine() {
  const auto& cpu = benchmark::CPUInfo::Get();
  const std::string load = cpu.load_avg.empty() ? "unknown" : formatted("%.2f", cpu.load_avg[0]);
  return {"processor  " + processor() + ", " + std::to_string(cpu.num_cpus) + " cores, " +
              formatted("%.2f GHz", cpu.cycles_per_second * 1e-9),
          "caches     " + cache_sizes(), "system     " + system_name() + ", load " + load,
#ifdef __clang__
          "compiler   " __VERSION__,
#else
          "compiler   GCC " __VERSION__,
#endif
          "date       " + today()};
}

std::string cache_that_holds(double bytes) {
  for (const auto& cache : caches())
    if (cache.type != "Instruction" && bytes <= cache.size) return formatted("L%.0f", cache.level);
  return "memory";
}

}  // namespace orb::bench
