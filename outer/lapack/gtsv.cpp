// Tridiagonal systems.
#include "orb/lapack.h"
#include "outer/kernels.h"
#include "outer/lapack/check.h"

namespace orb {
namespace {

int bad_gtsv_argument(int n, int nrhs, int ldb) {
  if (n < 0) return 1;
  if (nrhs < 0) return 2;
  if (!can_lead(ldb, n)) return 7;
  return 0;
}

}  // namespace
}  // namespace orb

#define GTSV(name, capitals, T)                                                                       \
  ORB_EXPORT void orb_##name(const int* n, const int* nrhs, T* dl, T* d, T* du, T* b, const int* ldb, \
                             int* info) {                                                             \
    const int place = orb::bad_gtsv_argument(*n, *nrhs, *ldb);                                        \
    *info = -place;                                                                                   \
    if (orb::reported(capitals, place)) return;                                                       \
    orb::call<orb_blas_##name>(n, nrhs, dl, d, du, b, ldb, info);                                     \
  }
GTSV(sgtsv, "SGTSV ", float)
GTSV(dgtsv, "DGTSV ", double)
GTSV(cgtsv, "CGTSV ", orb_complex_float)
GTSV(zgtsv, "ZGTSV ", orb_complex_double)
