// Rank-k updates of a symmetric or Hermitian matrix.
#include "blas/kernel/level3/triangle_update.h"

// The columns from *first on only, *count of them.
#define SYRK_PART(name, hermitian, T, Scalar)                                                                \
  ORB_EXPORT void name(const char* uplo, const char* trans, const int* n, const int* k, const Scalar* alpha, \
                       const T* a, const int* lda, const Scalar* beta, T* c, const int* ldc,                 \
                       const int* first, const int* count) {                                                 \
    using namespace orb::blas;                                                                               \
    const tiles::Term<T> term{number<T>(*alpha), a, *lda, a, *lda};                                          \
    tiles::update_triangle<hermitian>(uplo, trans, *n, *k, number<T>(*beta), c, *ldc,                        \
                                      {*first, *first + *count}, term);                                      \
  }
#define SYRK(p, routine, hermitian, T, Scalar)                                                            \
  SYRK_PART(orb_blas_##p##routine##_part, hermitian, T, Scalar)                                           \
  ORB_EXPORT void orb_blas_x##p##routine(const char* uplo, const char* trans, const int* n, const int* k, \
                                         const Scalar* alpha, const T* a, const int* lda,                 \
                                         const Scalar* beta, T* c, const int* ldc) {                      \
    const int first = 0;                                                                                  \
    orb_blas_##p##routine##_part(uplo, trans, n, k, alpha, a, lda, beta, c, ldc, &first, n);              \
  }
SYRK(s, syrk, false, float, float)
SYRK(d, syrk, false, double, double)
SYRK(c, syrk, false, orb_complex_float, orb_complex_float)
SYRK(z, syrk, false, orb_complex_double, orb_complex_double)
SYRK(c, herk, true, orb_complex_float, float)
SYRK(z, herk, true, orb_complex_double, double)
