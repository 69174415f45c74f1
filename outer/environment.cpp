#include "outer/environment.h"

#include <errno.h>
#include <stdlib.h>

#include "outer/messages.h"

namespace orb {

int environment_number(const char* name, int low, int high, int otherwise) {
  const char* text = getenv(name);
  if (!text) return otherwise;
  char* end;
  errno = 0;
  const long value = strtol(text, &end, 10);
  if (end != text && !*end && errno == 0 && low <= value && value <= high) return int(value);
  warn(orb_serv_orb_get_msg(environment_ignored, 4, name, text, low, high));
  return otherwise;
}

}  // namespace orb
