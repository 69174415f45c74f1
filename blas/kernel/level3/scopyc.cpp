// Copies between a block of C and its tiles. The tiles are aligned; C may stand anywhere.
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

// step(c, tile) for every vector of four rows: column quads, and in them 16 rows a round; the last columns
// one by one. A tile has `ldt` rows; its columns follow each other, and so do the tiles.
template <class Float, class Tile, class Step>
ORB_INLINE void for_each_vector(int m, int n, Float* c, int ldc, Tile* tiles, int ldt, Step step) {
  const auto columns = [&](auto count, int j) {
    Tile* tile = tiles + j * ldt;
    for (int i = 0; i < m; i += 16, tile += n * ldt)
      unroll<count>([&](auto column) {
        unroll<4>([&](auto v) { step(c + i + 4 * v + (j + column) * ldc, tile + 4 * v + column * ldt); });
      });
  };
  for (int j = ladder<4>(0, n, columns); j < n; ++j) columns(Int<1>{}, j);
}

}  // namespace
}  // namespace orb::blas

using orb::f32x4;

ORB_EXPORT void orb_blas_scopycf(const int* m, const int* n, const float* c, const int* ldc, float* tiles,
                                 const int* ldt, const float* beta) {
  const f32x4 scale = f32x4::splat(*beta);
  orb::blas::for_each_vector(*m, *n, c, *ldc, tiles, *ldt,
                             [=](const float* from, float* to) { (scale * f32x4::loadu(from)).store(to); });
}
ORB_EXPORT void orb_blas_scopycf0(const int* m, const int* n, const float* c, const int* ldc, float* tiles,
                                  const int* ldt, const float*) {
  orb::blas::for_each_vector(*m, *n, c, *ldc, tiles, *ldt,
                             [](const float*, float* to) { f32x4::zero().store(to); });
}
ORB_EXPORT void orb_blas_scopycf1(const int* m, const int* n, const float* c, const int* ldc, float* tiles,
                                  const int* ldt, const float*) {
  orb::blas::for_each_vector(*m, *n, c, *ldc, tiles, *ldt,
                             [](const float* from, float* to) { f32x4::loadu(from).store(to); });
}
ORB_EXPORT void orb_blas_scopycr(const int* m, const int* n, float* c, const int* ldc, const float* tiles,
                                 const int* ldt) {
  orb::blas::for_each_vector(*m, *n, c, *ldc, tiles, *ldt,
                             [](float* to, const float* from) { f32x4::load(from).storeu(to); });
}
