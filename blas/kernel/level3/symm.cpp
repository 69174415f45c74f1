// Products with a symmetric or Hermitian matrix, block column by block column of it: what lies above and
// below the diagonal block goes to the matrix products where it is stored, as it stands or transposed; the
// diagonal block is written out in full first.
#include <algorithm>

#include "blas/kernel/level3/product.h"
#include "blas/kernel/level3/scalars.h"
#include "orb/services.h"

namespace orb::blas {
namespace {

constexpr int most_width = 256;  // of a block column: two full panels of the products

// A symmetric matrix, or a Hermitian one, of which one triangle is stored.
template <bool hermitian, class T>
struct Triangle {
  bool upper;
  const T* p;
  int ld;

  // The rectangle of the full matrix from (i, j) on, which may not meet the diagonal.
  Factored<T> rectangle(int i, int j) const {
    if ((i < j) == upper) return {'N', p + i + j * ld, ld};
    return {hermitian ? 'C' : 'T', p + j + i * ld, ld};
  }
  // The square of n rows and columns from (i, i) on, in full.
  Factored<T> square(int i, int n, T* full) const {
    const T* column = p + i + i * ld;
    for (int j = 0; j < n; ++j, column += ld) {
      const int first = upper ? 0 : j + 1, end = upper ? j : n;
      for (int r = first; r < end; ++r) {
        full[r + j * n] = column[r];
        full[j + r * n] = hermitian ? conj(column[r]) : column[r];
      }
      full[j + j * n] = hermitian ? number<T>(real(column[j])) : column[j];
    }
    return {'N', full, n};
  }
};

template <bool hermitian, class T>
void symm(const char* side, const char* uplo, int m, int n, T alpha, const T* a, int lda, const T* b, int ldb,
          T beta, T* c, int ldc) {
  if (m <= 0 || n <= 0) return;
  if (is_zero(alpha)) return product<T>(m, n, 0, alpha, {'N', a, lda}, {'N', b, ldb}, beta, c, ldc);
  const Triangle<hermitian, T> full{is_option(uplo, 'U'), a, lda};
  const bool left = is_option(side, 'L');
  const int order = left ? m : n, most = std::min(order, most_width);
  T* const scratch = static_cast<T*>(orb_serv_allocate(most * most * int(sizeof(T)), 64));
  for (int j = 0; j < order; j += most) {
    const int width = std::min(most, order - j), below = j + width;
    const auto diagonal = full.square(j, width, scratch);
    const auto take = [&](int i, int height, Factored<T> block, T old) {
      if (height == 0) return;
      if (left)
        product<T>(height, n, width, alpha, block, {'N', b + j, ldb}, old, c + i, ldc);
      else
        product<T>(m, width, height, alpha, {'N', b + i * ldb, ldb}, block, old, c + j * ldc, ldc);
    };
    // beta is for the first product that reaches an element.
    const T one = number<T>(1), old = left && j > 0 ? one : beta, next = left ? old : one;
    take(j, width, diagonal, old);
    take(0, j, full.rectangle(0, j), next);
    take(below, order - below, full.rectangle(below, j), next);
  }
  orb_serv_deallocate(scratch);
}

}  // namespace
}  // namespace orb::blas

#define SYMM(name, hermitian, T)                                                                       \
  ORB_EXPORT void name(const char* side, const char* uplo, const int* m, const int* n, const T* alpha, \
                       const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c,    \
                       const int* ldc) {                                                               \
    orb::blas::symm<hermitian>(side, uplo, *m, *n, *alpha, a, *lda, b, *ldb, *beta, c, *ldc);          \
  }
SYMM(orb_blas_xssymm, false, float)
SYMM(orb_blas_xdsymm, false, double)
SYMM(orb_blas_xcsymm, false, orb_complex_float)
SYMM(orb_blas_xzsymm, false, orb_complex_double)
SYMM(orb_blas_xchemm, true, orb_complex_float)
SYMM(orb_blas_xzhemm, true, orb_complex_double)
