#include "tour/report.h"

#include <cstdarg>
#include <cstdio>
#include <sstream>

namespace orb::tour {
namespace {
constexpr std::size_t page_width = 100;
}

std::string text(const char* format, ...) {
  char buffer[1024];
  va_list values;
  va_start(values, format);
  std::vsnprintf(buffer, sizeof buffer, format, values);
  va_end(values);
  return buffer;
}

void Report::heading(int number, const std::string& title) {
  std::printf("\n%d  %s\n\n", number, title.c_str());
  std::fflush(stdout);
}

void Report::paragraph(const std::string& words) {
  std::istringstream in(words);
  std::string current = "  ";
  for (std::string word; in >> word;) {
    if (current.size() + 1 + word.size() > page_width) {
      std::printf("%s\n", current.c_str());
      current = "  ";
    }
    current += (current.size() > 2 ? " " : "") + word;
  }
  std::printf("%s\n\n", current.c_str());
}

void Report::line(const std::string& words) { std::printf("  %s\n", words.c_str()); }

void Report::gap() { std::printf("\n"); }

void Report::fact(const std::string& name, const std::string& value) {
  std::printf("  %-12s %s\n", name.c_str(), value.c_str());
}

void Report::check(const std::string& what, double error, double bound) {
  ++checks_;
  const bool right = error <= bound;
  if (!right) ++failures_;
  std::printf("  [%s] %-74s %.1e <= %.1e\n", right ? "ok" : "WRONG", what.c_str(), error, bound);
  if (!right) std::printf("  The error of the line above is beyond its bound: the result is wrong.\n");
  std::fflush(stdout);
}

}  // namespace orb::tour
