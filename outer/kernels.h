// The way into the kernel library: call<orb_blas_xddot>(n, x, incx, y, incy).
#pragma once

#include <atomic>

#include "orb/blas_gemm.h"
#include "orb/blas_lapack.h"
#include "orb/blas_level1.h"
#include "orb/blas_level2.h"
#include "orb/blas_level3.h"
#include "orb/blas_triangular.h"
#include "orb/sparse_kernels.h"
#include "orb/dft_commit.h"
#include "orb/dft_compute.h"
#include "orb/dft_real.h"
#include "orb/dfti.h"
#include "outer/boundary.h"

// Entries with further arguments, called with words for all that may be there: as tags of kernels only, never
// defined.
namespace orb::words {
int DftiCreateDescriptor(DftiRecord** handle, int precision, int domain, int rank, unsigned lengths);
int DftiSetValue(DftiRecord* handle, int key, unsigned word1, unsigned word2);
int DftiGetValue(DftiRecord* handle, int key, unsigned pointer);
int DftiComputeForward(DftiRecord* handle, void* a1, void* a2, void* a3, void* a4);
int DftiComputeBackward(DftiRecord* handle, void* a1, void* a2, void* a3, void* a4);
}  // namespace orb::words

namespace orb {

// Where the kernel `entry` stands. Until the kernel library is loaded this is a stand-in that loads it, fills
// in all kernels of kernels.def and goes on into the right one; afterwards a call is one indirect jump.
template <auto* entry>
struct __attribute__((visibility("hidden"))) Kernel {
  static std::atomic<decltype(entry)> address;
};
#define ORB_KERNEL(name) \
  template <>            \
  std::atomic<decltype(&name)> Kernel<name>::address;
#include "outer/kernels.def"
#undef ORB_KERNEL

// Relaxed: the address is all that one thread hands to another here. What it points to was complete before it
// was stored, and this processor keeps stores in order.
template <auto* entry>
ORB_INLINE auto kernel() {
  return Kernel<entry>::address.load(std::memory_order_relaxed);
}
template <auto* entry, class... A>
ORB_INLINE auto call(A... arguments) {
  return kernel<entry>()(arguments...);
}

}  // namespace orb
