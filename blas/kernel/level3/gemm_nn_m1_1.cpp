// C -= tile B, the inner kernel of the blocked triangular solves: four rows by one column, two k in the
// lanes. Each element of C is the sum over even k plus the sum over odd k, both in rising order, subtracted
// once.
#include "blas/kernel/level3/triangular_tile.h"
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas::triangular_tile {
namespace {

template <bool aligned>
ORB_INLINE f64x2 fetch(const double* p) {
  return aligned ? f64x2::load(p) : f64x2::loadu(p);
}

// c[0], c[1] -= the lanes of row0 added, the lanes of row1 added.
template <bool aligned>
ORB_INLINE void subtract_sums(f64x2 row0, f64x2 row1, double* c) {
  const f64x2 left = fetch<aligned>(c) - (f64x2::low_halves(row0, row1) + f64x2::high_halves(row0, row1));
  aligned ? left.store(c) : left.storeu(c);
}

// One group of four rows, one column. The four sums grow side by side in registers: one behind the other,
// each would wait for its own last addition.
template <int depth, bool aligned>
ORB_INLINE void subtract_group(const double* group, const double* b, double* c) {
  f64x2 sum[group_rows] = {f64x2::zero(), f64x2::zero(), f64x2::zero(), f64x2::zero()};
  constexpr int pairs = depth / pair, round = pairs < 4 ? pairs : 4;
  for (int p = 0; p < pairs; p += round)
    unroll<round>([&](auto q) ORB_INLINE_BODY {
      const f64x2 bp = fetch<aligned>(b + (p + q) * pair);
      unroll<group_rows>([&](auto r)
                             ORB_INLINE_BODY { sum[r] += f64x2::load(group + at(depth, 0, p + q, r)) * bp; });
      keep_in_registers(sum);
    });
  subtract_sums<aligned>(sum[0], sum[1], c);
  subtract_sums<aligned>(sum[2], sum[3], c + 2);
}

// The hardware fetches the next column ahead, loads in advance gained nothing; so no column is read before
// its turn and the last one needs no code of its own.
template <int rows, int depth, bool aligned>
void subtract_tile(int n, const double* tile, const double* b, int ldb, double* c, int ldc) {
  for (int j = 0; j < n; ++j, b += ldb, c += ldc)
    for (int g = 0; g < rows / group_rows; ++g)
      subtract_group<depth, aligned>(tile + at(depth, g, 0, 0), b, c + g * group_rows);
}

}  // namespace
}  // namespace orb::blas::triangular_tile

using orb::blas::triangular_tile::subtract_tile;

ORB_EXPORT void orb_blas_dgemm_nn_4x4_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                             const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 4, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_4x4_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                             const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 4, false>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_4x8_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                             const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 8, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_4x8_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                             const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 8, false>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_4x16_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                              const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 16, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_4x16_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                              const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 16, false>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_4x32_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                              const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 32, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_4x32_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                              const int* ldb, double* c, const int* ldc) {
  subtract_tile<4, 32, false>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_8x8_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                             const int* ldb, double* c, const int* ldc) {
  subtract_tile<8, 8, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_8x8_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                             const int* ldb, double* c, const int* ldc) {
  subtract_tile<8, 8, false>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_8x16_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                              const int* ldb, double* c, const int* ldc) {
  subtract_tile<8, 16, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_8x16_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                              const int* ldb, double* c, const int* ldc) {
  subtract_tile<8, 16, false>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_16x16_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                               const int* ldb, double* c, const int* ldc) {
  subtract_tile<16, 16, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_16x16_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                               const int* ldb, double* c, const int* ldc) {
  subtract_tile<16, 16, false>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_16x32_m1_1_a(const int* n, const double* tile, const void*, const double* b,
                                               const int* ldb, double* c, const int* ldc) {
  subtract_tile<16, 32, true>(*n, tile, b, *ldb, c, *ldc);
}
ORB_EXPORT void orb_blas_dgemm_nn_16x32_m1_1_u(const int* n, const double* tile, const void*, const double* b,
                                               const int* ldb, double* c, const int* ldc) {
  subtract_tile<16, 32, false>(*n, tile, b, *ldb, c, *ldc);
}
