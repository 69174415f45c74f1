// Driver of the double-precision matrix product: quick returns, choice of the small path, and the loop nest
// that packs panels of op(A) and op(B) for the inner kernels. C is updated in place.
// Source: K. Goto, R. van de Geijn, Anatomy of high-performance matrix multiplication, ACM TOMS 34 (2008).
#include <algorithm>

#include "blas/kernel/level3/dgemm_panels.h"
#include "orb/blas_gemm.h"
#include "orb/blas_gemm_kernels.h"
#include "orb/services.h"
#include "serv/kernel/scratch.h"

namespace orb::blas {
namespace {

constexpr int most_rows = 512, most_columns = 2000;  // of one block of C
constexpr double one = 1;
constexpr int one_row = 1, unit_stride = 1;

// The block of one call and its carving: A panel and B panel on pages, and the kernels' private panel 384
// bytes past a 128-byte line, away from the sets that the panels' starts fall into.
class Scratch {
 public:
  explicit Scratch(int columns)
      : block_(static_cast<char*>(orb_serv_allocate(columns * column_bytes + fixed_bytes, 128))),
        a_panel(carve(0, page)),
        b_panel(carve(b_offset, page)),
        quad(carve(quad_offset + columns * column_bytes, 128) + 256 / sizeof(double)) {}
  ~Scratch() { orb_serv_deallocate(block_); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

 private:
  static constexpr int page = 4096, column_bytes = panel_depth * int(sizeof(double));
  static constexpr int a_bytes = most_rows * column_bytes;
  static constexpr int b_offset = a_bytes + 8704;
  static constexpr int quad_offset = b_offset + 8192;  // and the columns of the B panel
  static constexpr int fixed_bytes = quad_offset + DoubledQuad::bytes + 1792;
  static_assert(page + a_bytes <= b_offset && b_offset + page <= quad_offset && fixed_bytes == 551168);

  double* carve(int offset, unsigned unit) const {
    return reinterpret_cast<double*>(round_forward(block_ + offset, unit));
  }

  char* const block_;

 public:
  double *const a_panel, *const b_panel, *const quad;
};

// op(A) by rows or op(B) by columns: where line `line` has its element k.
struct Lines {
  const double* p;
  int line_step, k_step;
  const double* at(int line, int k) const { return p + line * line_step + k * k_step; }
};

void blocked_product(const char* transa, const char* transb, int m, int n, int k, const double* alpha,
                     const double* a, const int* lda, const double* b, const int* ldb, const double* beta,
                     double* c, const int* ldc) {
  const bool a_plain = is_option(transa, 'N'), b_plain = is_option(transb, 'N');
  const Lines rows = a_plain ? Lines{a, 1, *lda} : Lines{a, *lda, 1};
  const Lines columns = b_plain ? Lines{b, *ldb, 1} : Lines{b, 1, *ldb};
  const auto pack_a = a_plain ? orb_blas_dgcopyan : orb_blas_dgcopyat;
  const auto pack_b = b_plain ? orb_blas_dgcopybn : orb_blas_dgcopybt;
  const auto first_kernel = *beta == 1   ? orb_blas_dinner_roll
                            : *beta == 0 ? orb_blas_dinnerz_roll
                                         : orb_blas_dinnerb_roll;
  alignas(16) const double beta2[2] = {*beta, *beta};

  const int even_rows = m & ~1, quad_columns = n & ~3;
  const int most = std::min(n, most_columns);
  const int short_depth = k % panel_depth == 0 ? panel_depth : k % panel_depth;
  const int full_depths = k - short_depth;
  const Scratch scratch(most);

  for (int j = 0; j < quad_columns; j += most) {
    const int width = std::min(most, quad_columns - j);
    // `depth` terms from k on, for this column block; kernel(height, i) multiplies the packed rows from i on.
    const auto add_terms = [&](int at, int depth, const double* row_beta, auto kernel) {
      pack_b(&depth, &width, columns.at(j, at), ldb, scratch.b_panel);
      for (int i = 0; i < even_rows; i += most_rows) {
        const int height = std::min(most_rows, even_rows - i);
        pack_a(&height, &depth, rows.at(i, at), lda, scratch.a_panel, alpha);
        kernel(&height, c + i + j * *ldc);
      }
      if (even_rows < m)
        orb_blas_dgemmpst(transa, transb, &one_row, &width, &depth, alpha, rows.at(even_rows, at), lda,
                          columns.at(j, at), ldb, row_beta, c + even_rows + j * *ldc, ldc);
    };
    // The short panel comes first, though its terms are the last: it alone carries beta.
    add_terms(full_depths, short_depth, beta, [&](const int* height, double* to) {
      const int kp = padded_depth(short_depth);
      first_kernel(height, &width, &kp, scratch.a_panel, scratch.b_panel, nullptr, to, ldc, scratch.quad,
                   beta2);
    });
    for (int at = 0; at < full_depths; at += panel_depth)
      add_terms(at, panel_depth, &one, [&](const int* height, double* to) {
        orb_blas_dinner(height, &width, &panel_depth, scratch.a_panel, scratch.b_panel, nullptr, to, ldc,
                        scratch.quad);
      });
  }

  for (int j = quad_columns; j < n; ++j)
    orb_blas_dgemv(transa, a_plain ? &m : &k, a_plain ? &k : &m, alpha, a, lda, columns.at(j, 0),
                   &columns.k_step, beta, c + j * *ldc, &unit_stride);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xdgemm(const char* transa, const char* transb, const int* m, const int* n,
                                const int* k, const double* alpha, const double* a, const int* lda,
                                const double* b, const int* ldb, const double* beta, double* c,
                                const int* ldc) {
  if (*m <= 0 || *n <= 0) return;
  if (*alpha == 0) {  // -0.0 too
    if (*beta == 0) return orb_blas_dzerom(m, n, c, ldc);
    if (*beta != 1) orb_blas_dscalm(m, n, beta, c, ldc);
    return;
  }
  if (*m < 4 || *k < 8 || *n < 8)
    return orb_blas_dgemmpst(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
  orb::blas::blocked_product(transa, transb, *m, *n, *k, alpha, a, lda, b, ldb, beta, c, ldc);
}
