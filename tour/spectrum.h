// What the spectrum chapter's files share.
#pragma once

#include "tour/chapter.h"
#include "tour/transform.h"

namespace orb::tour {

inline constexpr double months_a_year = 12;

// One number a month. `start` is the first month's middle, in years.
struct Observations {
  double start;
  Series values;
};

// Frequencies, in cycles over the whole series.
struct Band {
  int first, last;
  bool holds(int frequency) const { return first <= frequency && frequency <= last; }
};

struct Cycle {
  double period;  // years
  Band band;
  Series smooth;  // the series with nothing but the mean and the band
};

// The amplitude of the oscillation that a frequency stands for: it and its conjugate add up to twice one.
inline double amplitude(const Spectrum& s, int frequency, std::size_t n) {
  return 2 * std::abs(s[std::size_t(frequency)]) / double(n);
}

void draw_cycle(const Tour&, const Observations&, const Spectrum&, const Cycle&);

}  // namespace orb::tour
