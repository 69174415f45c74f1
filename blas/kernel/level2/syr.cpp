// A += alpha x op(x)^T on one triangle.
#include "blas/kernel/level2/rank_update.h"
#include "orb/blas_level2.h"

#define SYR(name, hermitian, A, T)                                                                        \
  ORB_EXPORT void name(const char* uplo, const int* n, const A* alpha, const T* x, const int* incx, T* a, \
                       const int* lda) {                                                                  \
    orb::blas::rank_one<hermitian>(uplo, *n, *alpha, x, *incx, [=](auto) {                                \
      return orb::blas::Dense<T>{a, *lda, *n};                                                            \
    });                                                                                                   \
  }
SYR(orb_blas_xssyr, false, float, float)
SYR(orb_blas_xdsyr, false, double, double)
SYR(orb_blas_cher, true, float, orb_complex_float)
SYR(orb_blas_zher, true, double, orb_complex_double)
