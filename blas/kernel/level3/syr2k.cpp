// Rank-2k updates of a symmetric or Hermitian matrix.
#include "blas/kernel/level3/triangle_update.h"

#define SYR2K(name, hermitian, T, Scalar)                                                                \
  ORB_EXPORT void name(const char* uplo, const char* trans, const int* n, const int* k, const T* alpha,  \
                       const T* a, const int* lda, const T* b, const int* ldb, const Scalar* beta, T* c, \
                       const int* ldc) {                                                                 \
    using namespace orb::blas;                                                                           \
    const tiles::Term<T> term{*alpha, a, *lda, b, *ldb};                                                 \
    const tiles::Term<T> mirrored{hermitian ? orb::conj(*alpha) : *alpha, b, *ldb, a, *lda};             \
    tiles::update_triangle<hermitian>(uplo, trans, *n, *k, number<T>(*beta), c, *ldc, term, mirrored);   \
  }
SYR2K(orb_blas_xssyr2k, false, float, float)
SYR2K(orb_blas_xdsyr2k, false, double, double)
SYR2K(orb_blas_xcsyr2k, false, orb_complex_float, orb_complex_float)
SYR2K(orb_blas_xzsyr2k, false, orb_complex_double, orb_complex_double)
SYR2K(orb_blas_xcher2k, true, orb_complex_float, float)
SYR2K(orb_blas_xzher2k, true, orb_complex_double, double)
