// Products of a real with a complex matrix, as one real product: the real and the imaginary parts of op(B)'s
// columns stand side by side, and so do those of the result.
#include "blas/kernel/level3/complex_parts.h"

namespace orb::blas::tiles {
namespace {

constexpr int most_rows = 512, most_columns = 256, most_terms = 512;  // of a block

template <Complex C>
void mixed_gemm(const char* transa, int m, int n, int k, C alpha, const real_of<C>* a, int lda, Operand<C> b,
                C beta, C* c, int ldc) {
  using R = real_of<C>;
  if (m <= 0 || n <= 0) return;
  const bool nothing = k <= 0 || is_zero(alpha);
  if (nothing) return product<C>(m, n, 0, alpha, {'N', c, ldc}, {'N', c, ldc}, beta, c, ldc);
  const bool plain = is_option(transa, 'N');
  const int mb = even_piece(m, most_rows), nb = even_piece(n, most_columns), kb = even_piece(k, most_terms);
  R* const y = static_cast<R*>(orb_serv_allocate(2 * (kb + mb) * nb * int(sizeof(R)), 128));
  R* const z = y + 2 * kb * nb;
  for (int j = 0; j < n; j += nb)
    for (int i = 0; i < m; i += mb) {
      const int rows = std::min(mb, m - i), columns = std::min(nb, n - j);
      for (int t = 0; t < k; t += kb) {
        const int terms = std::min(kb, k - t);
        take_apart(b, t, terms, j, columns, [&](int r, int q, C x) ORB_INLINE_BODY {
          y[r + 2 * q * kb] = x.re, y[r + (2 * q + 1) * kb] = x.im;
        });
        const Factored<R> rows_of_a =
            plain ? Factored<R>{'N', a + i + t * lda, lda} : Factored<R>{'T', a + t + i * lda, lda};
        product<R>(rows, 2 * columns, terms, 1, rows_of_a, {'N', y, kb}, t == 0 ? 0 : 1, z, mb);
      }
      put_together(
          rows, columns, alpha,
          [=](int r, int q) ORB_INLINE_BODY {
            return C{z[r + 2 * q * mb], z[r + (2 * q + 1) * mb]};
          },
          beta, c + i + j * ldc, ldc);
    }
  orb_serv_deallocate(y);
}

}  // namespace
}  // namespace orb::blas::tiles

#define MIXED_GEMM(name, R, C)                                                                               \
  ORB_EXPORT void name(const char* transa, const char* transb, const int* m, const int* n, const int* k,     \
                       const C* alpha, const R* a, const int* lda, const C* b, const int* ldb,               \
                       const C* beta, C* c, const int* ldc) {                                                \
    orb::blas::tiles::mixed_gemm<C>(transa, *m, *n, *k, *alpha, a, *lda, {transb, b, *ldb}, *beta, \
                                              c, *ldc);                                                      \
  }
MIXED_GEMM(orb_blas_xscgemm, float, orb_complex_float)
MIXED_GEMM(orb_blas_xdzgemm, double, orb_complex_double)
