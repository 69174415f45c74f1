// The small path of the real matrix products: C = alpha op(A) op(B) + beta C for any shape, straight from the
// caller's matrices. A strip of op(A) at a time is laid out on the stack, its rows in the lanes, and meets
// all columns of op(B). Two forms:
//   A as it stands   C is scaled or cleared, then takes the terms A(i, k) * (alpha op(B)(k, j)) one by one in
//                    rising k.
//   A transposed     one dot product along k for each element, alpha * dot + beta * C(i, j).
#include "blas/kernel/level3/small_blocks.h"
#include "blas/kernel/level3/small_dots.h"
#include "blas/kernel/level3/small_strip.h"
#include "orb/blas_gemm.h"

namespace orb::blas {
namespace {

template <class T>
constexpr int most_rows = 4 * vector_of<T>::lanes;

// In slices of the depth, which keep a strip in the first-level cache. C waits in memory between the slices,
// which rounds nothing.
template <bool b_plain, class T>
void multiply_plain(SmallProduct<T> p) {
  constexpr int slice = 128;
  alignas(16) T strip[slice * most_rows<T>];
  T beta = p.beta;
  for (int left = p.k;; left -= slice) {
    p.k = std::min(slice, left);
    multiply_strips<b_plain>(p, TakeTerms<T>{p.alpha, beta}, [&]<class W>(auto count, int i, int rows) {
      lay_strip<W, count>(rows, p.k, p.a + i, p.lda, strip);
      return strip;
    });
    if (left <= slice) return;
    p.a += slice * p.lda;
    p.b += slice * p.b_down;
    beta = 1;
  }
}

// Dot products too short for rounds.
template <bool b_plain, class T>
void multiply_short(const SmallProduct<T>& p) {
  alignas(16) T strip[least_rounds_depth * most_rows<T>];
  multiply_strips<b_plain>(p, ScaleDot<T>{p.alpha, p.beta}, [&]<class W>(auto count, int i, int rows) {
    lay_strip_transposed<W, count>(rows, p.k, p.a + i * p.lda, p.lda, strip);
    return strip;
  });
}

// Dot products with rounds. Strips have a register of rows. Rows go one by one from where they stand if they
// are too long for a strip, would fill but one lane, or meet too few columns to repay the laying.
template <bool b_plain, class T>
void multiply_long(const SmallProduct<T>& p) {
  using V = vector_of<T>;
  constexpr int most_depth = 1024, least_columns = 8;
  alignas(16) T strip[most_depth * V::lanes];
  const bool one_by_one = p.k > most_depth || (b_plain && p.n < least_columns);
  for (int i = 0, rows; i < p.m; i += rows) {
    rows = one_by_one ? 1 : std::min(p.m - i, V::lanes);
    const T* const a = p.a + i * p.lda;
    if (rows == 1) {
      multiply_one_row<b_plain>(p, a, p.c + i);
    } else {
      lay_strip_transposed<V, 1>(rows, p.k, a, p.lda, strip);
      multiply_row_strip<b_plain>(p, strip, rows, p.c + i);
    }
  }
}

template <bool b_plain, class T>
void multiply(bool a_plain, const SmallProduct<T>& p) {
  if (a_plain)
    multiply_plain<b_plain>(p);
  else if (p.k < least_rounds_depth)
    multiply_short<b_plain>(p);
  else
    multiply_long<b_plain>(p);
}

template <class T>
void gemmpst(const char* transa, const char* transb, const int* m, const int* n, const int* k, const T* alpha,
             const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c, const int* ldc) {
  if (*m <= 0 || *n <= 0) return;
  const bool a_plain = is_option(transa, 'N');
  if (is_option(transb, 'N'))
    multiply<true, T>(a_plain, {*m, *n, *k, *alpha, a, *lda, b, 1, *ldb, *beta, c, *ldc});
  else
    multiply<false, T>(a_plain, {*m, *n, *k, *alpha, a, *lda, b, *ldb, 1, *beta, c, *ldc});
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_dgemmpst(const char* transa, const char* transb, const int* m, const int* n,
                                  const int* k, const double* alpha, const double* a, const int* lda,
                                  const double* b, const int* ldb, const double* beta, double* c,
                                  const int* ldc) {
  orb::blas::gemmpst(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}
ORB_EXPORT void orb_blas_sgemmpst(const char* transa, const char* transb, const int* m, const int* n,
                                  const int* k, const float* alpha, const float* a, const int* lda,
                                  const float* b, const int* ldb, const float* beta, float* c,
                                  const int* ldc) {
  orb::blas::gemmpst(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}
