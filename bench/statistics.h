// The few statistics of the report.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace orb::bench {

// Middle value, or the mean of the two in the middle. The list may not be empty.
inline double median(std::vector<double> values) {
  const auto middle = values.begin() + long(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  if (values.size() % 2) return *middle;
  return (*std::max_element(values.begin(), middle) + *middle) / 2;
}

// Mean of ratios: 2 and 1/2 give 1. An empty list gives 1.
inline double geometric_mean(const std::vector<double>& ratios) {
  double sum = 0;
  for (double ratio : ratios) sum += std::log(ratio);
  return ratios.empty() ? 1 : std::exp(sum / double(ratios.size()));
}

}  // namespace orb::bench
