// Triangular systems with many right-hand sides. The left side in double precision has a hierarchy of its
// own; all others are swept in blocks of 256 unknowns, or of 64 in double complex precision, which has no
// steps between.
#include "blas/kernel/level3/trsm_sweep.h"

namespace orb::blas::triangular {
namespace {

constexpr int block = 256, strip = 1024;

// Is nothing left to do behind the scaling?
template <class T>
bool scaled_only(int m, int n, T alpha, T* b, int ldb) {
  if (m <= 0 || n <= 0) return true;
  if (!is_one(alpha)) scale(m, n, alpha, b, ldb);
  return is_zero(alpha);
}

template <class T>
void solve(const Problem<T>& p, Step<T> step) {
  sweep(p, block, strip, [=](const Problem<T>& part) { call(step, part); });
}

void solve_left(const Problem<double>& p) {
  const auto form = p.plain ? (p.upper ? orb_blas_dtrsm_lun_r : orb_blas_dtrsm_lln_r)
                            : (p.upper ? orb_blas_dtrsm_lut_r : orb_blas_dtrsm_llt_r);
  const int one = 1;
  form(p.diag(), &p.order, &p.others, p.a, &p.lda, p.b, &p.ldb, &one);
}

}  // namespace
}  // namespace orb::blas::triangular

using namespace orb::blas::triangular;

ORB_EXPORT void orb_blas_xdtrsm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const double* alpha, const double* a,
                                const int* lda, double* b, const int* ldb) {
  if (scaled_only(*m, *n, *alpha, b, *ldb)) return;
  const auto p = blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb);
  p.left ? solve_left(p) : solve(p, orb_blas_dtrsm_l1);
}
ORB_EXPORT void orb_blas_xstrsm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const float* alpha, const float* a,
                                const int* lda, float* b, const int* ldb) {
  if (scaled_only(*m, *n, *alpha, b, *ldb)) return;
  solve(blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), orb_blas_strsm_l1);
}
ORB_EXPORT void orb_blas_xctrsm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const orb_complex_float* alpha,
                                const orb_complex_float* a, const int* lda, orb_complex_float* b,
                                const int* ldb) {
  if (scaled_only(*m, *n, *alpha, b, *ldb)) return;
  solve(blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), orb_blas_ctrsm_l1);
}
ORB_EXPORT void orb_blas_xztrsm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const orb_complex_double* alpha,
                                const orb_complex_double* a, const int* lda, orb_complex_double* b,
                                const int* ldb) {
  if (scaled_only(*m, *n, *alpha, b, *ldb)) return;
  const auto p = blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb);
  sweep(p, most_unknowns, p.others, [](const auto& part) { solve_innermost(part); });
}
