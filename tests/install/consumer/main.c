/* Solves a triangular system in C and multiplies back by the Fortran name. */
#include <orb/blas.h>
#include <orb/cblas.h>

int main(void) {
  const double a[4] = {2, 1, 0, 4}; /* by columns: (2 0; 1 4) */
  double x[2] = {2, 9};
  const int n = 2, one = 1;
  cblas_dtrsv(CblasColMajor, CblasLower, CblasNoTrans, CblasNonUnit, n, a, n, x, one);
  if (x[0] != 1 || x[1] != 2) return 1;
  dtrmv_("L", "N", "N", &n, a, &n, x, &one);
  return x[0] == 2 && x[1] == 9 ? 0 : 1;
}
