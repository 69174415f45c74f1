// Packs tiles for the blocked triangular solves: whole groups of four rows, whole pairs of k.
#include "blas/kernel/level3/triangular_tile.h"
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas::triangular_tile {
namespace {

// A(i, k) at a + i + k * lda: pairs of k are gathered from two columns.
void pack_columns(const double* a, int lda, int rows, int depth, double* buf) {
  for (int g = 0; g * group_rows < rows; ++g, a += group_rows)
    for (int p = 0; p * pair < depth; ++p) {
      const double *first = a + p * pair * lda, *second = first + lda;
      double* to = buf + at(depth, g, p, 0);
      unroll<group_rows / 2>([=](auto half) ORB_INLINE_BODY {
        const f64x2 k0 = f64x2::loadu(first + 2 * half), k1 = f64x2::loadu(second + 2 * half);
        f64x2::low_halves(k0, k1).store(to + 4 * half);
        f64x2::high_halves(k0, k1).store(to + 4 * half + 2);
      });
    }
}

// A(i, k) at a + k + i * lda: pairs of k stand together already.
void pack_rows(const double* a, int lda, int rows, int depth, double* buf) {
  for (int g = 0; g * group_rows < rows; ++g, a += group_rows * lda)
    for (int p = 0; p * pair < depth; ++p) {
      const double* from = a + p * pair;
      double* to = buf + at(depth, g, p, 0);
      unroll<group_rows>([=](auto r) ORB_INLINE_BODY { f64x2::loadu(from + r * lda).store(to + r * pair); });
    }
}

}  // namespace
}  // namespace orb::blas::triangular_tile

ORB_EXPORT void orb_blas_dgtran_dtrsm(const double* a, const int* lda, const int* rows, const int* k,
                                      double* buf) {
  orb::blas::triangular_tile::pack_columns(a, *lda, *rows, *k, buf);
}
ORB_EXPORT void orb_blas_dgtrat_dtrsm(const double* a, const int* lda, const int* rows, const int* k,
                                      double* buf) {
  orb::blas::triangular_tile::pack_rows(a, *lda, *rows, *k, buf);
}
