// Rank-k updates of a symmetric or Hermitian matrix.
#include "blas/kernel/level3/triangle_update.h"

#define SYRK(name, hermitian, T, Scalar)                                                                     \
  ORB_EXPORT void name(const char* uplo, const char* trans, const int* n, const int* k, const Scalar* alpha, \
                       const T* a, const int* lda, const Scalar* beta, T* c, const int* ldc) {               \
    using namespace orb::blas;                                                                               \
    const tiles::Term<T> term{number<T>(*alpha), a, *lda, a, *lda};                                          \
    tiles::update_triangle<hermitian>(uplo, trans, *n, *k, number<T>(*beta), c, *ldc, term);                 \
  }
SYRK(orb_blas_xssyrk, false, float, float)
SYRK(orb_blas_xdsyrk, false, double, double)
SYRK(orb_blas_xcsyrk, false, orb_complex_float, orb_complex_float)
SYRK(orb_blas_xzsyrk, false, orb_complex_double, orb_complex_double)
SYRK(orb_blas_xcherk, true, orb_complex_float, float)
SYRK(orb_blas_xzherk, true, orb_complex_double, double)
