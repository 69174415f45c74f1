// Option letters and the version text.
#include <string.h>

#include "orb/services.h"
#include "outer/boundary.h"

namespace {

constexpr char version[] = "orb " ORB_VERSION " for 32-bit x86 with SSE2 and SSE3 (processor class 3)";

// Letters fold to lower case, all else stays: '@' is no '`'.
char fold(char c) { return 'A' <= c && c <= 'Z' ? char(c | 0x20) : c; }

}  // namespace

ORB_EXPORT int orb_serv_lsame(const char* a, const char* b, int, int) { return fold(*a) == fold(*b); }

ORB_EXPORT void orb_serv_getversionstring(char* buffer, int length) {
  if (length <= 0) return;
  const size_t room = size_t(length), text = strlen(version);
  memset(buffer, ' ', room);
  memcpy(buffer, version, text < room ? text : room);
}

ORB_EXPORT void orb_serv_getversionstring_c(char* buffer, int length) {
  if (length <= 0) return;
  const size_t room = size_t(length) - 1, text = strlen(version), kept = text < room ? text : room;
  memcpy(buffer, version, kept);
  buffer[kept] = 0;
}
