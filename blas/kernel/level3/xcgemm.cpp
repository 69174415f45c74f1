// The complex matrix products: quick returns and edge columns.
//
// Wherever a caller cuts rows or columns, an element keeps its bits, as tile_product.h says. Of the columns
// that go to the upward zgemv this holds as long as the same columns do: cut columns at multiples of 3, and
// leave pieces of `least_for_gemv` and more.
#include <string.h>

#include "blas/kernel/level3/tile_product.h"
#include "orb/blas_level3.h"

namespace orb::blas::tiles {
namespace {

constexpr int alignment = 128;
constexpr int most_columns = 240, most_columns_of_large_cache = 480;  // multiples of a tile's
constexpr int least_for_gemv = 64;
constexpr int unit_stride = 1;

template <Complex C>
void scale(int m, int n, C beta, C* c, int ldc) {
  for (int j = 0; j < n; ++j, c += ldc)
    if (is_zero(beta))
      memset(c, 0, size_t(m) * sizeof(C));
    else
      register_loop<C>(m, 0, [&]<class W>(auto, int i) { (W::splat(beta) * W::loadu(c + i)).storeu(c + i); });
}

template <Complex C>
void multiply(const Product<C>& p, int most) {
  with_room<C>(p.m, p.k, alignment, [&](const Room<C>& room) { p.run(room, most); });
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
  const bool wide = *n > most_columns && orb_serv_l2cache() == 3;
  multiply(p, wide ? most_columns_of_large_cache : most_columns);
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
  multiply(p, most_columns);
  for (int j = p.n; j < *n; ++j)
    orb_blas_zgemv(transa, p.a.down == 1 ? m : k, p.a.down == 1 ? k : m, alpha, a, lda, p.b.at(0, j),
                   &p.b.down, beta, c + j * *ldc, &unit_stride);
}
