// Cholesky factorisation.
#include "orb/lapack.h"
#include "outer/kernels.h"
#include "outer/lapack/check.h"

namespace orb {
namespace {

int bad_potrf_argument(const char* uplo, int n, int lda) {
  if (!is_triangle_letter(uplo)) return 1;
  if (n < 0) return 2;
  if (!can_lead(lda, n)) return 4;
  return 0;
}

}  // namespace
}  // namespace orb

#define POTRF(name, capitals, T)                                                                \
  ORB_EXPORT void orb_##name(const char* uplo, const int* n, T* a, const int* lda, int* info) { \
    const int place = orb::bad_potrf_argument(uplo, *n, *lda);                                  \
    *info = -place;                                                                             \
    if (orb::reported(capitals, place)) return;                                                 \
    orb::call<orb_blas_##name>(uplo, n, a, lda, info);                                          \
  }
POTRF(spotrf, "SPOTRF", float)
POTRF(dpotrf, "DPOTRF", double)
POTRF(cpotrf, "CPOTRF", orb_complex_float)
POTRF(zpotrf, "ZPOTRF", orb_complex_double)
