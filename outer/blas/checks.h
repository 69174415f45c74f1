// For each routine of levels 2 and 3 the place of its first bad argument in the Fortran argument list, or 0.
// The order of the tests is that of the reference BLAS, which programs that test for errors rely on.
#pragma once

#include "outer/boundary.h"
#include "serv/kernel/complex.h"

namespace orb {

ORB_INLINE bool is_triangle(const char* p) { return is_option(p, 'U') || is_option(p, 'L'); }
ORB_INLINE bool is_side(const char* p) { return is_option(p, 'L') || is_option(p, 'R'); }
ORB_INLINE bool is_diagonal(const char* p) { return is_option(p, 'U') || is_option(p, 'N'); }
ORB_INLINE bool is_transpose(const char* p) {
  return is_option(p, 'N') || is_option(p, 'T') || is_option(p, 'C');
}
// The letters of syrk and syr2k, which for complex matrices know no conjugation, and of herk and her2k.
template <class T>
ORB_INLINE bool is_symmetric_transpose(const char* p) {
  return is_option(p, 'N') || is_option(p, 'T') || (Real<T> && is_option(p, 'C'));
}
ORB_INLINE bool is_hermitian_transpose(const char* p) { return is_option(p, 'N') || is_option(p, 'C'); }

// The least leading dimension of a matrix with that many rows.
ORB_INLINE int distance(int rows) { return rows > 1 ? rows : 1; }

ORB_INLINE int bad_gemv(const char* trans, int m, int n, int lda, int incx, int incy) {
  return !is_transpose(trans) ? 1
         : m < 0              ? 2
         : n < 0              ? 3
         : lda < distance(m)  ? 6
         : incx == 0          ? 8
         : incy == 0          ? 11
                              : 0;
}
ORB_INLINE int bad_gbmv(const char* trans, int m, int n, int kl, int ku, int lda, int incx, int incy) {
  return !is_transpose(trans)        ? 1
         : m < 0                     ? 2
         : n < 0                     ? 3
         : kl < 0                    ? 4
         : ku < 0                    ? 5
         : lda - 1LL < 0LL + kl + ku ? 8
         : incx == 0                 ? 10
         : incy == 0                 ? 13
                                     : 0;
}
ORB_INLINE int bad_ger(int m, int n, int incx, int incy, int lda) {
  return m < 0 ? 1 : n < 0 ? 2 : incx == 0 ? 5 : incy == 0 ? 7 : lda < distance(m) ? 9 : 0;
}

ORB_INLINE int bad_symv(const char* uplo, int n, int lda, int incx, int incy) {
  return !is_triangle(uplo) ? 1 : n < 0 ? 2 : lda < distance(n) ? 5 : incx == 0 ? 7 : incy == 0 ? 10 : 0;
}
ORB_INLINE int bad_sbmv(const char* uplo, int n, int k, int lda, int incx, int incy) {
  return !is_triangle(uplo) ? 1 : n < 0 ? 2 : k < 0 ? 3 : lda <= k ? 6 : incx == 0 ? 8 : incy == 0 ? 11 : 0;
}
ORB_INLINE int bad_spmv(const char* uplo, int n, int incx, int incy) {
  return !is_triangle(uplo) ? 1 : n < 0 ? 2 : incx == 0 ? 6 : incy == 0 ? 9 : 0;
}
ORB_INLINE int bad_spr(const char* uplo, int n, int incx) {
  return !is_triangle(uplo) ? 1 : n < 0 ? 2 : incx == 0 ? 5 : 0;
}
ORB_INLINE int bad_syr(const char* uplo, int n, int incx, int lda) {
  const int place = bad_spr(uplo, n, incx);
  return place ? place : lda < distance(n) ? 7 : 0;
}
ORB_INLINE int bad_spr2(const char* uplo, int n, int incx, int incy) {
  const int place = bad_spr(uplo, n, incx);
  return place ? place : incy == 0 ? 7 : 0;
}
ORB_INLINE int bad_syr2(const char* uplo, int n, int incx, int incy, int lda) {
  const int place = bad_spr2(uplo, n, incx, incy);
  return place ? place : lda < distance(n) ? 9 : 0;
}

ORB_INLINE int bad_triangle(const char* uplo, const char* trans, const char* diag, int n) {
  return !is_triangle(uplo) ? 1 : !is_transpose(trans) ? 2 : !is_diagonal(diag) ? 3 : n < 0 ? 4 : 0;
}
ORB_INLINE int bad_trmv(const char* uplo, const char* trans, const char* diag, int n, int lda, int incx) {
  const int place = bad_triangle(uplo, trans, diag, n);
  return place ? place : lda < distance(n) ? 6 : incx == 0 ? 8 : 0;
}
ORB_INLINE int bad_tbmv(const char* uplo, const char* trans, const char* diag, int n, int k, int lda,
                        int incx) {
  const int place = bad_triangle(uplo, trans, diag, n);
  return place ? place : k < 0 ? 5 : lda <= k ? 7 : incx == 0 ? 9 : 0;
}
ORB_INLINE int bad_tpmv(const char* uplo, const char* trans, const char* diag, int n, int incx) {
  const int place = bad_triangle(uplo, trans, diag, n);
  return place ? place : incx == 0 ? 7 : 0;
}

ORB_INLINE int bad_gemm(const char* transa, const char* transb, int m, int n, int k, int lda, int ldb,
                        int ldc) {
  return !is_transpose(transa)                            ? 1
         : !is_transpose(transb)                          ? 2
         : m < 0                                          ? 3
         : n < 0                                          ? 4
         : k < 0                                          ? 5
         : lda < distance(is_option(transa, 'N') ? m : k) ? 8
         : ldb < distance(is_option(transb, 'N') ? k : n) ? 10
         : ldc < distance(m)                              ? 13
                                                          : 0;
}
ORB_INLINE int bad_gemmt(const char* uplo, const char* transa, const char* transb, int n, int k, int lda,
                         int ldb, int ldc) {
  if (!is_triangle(uplo)) return 1;
  const int place = bad_gemm(transa, transb, n, n, k, lda, ldb, ldc);
  return place == 1 || place == 2 ? place + 1 : place == 3 ? 4 : place;
}
ORB_INLINE int bad_symm(const char* side, const char* uplo, int m, int n, int lda, int ldb, int ldc) {
  return !is_side(side)                                 ? 1
         : !is_triangle(uplo)                           ? 2
         : m < 0                                        ? 3
         : n < 0                                        ? 4
         : lda < distance(is_option(side, 'L') ? m : n) ? 7
         : ldb < distance(m)                            ? 9
         : ldc < distance(m)                            ? 12
                                                        : 0;
}
// syrk and herk, syr2k and her2k; `trans_good` tells whether the routine knows the letter.
ORB_INLINE int bad_rank_k(const char* uplo, const char* trans, bool trans_good, int n, int k, int lda) {
  return !is_triangle(uplo)                              ? 1
         : !trans_good                                   ? 2
         : n < 0                                         ? 3
         : k < 0                                         ? 4
         : lda < distance(is_option(trans, 'N') ? n : k) ? 7
                                                         : 0;
}
ORB_INLINE int bad_syrk(const char* uplo, const char* trans, bool trans_good, int n, int k, int lda,
                        int ldc) {
  const int place = bad_rank_k(uplo, trans, trans_good, n, k, lda);
  return place ? place : ldc < distance(n) ? 10 : 0;
}
ORB_INLINE int bad_syr2k(const char* uplo, const char* trans, bool trans_good, int n, int k, int lda, int ldb,
                         int ldc) {
  const int place = bad_rank_k(uplo, trans, trans_good, n, k, lda);
  return place ? place : ldb < distance(is_option(trans, 'N') ? n : k) ? 9 : ldc < distance(n) ? 12 : 0;
}
ORB_INLINE int bad_trmm(const char* side, const char* uplo, const char* transa, const char* diag, int m,
                        int n, int lda, int ldb) {
  return !is_side(side)                                 ? 1
         : !is_triangle(uplo)                           ? 2
         : !is_transpose(transa)                        ? 3
         : !is_diagonal(diag)                           ? 4
         : m < 0                                        ? 5
         : n < 0                                        ? 6
         : lda < distance(is_option(side, 'L') ? m : n) ? 9
         : ldb < distance(m)                            ? 11
                                                        : 0;
}

}  // namespace orb
