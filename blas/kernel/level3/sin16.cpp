// Dot kernels of the single-precision product: a tile of A by all columns of a B panel, added to a tile of C.
// Four rows and one column at a time, four terms of each dot product side by side in a register. The row
// groups of a column do not depend on each other, so the processor starts one while the last sums of the
// other are on their way.
#include "blas/kernel/level3/sgemm_panels.h"
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

// c[row] += a[row] . b for the four rows of one group, c on a 16-byte boundary.
template <int depth>
ORB_INLINE void add_dots(const float* a, const float* b, float* c) {
  f32x4 sum[4] = {};
  unroll<depth / 4>([&](auto block) {
    const f32x4 terms = f32x4::load(b + 4 * block);
    unroll<4>([&](auto row) { sum[row] += f32x4::load(a + a_tile(depth, 0, block, row)) * terms; });
    keep_in_registers(sum);
  });
  (f32x4::load(c) + f32x4::sums(sum)).store(c);
}

template <int rows, int depth>
ORB_INLINE void inner(int n, const float* a, const float* b, int ldb, float* c, int ldc) {
  for (int j = 0; j < n; ++j, b += ldb, c += ldc)
    for (int group = 0; group < rows / 4; ++group)
      add_dots<depth>(a + a_tile(depth, group, 0, 0), b, c + 4 * group);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sin16_16(const int*, const int* n, const int*, const float* a, const float* b,
                                  const int* ldb, float* c, const int* ldc) {
  orb::blas::inner<16, 16>(*n, a, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_sin16_32(const int*, const int* n, const int*, const float* a, const float* b,
                                  const int* ldb, float* c, const int* ldc) {
  orb::blas::inner<16, 32>(*n, a, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_sin16_48(const int*, const int* n, const int*, const float* a, const float* b,
                                  const int* ldb, float* c, const int* ldc) {
  orb::blas::inner<16, 48>(*n, a, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_sin16_64(const int*, const int* n, const int*, const float* a, const float* b,
                                  const int* ldb, float* c, const int* ldc) {
  orb::blas::inner<16, 64>(*n, a, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_sin8_64(const int*, const int* n, const int*, const float* a, const float* b,
                                 const int* ldb, float* c, const int* ldc) {
  orb::blas::inner<8, 64>(*n, a, b, *ldb, c, *ldc);
}
