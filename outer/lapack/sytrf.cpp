// Symmetric indefinite factorisation.
#include "orb/lapack.h"
#include "outer/kernels.h"
#include "outer/lapack/check.h"

namespace orb {
namespace {

int bad_sytrf_argument(const char* uplo, int n, int lda, int lwork) {
  if (!is_triangle_letter(uplo)) return 1;
  if (n < 0) return 2;
  if (!can_lead(lda, n)) return 4;
  if (lwork < 1 && lwork != -1) return 7;
  return 0;
}

}  // namespace
}  // namespace orb

#define SYTRF(name, capitals, T)                                                                       \
  ORB_EXPORT void orb_##name(const char* uplo, const int* n, T* a, const int* lda, int* ipiv, T* work, \
                             const int* lwork, int* info) {                                            \
    const int place = orb::bad_sytrf_argument(uplo, *n, *lda, *lwork);                                 \
    *info = -place;                                                                                    \
    if (orb::reported(capitals, place)) return;                                                        \
    orb::call<orb_blas_##name>(uplo, n, a, lda, ipiv, work, lwork, info);                              \
  }
SYTRF(ssytrf, "SSYTRF", float)
SYTRF(dsytrf, "DSYTRF", double)
SYTRF(csytrf, "CSYTRF", orb_complex_float)
SYTRF(zsytrf, "ZSYTRF", orb_complex_double)
