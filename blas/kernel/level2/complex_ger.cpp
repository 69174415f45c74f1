// A += alpha x y^T and A += alpha x conj(y)^T of complex matrices.
#include "blas/kernel/level2/rank_update.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

template <bool conjugate, class T>
void ger(int m, int n, T alpha, const T* x, int incx, const T* y, int incy, T* a, int lda) {
  if (m == 0 || n == 0 || is_zero(alpha)) return;
  const Vector<T> v[] = {{strided_start(x, m, incx), incx}};
  y = strided_start(y, n, incy);
  for (int j = 0; j < n; ++j) {
    const T by = y[j * incy], t[] = {alpha * (conjugate ? conj(by) : by)};
    add_vectors({0, m}, v, t, a + j * lda);
  }
}

}  // namespace
}  // namespace orb::blas

#define GER(name, conjugate, T)                                                                             \
  ORB_EXPORT void name(const int* m, const int* n, const T* alpha, const T* x, const int* incx, const T* y, \
                       const int* incy, T* a, const int* lda) {                                             \
    orb::blas::ger<conjugate>(*m, *n, *alpha, x, *incx, y, *incy, a, *lda);                                 \
  }
GER(orb_blas_cgeru, false, orb_complex_float)
GER(orb_blas_cgerc, true, orb_complex_float)
GER(orb_blas_zgeru, false, orb_complex_double)
GER(orb_blas_zgerc, true, orb_complex_double)
