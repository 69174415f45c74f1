// Runs cases on Google Benchmark: all libraries of a case in one go, their repetitions in random turn, so
// that the noise of a shared machine meets all alike.
#pragma once

#include "bench/case.h"
#include "bench/options.h"
#include "bench/result.h"

namespace orb::bench {

class Engine {
 public:
  explicit Engine(const Options& options);
  Result run(const Case& subject, const std::vector<Library>& libraries);

 private:
  const Options& options_;
};

}  // namespace orb::bench
