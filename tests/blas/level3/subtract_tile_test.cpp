// Tiles of the triangular solves: packing, the subtracting kernels and their row walkers, against plain loops
// over two sums (even and odd k).
#include "gtest/gtest.h"
#include "orb/blas_gemm_kernels.h"
#include "tests/support/bits.h"
#include "tests/support/call.h"
#include "tests/support/guarded.h"

using orb::test::call;
using orb::test::Guarded;
using orb::test::same_elements;

namespace {

using Doubles = std::vector<double>;

struct TileCase {
  int rows, depth;
  bool aligned;
  decltype(&orb_blas_dgemm_nn_4x4_m1_1_a) subtract;
};
#define BOTH_TILES(R, K) \
  {R, K, true, orb_blas_dgemm_nn_##R##x##K##_m1_1_a}, { R, K, false, orb_blas_dgemm_nn_##R##x##K##_m1_1_u }
const TileCase tile_cases[] = {BOTH_TILES(4, 4), BOTH_TILES(4, 8),  BOTH_TILES(4, 16),  BOTH_TILES(4, 32),
                               BOTH_TILES(8, 8), BOTH_TILES(8, 16), BOTH_TILES(16, 16), BOTH_TILES(16, 32)};

struct WalkerCase {
  bool transposed;
  int depth;
  bool aligned;
  decltype(&dgemm_nn_m_n_4_m1_1_a) walk;
};
#define BOTH_WALKERS(t, K)                                 \
  {#t[0] == 't', K, true, dgemm_##t##_m_n_##K##_m1_1_a}, { \
#t[0] == 't', K, false, dgemm_##t##_m_n_##K##_m1_1_u   \
  }
const WalkerCase walker_cases[] = {BOTH_WALKERS(nn, 4),  BOTH_WALKERS(nn, 8), BOTH_WALKERS(nn, 16),
                                   BOTH_WALKERS(nn, 32), BOTH_WALKERS(tn, 8), BOTH_WALKERS(tn, 16),
                                   BOTH_WALKERS(tn, 32)};

void fill(const Guarded<double>& x, int seed) {
  for (int i = 0; i < x.size(); ++i) x[i] = orb::test::value<double>(i + seed);
}

// c -= sum over k of a(k) b(k), each k going to the sum of its parity.
template <class A>
double subtracted(double c, int depth, A a, const double* b) {
  double even = 0, odd = 0;
  for (int k = 0; k < depth; k += 2) even += a(k) * b[k], odd += a(k + 1) * b[k + 1];
  return c - (even + odd);
}

int tile_at(int depth, int row, int k) { return row / 4 * 4 * depth + k / 2 * 8 + row % 4 * 2 + k % 2; }

// B and C end at their guard page, or start at any word when they need no boundary; a leading dimension
// longer than a column shows writes between columns.
struct Columns {
  int place_b, place_c, extra_b, extra_c;
};
std::vector<Columns> layouts(bool aligned) {
  if (aligned) return {{-1, -1, 0, 0}, {0, 0, 2, 6}};
  return {{-1, -1, 0, 0}, {-1, -1, 1, 3}, {0, 1, 0, 1}, {1, 2, 2, 2}, {2, 3, 3, 0}, {3, 0, 1, 1}};
}

TEST(SubtractTile, EveryShape) {
  for (const auto& t : tile_cases)
    for (int n : {0, 1, 2, 3, 5})
      for (const auto& l : layouts(t.aligned)) {
        const int ldb = t.depth + l.extra_b, ldc = t.rows + l.extra_c;
        Guarded<double> tile(t.rows * t.depth, 0), b(n ? (n - 1) * ldb + t.depth : 0, l.place_b),
            c(n ? (n - 1) * ldc + t.rows : 0, l.place_c);
        fill(tile, 1), fill(b, 2), fill(c, 3);
        Doubles expected(c.begin(), c.end());
        for (int j = 0; j < n; ++j)
          for (int i = 0; i < t.rows; ++i) {
            double& e = expected[size_t(i + j * ldc)];
            e = subtracted(
                e, t.depth, [&](int k) { return tile[tile_at(t.depth, i, k)]; }, &b[j * ldb]);
          }
        call(t.subtract, &n, tile.data(), nullptr, b.data(), &ldb, c.data(), &ldc);
        ASSERT_TRUE(same_elements(c, expected))
            << t.rows << "x" << t.depth << (t.aligned ? " aligned" : " unaligned") << " n " << n << " places "
            << l.place_b << " " << l.place_c << " ldb " << ldb << " ldc " << ldc;
      }
}

TEST(SubtractTile, WalkersTakeRowsInFours) {
  for (const auto& w : walker_cases)
    for (int m : {0, 3, 4, 7, 8, 12, 15, 16, 18, 20, 24, 28, 32, 45})
      for (int n : {1, 4})
        for (const auto& l : layouts(w.aligned)) {
          const int k = w.depth, ldb = k + l.extra_b, ldc = m + m % 2 + l.extra_c;
          const int lda = (w.transposed ? k : m) + l.extra_b;
          const int a_size = m ? (w.transposed ? (m - 1) * lda + k : (k - 1) * lda + m) : 0;
          Guarded<double> a(a_size), b((n - 1) * ldb + k, l.place_b), c((n - 1) * ldc + m + m % 2, l.place_c),
              buf(std::min(k, 16) * k, 0);
          fill(a, 4), fill(b, 5), fill(c, 6);
          Doubles expected(c.begin(), c.end());
          for (int j = 0; j < n; ++j)
            for (int i = 0; i < m / 4 * 4; ++i) {
              double& e = expected[size_t(i + j * ldc)];
              const auto row = [&](int p) { return w.transposed ? a[p + i * lda] : a[i + p * lda]; };
              e = subtracted(e, k, row, &b[j * ldb]);
            }
          call(w.walk, &m, &n, a.data(), &lda, b.data(), &ldb, c.data(), &ldc, buf.data());
          ASSERT_TRUE(same_elements(c, expected))
              << (w.transposed ? "tn " : "nn ") << k << (w.aligned ? " aligned" : " unaligned") << " m " << m
              << " n " << n << " places " << l.place_b << " " << l.place_c << " ldb " << ldb;
        }
}

TEST(SubtractTile, PackingPutsEveryElementInItsPlace) {
  for (int rows : {4, 8, 16, 20})
    for (int k : {2, 4, 6, 32})
      for (int place : {-1, 0, 1, 2, 3})
        for (bool transposed : {false, true}) {
          const int lda = (transposed ? k : rows) + (place & 1);
          Guarded<double> a(transposed ? (rows - 1) * lda + k : (k - 1) * lda + rows, place),
              buf(rows * k, 0);
          fill(a, 7);
          Doubles expected(size_t(rows * k));
          for (int i = 0; i < rows; ++i)
            for (int p = 0; p < k; ++p)
              expected[size_t(tile_at(k, i, p))] = transposed ? a[p + i * lda] : a[i + p * lda];
          call(transposed ? orb_blas_dgtrat_dtrsm : orb_blas_dgtran_dtrsm, a.data(), &lda, &rows, &k,
               buf.data());
          ASSERT_TRUE(same_elements(buf, expected))
              << (transposed ? "dgtrat " : "dgtran ") << rows << " by " << k << " place " << place;
        }
}

}  // namespace
