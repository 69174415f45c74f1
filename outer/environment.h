// Numbers from the environment.
#pragma once

namespace orb {

// The decimal number in the environment variable `name`. Unset: `otherwise`; anything but a number from `low`
// to `high`: `otherwise` too, with a warning.
int environment_number(const char* name, int low, int high, int otherwise);

}  // namespace orb
