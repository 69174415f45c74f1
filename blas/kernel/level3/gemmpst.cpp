// The small path of the real matrix products: C = alpha op(A) op(B) + beta C for any shape, straight from the
// unpacked matrices. op(B) is only a pair of strides; op(A) chooses between two forms.
//   A as it stands   C is scaled or cleared, then takes the terms A(i, k) * (alpha op(B)(k, j)) one by one in
//                    rising k.
//   A transposed     one dot product along k for each element, alpha * dot + beta * C(i, j).
#include <algorithm>

#include "blas/kernel/level3/small_blocks.h"
#include "blas/kernel/level3/small_dots.h"
#include "orb/blas_gemm.h"

namespace orb::blas {
namespace {

// In slices of the depth, so that a strip of A, a cache line wide, stays in the first-level cache for all
// columns. C waits in memory between the slices, which rounds nothing.
template <class T>
void multiply_plain(SmallProduct<T> p) {
  constexpr int slice = 128;
  int depth = p.k;
  T beta = p.beta;
  do {
    p.k = std::min(slice, depth);
    multiply_all_rows(p, TakeTerms<T>{p.alpha, beta}, [&](int i, auto) { return p.a + i; });
    p.a += slice * p.lda;
    p.b += slice * p.b_down;
    beta = 1;
  } while ((depth -= slice) > 0);
}

// Dot products too short for rounds: a strip of A is transposed, and the lanes are rows.
template <class T>
void multiply_short(SmallProduct<T> p) {
  constexpr int most_rows = 4 * vector_of<T>::lanes;
  T strip[most_rows * least_rounds_depth];
  const T* const a = p.a;
  const int lda = p.lda;
  p.lda = most_rows;
  multiply_all_rows(p, ScaleDot<T>{p.alpha, p.beta}, [&](int i, auto height) {
    for (int k = 0; k < p.k; ++k)
      for (int r = 0; r < height; ++r) strip[r + k * most_rows] = a[k + (i + r) * lda];
    return strip;
  });
}

template <class T>
void gemmpst(const char* transa, const char* transb, const int* m, const int* n, const int* k, const T* alpha,
             const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c, const int* ldc) {
  if (*m <= 0 || *n <= 0) return;
  const bool b_plain = is_option(transb, 'N');
  const SmallProduct<T> p{*m,    *n, *k,  *alpha, a, *lda, b, b_plain ? 1 : *ldb, b_plain ? *ldb : 1,
                          *beta, c,  *ldc};
  if (is_option(transa, 'N'))
    multiply_plain(p);
  else if (*k < least_rounds_depth)
    multiply_short(p);
  else if (b_plain)
    multiply_contiguous(p);
  else
    multiply_gathered(p);
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
