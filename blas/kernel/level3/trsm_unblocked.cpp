// The small triangles of the systems, solved unblocked: the left side divides by the diagonal, the right side
// multiplies by its reciprocals.
#include "blas/kernel/level3/triangular_system.h"
#include "blas/kernel/level3/triangular_unblocked.h"
#include "orb/blas_triangular.h"

namespace orb::blas::triangular {
namespace {

template <class T>
void solve(const Problem<T>& p) {
  p.left ? solve_dividing(p.triangle(), p.unknowns()) : solve_multiplying(p.triangle(), p.unknowns());
}

}  // namespace
}  // namespace orb::blas::triangular

using namespace orb::blas::triangular;

ORB_EXPORT void orb_blas_dtrsm_i(const char*, const char* uplo, const char* transa, const char* diag,
                                 const int* m, const int* n, const double*, const double* a, const int* lda,
                                 double* b, const int* ldb) {
  solve(problem(false, uplo, transa, diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_strsm_i(const char*, const char* uplo, const char* transa, const char* diag,
                                 const int* m, const int* n, const float*, const float* a, const int* lda,
                                 float* b, const int* ldb) {
  solve(problem(false, uplo, transa, diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_strsmlln(const char* diag, const int* m, const int* n, const float* a,
                                  const int* lda, float* b, const int* ldb) {
  solve(problem(true, "L", "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_strsmlun(const char* diag, const int* m, const int* n, const float* a,
                                  const int* lda, float* b, const int* ldb) {
  solve(problem(true, "U", "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_strsmlt(const char* uplo, const char* diag, const int* m, const int* n,
                                 const float* a, const int* lda, float* b, const int* ldb) {
  solve(problem(true, uplo, "T", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ctrsmlln(const char* diag, const int* m, const int* n, const orb_complex_float* a,
                                  const int* lda, orb_complex_float* b, const int* ldb) {
  solve(problem(true, "L", "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ctrsmlun(const char* diag, const int* m, const int* n, const orb_complex_float* a,
                                  const int* lda, orb_complex_float* b, const int* ldb) {
  solve(problem(true, "U", "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ctrsmlt(const char* uplo, const char* transa, const char* diag, const int* m,
                                 const int* n, const orb_complex_float* a, const int* lda,
                                 orb_complex_float* b, const int* ldb) {
  solve(problem(true, uplo, transa, diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ctrsmrn(const char* uplo, const char* diag, const int* m, const int* n,
                                 const orb_complex_float* a, const int* lda, orb_complex_float* b,
                                 const int* ldb) {
  solve(problem(false, uplo, "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ctrsmrt(const char* uplo, const char* transa, const char* diag, const int* m,
                                 const int* n, const orb_complex_float* a, const int* lda,
                                 orb_complex_float* b, const int* ldb) {
  solve(problem(false, uplo, transa, diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ztrsmlln(const char* diag, const int* m, const int* n, const orb_complex_double* a,
                                  const int* lda, orb_complex_double* b, const int* ldb) {
  solve(problem(true, "L", "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ztrsmlun(const char* diag, const int* m, const int* n, const orb_complex_double* a,
                                  const int* lda, orb_complex_double* b, const int* ldb) {
  solve(problem(true, "U", "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ztrsmlt(const char* uplo, const char* transa, const char* diag, const int* m,
                                 const int* n, const orb_complex_double* a, const int* lda,
                                 orb_complex_double* b, const int* ldb) {
  solve(problem(true, uplo, transa, diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ztrsmrn(const char* uplo, const char* diag, const int* m, const int* n,
                                 const orb_complex_double* a, const int* lda, orb_complex_double* b,
                                 const int* ldb) {
  solve(problem(false, uplo, "N", diag, *m, *n, a, *lda, b, *ldb));
}
ORB_EXPORT void orb_blas_ztrsmrt(const char* uplo, const char* transa, const char* diag, const int* m,
                                 const int* n, const orb_complex_double* a, const int* lda,
                                 orb_complex_double* b, const int* ldb) {
  solve(problem(false, uplo, transa, diag, *m, *n, a, *lda, b, *ldb));
}
