// C -= op(A) B at the depth of a triangular solve's block: packs as many rows of A as the largest tile takes,
// then smaller ones. Rows beyond the last group of four are the caller's.
#include "blas/kernel/level3/triangular_tile.h"
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/boundary.h"

namespace orb::blas::triangular_tile {
namespace {

struct Tile {
  int rows;
  decltype(&orb_blas_dgemm_nn_4x4_m1_1_a) subtract;
};

// Tiles of falling height. `row_step` is the distance in A from a row to the next.
template <int depth, class Pack, class... Tiles>
ORB_INLINE void walk(Pack pack, int m, const int* n, const double* a, int row_step, const int* lda,
                     const double* b, const int* ldb, double* c, const int* ldc, double* buf,
                     Tiles... tiles) {
  const int k = depth;
  int i = 0;
  const auto take = [&](const Tile& tile) ORB_INLINE_BODY {
    for (; m - i >= tile.rows; i += tile.rows) {
      pack(a + i * row_step, lda, &tile.rows, &k, buf);
      tile.subtract(n, buf, nullptr, b, ldb, c + i, ldc);
    }
  };
  (take(tiles), ...);
}

}  // namespace
}  // namespace orb::blas::triangular_tile

using orb::blas::triangular_tile::Tile;
using orb::blas::triangular_tile::walk;

ORB_EXPORT void dgemm_nn_m_n_4_m1_1_a(const int* m, const int* n, const double* a, const int* lda,
                                      const double* b, const int* ldb, double* c, const int* ldc,
                                      double* buf) {
  walk<4>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf,
          Tile{4, orb_blas_dgemm_nn_4x4_m1_1_a});
}
ORB_EXPORT void dgemm_nn_m_n_4_m1_1_u(const int* m, const int* n, const double* a, const int* lda,
                                      const double* b, const int* ldb, double* c, const int* ldc,
                                      double* buf) {
  walk<4>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf,
          Tile{4, orb_blas_dgemm_nn_4x4_m1_1_u});
}
ORB_EXPORT void dgemm_nn_m_n_8_m1_1_a(const int* m, const int* n, const double* a, const int* lda,
                                      const double* b, const int* ldb, double* c, const int* ldc,
                                      double* buf) {
  walk<8>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf, Tile{8, orb_blas_dgemm_nn_8x8_m1_1_a},
          Tile{4, orb_blas_dgemm_nn_4x8_m1_1_a});
}
ORB_EXPORT void dgemm_nn_m_n_8_m1_1_u(const int* m, const int* n, const double* a, const int* lda,
                                      const double* b, const int* ldb, double* c, const int* ldc,
                                      double* buf) {
  walk<8>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf, Tile{8, orb_blas_dgemm_nn_8x8_m1_1_u},
          Tile{4, orb_blas_dgemm_nn_4x8_m1_1_u});
}
ORB_EXPORT void dgemm_nn_m_n_16_m1_1_a(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<16>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x16_m1_1_a}, Tile{8, orb_blas_dgemm_nn_8x16_m1_1_a},
           Tile{4, orb_blas_dgemm_nn_4x16_m1_1_a});
}
ORB_EXPORT void dgemm_nn_m_n_16_m1_1_u(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<16>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x16_m1_1_u}, Tile{8, orb_blas_dgemm_nn_8x16_m1_1_u},
           Tile{4, orb_blas_dgemm_nn_4x16_m1_1_u});
}
ORB_EXPORT void dgemm_nn_m_n_32_m1_1_a(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<32>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x32_m1_1_a}, Tile{4, orb_blas_dgemm_nn_4x32_m1_1_a});
}
ORB_EXPORT void dgemm_nn_m_n_32_m1_1_u(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<32>(orb_blas_dgtran_dtrsm, *m, n, a, 1, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x32_m1_1_u}, Tile{4, orb_blas_dgemm_nn_4x32_m1_1_u});
}
ORB_EXPORT void dgemm_tn_m_n_8_m1_1_a(const int* m, const int* n, const double* a, const int* lda,
                                      const double* b, const int* ldb, double* c, const int* ldc,
                                      double* buf) {
  walk<8>(orb_blas_dgtrat_dtrsm, *m, n, a, *lda, lda, b, ldb, c, ldc, buf,
          Tile{8, orb_blas_dgemm_nn_8x8_m1_1_a}, Tile{4, orb_blas_dgemm_nn_4x8_m1_1_a});
}
ORB_EXPORT void dgemm_tn_m_n_8_m1_1_u(const int* m, const int* n, const double* a, const int* lda,
                                      const double* b, const int* ldb, double* c, const int* ldc,
                                      double* buf) {
  walk<8>(orb_blas_dgtrat_dtrsm, *m, n, a, *lda, lda, b, ldb, c, ldc, buf,
          Tile{8, orb_blas_dgemm_nn_8x8_m1_1_u}, Tile{4, orb_blas_dgemm_nn_4x8_m1_1_u});
}
ORB_EXPORT void dgemm_tn_m_n_16_m1_1_a(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<16>(orb_blas_dgtrat_dtrsm, *m, n, a, *lda, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x16_m1_1_a}, Tile{8, orb_blas_dgemm_nn_8x16_m1_1_a},
           Tile{4, orb_blas_dgemm_nn_4x16_m1_1_a});
}
ORB_EXPORT void dgemm_tn_m_n_16_m1_1_u(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<16>(orb_blas_dgtrat_dtrsm, *m, n, a, *lda, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x16_m1_1_u}, Tile{8, orb_blas_dgemm_nn_8x16_m1_1_u},
           Tile{4, orb_blas_dgemm_nn_4x16_m1_1_u});
}
ORB_EXPORT void dgemm_tn_m_n_32_m1_1_a(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<32>(orb_blas_dgtrat_dtrsm, *m, n, a, *lda, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x32_m1_1_a}, Tile{4, orb_blas_dgemm_nn_4x32_m1_1_a});
}
ORB_EXPORT void dgemm_tn_m_n_32_m1_1_u(const int* m, const int* n, const double* a, const int* lda,
                                       const double* b, const int* ldb, double* c, const int* ldc,
                                       double* buf) {
  walk<32>(orb_blas_dgtrat_dtrsm, *m, n, a, *lda, lda, b, ldb, c, ldc, buf,
           Tile{16, orb_blas_dgemm_nn_16x32_m1_1_u}, Tile{4, orb_blas_dgemm_nn_4x32_m1_1_u});
}
