// What one case gave: the times of all libraries, and how ours stands beside the fastest of the others.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace orb::bench {

struct Case;

struct Measurement {
  double best = 0, median = 0;  // seconds a call
  double error = 0;             // over its bound
};

struct Result {
  const Case* subject;
  std::vector<std::optional<Measurement>> by_library;  // none: it has no such routine, or sits this one out
};

// Index of the fastest library but ours, or none. Ours is the first, if it is there at all.
inline std::optional<std::size_t> fastest_peer(const Result& result, bool ours) {
  std::optional<std::size_t> fastest;
  for (std::size_t i = ours ? 1 : 0; i < result.by_library.size(); ++i) {
    const auto& peer = result.by_library[i];
    if (peer && (!fastest || peer->best < result.by_library[*fastest]->best)) fastest = i;
  }
  return fastest;
}

// The fastest peer's best time over ours: above 1 we are faster.
inline std::optional<double> ratio_to_peers(const Result& result, bool ours) {
  const auto peer = fastest_peer(result, ours);
  if (!ours || !peer || !result.by_library[0]) return {};
  return result.by_library[*peer]->best / result.by_library[0]->best;
}

}  // namespace orb::bench
