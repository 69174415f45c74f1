// Sequences of plane rotations.
#include "orb/lapack.h"
#include "outer/kernels.h"
#include "outer/lapack/check.h"

namespace orb {
namespace {

int bad_lasr_argument(const char* side, const char* pivot, const char* direct, int m, int n, int lda) {
  if (!is_side_letter(side)) return 1;
  if (!is_option(pivot, 'V') && !is_option(pivot, 'T') && !is_option(pivot, 'B')) return 2;
  if (!is_option(direct, 'F') && !is_option(direct, 'B')) return 3;
  if (m < 0) return 4;
  if (n < 0) return 5;
  if (!can_lead(lda, m)) return 9;
  return 0;
}

}  // namespace
}  // namespace orb

#define LASR(name, capitals, T, R)                                                                  \
  ORB_EXPORT void orb_##name(const char* side, const char* pivot, const char* direct, const int* m, \
                             const int* n, const R* c, const R* s, T* a, const int* lda) {          \
    if (orb::reported(capitals, orb::bad_lasr_argument(side, pivot, direct, *m, *n, *lda))) return; \
    orb::call<orb_blas_##name>(side, pivot, direct, m, n, c, s, a, lda);                            \
  }
LASR(slasr, "SLASR ", float, float)
LASR(dlasr, "DLASR ", double, double)
LASR(clasr, "CLASR ", orb_complex_float, float)
LASR(zlasr, "ZLASR ", orb_complex_double, double)
