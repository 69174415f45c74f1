// Packing of A tiles, times alpha. The rows run across the vectors of a column-major A (`sgtran`), which
// takes a transposition of 4 by 4 blocks, or along its columns (`sgtrat`).
#include "blas/kernel/level3/sgemm_panels.h"
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

// Rows in the inner loop: they share the cache lines of the four columns.
void sgtran(const float* a, int lda, int rows, int depth, float* tile, float alpha) {
  const f32x4 scale = f32x4::splat(alpha);
  for (int block = 0; block < depth / 4; ++block, a += 4 * lda)
    for (int group = 0; group < rows / 4; ++group) {
      f32x4 v[4];
      unroll<4>([&](auto k) { v[k] = f32x4::loadu(a + 4 * group + k * lda); });
      f32x4::transpose(v);
      unroll<4>([&](auto row) { (scale * v[row]).store(tile + a_tile(depth, group, block, row)); });
    }
}

void sgtrat(const float* a, int lda, int rows, int depth, float* tile, float alpha) {
  const f32x4 scale = f32x4::splat(alpha);
  for (int group = 0; group < rows / 4; ++group, a += 4 * lda)
    for (int block = 0; block < depth / 4; block += 4)
      unroll<4>([&](auto row) {
        unroll<4>([&](auto b) {
          (scale * f32x4::loadu(a + row * lda + 4 * (block + b)))
              .store(tile + a_tile(depth, group, block + b, row));
        });
      });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sgtran(const float* a, const int* lda, const int* rows, const int* k, float* buf,
                                const float* alpha) {
  orb::blas::sgtran(a, *lda, *rows, *k, buf, *alpha);
}
ORB_EXPORT void orb_blas_sgtrat(const float* a, const int* lda, const int* rows, const int* k, float* buf,
                                const float* alpha) {
  orb::blas::sgtrat(a, *lda, *rows, *k, buf, *alpha);
}
