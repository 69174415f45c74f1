// C = 0 and C = beta C over a block of any alignment.
#include "orb/blas_gemm.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

// A column at a time. set.template operator()<V>(p) rewrites V::lanes elements at p, on a boundary if V is
// the full register. Rows beyond a multiple of 4 are left to scalars.
template <class T, class Set>
ORB_INLINE void rewrite_columns(int m, int n, T* c, int ldc, Set set) {
  const int body = m & ~3;
  for (int j = 0; j < n; ++j, c += ldc) {
    compiled_loop(body, c, [=]<class V>(int i) { set.template operator()<V>(c + i); });
    for (int i = body; i < m; ++i) set.template operator()<Lane<T>>(c + i);
  }
}

// Four columns a round, each piece of a column at any address.
template <class T, class Set>
ORB_INLINE void rewrite_column_quads(int m, int n, T* c, int ldc, Set set) {
  using V = vector_of<T>;
  const auto columns = [=](auto count, T* at) {
    const auto rows = [=]<class W>(int i) {
      unroll<count>([=](auto q) { set.template operator()<W>(at + i + q * ldc); });
    };
    int i = 0;
    for (; m - i >= V::lanes; i += V::lanes) rows.template operator()<V>(i);
    for (; i < m; ++i) rows.template operator()<Lane<T>>(i);
  };
  int j = 0;
  for (; n - j >= 4; j += 4) columns(Int<4>{}, c + j * ldc);
  for (; j < n; ++j) columns(Int<1>{}, c + j * ldc);
}

template <class T>
void mscale(int m, int n, T beta, T* c, int ldc) {
  if (beta == 0)
    rewrite_column_quads(m, n, c, ldc, []<class V>(T* p) { V::zero().storeu(p); });
  else
    rewrite_column_quads(m, n, c, ldc, [=]<class V>(T* p) { (V::splat(beta) * V::loadu(p)).storeu(p); });
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_dzerom(const int* m, const int* n, double* c, const int* ldc) {
  orb::blas::rewrite_columns(*m, *n, c, *ldc, []<class V>(double* p) { V::zero().store(p); });
}
ORB_EXPORT void orb_blas_dscalm(const int* m, const int* n, const double* beta, double* c, const int* ldc) {
  orb::blas::rewrite_columns(*m, *n, c, *ldc,
                             [beta = *beta]<class V>(double* p) { (V::splat(beta) * V::load(p)).store(p); });
}
ORB_EXPORT void orb_blas_dgemm_mscale(const int* m, const int* n, const double* beta, double* c,
                                      const int* ldc) {
  orb::blas::mscale(*m, *n, *beta, c, *ldc);
}
ORB_EXPORT void orb_blas_sgemm_mscale(const int* m, const int* n, const float* beta, float* c,
                                      const int* ldc) {
  orb::blas::mscale(*m, *n, *beta, c, *ldc);
}
