// Packing of the operands of the double-precision matrix product into panels. A panel's lines are rows of A
// or columns of B; the operand stands either with its lines side by side (element (line, k) at src + line +
// k * ld) or one behind the other (at src + k + line * ld). A copy runs so that it fills whole cache lines of
// the panel.
#include "blas/kernel/level3/dgemm_panels.h"
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

// What the copy does to each value on its way.
struct Keep {
  ORB_INLINE f64x2 operator()(f64x2 x) const { return x; }
};
struct Times {
  f64x2 alpha;
  ORB_INLINE f64x2 operator()(f64x2 x) const { return alpha * x; }
};

// Four k of all strips, of which the first `depth` exist.
template <int depth, class P, class Change>
ORB_INLINE void copy_side_by_side(int lines, int k, const double* src, int ld, P panel, Change change) {
  for (int line = 0; line < lines; line += P::width) {
    double* to = panel.at(line, k);
    unroll<4>([&](auto d) {
      unroll<P::width / 2>([&](auto pair) {
        const f64x2 x = d < depth ? change(f64x2::loadu(src + line + 2 * pair + d * ld)) : f64x2::zero();
        x.store(to + d * P::width + 2 * pair);
      });
    });
  }
}

template <class P, class Change>
ORB_INLINE void pack_side_by_side(int lines, int depth, const double* src, int ld, P panel, Change change) {
  int k = 0;
  for (; depth - k >= 4; k += 4, src += 4 * ld) copy_side_by_side<4>(lines, k, src, ld, panel, change);
  switch (depth - k) {
    case 3:
      return copy_side_by_side<3>(lines, k, src, ld, panel, change);
    case 2:
      return copy_side_by_side<2>(lines, k, src, ld, panel, change);
    case 1:
      return copy_side_by_side<1>(lines, k, src, ld, panel, change);
  }
}

template <class P, class Change>
ORB_INLINE void pack_one_behind_the_other(int lines, int depth, const double* src, int ld, P panel,
                                          Change change) {
  for (int line = 0; line < lines; line += P::width, src += P::width * ld) {
    int k = 0;
    for (; depth - k >= 2; k += 2)
      unroll<P::width / 2>([&](auto pair) {
        const double* from = src + k + 2 * pair * ld;
        const f64x2 x = change(f64x2::loadu(from)), y = change(f64x2::loadu(from + ld));
        f64x2::low_halves(x, y).store(panel.at(line + 2 * pair, k));
        f64x2::high_halves(x, y).store(panel.at(line + 2 * pair, k + 1));
      });
    for (; k < panel.kp; ++k)
      unroll<P::width / 2>([&](auto pair) {
        const f64x2 x = k < depth ? change(f64x2::gather(src + k + 2 * pair * ld, ld)) : f64x2::zero();
        x.store(panel.at(line + 2 * pair, k));
      });
  }
}

}  // namespace
}  // namespace orb::blas

using namespace orb::blas;

ORB_EXPORT void orb_blas_dgcopyan(const int* m, const int* k, const double* a, const int* lda, double* buf,
                                  const double* alpha) {
  const RowPairs<double> panel{buf, padded_depth(*k)};
  pack_side_by_side(*m, *k, a, *lda, panel, Times{orb::f64x2::splat(*alpha)});
}
ORB_EXPORT void orb_blas_dgcopyat(const int* m, const int* k, const double* a, const int* lda, double* buf,
                                  const double* alpha) {
  const RowPairs<double> panel{buf, padded_depth(*k)};
  pack_one_behind_the_other(*m, *k, a, *lda, panel, Times{orb::f64x2::splat(*alpha)});
}
ORB_EXPORT void orb_blas_dgcopybn(const int* k, const int* n, const double* b, const int* ldb, double* buf) {
  pack_one_behind_the_other(*n, *k, b, *ldb, ColumnQuads<double>{buf, padded_depth(*k)}, Keep{});
}
ORB_EXPORT void orb_blas_dgcopybt(const int* k, const int* n, const double* b, const int* ldb, double* buf) {
  pack_side_by_side(*n, *k, b, *ldb, ColumnQuads<double>{buf, padded_depth(*k)}, Keep{});
}
