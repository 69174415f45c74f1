// sgemm_ and dgemm_. The way of a good and small product into its kernel is as short as it can be: one test,
// and one jump with the caller's own arguments. All else steps aside.
#include "outer/blas/gemm.h"

#include "orb/blas.h"

namespace orb {
namespace {

template <class T>
constexpr char gemm_name[] = "SGEMM ";
template <>
constexpr char gemm_name<double>[] = "DGEMM ";

template <class T>
ORB_ASIDE void gemm_aside(const char* transa, const char* transb, const int* m, const int* n, const int* k,
                          const T* alpha, const T* a, const int* lda, const T* b, const int* ldb,
                          const T* beta, T* c, const int* ldc) {
  if (const int place = bad_gemm_argument(transa, transb, *m, *n, *k, *lda, *ldb, *ldc))
    return xerbla_(gemm_name<T>, &place, 6);
  gemm(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

}  // namespace
}  // namespace orb

#define GEMM(name, T)                                                                                       \
  ORB_FACE void name(const char* transa, const char* transb, const int* m, const int* n, const int* k,      \
                     const T* alpha, const T* a, const int* lda, const T* b, const int* ldb, const T* beta, \
                     T* c, const int* ldc) {                                                                \
    const bool straight = *k > 0 && !orb::worth_dividing<T>(*m, *n, *k) &&                                  \
                          orb::bad_gemm_argument(transa, transb, *m, *n, *k, *lda, *ldb, *ldc) == 0;        \
    const auto next = straight ? orb::gemm_kernel<T>() : orb::gemm_aside<T>;                                \
    next(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);                                     \
  }
GEMM(sgemm_, float)
GEMM(dgemm_, double)
