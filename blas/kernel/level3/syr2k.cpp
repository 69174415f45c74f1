// Rank-2k updates of a symmetric or Hermitian matrix.
#include "blas/kernel/level3/triangle_update.h"

// The columns from *first on only, *count of them.
#define SYR2K_PART(name, hermitian, T, Scalar)                                                           \
  ORB_EXPORT void name(const char* uplo, const char* trans, const int* n, const int* k, const T* alpha,  \
                       const T* a, const int* lda, const T* b, const int* ldb, const Scalar* beta, T* c, \
                       const int* ldc, const int* first, const int* count) {                             \
    using namespace orb::blas;                                                                           \
    const tiles::Term<T> term{*alpha, a, *lda, b, *ldb};                                                 \
    const tiles::Term<T> mirrored{hermitian ? orb::conj(*alpha) : *alpha, b, *ldb, a, *lda};             \
    tiles::update_triangle<hermitian>(uplo, trans, *n, *k, number<T>(*beta), c, *ldc,                    \
                                      {*first, *first + *count}, term, mirrored);                        \
  }
#define SYR2K(p, routine, hermitian, T, Scalar)                                                           \
  SYR2K_PART(orb_blas_##p##routine##_part, hermitian, T, Scalar)                                          \
  ORB_EXPORT void orb_blas_x##p##routine(const char* uplo, const char* trans, const int* n, const int* k, \
                                         const T* alpha, const T* a, const int* lda, const T* b,          \
                                         const int* ldb, const Scalar* beta, T* c, const int* ldc) {      \
    const int first = 0;                                                                                  \
    orb_blas_##p##routine##_part(uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc, &first, n);      \
  }
SYR2K(s, syr2k, false, float, float)
SYR2K(d, syr2k, false, double, double)
SYR2K(c, syr2k, false, orb_complex_float, orb_complex_float)
SYR2K(z, syr2k, false, orb_complex_double, orb_complex_double)
SYR2K(c, her2k, true, orb_complex_float, float)
SYR2K(z, her2k, true, orb_complex_double, double)
