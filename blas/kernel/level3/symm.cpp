// Products with a symmetric or Hermitian matrix, block column by block column of it: what lies above and
// below the diagonal block goes to the matrix products where it is stored, as it stands or transposed; the
// diagonal block is written out in full first.
#include <algorithm>

#include "blas/kernel/level3/product.h"
#include "blas/kernel/level3/scalars.h"
#include "blas/kernel/level3/tile_product.h"
#include "orb/services.h"

namespace orb::blas {
namespace {

constexpr int most_width = 256;  // of a block column: two full panels of the products
constexpr int thin_width = 64;   // where writing a block out in full weighs more
constexpr int alignment = 64;    // of scratch
constexpr int small_order = 32;  // a matrix that fits the stack in full

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

template <class T>
struct Call {
  bool left;
  int m, n;
  T alpha;
  const T* b;
  int ldb;
  T beta;
  T* c;
  int ldc;
};

// Few columns or rows of B meet each number of A.
template <class T>
bool is_thin(const Call<T>& s) {
  return (s.left ? s.n : s.m) < 32;
}

// C = alpha op(X) op(Y) + beta C on tiles, which suit thin factors better than the products' panels.
template <class T>
void thin_product(int m, int n, int k, T alpha, Factored<T> x, Factored<T> y, T beta, T* c, int ldc) {
  const tiles::Operand<T> a(x.trans, x.p, x.ld), b(y.trans, y.p, y.ld);
  const tiles::Product<T> p{m, n, k, alpha, a, b, beta, c, ldc};
  tiles::with_room<T>(m, k, alignment, [&](const tiles::Room<T>& room) { p.run(room, n); });
}

// `scratch` has room for a square of `most` rows and columns.
template <bool hermitian, class T>
void multiply(const Call<T>& s, const Triangle<hermitian, T>& a, int order, int most, T* scratch) {
  for (int j = 0; j < order; j += most) {
    const int width = std::min(most, order - j), below = j + width;
    const auto add = is_thin(s) ? thin_product<T> : product<T>;
    const auto take = [&](int i, int height, Factored<T> block, T old) {
      if (height == 0) return;
      if (s.left)
        add(height, s.n, width, s.alpha, block, {'N', s.b + j, s.ldb}, old, s.c + i, s.ldc);
      else
        add(s.m, width, height, s.alpha, {'N', s.b + i * s.ldb, s.ldb}, block, old, s.c + j * s.ldc, s.ldc);
    };
    // beta is for the first product that reaches an element.
    const T one = number<T>(1), old = s.left && j > 0 ? one : s.beta, next = s.left ? old : one;
    take(j, width, a.square(j, width, scratch), old);
    take(0, j, a.rectangle(0, j), next);
    take(below, order - below, a.rectangle(below, j), next);
  }
}

template <bool hermitian, class T>
__attribute__((noinline)) void multiply_small(const Call<T>& s, const Triangle<hermitian, T>& a, int order) {
  alignas(16) T scratch[small_order * small_order];
  const Factored<T> full = a.square(0, order, scratch), b{'N', s.b, s.ldb};
  thin_product(s.m, s.n, order, s.alpha, s.left ? full : b, s.left ? b : full, s.beta, s.c, s.ldc);
}

template <bool hermitian, class T>
void symm(const char* uplo, const Call<T>& s, const T* p, int ld) {
  if (s.m <= 0 || s.n <= 0) return;
  if (is_zero(s.alpha))
    return product<T>(s.m, s.n, 0, s.alpha, {'N', p, ld}, {'N', s.b, s.ldb}, s.beta, s.c, s.ldc);
  const Triangle<hermitian, T> a{is_option(uplo, 'U'), p, ld};
  const int order = s.left ? s.m : s.n, most = std::min(order, is_thin(s) ? thin_width : most_width);
  if (order <= small_order) return multiply_small(s, a, order);
  T* const scratch = static_cast<T*>(orb_serv_allocate(most * most * int(sizeof(T)), alignment));
  multiply(s, a, order, most, scratch);
  orb_serv_deallocate(scratch);
}

}  // namespace
}  // namespace orb::blas

#define SYMM(name, hermitian, T)                                                                       \
  ORB_EXPORT void name(const char* side, const char* uplo, const int* m, const int* n, const T* alpha, \
                       const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c,    \
                       const int* ldc) {                                                               \
    orb::blas::symm<hermitian, T>(                                                                     \
        uplo, {orb::is_option(side, 'L'), *m, *n, *alpha, b, *ldb, *beta, c, *ldc}, a, *lda);          \
  }
SYMM(orb_blas_xssymm, false, float)
SYMM(orb_blas_xdsymm, false, double)
SYMM(orb_blas_xcsymm, false, orb_complex_float)
SYMM(orb_blas_xzsymm, false, orb_complex_double)
SYMM(orb_blas_xchemm, true, orb_complex_float)
SYMM(orb_blas_xzhemm, true, orb_complex_double)
