// Elementary reflectors.
#include "orb/lapack.h"
#include "outer/kernels.h"
#include "outer/lapack/check.h"

namespace orb {
namespace {

int bad_larfx_argument(const char* side, int m, int n, int ldc) {
  if (!is_side_letter(side)) return 1;
  if (m < 0) return 2;
  if (n < 0) return 3;
  if (!can_lead(ldc, m)) return 7;
  return 0;
}

}  // namespace
}  // namespace orb

#define LARFX(name, capitals, T)                                                                           \
  ORB_EXPORT void orb_##name(const char* side, const int* m, const int* n, const T* v, const T* tau, T* c, \
                             const int* ldc, T* work) {                                                    \
    if (orb::reported(capitals, orb::bad_larfx_argument(side, *m, *n, *ldc))) return;                      \
    orb::call<orb_blas_##name>(side, m, n, v, tau, c, ldc, work);                                          \
  }
LARFX(slarfx, "SLARFX", float)
LARFX(dlarfx, "DLARFX", double)
LARFX(clarfx, "CLARFX", orb_complex_float)
LARFX(zlarfx, "ZLARFX", orb_complex_double)
