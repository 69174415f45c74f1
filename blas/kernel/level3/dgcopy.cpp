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
  double* to = panel.at(0, k);
  for (int line = 0; line < lines; line += P::width, src += P::width, to += panel.strip_size())
    unroll<4>([&](auto d) ORB_INLINE_BODY {
      unroll<P::width / 2>([&](auto pair) ORB_INLINE_BODY {
        const f64x2 x = d < depth ? change(f64x2::loadu(src + 2 * pair + d * ld)) : f64x2::zero();
        x.store(to + d * P::width + 2 * pair);
      });
    });
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
  // Both k of a pair, or with `last` the one k that is left over.
  const auto copy = [=](auto last, const double* from, double* to) ORB_INLINE_BODY {
    unroll<P::width / 2>([=](auto pair) ORB_INLINE_BODY {
      const double* x = from + 2 * pair * ld;
      f64x2 block[2] = {f64x2::zero(), f64x2::zero()};
      if constexpr (last) {
        block[0] = change(f64x2::gather(x, ld));
      } else {
        block[0] = change(f64x2::loadu(x)), block[1] = change(f64x2::loadu(x + ld));
        f64x2::transpose(block);
      }
      block[0].store(to + 2 * pair), block[1].store(to + P::width + 2 * pair);
    });
  };
  for (int line = 0; line < lines; line += P::width, src += P::width * ld) {
    double* to = panel.at(line, 0);
    double* const end = to + panel.strip_size();
    int k = 0;
    for (; depth - k >= 2; k += 2, to += 2 * P::width) copy(Int<false>{}, src + k, to);
    if (k < depth) copy(Int<true>{}, src + k, to), to += 2 * P::width;
    if (to < end) unroll<P::width>([=](auto pair) ORB_INLINE_BODY { f64x2::zero().store(to + 2 * pair); });
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
