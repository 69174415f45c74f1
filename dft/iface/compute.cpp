// The C entries of computation: straight into the routine that the commit installed, with all four words that
// may stand on the stack.
#include <stdarg.h>

#include "orb/dfti.h"
#include "serv/kernel/boundary.h"

namespace orb::dft {
namespace {

// Callers pass as many arrays as their configuration has. The words behind them are read, whatever they are,
// and nobody looks at them: so the address sanitizer may not object to them.
__attribute__((no_sanitize("address"))) int compute(DftiRecord* head, DftiCompute DftiRecord::*routine,
                                                    va_list words) {
  if (!head) return STATUS_BAD_DESCRIPTOR;
  if (!(head->*routine)) return STATUS_INVALID_ARGUMENT;
  void* a[4];
  for (void*& word : a) word = va_arg(words, void*);
  return (head->*routine)(head, a[0], a[1], a[2], a[3]);
}

}  // namespace
}  // namespace orb::dft

ORB_EXPORT int DftiComputeForward(DftiRecord* handle, ...) {
  va_list words;
  va_start(words, handle);
  const int status = orb::dft::compute(handle, &DftiRecord::compute_forward, words);
  va_end(words);
  return status;
}
ORB_EXPORT int DftiComputeBackward(DftiRecord* handle, ...) {
  va_list words;
  va_start(words, handle);
  const int status = orb::dft::compute(handle, &DftiRecord::compute_backward, words);
  va_end(words);
  return status;
}
