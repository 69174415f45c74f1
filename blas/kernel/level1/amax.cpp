// Place of the largest and of the smallest magnitude. Blocks of unit stride are asked first whether any
// element would take over from the best so far; the rule itself runs only over a block that says yes. The
// question is the rule's own comparison, true for NaN, so the result is that of the rule alone.
#include "orb/blas_level1.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::blas {
namespace {

struct Largest {
  template <class M>
  static bool keeps(M best, M m) {
    return best >= m;
  }
  template <class V>
  static ORB_INLINE V takes_over(V best, V m) {
    return V::not_le(m, best);
  }
};
struct Smallest {
  template <class M>
  static bool keeps(M best, M m) {
    return best <= m;
  }
  template <class V>
  static ORB_INLINE V takes_over(V best, V m) {
    return V::not_le(best, m);
  }
};

template <Real T>
ORB_INLINE T magnitude(T a) {
  return std::abs(a);
}
template <Complex C>
ORB_INLINE real_of<C> magnitude(C a) {
  return std::abs(a.re) + std::abs(a.im);
}

// Of as many elements from p, at any address, as fill a register.
template <class V, Real T>
ORB_INLINE V magnitudes(const T* p) {
  return V::loadu(p).abs();
}
// In an order of their own.
template <class V, Complex C>
ORB_INLINE V magnitudes(const C* p) {
  const V a = V::loadu(&p->re).abs(), b = V::loadu(&p->re + V::lanes).abs();
  return V::even(a, b) + V::odd(a, b);
}

template <class Rule, class T>
int place(int n, const T* x, int incx) {
  using V = vector_of<real_of<T>>;
  if (n < 1 || incx < 1) return 0;
  auto best = magnitude(*x);
  int at = 0, i = 1;
  const auto try_up_to = [&](int end) {
    for (; i < end; ++i)
      if (const auto m = magnitude(x[i * incx]); !Rule::keeps(best, m)) best = m, at = i;
  };
  constexpr int block = 8 * V::lanes;
  while (incx == 1 && n - i >= block) {
    V any = V::zero();
    unroll<8>(
        [&](auto k) { any = any | Rule::takes_over(V::splat(best), magnitudes<V>(x + i + k * V::lanes)); });
    if (any.any())
      try_up_to(i + block);
    else
      i += block;
  }
  try_up_to(n);
  return at + 1;
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT int orb_blas_isamax(const int* n, const float* x, const int* incx) {
  return orb::blas::place<orb::blas::Largest>(*n, x, *incx);
}
ORB_EXPORT int orb_blas_idamax(const int* n, const double* x, const int* incx) {
  return orb::blas::place<orb::blas::Largest>(*n, x, *incx);
}
ORB_EXPORT int orb_blas_icamax(const int* n, const orb_complex_float* x, const int* incx) {
  return orb::blas::place<orb::blas::Largest>(*n, x, *incx);
}
ORB_EXPORT int orb_blas_izamax(const int* n, const orb_complex_double* x, const int* incx) {
  return orb::blas::place<orb::blas::Largest>(*n, x, *incx);
}
ORB_EXPORT int orb_blas_isamin(const int* n, const float* x, const int* incx) {
  return orb::blas::place<orb::blas::Smallest>(*n, x, *incx);
}
ORB_EXPORT int orb_blas_idamin(const int* n, const double* x, const int* incx) {
  return orb::blas::place<orb::blas::Smallest>(*n, x, *incx);
}
ORB_EXPORT int orb_blas_icamin(const int* n, const orb_complex_float* x, const int* incx) {
  return orb::blas::place<orb::blas::Smallest>(*n, x, *incx);
}
ORB_EXPORT int orb_blas_izamin(const int* n, const orb_complex_double* x, const int* incx) {
  return orb::blas::place<orb::blas::Smallest>(*n, x, *incx);
}
