// Time, and a sign of life for whoever waits: long work shows how far it is.
#pragma once

#include <unistd.h>

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
    if (live_ && shown_ > 0) std::fprintf(stderr, "\r%*s\r", width, "");
  }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Says where the work is, every two seconds at most: in one line of a terminal, or seldom in lines of a
  // log.
  void at(const std::string& place) {
    const double now = watch_.seconds();
    if (now < shown_ + (live_ ? 2 : 20)) return;
    shown_ = now;
    char line[width + 1];
    std::snprintf(line, sizeof line, "  ... %.0f s, %s: %s", now, work_.c_str(), place.c_str());
    std::fprintf(stderr, live_ ? "\r%-*s" : "%.*s\n", width, line);
  }

 private:
  static constexpr int width = 90;
  std::string work_;
  Stopwatch watch_;
  double shown_ = 0;
  bool live_ = isatty(STDERR_FILENO);
};

}  // namespace orb::tour
