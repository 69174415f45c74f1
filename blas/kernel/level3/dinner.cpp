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

ORB_INLINE void expand(int kp, const double* b, DoubledQuad quad) {
  for (int k = 0; k < kp; k += 4)
    unroll<4>([&](auto d) {
      unroll<4>([&](auto q) { f64x2::splat(b[4 * (k + d) + q]).store(quad.at(k + d, q)); });
    });
}

template <class Finish>
ORB_INLINE void multiply(int m, int n, int kp, RowPairs<const double> a, ColumnQuads<const double> b,
                         double* c, int ldc, DoubledQuad quad, Finish finish) {
  for (int j = 0; j < n; j += 4, c += 4 * ldc) {
    expand(kp, b.at(j, 0), quad);
    for (int i = 0; i < m; i += 2) {
      f64x2 sum[4];
      unroll<4>([&](auto q) { sum[q] = f64x2::zero(); });
      const double* rows = a.at(i, 0);
      for (int k = 0; k < kp; k += 4)
        unroll<4>([&](auto d) {
          const f64x2 pair = f64x2::load(rows + 2 * (k + d));
          unroll<4>([&](auto q) { sum[q] += pair * f64x2::load(quad.at(k + d, q)); });
          keep_in_registers(sum);
        });
      unroll<4>([&](auto q) { finish(sum[q], c + i + q * ldc); });
    }
  }
}

}  // namespace
}  // namespace orb::blas

using namespace orb::blas;

ORB_EXPORT void orb_blas_dinner(const int* m, const int* n, const int*, const double* a, const double* b,
                                const void*, double* c, const int* ldc, double* priv) {
  multiply(*m, *n, panel_depth, {a, panel_depth}, {b, panel_depth}, c, *ldc, {priv}, Add{});
}
ORB_EXPORT void orb_blas_dinner_roll(const int* m, const int* n, const int* kp, const double* a,
                                     const double* b, const void*, double* c, const int* ldc, double* priv,
                                     const double*) {
  multiply(*m, *n, *kp, {a, *kp}, {b, *kp}, c, *ldc, {priv}, Add{});
}
ORB_EXPORT void orb_blas_dinnerb_roll(const int* m, const int* n, const int* kp, const double* a,
                                      const double* b, const void*, double* c, const int* ldc, double* priv,
                                      const double* beta2) {
  multiply(*m, *n, *kp, {a, *kp}, {b, *kp}, c, *ldc, {priv}, ScaleAndAdd{orb::f64x2::load(beta2)});
}
ORB_EXPORT void orb_blas_dinnerz_roll(const int* m, const int* n, const int* kp, const double* a,
                                      const double* b, const void*, double* c, const int* ldc, double* priv,
                                      const double*) {
  multiply(*m, *n, *kp, {a, *kp}, {b, *kp}, c, *ldc, {priv}, Set{});
}
