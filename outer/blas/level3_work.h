// The other products and the triangular solves with arguments known to be good, on as many threads as pay.
// The bits of the result do not depend on their number.
#pragma once

#include "outer/blas/gemmt.h"

namespace orb {

ORB_INLINE bool is_left(const char* side) { return is_option(side, 'L'); }

template <auto* entry>
struct Symm;
template <class T, void (*entry)(const char*, const char*, const int*, const int*, const T*, const T*,
                                 const int*, const T*, const int*, const T*, T*, const int*)>
struct Symm<entry> {
  ORB_ASIDE static void divided(const char* side, const char* uplo, const int* m, const int* n,
                                const T* alpha, const T* a, const int* lda, const T* b, const int* ldb,
                                const T* beta, T* c, const int* ldc) {
    if (is_left(side))
      in_pieces(*n, column_grain<T>, [=](int first, int count) {
        call<entry>(side, uplo, m, &count, alpha, a, lda, b + first * *ldb, ldb, beta, c + first * *ldc, ldc);
      });
    else
      in_pieces(*m, row_grain<T>, [=](int first, int count) {
        call<entry>(side, uplo, &count, n, alpha, a, lda, b + first, ldb, beta, c + first, ldc);
      });
  }
  ORB_INLINE static void run(const char* side, const char* uplo, const int* m, const int* n, const T* alpha,
                             const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c,
                             const int* ldc) {
    const auto next = worth_dividing<T>(*m, *n, is_left(side) ? *m : *n) ? divided : kernel<entry>();
    next(side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc);
  }
};

// trmm and trsm.
template <auto* entry>
struct Trmm;
template <class T, void (*entry)(const char*, const char*, const char*, const char*, const int*, const int*,
                                 const T*, const T*, const int*, T*, const int*)>
struct Trmm<entry> {
  ORB_ASIDE static void divided(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const T* alpha, const T* a, const int* lda, T* b,
                                const int* ldb) {
    if (is_left(side))
      in_pieces(*n, column_grain<T>, [=](int first, int count) {
        call<entry>(side, uplo, transa, diag, m, &count, alpha, a, lda, b + first * *ldb, ldb);
      });
    else
      in_pieces(*m, row_grain<T>, [=](int first, int count) {
        call<entry>(side, uplo, transa, diag, &count, n, alpha, a, lda, b + first, ldb);
      });
  }
  ORB_INLINE static void run(const char* side, const char* uplo, const char* transa, const char* diag,
                             const int* m, const int* n, const T* alpha, const T* a, const int* lda, T* b,
                             const int* ldb) {
    const auto next =
        worth_dividing<T>(double(*m) * *n * (is_left(side) ? *m : *n) / 2) ? divided : kernel<entry>();
    next(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);
  }
};

// The columns of one triangle of a matrix of order n in parts of about the same area: body(first, count).
template <class Body>
void in_triangle_parts(bool upper, int n, Body body) {
  constexpr int unit = 48, least = 2 * unit;
  const int most = n / least, threads = orb_get_max_threads(), parts = threads < most ? threads : most;
  // Where the columns before a share of the area end: the upper triangle grows from the left, the lower one
  // shrinks.
  const auto start = [=](int i) {
    if (i == 0) return 0;
    if (i == parts) return n;
    const double share = double(i) / parts,
                 edge = upper ? __builtin_sqrt(share) : 1 - __builtin_sqrt(1 - share);
    return int(edge * n / unit + 0.5) * unit;
  };
  run_pieces(parts, [=](int i) { body(start(i), start(i + 1) - start(i)); });
}

// The rank-k and rank-2k updates, each a whole kernel and one for a part of the columns. The arguments up to
// ldc are the caller's.
template <class T, auto* whole, auto* part, class... A>
ORB_ASIDE void update_divided(const char* uplo, const char* trans, const int* n, const int* k,
                              A... arguments) {
  if (orb_get_max_threads() == 1 || *n < 192) return call<whole>(uplo, trans, n, k, arguments...);
  in_triangle_parts(is_option(uplo, 'U'), *n, [=](int first, int count) {
    call<part>(uplo, trans, n, k, arguments..., &first, &count);
  });
}
template <class T, auto* whole, auto* part, class... A>
ORB_INLINE void update(const char* uplo, const char* trans, const int* n, const int* k, A... arguments) {
  if (worth_dividing<T>(double(*n) * *n * *k / 2))
    update_divided<T, whole, part>(uplo, trans, n, k, arguments...);
  else
    call<whole>(uplo, trans, n, k, arguments...);
}

}  // namespace orb
