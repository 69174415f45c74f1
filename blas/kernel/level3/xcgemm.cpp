// The complex matrix products: quick returns, blocks, scratch.
// Source: K. Goto, R. van de Geijn, Anatomy of high-performance matrix multiplication, ACM TOMS 34 (2008).
//
// The bits of an element of C do not depend on where a caller cuts rows or columns: it is the same sums over
// the same slices of k in every tile. Of the columns that go to the upward zgemv this holds as long as the
// same columns do: cut columns at multiples of 3, and leave pieces of `least_for_gemv` and more.
#include <string.h>

#include <algorithm>

#include "blas/kernel/level3/tile_kernel.h"
#include "blas/kernel/level3/tile_pack.h"
#include "orb/blas_level3.h"
#include "orb/services.h"
#include "serv/kernel/scratch.h"

namespace orb::blas::tiles {
namespace {

constexpr int panel_bytes = 512 * 1024;       // of op(A): half of a second-level cache of 1 MiB
constexpr int small_panel_bytes = 16 * 1024;  // what fits the stack, and the first-level cache
constexpr int least_for_gemv = 64;
constexpr int unit_stride = 1;

template <Complex C>
struct Product {
  int m, n, k;
  C alpha;
  Operand<C> a, b;
  C beta;
  C* c;
  int ldc;
};

template <int columns, Complex C>
__attribute__((noinline)) void multiply_columns(const Product<C>& p, int row, int rows, int k, int j,
                                                RowStrips<C> panel, real_of<C>* splats,
                                                const Finish<C>& finish) {
  multiply_strips<columns>(rows, panel, p.b, k, j, splats,
                           [&, c = p.c + row + j * p.ldc, ldc = p.ldc](auto q, int i, auto* sum, auto count)
                               ORB_INLINE_BODY { finish(sum, c + i + q * ldc, count); });
}

// The panel has `block` rows. `width` columns of C at a time keep their part of op(B)'s slice in the
// second-level cache while the row blocks pass.
template <Complex C>
void multiply(const Product<C>& p, int block, int width, C* room, real_of<C>* splats) {
  const Finish<C> first(p.alpha, p.beta, p.a.conjugate, p.b.conjugate);
  const Finish<C> later(p.alpha, C{1, 0}, p.a.conjugate, p.b.conjugate);
  for (int column = 0; column < p.n; column += width)
    for (int k = 0; k < p.k; k += most_depth) {
      const RowStrips<C> panel{room, std::min(most_depth, p.k - k)};
      const Finish<C>& finish = k == 0 ? first : later;
      for (int row = 0; row < p.m; row += block) {
        const int rows = std::min(block, p.m - row), end = std::min(p.n, column + width);
        pack(p.a, row, rows, k, panel);
        int j = column;
        const auto add = [&](auto columns) {
          multiply_columns<columns>(p, row, rows, k, j, panel, splats, finish);
        };
        for (; end - j >= 3; j += 3) add(Int<3>{});
        last_columns<2>(end - j, add);
      }
    }
}

// Small: op(A)'s panel lies on the stack.
template <Complex C>
__attribute__((noinline)) void multiply_small(const Product<C>& p) {
  alignas(64) C room[small_panel_bytes / sizeof(C)];
  alignas(64) real_of<C> splats[splat_reals<C>];
  multiply(p, p.m, p.n, room, splats);
}

template <Complex C>
void multiply_large(const Product<C>& p, int width) {
  constexpr int page = 4096, splat_bytes = splat_reals<C> * int(sizeof(real_of<C>));
  char* const block = static_cast<char*>(orb_serv_allocate(page + panel_bytes + splat_bytes + 512, 128));
  char* const panel = round_forward(block, page);
  // 384 bytes past a line, away from the sets that the panel's start falls into
  char* const splats = panel + panel_bytes + 384;
  multiply(p, panel_bytes / most_depth / int(sizeof(C)), width, reinterpret_cast<C*>(panel),
           reinterpret_cast<real_of<C>*>(splats));
  orb_serv_deallocate(block);
}

template <Complex C>
void scale(int m, int n, C beta, C* c, int ldc) {
  for (int j = 0; j < n; ++j, c += ldc)
    if (is_zero(beta))
      memset(c, 0, size_t(m) * sizeof(C));
    else
      register_loop<C>(m, 0, [&]<class W>(auto, int i) { (W::splat(beta) * W::loadu(c + i)).storeu(c + i); });
}

template <Complex C>
bool is_small(const Product<C>& p) {
  const int depth = std::min(p.k, most_depth);
  return p.m <= int(small_panel_bytes / sizeof(C)) &&
         (p.m + RowStrips<C>::height - 1) * depth <= int(small_panel_bytes / sizeof(C));
}

}  // namespace
}  // namespace orb::blas::tiles

ORB_EXPORT void orb_blas_xcgemm(const char* transa, const char* transb, const int* m, const int* n,
                                const int* k, const orb_complex_float* alpha, const orb_complex_float* a,
                                const int* lda, const orb_complex_float* b, const int* ldb,
                                const orb_complex_float* beta, orb_complex_float* c, const int* ldc) {
  using namespace orb::blas::tiles;
  using orb::c32;
  if (*m <= 0 || *n <= 0) return;
  if (*k <= 0 || orb::blas::is_zero(*alpha)) {
    if (!orb::blas::is_one(*beta)) scale(*m, *n, *beta, c, *ldc);
    return;
  }
  const Product<c32> p{*m, *n, *k, *alpha, {transa, a, *lda}, {transb, b, *ldb}, *beta, c, *ldc};
  if (is_small(p)) return multiply_small(p);
  multiply_large(p, orb_serv_l2cache() == 3 ? 480 : 240);
}

ORB_EXPORT void orb_blas_xzgemm(const char* transa, const char* transb, const int* m, const int* n,
                                const int* k, const orb_complex_double* alpha, const orb_complex_double* a,
                                const int* lda, const orb_complex_double* b, const int* ldb,
                                const orb_complex_double* beta, orb_complex_double* c, const int* ldc) {
  using namespace orb::blas::tiles;
  using orb::c64;
  if (*m <= 0 || *n <= 0) return;
  if (*k <= 0 || orb::blas::is_zero(*alpha)) {
    if (!orb::blas::is_one(*beta)) scale(*m, *n, *beta, c, *ldc);
    return;
  }
  Product<c64> p{*m, *n, *k, *alpha, {transa, a, *lda}, {transb, b, *ldb}, *beta, c, *ldc};
  const int odd_columns =
      std::min({*m, *n, *k}) < least_for_gemv || p.b.conjugate ? 0 : *n % tile_columns<c64>;
  p.n -= odd_columns;
  if (is_small(p))
    multiply_small(p);
  else
    multiply_large(p, 240);
  for (int j = p.n; j < *n; ++j)
    orb_blas_zgemv(transa, p.a.down == 1 ? m : k, p.a.down == 1 ? k : m, alpha, a, lda, p.b.at(0, j),
                   &p.b.down, beta, c + j * *ldc, &unit_stride);
}
