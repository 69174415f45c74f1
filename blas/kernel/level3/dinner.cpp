// Inner kernels of the double-precision matrix product on packed panels: two rows by four columns of C in
// registers, every element one sum in rising k. They differ in depth and in what happens to C at the end.
#include "blas/kernel/level3/dgemm_panels.h"
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

// How the sums reach C: each writes one pair of rows from its sum.
struct Add {
  ORB_INLINE void operator()(f64x2 sum, double* c) const { (f64x2::loadu(c) + sum).storeu(c); }
};
struct ScaleAndAdd {
  f64x2 beta;
  ORB_INLINE void operator()(f64x2 sum, double* c) const { (beta * f64x2::loadu(c) + sum).storeu(c); }
};
struct Set {
  ORB_INLINE void operator()(f64x2 sum, double* c) const { sum.storeu(c); }
};

// One row pair by one column quad over all k; finish(sum, q) takes the pair's sum for column q. The first row
// pair of a quad also writes the quad's private panel, from which the others then load.
template <bool first, class Finish>
ORB_INLINE void multiply_pair(RowPairs<const double> rows, ColumnQuads<const double> columns,
                              DoubledQuad quad, Finish finish) {
  f64x2 sum[4];
  unroll<4>([&](auto q) ORB_INLINE_BODY { sum[q] = f64x2::zero(); });
  for (int k = 0; k < rows.kp; k += 4)
    unroll<4>([&](auto d) ORB_INLINE_BODY {
      const f64x2 pair = f64x2::load(rows.at(0, k + d));
      unroll<4>([&](auto q) ORB_INLINE_BODY {
        double* const slot = quad.at(k + d, q);
        if constexpr (first) f64x2::splat(*columns.at(q, k + d)).store(slot);
        sum[q] += pair * f64x2::load(slot);
        keep_in_registers(sum);
      });
    });
  unroll<4>([&](auto q) ORB_INLINE_BODY { finish(sum[q], q); });
}

template <class Update>
ORB_INLINE void multiply(int m, int n, RowPairs<const double> a, ColumnQuads<const double> b, double* c,
                         int ldc, DoubledQuad quad, Update update) {
  if (m < 2) return;
  for (int j = 0; j < n / 4; ++j, c += 4 * ldc) {
    const auto multiply_at = [&](auto first, int i) ORB_INLINE_BODY {
      multiply_pair<first>(a.from_strip(i), b.from_strip(j), quad,
                           [&](f64x2 sum, int q) ORB_INLINE_BODY { update(sum, c + 2 * i + q * ldc); });
    };
    multiply_at(Int<true>{}, 0);
    for (int i = 1; i < m / 2; ++i) multiply_at(Int<false>{}, i);
  }
}

}  // namespace
}  // namespace orb::blas

using namespace orb::blas;

ORB_EXPORT void orb_blas_dinner(const int* m, const int* n, const int*, const double* a, const double* b,
                                const void*, double* c, const int* ldc, double* priv) {
  multiply(*m, *n, {a, panel_depth}, {b, panel_depth}, c, *ldc, {priv}, Add{});
}
ORB_EXPORT void orb_blas_dinner_roll(const int* m, const int* n, const int* kp, const double* a,
                                     const double* b, const void*, double* c, const int* ldc, double* priv,
                                     const double*) {
  multiply(*m, *n, {a, *kp}, {b, *kp}, c, *ldc, {priv}, Add{});
}
ORB_EXPORT void orb_blas_dinnerb_roll(const int* m, const int* n, const int* kp, const double* a,
                                      const double* b, const void*, double* c, const int* ldc, double* priv,
                                      const double* beta2) {
  multiply(*m, *n, {a, *kp}, {b, *kp}, c, *ldc, {priv}, ScaleAndAdd{orb::f64x2::load(beta2)});
}
ORB_EXPORT void orb_blas_dinnerz_roll(const int* m, const int* n, const int* kp, const double* a,
                                      const double* b, const void*, double* c, const int* ldc, double* priv,
                                      const double*) {
  multiply(*m, *n, {a, *kp}, {b, *kp}, c, *ldc, {priv}, Set{});
}
