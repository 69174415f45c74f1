// x . y and conj(x) . y, complex. Each register of x is multiplied by that of y and by that of y with its
// parts exchanged; no sign is met before the end, where four real sums are left: re re, im im, re im, im re.
#include "orb/blas_level1.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

template <Complex C>
struct CrossSums {
  using R = vector_of<real_of<C>>;
  R like[2] = {R::zero(), R::zero()}, crossed[2] = {R::zero(), R::zero()};

  template <int k, class V>
  ORB_INLINE void add(Int<k>, V x, V y) {
    like[k % 2] += x.v * y.v;
    crossed[k % 2] += x.v * swap_parts(y.v);
  }
  template <bool conjugate>
  ORB_INLINE C total() const {
    const C l = ComplexVector<C>{like[0] + like[1]}.sum(),
            c = ComplexVector<C>{crossed[0] + crossed[1]}.sum();
    if constexpr (conjugate) return {l.re + l.im, c.re - c.im};
    return {l.re - l.im, c.re + c.im};
  }
};

template <Complex C>
ORB_INLINE void add_one_by_one(CrossSums<C>& sums, int n, const C* x, int incx, const C* y, int incy) {
  using One = one_of<C>;
  x = strided_start(x, n, incx);
  y = strided_start(y, n, incy);
  for (int i = 0; i < n; ++i, x += incx, y += incy) sums.add(Int<0>{}, One::loadu(x), One::loadu(y));
}

template <bool conjugate, Complex C>
C dot(int n, const C* x, int incx, const C* y, int incy) {
  if (n <= 0) return {0, 0};
  CrossSums<C> sums;
  const int peel = elements_to_boundary(x);
  if (incx != incy || (incx != 1 && incx != -1))
    add_one_by_one(sums, n, x, incx, y, incy);
  else if (!same_alignment(x, y) || peel < 0)
    add_one_by_one(sums, n, x, 1, y, 1);
  else
    register_loop<C>(n, peel,
                     [&, x, y]<class V>(auto k, int i) { sums.add(k, V::load(x + i), V::load(y + i)); });
  return sums.template total<conjugate>();
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_cdotu(orb_complex_float* result, const int* n, const orb_complex_float* x,
                               const int* incx, const orb_complex_float* y, const int* incy) {
  *result = orb::blas::dot<false>(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_xcdotc(orb_complex_float* result, const int* n, const orb_complex_float* x,
                                const int* incx, const orb_complex_float* y, const int* incy) {
  *result = orb::blas::dot<true>(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_zdotu(orb_complex_double* result, const int* n, const orb_complex_double* x,
                               const int* incx, const orb_complex_double* y, const int* incy) {
  *result = orb::blas::dot<false>(*n, x, *incx, y, *incy);
}
ORB_EXPORT void orb_blas_zdotc(orb_complex_double* result, const int* n, const orb_complex_double* x,
                               const int* incx, const orb_complex_double* y, const int* incy) {
  *result = orb::blas::dot<true>(*n, x, *incx, y, *incy);
}
