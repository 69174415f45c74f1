// Steps between the blocks of a triangular system that is solved over the products and its small triangles:
// blocks of 128 and of 64 unknowns, strips of 1024 and of 256 right-hand sides.
#include "blas/kernel/level3/trsm_sweep.h"

namespace orb::blas::triangular {
namespace {

constexpr auto solve_64 = [](const auto& part) { solve_innermost(part); };

template <class T>
auto by(Step<T> entry) {
  return [=](const Problem<T>& part) { call(entry, part); };
}

}  // namespace
}  // namespace orb::blas::triangular

using namespace orb::blas::triangular;

ORB_EXPORT void orb_blas_dtrsm_l1(const char*, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const double*, const double* a, const int* lda,
                                  double* b, const int* ldb) {
  sweep(problem(false, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), 128, 1024, by(orb_blas_dtrsm_l2));
}
ORB_EXPORT void orb_blas_dtrsm_l2(const char*, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const double*, const double* a, const int* lda,
                                  double* b, const int* ldb) {
  sweep(problem(false, uplo, transa, diag, *m, *n, a, *lda, b, *ldb), 64, 256, solve_64);
}
ORB_EXPORT void orb_blas_strsm_l1(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const float*, const float* a, const int* lda,
                                  float* b, const int* ldb) {
  sweep(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb), 128, 1024,
        by(orb_blas_strsm_l2));
}
ORB_EXPORT void orb_blas_strsm_l2(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const float*, const float* a, const int* lda,
                                  float* b, const int* ldb) {
  sweep(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb), 64, 256, solve_64);
}
ORB_EXPORT void orb_blas_ctrsm_l1(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const orb_complex_float*,
                                  const orb_complex_float* a, const int* lda, orb_complex_float* b,
                                  const int* ldb) {
  sweep(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb), 128, 1024,
        by(orb_blas_ctrsm_l2));
}
ORB_EXPORT void orb_blas_ctrsm_l2(const char* side, const char* uplo, const char* transa, const char* diag,
                                  const int* m, const int* n, const orb_complex_float*,
                                  const orb_complex_float* a, const int* lda, orb_complex_float* b,
                                  const int* ldb) {
  sweep(problem(orb::is_option(side, 'L'), uplo, transa, diag, *m, *n, a, *lda, b, *ldb), 64, 256, solve_64);
}
