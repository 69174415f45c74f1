// The allocator of the signal transforms: 32-byte boundaries on top of whatever the process's hook gives.
#include <stdint.h>

#include "orb/services.h"
#include "orb/signal.h"
#include "serv/kernel/boundary.h"

ORB_EXPORT void* t7_vspMalloc(int size) {
  if (size < 1) return nullptr;
  void* const raw = i_malloc(size_t(size) + 36);
  if (!raw) return nullptr;
  // At least one word lies between the raw start and the boundary: it holds what is to be freed.
  const uintptr_t block = (reinterpret_cast<uintptr_t>(raw) + 35) & ~uintptr_t(31);
  reinterpret_cast<void**>(block)[-1] = raw;
  return reinterpret_cast<void*>(block);
}
ORB_EXPORT void t7_vspFree(void* block) {
  if (block) i_free(static_cast<void**>(block)[-1]);
}

namespace {
// n elements; a count whose bytes no 32-bit size can hold is refused like a failed allocation.
template <class T>
T* allocate(int n) {
  if (n < 1 || n > (INT32_MAX - 36) / int(sizeof(T))) return nullptr;
  return static_cast<T*>(t7_vspMalloc(n * int(sizeof(T))));
}
}  // namespace

ORB_EXPORT unsigned char* t7_vspsMalloc_8u(int n) { return allocate<unsigned char>(n); }
ORB_EXPORT float* t7_vspsMalloc_32f(int n) { return allocate<float>(n); }
ORB_EXPORT double* t7_vspsMalloc_64f(int n) { return allocate<double>(n); }
ORB_EXPORT void t7_vspsFree(void* block) { t7_vspFree(block); }
