// Factored positive definite tridiagonal systems. The complex routines have one argument more in front.
#include "orb/lapack.h"
#include "outer/kernels.h"
#include "outer/lapack/check.h"

namespace orb {
namespace {

int bad_ptts2_argument(int n, int nrhs, int ldb) {
  if (n < 0) return 1;
  if (nrhs < 0) return 2;
  if (!can_lead(ldb, n)) return 6;
  return 0;
}

int bad_ptts2_argument(int iuplo, int n, int nrhs, int ldb) {
  if (iuplo != 0 && iuplo != 1) return 1;
  const int place = bad_ptts2_argument(n, nrhs, ldb);
  return place ? place + 1 : 0;
}

}  // namespace
}  // namespace orb

#define REAL_PTTS2(name, capitals, T)                                                                       \
  ORB_EXPORT void orb_##name(const int* n, const int* nrhs, const T* d, const T* e, T* b, const int* ldb) { \
    if (orb::reported(capitals, orb::bad_ptts2_argument(*n, *nrhs, *ldb))) return;                          \
    orb::call<orb_blas_##name>(n, nrhs, d, e, b, ldb);                                                      \
  }
#define COMPLEX_PTTS2(name, capitals, T, R)                                                                 \
  ORB_EXPORT void orb_##name(const int* iuplo, const int* n, const int* nrhs, const R* d, const T* e, T* b, \
                             const int* ldb) {                                                              \
    if (orb::reported(capitals, orb::bad_ptts2_argument(*iuplo, *n, *nrhs, *ldb))) return;                  \
    orb::call<orb_blas_##name>(iuplo, n, nrhs, d, e, b, ldb);                                               \
  }
REAL_PTTS2(sptts2, "SPTTS2", float)
REAL_PTTS2(dptts2, "DPTTS2", double)
COMPLEX_PTTS2(cptts2, "CPTTS2", orb_complex_float, float)
COMPLEX_PTTS2(zptts2, "ZPTTS2", orb_complex_double, double)
