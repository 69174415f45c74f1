// Time, and a sign of life for whoever waits: work that takes longer than two seconds shows how far it is.
#pragma once

#include <chrono>
#include <cstdio>
#include <string>

namespace orb::tour {

class Stopwatch {
 public:
  double seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point start_ = Clock::now();
};

class Progress {
 public:
  explicit Progress(std::string work) : work_(std::move(work)) {}
  ~Progress() {
    if (shown_ > 0) std::fprintf(stderr, "\r%60s\r", "");
  }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Says where the work is, every two seconds at most.
  void at(const std::string& place) {
    const double now = watch_.seconds();
    if (now < shown_ + 2) return;
    shown_ = now;
    std::fprintf(stderr, "\r  ... %s: %s, %.0f s ", work_.c_str(), place.c_str(), now);
  }

 private:
  std::string work_;
  Stopwatch watch_;
  double shown_ = 0;
};

}  // namespace orb::tour
