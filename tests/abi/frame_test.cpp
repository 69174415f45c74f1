#include "orb/frame.h"

#include "gtest/gtest.h"
#include "tests/support/call.h"
#include "tests/support/guarded.h"

using orb::test::call;

namespace {

// Probes take any arguments: six pointers to guarded memory, which must stay as it is.
template <class R>
R probe(R (*f)(void)) {
  orb::test::Guarded<int> words(16);
  for (int& w : words) w = 0x5A5A5A5A;
  const auto entry = reinterpret_cast<R (*)(int*, int*, int*, int*, int*, int*)>(reinterpret_cast<void*>(f));
  int* const w = words.data();
  struct Unchanged {
    const orb::test::Guarded<int>& words;
    ~Unchanged() {
      for (int v : words) EXPECT_EQ(v, 0x5A5A5A5A);
    }
  } check{words};
  return call(entry, w, w + 1, w + 2, w + 3, w + 4, w + 5);
}

TEST(Frame, ClassIsThree) { EXPECT_EQ(call(dll_cpu_version), 3); }

#define PROBE_GEMM(letter)                                      \
  TEST(Frame, letter##gemm_probes) {                            \
    EXPECT_EQ(probe(orb_blas_##letter##gemm_api_support), 0);   \
    EXPECT_EQ(probe(orb_blas_x##letter##gemm_par), 0);          \
    EXPECT_EQ(probe(orb_blas_##letter##gemm_get_bufs_size), 0); \
    EXPECT_EQ(probe(orb_blas_##letter##gemm_get_kernel), 0);    \
    EXPECT_EQ(probe(orb_blas_##letter##gemm_get_bufs), 0);      \
    probe(orb_blas_##letter##gemm_zero_desc);                   \
    probe(orb_blas_##letter##gemm_get_optimal_kernel);          \
    probe(orb_blas_##letter##gemm_get_blks_size);               \
    probe(orb_blas_##letter##gemm_set_blks_size);               \
    probe(orb_blas_##letter##gemm_num_kernels);                 \
    probe(orb_blas_##letter##gemm_free_bufs);                   \
  }
PROBE_GEMM(s)
PROBE_GEMM(d)
PROBE_GEMM(c)
PROBE_GEMM(z)

TEST(Frame, ThreadStepsAreAbsent) {
  for (auto* f : {orb_blas_xstrmv_in_thread, orb_blas_xdtrmv_in_thread, orb_blas_xctrmv_in_thread,
                  orb_blas_xztrmv_in_thread, orb_blas_xssyr_in_thread, orb_blas_xdsyr_in_thread,
                  orb_blas_xssyr2_in_thread, orb_blas_xdsyr2_in_thread})
    probe(f);
}

}  // namespace
