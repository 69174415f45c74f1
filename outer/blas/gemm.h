// The matrix product behind its Fortran and C faces: checks, and the decision to divide it among threads.
#pragma once

#include "outer/kernels.h"

namespace orb {

ORB_INLINE bool is_transpose_letter(const char* p) {
  return is_option(p, 'N') || is_option(p, 'T') || is_option(p, 'C');
}

// The place of the first bad argument in the Fortran order, or 0.
ORB_INLINE int bad_gemm_argument(const char* transa, const char* transb, int m, int n, int k, int lda,
                                 int ldb, int ldc) {
  const auto at_least = [](int ld, int rows) { return ld >= rows && ld >= 1; };
  if (!is_transpose_letter(transa)) return 1;
  if (!is_transpose_letter(transb)) return 2;
  if (m < 0) return 3;
  if (n < 0) return 4;
  if (k < 0) return 5;
  if (!at_least(lda, is_option(transa, 'N') ? m : k)) return 8;
  if (!at_least(ldb, is_option(transb, 'N') ? k : n)) return 10;
  if (!at_least(ldc, m)) return 13;
  return 0;
}

// The serial kernel.
template <class T>
ORB_INLINE auto gemm_kernel() {
  if constexpr (sizeof(T) == 8)
    return kernel<orb_blas_xdgemm>();
  else
    return kernel<orb_blas_xsgemm>();
}

// The product on as many threads as pay. The bits of the result do not depend on their number.
void gemm_in_pieces(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                    const float* alpha, const float* a, const int* lda, const float* b, const int* ldb,
                    const float* beta, float* c, const int* ldc);
void gemm_in_pieces(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                    const double* alpha, const double* a, const int* lda, const double* b, const int* ldb,
                    const double* beta, double* c, const int* ldc);

// Is the product long enough for a second thread to pay? The limits are where it did by a tenth, at about 35
// microseconds of work; single precision does twice as much in that time.
template <class T>
ORB_INLINE bool worth_dividing(int m, int n, int k) {
  constexpr int edge = sizeof(T) == 8 ? 72 : 88;
  return double(m) * n * k >= double(edge) * edge * edge;
}

// The product of arguments known to be good. The kernel's own quick returns leave one of the BLAS's: with no
// terms and beta == 1 nothing is touched.
template <class T>
ORB_INLINE void gemm(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                     const T* alpha, const T* a, const int* lda, const T* b, const int* ldb, const T* beta,
                     T* c, const int* ldc) {
  if (*k == 0 && *beta == 1) return;
  if (worth_dividing<T>(*m, *n, *k))
    gemm_in_pieces(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
  else
    gemm_kernel<T>()(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

}  // namespace orb
