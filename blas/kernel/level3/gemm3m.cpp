// Complex matrix products by three real ones:
//   Re = Ar Br - Ai Bi   Im = (Ar + Ai) (Br + Bi) - Ar Br - Ai Bi
// Source: N. J. Higham, Accuracy and Stability of Numerical Algorithms, 2nd ed., SIAM (2002), section 23.2.4.
#include "blas/kernel/level3/complex_parts.h"

namespace orb::blas::tiles {
namespace {

constexpr int most = 512;  // rows, columns and terms of a block
constexpr int least = 64;  // below it, taking apart costs more than a fourth product

// The real part, the imaginary part and their sum, of a block whose columns follow each other.
template <class R>
struct Three {
  R* part[3];
  int rows;
  Three(R*& room, int height, int columns) : rows(height) {
    for (R*& p : part) p = room, room += height * columns;
  }
  template <Complex C>
  void take(const Operand<C>& x, int i, int height, int j, int width) const {
    take_apart(x, i, height, j, width, [&](int r, int c, C z) ORB_INLINE_BODY {
      const int at = r + c * rows;
      part[0][at] = z.re, part[1][at] = z.im, part[2][at] = z.re + z.im;
    });
  }
};

template <Complex C>
void gemm3m(int m, int n, int k, C alpha, Operand<C> a, Operand<C> b, C beta, C* c, int ldc) {
  using R = real_of<C>;
  const int mb = even_piece(m, most), nb = even_piece(n, most), kb = even_piece(k, most);
  const int reals = 3 * (mb * kb + kb * nb + mb * nb);
  R* const scratch = static_cast<R*>(orb_serv_allocate(reals * int(sizeof(R)), 128));
  R* room = scratch;
  const Three<R> x(room, mb, kb), y(room, kb, nb), z(room, mb, nb);
  for (int j = 0; j < n; j += nb)
    for (int i = 0; i < m; i += mb) {
      const int rows = std::min(mb, m - i), columns = std::min(nb, n - j);
      for (int t = 0; t < k; t += kb) {
        const int terms = std::min(kb, k - t);
        x.take(a, i, rows, t, terms), y.take(b, t, terms, j, columns);
        for (int p = 0; p < 3; ++p)
          product<R>(rows, columns, terms, 1, {'N', x.part[p], mb}, {'N', y.part[p], kb}, t == 0 ? 0 : 1,
                     z.part[p], mb);
      }
      const R *const re = z.part[0], *const im = z.part[1], *const sum = z.part[2];
      put_together(
          rows, columns, alpha,
          [=](int r, int q) ORB_INLINE_BODY {
            const int at = r + q * mb;
            return C{re[at] - im[at], sum[at] - re[at] - im[at]};
          },
          beta, c + i + j * ldc, ldc);
    }
  orb_serv_deallocate(scratch);
}

bool pays(int m, int n, int k) { return std::min({m, n, k}) >= least; }

}  // namespace
}  // namespace orb::blas::tiles

#define GEMM3M(name, plain, C)                                                                           \
  ORB_EXPORT void name(const char* transa, const char* transb, const int* m, const int* n, const int* k, \
                       const C* alpha, const C* a, const int* lda, const C* b, const int* ldb,           \
                       const C* beta, C* c, const int* ldc) {                                            \
    using namespace orb::blas::tiles;                                                                    \
    if (orb::blas::is_zero(*alpha) || !pays(*m, *n, *k))                                                 \
      return plain(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);                        \
    gemm3m<C>(*m, *n, *k, *alpha, {transa, a, *lda}, {transb, b, *ldb}, *beta, c, *ldc);                 \
  }
GEMM3M(orb_blas_xcgemm3m, orb_blas_xcgemm, orb_complex_float)
GEMM3M(orb_blas_xzgemm3m, orb_blas_xzgemm, orb_complex_double)
