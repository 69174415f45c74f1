// Packers and dot kernels of the single-precision product, each alone: panels end at a guard page and hold
// NaN before they are written.
#include "orb/blas_gemm_kernels.h"

#include "gtest/gtest.h"
#include "tests/blas/level3/matrix.h"
#include "tests/support/call.h"

using orb::test::call;
using orb::test::Matrix;
using orb::test::same;

namespace {

const int tile_rows = 16, panel_ld = 64;

// On a 16-byte boundary, full of NaN, a guard page behind it.
Matrix<float> panel(int n) { return {n, 1, n, 0}; }

// op(X), rows by cols, as it stands or transposed.
Matrix<float> operand(bool plain, int rows, int cols, int place) {
  return {plain ? rows : cols, plain ? cols : rows, (plain ? rows : cols) + (place + 1) % 3, place};
}

TEST(SinglePanels, ATileHoldsScaledRowsInGroupsOfFour) {
  const float alpha = 0.3f;
  for (bool plain : {true, false})
    for (int rows : {4, 8, 12, 16})
      for (int depth : {16, 32, 48, 64, 80})
        for (int place = -1; place < 4; ++place) {
          const auto a = operand(plain, rows, depth, place);
          a.randomise(7);
          const auto tile = panel(rows * depth);
          call(plain ? orb_blas_sgtran : orb_blas_sgtrat, a.data(), &a.ld, &rows, &depth, tile.data(),
               &alpha);
          const float* next = tile.data();
          for (int i = 0; i < rows; i += 4)
            for (int k = 0; k < depth; k += 4)
              for (int r = 0; r < 4; ++r)
                for (int t = 0; t < 4; ++t)
                  ASSERT_EQ(*next++, alpha * (plain ? a(i + r, k + t) : a(k + t, i + r)))
                      << "plain " << plain << " rows " << rows << " depth " << depth << " place " << place
                      << " at " << i + r << ", " << k + t;
        }
}

TEST(SinglePanels, BPanelHoldsColumns) {
  for (bool plain : {true, false})
    for (int n : {0, 1, 2, 3, 4, 5, 7, 8, 9})
      for (int depth : {8, 16, 24, 64})
        for (int place = -1; place < 4; ++place) {
          const auto b = operand(plain, depth, n, place);
          b.randomise(7);
          const auto columns = panel(n ? (n - 1) * panel_ld + depth : 0);
          call(plain ? orb_blas_sgcopybn : orb_blas_sgcopybt, &n, &depth, b.data(), &b.ld, columns.data(),
               &panel_ld);
          for (int at = 0; at < columns.rows; ++at) {
            const int j = at / panel_ld, k = at % panel_ld;
            const float expected = k >= depth ? float(NAN) : plain ? b(k, j) : b(j, k);
            ASSERT_TRUE(same(columns(at, 0), expected))
                << "plain " << plain << " n " << n << " depth " << depth << " place " << place << " at " << k
                << ", " << j;
          }
        }
}

TEST(SinglePanels, CTilesAreFilledAndCopiedBack) {
  const float beta = -1.7f;
  const struct {
    decltype(&orb_blas_scopycf) fill;
    float factor;
  } fills[] = {{orb_blas_scopycf, beta}, {orb_blas_scopycf1, 1}, {orb_blas_scopycf0, 0}};
  for (const auto& [fill, factor] : fills)
    for (int m : {0, 16, 32, 48})
      for (int n : {0, 1, 2, 3, 4, 5, 8, 9})
        for (int place = 0; place < 4; ++place) {
          const Matrix<float> c(m, n, m + 1 + place, place), back(m, n, m + 3 - place, 3 - place);
          const Matrix<float> expected(m, n, back.ld);
          if (factor != 0) c.randomise(5);  // NaN otherwise
          const auto tiles = panel(m * n);
          call(fill, &m, &n, c.data(), &c.ld, tiles.data(), &tile_rows, factor == beta ? &beta : nullptr);
          call(orb_blas_scopycr, &m, &n, back.data(), &back.ld, tiles.data(), &tile_rows);
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < m; ++i) {
              expected(i, j) = factor == 0 ? 0 : factor * c(i, j);
              ASSERT_EQ(tiles(i / 16 * 16 * n + j * 16 + i % 16, 0), expected(i, j)) << m << " by " << n;
            }
          ASSERT_TRUE(same(back.all(), expected.all())) << m << " by " << n << " place " << place;
        }
}

// Four sums over the whole depth, added crosswise, then to the tile, once. Rows 8 to 15 of a tile stay as
// they are under the kernel of 8 rows.
TEST(SinglePanels, KernelsAddDotsToTheBit) {
  const struct {
    decltype(&orb_blas_sin16_16) kernel;
    int rows, depth;
  } kernels[] = {{orb_blas_sin16_16, 16, 16},
                 {orb_blas_sin16_32, 16, 32},
                 {orb_blas_sin16_48, 16, 48},
                 {orb_blas_sin16_64, 16, 64},
                 {orb_blas_sin8_64, 8, 64}};
  for (const auto& [kernel, rows, depth] : kernels)
    for (int n : {0, 1, 2, 5, 16}) {
      const Matrix<float> a(depth, rows, depth), b(depth, n, panel_ld, 0), c(tile_rows, n, tile_rows, 0);
      a.randomise(1), b.randomise(2), c.randomise(3);
      a(0, 0) = -0.0f;
      const auto tile = panel(rows * depth);
      const float one = 1;
      call(orb_blas_sgtrat, a.data(), &a.ld, &rows, &depth, tile.data(), &one);
      auto expected = c.all();
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < rows; ++i) {
          float sum[4] = {};
          for (int k = 0; k < depth; ++k) sum[k % 4] += a(k, i) * b(k, j);
          expected[size_t(i + j * tile_rows)] += (sum[0] + sum[2]) + (sum[1] + sum[3]);
        }
      call(kernel, &rows, &n, nullptr, tile.data(), b.data(), &b.ld, c.data(), &c.ld);
      ASSERT_TRUE(same(c.all(), expected)) << rows << " rows, depth " << depth << ", n " << n;
    }
}

}  // namespace
