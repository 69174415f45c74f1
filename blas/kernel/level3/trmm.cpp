// Triangular products. A triangle is halved down to a size at which the product kernels no longer pay; what
// lies between two halves is one product of theirs.
// Source: E. Elmroth, F. Gustavson, I. Jonsson, B. Kagstrom, Recursive blocked algorithms and hybrid data
// structures for dense matrix library software, SIAM Review 46 (2004) 3-45.
#include "blas/kernel/level3/triangular_system.h"
#include "blas/kernel/level3/triangular_unblocked.h"
#include "orb/blas_triangular.h"

namespace orb::blas::triangular {
namespace {

template <class T>
void multiply(const Problem<T>& p, T alpha, Step<T> step) {
  if (p.order <= most_unknowns) return call(step, p, alpha);
  // Whole blocks in the first half: the products like round sizes.
  const int blocks = (p.order + most_unknowns - 1) / most_unknowns;
  const int early = blocks / 2 * most_unknowns, late = p.order - early;
  const int from = p.first(0, early), to = p.first(early, late);
  // The later unknowns need the earlier ones as they were.
  multiply(p.block(to, late), alpha, step);
  p.add_product(alpha, from, early, to, late);
  multiply(p.block(from, early), alpha, step);
}

template <class T>
void multiply_or_clear(const Problem<T>& p, T alpha, Step<T> step) {
  if (p.order <= 0 || p.others <= 0) return;
  if (is_zero(alpha))
    return scale(p.left ? p.order : p.others, p.left ? p.others : p.order, alpha, p.b, p.ldb);
  multiply(p, alpha, step);
}

template <class T>
void multiply_unblocked(const Problem<T>& p, T alpha) {
  multiply(p.triangle(), alpha, p.unknowns());
}

}  // namespace
}  // namespace orb::blas::triangular

using namespace orb::blas::triangular;

ORB_EXPORT void orb_blas_xstrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const float* alpha, const float* a,
                                const int* lda, float* b, const int* ldb) {
  multiply_or_clear(blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), *alpha,
                    orb_blas_strmm_l1);
}
ORB_EXPORT void orb_blas_xdtrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const double* alpha, const double* a,
                                const int* lda, double* b, const int* ldb) {
  multiply_or_clear(blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), *alpha,
                    orb_blas_dtrmm_l1);
}
ORB_EXPORT void orb_blas_xctrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const orb_complex_float* alpha,
                                const orb_complex_float* a, const int* lda, orb_complex_float* b,
                                const int* ldb) {
  multiply_or_clear(blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), *alpha,
                    orb_blas_ctrmm_l1);
}
ORB_EXPORT void orb_blas_xztrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                                const int* m, const int* n, const orb_complex_double* alpha,
                                const orb_complex_double* a, const int* lda, orb_complex_double* b,
                                const int* ldb) {
  multiply_or_clear(blas_problem(side, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), *alpha,
                    orb_blas_ztrmm_l1);
}
ORB_EXPORT void orb_blas_strmm_l1(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const float* alpha, const float* a,
                                  const int* lda, float* b, const int* ldb) {
  multiply_unblocked(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb),
                     *alpha);
}
ORB_EXPORT void orb_blas_dtrmm_l1(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const double* alpha, const double* a,
                                  const int* lda, double* b, const int* ldb) {
  multiply_unblocked(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb),
                     *alpha);
}
ORB_EXPORT void orb_blas_ctrmm_l1(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const orb_complex_float* alpha,
                                  const orb_complex_float* a, const int* lda, orb_complex_float* b,
                                  const int* ldb) {
  multiply_unblocked(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb),
                     *alpha);
}
ORB_EXPORT void orb_blas_ztrmm_l1(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const orb_complex_double* alpha,
                                  const orb_complex_double* a, const int* lda, orb_complex_double* b,
                                  const int* ldb) {
  multiply_unblocked(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb),
                     *alpha);
}
