// y = A x without factors, for compressed rows and for square blocks in compressed rows. A row of blocks is
// taken by strips of its rows, a register a strip; plain rows are strips of one row and blocks of one
// element.
#include "orb/sparse_kernels.h"
#include "serv/kernel/loops.h"
#include "serv/kernel/simd_complex.h"

namespace orb::spblas {
namespace {

template <class T>
struct Blocks {
  const T* values;  // from the first of the row on
  const int* columns;
  int count, order;
};

// V::lanes rows of a row of blocks from row `r` of it on.
template <class V, class T>
ORB_INLINE V strip_dot(const Blocks<T>& row, int r, const T* x) {
  int k = 0, q = 0;  // the next term: column q of the k-th block
  const auto sum_of = [&](int terms) ORB_INLINE_BODY {
    V sum = V::zero();
    for (; terms > 0; --terms) {
      sum += V::splat(x[(row.columns[k] - 1) * row.order + q]) *
             V::loadu(row.values + (k * row.order + q) * row.order + r);
      if (++q == row.order) q = 0, ++k;
    }
    return sum;
  };
  const int terms = row.count * row.order, tail = terms % 4;
  const V sum = sum_of(terms - tail);
  return sum + sum_of(tail);
}

template <class T>
void gemv(int first, int last, int order, const T* values, const int* columns, const int* row_pointers,
          const T* x, T* y) {
  using V = vector_of<T>;
  for (int i = first - 1; i < last; ++i) {
    const int begin = row_pointers[i] - row_pointers[0], end = row_pointers[i + 1] - row_pointers[0];
    const Blocks<T> row{values + begin * order * order, columns + begin, end - begin, order};
    T* yi = y + i * order;
    int r = 0;
    for (; order - r >= V::lanes; r += V::lanes) strip_dot<V>(row, r, x).storeu(yi + r);
    for (; r < order; ++r) strip_dot<one_of<T>>(row, r, x).storeu(yi + r);
  }
}

}  // namespace
}  // namespace orb::spblas

ORB_EXPORT void orb_spblas_dcsr1ng__f__gemvout_par(const int* first, const int* last, const void*,
                                                   const void*, const double* values, const int* columns,
                                                   const int* row_pointers, const void*, const double* x,
                                                   double* y) {
  orb::spblas::gemv(*first, *last, 1, values, columns, row_pointers, x, y);
}
ORB_EXPORT void orb_spblas_sbsr1ng__f__gemvout_par(const int* first, const int* last, const void*,
                                                   const int* block, const float* values, const int* columns,
                                                   const int* row_pointers, const void*, const float* x,
                                                   float* y) {
  orb::spblas::gemv(*first, *last, *block, values, columns, row_pointers, x, y);
}
ORB_EXPORT void orb_spblas_dbsr1ng__f__gemvout_par(const int* first, const int* last, const void*,
                                                   const int* block, const double* values, const int* columns,
                                                   const int* row_pointers, const void*, const double* x,
                                                   double* y) {
  orb::spblas::gemv(*first, *last, *block, values, columns, row_pointers, x, y);
}
ORB_EXPORT void orb_spblas_cbsr1ng__f__gemvout_par(const int* first, const int* last, const void*,
                                                   const int* block, const orb_complex_float* values,
                                                   const int* columns, const int* row_pointers, const void*,
                                                   const orb_complex_float* x, orb_complex_float* y) {
  orb::spblas::gemv(*first, *last, *block, values, columns, row_pointers, x, y);
}
ORB_EXPORT void orb_spblas_zbsr1ng__f__gemvout_par(const int* first, const int* last, const void*,
                                                   const int* block, const orb_complex_double* values,
                                                   const int* columns, const int* row_pointers, const void*,
                                                   const orb_complex_double* x, orb_complex_double* y) {
  orb::spblas::gemv(*first, *last, *block, values, columns, row_pointers, x, y);
}
