// Figures as they are printed.
#pragma once

#include <cstdio>
#include <string>

namespace orb::bench {

inline std::string formatted(const char* format, double value) {
  char text[64];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

// Three digits and a unit, as in "4.71 ns" or "132 us".
inline std::string duration(double seconds) {
  struct Scale {
    double unit;
    const char* name;
  };
  constexpr Scale scales[] = {{1e-9, " ns"}, {1e-6, " us"}, {1e-3, " ms"}, {1, " s"}};
  const Scale* scale = scales;
  while (scale->unit < 1 && seconds >= 999.5 * scale->unit) ++scale;
  const double value = seconds / scale->unit;
  return formatted(value < 9.995 ? "%.2f" : value < 99.95 ? "%.1f" : "%.0f", value) + scale->name;
}

// At least the width, filled on the left or on the right.
inline std::string right(std::string text, std::size_t width) {
  return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}
inline std::string left(std::string text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

}  // namespace orb::bench
