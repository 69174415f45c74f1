// The matrix products with arguments known to be good, on as many threads as pay. The bits of the result do
// not depend on their number.
#pragma once

#include "outer/blas/element.h"
#include "outer/blas/pieces.h"
#include "outer/kernels.h"

namespace orb {

// Grains of the rows and columns of a product, where nothing but the product's own size decides its way
// through the kernel. sgemm's small path ends at m + n + k = 150 (what is divided at all lies far above).
inline int at_least(int size, int lacking) { return lacking > size ? (lacking + 15) & ~15 : size; }
template <class T>
Grain product_rows(int, int) {
  return row_grain<T>;
}
template <>
inline Grain product_rows<float>(int n, int k) {
  return {16, at_least(64, 150 - n - k)};
}
template <class T>
Grain product_columns(int, int) {
  return column_grain<T>;
}
template <>
inline Grain product_columns<double>(int, int) {
  return {4, 16};
}
template <>
inline Grain product_columns<float>(int m, int k) {
  return {4, at_least(16, 150 - m - k)};
}

template <auto* entry>
struct Gemm;
template <class T, void (*entry)(const char*, const char*, const int*, const int*, const int*, const T*,
                                 const T*, const int*, const T*, const int*, const T*, T*, const int*)>
struct Gemm<entry> {
  // Columns first: each piece packs all of A again, but runs along full columns of it. Rows where that gives
  // more pieces. The kernels' own quick returns leave one of the BLAS's: with no terms and beta == 1 nothing
  // is touched.
  ORB_ASIDE static void divided(const char* transa, const char* transb, const int* m, const int* n,
                                const int* k, const T* alpha, const T* a, const int* lda, const T* b,
                                const int* ldb, const T* beta, T* c, const int* ldc) {
    if (*k == 0 && is_one(*beta)) return;
    const Grain rows = product_rows<T>(*n, *k), columns = product_columns<T>(*m, *k);
    const int threads = orb_get_max_threads();
    if (columns.pieces(*n, threads) >= rows.pieces(*m, threads))
      in_pieces(*n, columns, [=](int first, int count) {
        call<entry>(transa, transb, m, &count, k, alpha, a, lda,
                    b + first * (is_option(transb, 'N') ? *ldb : 1), ldb, beta, c + first * *ldc, ldc);
      });
    else
      in_pieces(*m, rows, [=](int first, int count) {
        call<entry>(transa, transb, &count, n, k, alpha, a + first * (is_option(transa, 'N') ? 1 : *lda), lda,
                    b, ldb, beta, c + first, ldc);
      });
  }
  // The way of a small product into its kernel is one jump with the caller's own arguments.
  ORB_INLINE static void run(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                             const T* alpha, const T* a, const int* lda, const T* b, const int* ldb,
                             const T* beta, T* c, const int* ldc) {
    const auto next = *k > 0 && !worth_dividing<T>(*m, *n, *k) ? kernel<entry>() : divided;
    next(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
  }
};

// The product of elements of type T.
template <class T>
constexpr auto gemm_entry = orb_blas_xsgemm;
template <>
inline constexpr auto gemm_entry<double> = orb_blas_xdgemm;
template <>
inline constexpr auto gemm_entry<c32> = orb_blas_xcgemm;
template <>
inline constexpr auto gemm_entry<c64> = orb_blas_xzgemm;

}  // namespace orb
