// y = alpha op(A) x + beta y of complex matrices: quick returns, scaling, and the choice of the body.
#include "blas/kernel/level2/scale.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

// The exported bodies of one type, in the order N, T, C.
template <class T>
struct Bodies;
template <>
struct Bodies<c32> {
  static constexpr decltype(&orb_blas_cgemvn) unit[] = {orb_blas_cgemvn, orb_blas_cgemvt, orb_blas_cgemvc};
  static constexpr decltype(&orb_blas_cgemv_n_any) any[] = {orb_blas_cgemv_n_any, orb_blas_cgemv_t_any,
                                                            orb_blas_cgemv_c_any};
};
template <>
struct Bodies<c64> {
  static constexpr decltype(&orb_blas_zgemvn) unit[] = {orb_blas_zgemvn, orb_blas_zgemvt, orb_blas_zgemvc};
  static constexpr decltype(&orb_blas_zgemv_n_any) any[] = {orb_blas_zgemv_n_any, orb_blas_zgemv_t_any,
                                                            orb_blas_zgemv_c_any};
};

template <class T>
void gemv(const char* trans, const int* m, const int* n, const T* alpha, const T* a, const int* lda,
          const T* x, const int* incx, T beta, T* y, const int* incy) {
  if (*m == 0 || *n == 0) return;
  if (is_zero(*alpha) && is_one(beta)) return;
  const int op = is_option(trans, 'N') ? 0 : is_option(trans, 'T') ? 1 : 2;
  const int length = op == 0 ? *m : *n;
  scale(length, beta, strided_start(y, length, *incy), *incy);
  if (is_zero(*alpha)) return;
  if (*incx == 1 && *incy == 1)
    Bodies<T>::unit[op](m, n, alpha, a, lda, x, y);
  else
    Bodies<T>::any[op](m, n, alpha, a, lda, x, incx, y, incy);
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_xcgemv(const char* trans, const int* m, const int* n, const orb_complex_float* alpha,
                                const orb_complex_float* a, const int* lda, const orb_complex_float* x,
                                const int* incx, const orb_complex_float* beta, orb_complex_float* y,
                                const int* incy) {
  orb::blas::gemv(trans, m, n, alpha, a, lda, x, incx, *beta, y, incy);
}
ORB_EXPORT void orb_blas_xzgemv(const char* trans, const int* m, const int* n,
                                const orb_complex_double* alpha, const orb_complex_double* a, const int* lda,
                                const orb_complex_double* x, const int* incx, const orb_complex_double* beta,
                                orb_complex_double* y, const int* incy) {
  orb::blas::gemv(trans, m, n, alpha, a, lda, x, incx, *beta, y, incy);
}
