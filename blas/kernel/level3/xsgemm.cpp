// The single-precision matrix product. A block of C is copied into tiles, takes the products there, one panel
// of the depth after the other, and is copied back. Source: K. Goto, R. van de Geijn, Anatomy of
// high-performance matrix multiplication, ACM TOMS 34 (2008).
#include "blas/kernel/level3/sgemm_panels.h"
#include "orb/blas_gemm.h"
#include "orb/blas_gemm_kernels.h"
#include "orb/services.h"
#include "serv/kernel/scratch.h"

namespace orb::blas {
namespace {

constexpr int block_rows = 512;
constexpr float one = 1;

int lesser(int a, int b) { return a < b ? a : b; }
int round_down(int n, int unit) { return n - n % unit; }

// Too small to pay for packing? Told by memory operations over arithmetic operations, which fit 32 bits for
// any size below the limit.
bool is_small(bool a_plain, bool b_plain, int m, int n, int k) {
  if (m < 8 || k < 8 || n < 8) return true;
  if (int64_t(m) + n + k >= (a_plain || b_plain ? 150 : 80)) return false;
  const double bound = b_plain ? (a_plain ? 0.06 : 0.07) : (a_plain ? 0.045 : 0.075);
  return double((m + k) * n + m * k) / double(2 * m * n + 2 * m * n * k) >= bound;
}

// The scratch of one call: an A tile, which fills a quarter of its room, a B panel, and the tiles of a block
// of C, the latter two with `columns` columns.
struct Scratch {
  static constexpr int boundary = 64, a_bytes = 16384;
  static constexpr int b_column = panel_depth * sizeof(float), c_column = block_rows * sizeof(float);

  explicit Scratch(int columns)
      : block(orb_serv_allocate(columns * b_column + columns * c_column + a_bytes + 2 * boundary, 128)) {
    char* const start = round_forward(block, boundary);
    a = reinterpret_cast<float*>(start);
    b = reinterpret_cast<float*>(start + a_bytes);
    c = reinterpret_cast<float*>(start + a_bytes + columns * b_column);
  }
  ~Scratch() { orb_serv_deallocate(block); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  void* block;
  float *a, *b, *c;
};

struct Operand {
  const char* trans;
  bool plain;
  const float* data;
  const int* ld;
  // where op(X)(i, j) lies
  const float* at(int i, int j) const { return data + (plain ? i + j * *ld : j + i * *ld); }
};

// What holds for all blocks of a call, with the routines that fit its transposes and beta.
struct Product {
  Operand a, b;
  const float *alpha, *beta;
  float* c;
  const int* ldc;
  decltype(&orb_blas_sgtran) pack_a;
  decltype(&orb_blas_sgcopybn) pack_b;
  decltype(&orb_blas_scopycf) fill;
};

auto inner_kernel(int rows, int depth) {
  if (rows == 8) return orb_blas_sin8_64;
  return depth == 16   ? orb_blas_sin16_16
         : depth == 32 ? orb_blas_sin16_32
         : depth == 48 ? orb_blas_sin16_48
                       : orb_blas_sin16_64;
}

// The block of C from (row, column) on, while it lies in the tiles. Rows are counted from its first row.
struct Block {
  const Product& p;
  const Scratch& s;
  int row, rows, column, columns;

  float* c() const { return p.c + row + column * *p.ldc; }
  float* tile(int i) const { return s.c + c_tile(columns, i, 0); }

  // copy(C's element, its place in the tiles) for the rows of the last, partial tile.
  template <class Copy>
  void for_each_edge(Copy copy) const {
    const int whole = round_down(rows, tile_rows), count = rows - whole;
    for (int j = 0; j < columns; ++j) {
      float* const at = c() + whole + j * *p.ldc;
      float* const in_tile = tile(whole) + j * tile_rows;
      for (int i = 0; i < count; ++i) copy(at[i], in_tile[i]);
    }
  }

  void fill_tiles() const {
    const int whole = round_down(rows, tile_rows);
    const float beta = *p.beta;
    p.fill(&whole, &columns, c(), p.ldc, s.c, &tile_rows, &beta);
    for_each_edge([=](const float& from, float& to) { to = beta == 0 ? 0 : beta * from; });
  }

  void copy_back() const {
    const int whole = round_down(rows, tile_rows);
    orb_blas_scopycr(&whole, &columns, c(), p.ldc, s.c, &tile_rows);
    for_each_edge([](float& to, float from) { to = from; });
  }

  // `count` rows from i on, all in one tile, take the `depth` terms from k on: through an A tile and the B
  // panel, or straight from the operands.
  void add_packed(int i, int count, int k, int depth) const {
    p.pack_a(p.a.at(row + i, k), p.a.ld, &count, &depth, s.a, p.alpha);
    inner_kernel(count, depth)(&count, &columns, &depth, s.a, s.b, &panel_depth, tile(i), &tile_rows);
  }
  void add_unpacked(int i, int count, int k, int depth) const {
    orb_blas_sgemmpst(p.a.trans, p.b.trans, &count, &columns, &depth, p.alpha, p.a.at(row + i, k), p.a.ld,
                      p.b.at(k, column), p.b.ld, &one, tile(i), &tile_rows);
  }

  // All rows take the `depth` terms from k on, a multiple of 16.
  void add_panel(int k, int depth) const {
    p.pack_b(&columns, &depth, p.b.at(k, column), p.b.ld, s.b, &panel_depth);
    int i = 0;
    for (; rows - i >= tile_rows; i += tile_rows) add_packed(i, tile_rows, k, depth);
    if (rows - i >= 8 && depth == panel_depth) add_packed(i, 8, k, depth), i += 8;
    if (i < rows) add_unpacked(i, rows - i, k, depth);
  }

  void add_products(int k) const {
    const int packed = round_down(k, 16);
    for (int at = 0; at < packed; at += panel_depth) add_panel(at, lesser(panel_depth, packed - at));
    if (packed < k)
      for (int i = 0; i < rows; i += tile_rows)
        add_unpacked(i, lesser(tile_rows, rows - i), packed, k - packed);
  }
};

void blocked_product(const Product& p, int m, int n, int k) {
  const int width = orb_serv_l2cache() == 3 ? 480 : 240;
  const Scratch scratch(width);
  for (int column = 0; column < n; column += width)
    for (int row = 0; row < m; row += block_rows) {
      const Block block{p, scratch, row, lesser(block_rows, m - row), column, lesser(width, n - column)};
      block.fill_tiles();
      block.add_products(k);
      block.copy_back();
    }
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xsgemm(const char* transa, const char* transb, const int* m, const int* n,
                                const int* k, const float* alpha, const float* a, const int* lda,
                                const float* b, const int* ldb, const float* beta, float* c, const int* ldc) {
  const bool a_plain = orb::is_option(transa, 'N'), b_plain = orb::is_option(transb, 'N');
  if (*m <= 0 || *n <= 0 || (*alpha == 0 && *beta == 1)) return;
  if (*alpha == 0) return orb_blas_sgemm_mscale(m, n, beta, c, ldc);
  if (orb::blas::is_small(a_plain, b_plain, *m, *n, *k))
    return orb_blas_sgemmpst(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
  const orb::blas::Product product{{transa, a_plain, a, lda},
                                   {transb, b_plain, b, ldb},
                                   alpha,
                                   beta,
                                   c,
                                   ldc,
                                   a_plain ? orb_blas_sgtran : orb_blas_sgtrat,
                                   b_plain ? orb_blas_sgcopybn : orb_blas_sgcopybt,
                                   *beta == 0   ? orb_blas_scopycf0
                                   : *beta == 1 ? orb_blas_scopycf1
                                                : orb_blas_scopycf};
  orb::blas::blocked_product(product, *m, *n, *k);
}
