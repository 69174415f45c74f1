// What the figures were measured on.
#pragma once

#include <string>
#include <vector>

namespace orb::bench {

// One fact a line: processor, caches, load, system, compiler, date.
std::vector<std::string> describe_machine();

// The smallest cache of one core that holds so many bytes: "L1", "L2", "L3", or "memory".
std::string cache_that_holds(double bytes);

}  // namespace orb::bench
