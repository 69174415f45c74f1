// The calls of dfti.h for applications: each goes on into the kernel library. Of further arguments whatever
// stands on the stack is passed on as words; the callee reads those that it knows of.
#include <stdarg.h>

#include "orb/dfti.h"
#include "outer/kernels.h"

namespace {

// The i-th word behind the named arguments. Callers may have passed fewer, so the address sanitizer may not
// object to it.
template <class T, int count>
struct Words {
  T at[count];
  __attribute__((no_sanitize("address"))) explicit Words(va_list rest) {
    for (T& w : at) w = va_arg(rest, T);
  }
};
template <class T, int count>
Words<T, count> words_of(va_list rest) {
  const Words<T, count> words(rest);
  va_end(rest);
  return words;
}

}  // namespace

using orb::call;

ORB_EXPORT int DftiCreateDescriptor(DftiRecord** handle, int precision, int domain, int rank, ...) {
  va_list rest;
  va_start(rest, rank);
  const auto w = words_of<unsigned, 1>(rest);
  return call<orb::words::DftiCreateDescriptor>(handle, precision, domain, rank, w.at[0]);
}
ORB_EXPORT int DftiSetValue(DftiRecord* handle, int key, ...) {
  va_list rest;
  va_start(rest, key);
  const auto w = words_of<unsigned, 2>(rest);
  return call<orb::words::DftiSetValue>(handle, key, w.at[0], w.at[1]);
}
ORB_EXPORT int DftiGetValue(DftiRecord* handle, int key, ...) {
  va_list rest;
  va_start(rest, key);
  const auto w = words_of<unsigned, 1>(rest);
  return call<orb::words::DftiGetValue>(handle, key, w.at[0]);
}
ORB_EXPORT int DftiComputeForward(DftiRecord* handle, ...) {
  va_list rest;
  va_start(rest, handle);
  const auto w = words_of<void*, 4>(rest);
  return call<orb::words::DftiComputeForward>(handle, w.at[0], w.at[1], w.at[2], w.at[3]);
}
ORB_EXPORT int DftiComputeBackward(DftiRecord* handle, ...) {
  va_list rest;
  va_start(rest, handle);
  const auto w = words_of<void*, 4>(rest);
  return call<orb::words::DftiComputeBackward>(handle, w.at[0], w.at[1], w.at[2], w.at[3]);
}

ORB_EXPORT int DftiCreateDescriptor_s_1d(DftiRecord** handle, int domain, int length) {
  return call<DftiCreateDescriptor_s_1d>(handle, domain, length);
}
ORB_EXPORT int DftiCreateDescriptor_d_1d(DftiRecord** handle, int domain, int length) {
  return call<DftiCreateDescriptor_d_1d>(handle, domain, length);
}
ORB_EXPORT int DftiCreateDescriptor_s_md(DftiRecord** handle, int domain, int rank, const int* lengths) {
  return call<DftiCreateDescriptor_s_md>(handle, domain, rank, lengths);
}
ORB_EXPORT int DftiCreateDescriptor_d_md(DftiRecord** handle, int domain, int rank, const int* lengths) {
  return call<DftiCreateDescriptor_d_md>(handle, domain, rank, lengths);
}
ORB_EXPORT int DftiCommitDescriptor(DftiRecord* handle) { return call<DftiCommitDescriptor>(handle); }
ORB_EXPORT int DftiCopyDescriptor(DftiRecord* source, DftiRecord** copy) {
  return call<DftiCopyDescriptor>(source, copy);
}
ORB_EXPORT int DftiFreeDescriptor(DftiRecord** handle) { return call<DftiFreeDescriptor>(handle); }
ORB_EXPORT int DftiErrorClass(int status, int cls) { return call<DftiErrorClass>(status, cls); }
ORB_EXPORT const char* DftiErrorMessage(int status) { return call<DftiErrorMessage>(status); }
