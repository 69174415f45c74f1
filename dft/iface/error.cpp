// Statuses in words.
#include <string.h>

#include "orb/dfti.h"
#include "orb/services.h"
#include "serv/kernel/boundary.h"

namespace {
constexpr int first_message = 761;    // of STATUS_OK, the others in their order behind it
constexpr int unknown_message = 771;  // of every number that is no status
}  // namespace

ORB_EXPORT int DftiErrorClass(int status, int cls) { return status == cls; }
ORB_EXPORT int orb_dft_dfti_error_class_external(const int* status, const int* cls) {
  return status && cls && *status == *cls;
}

ORB_EXPORT const char* DftiErrorMessage(int status) {
  const bool known = status >= STATUS_OK && status <= STATUS_LENGTH_LIMIT;
  return orb_serv_orb_get_msg(known ? first_message + status : unknown_message, 0);
}
ORB_EXPORT int orb_dft_dfti_error_message_external(char* buffer, const int* length, const int* status) {
  if (!buffer || !length || !status) return STATUS_BAD_PARAMETER;
  if (*length <= 0) return STATUS_OK;
  const char* text = DftiErrorMessage(*status);
  const size_t room = size_t(*length), words = strlen(text);
  memset(buffer, ' ', room);
  memcpy(buffer, text, words < room ? words : room);
  return STATUS_OK;
}
