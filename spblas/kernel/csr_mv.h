// Products with a vector, by the shape of the kernel, and the macros that turn its name into its body.
#pragma once

#include "orb/sparse_kernels.h"
#include "spblas/kernel/axpy.h"
#include "spblas/kernel/csr_mv_gather.h"
#include "spblas/kernel/csr_mv_mirror.h"
#include "spblas/kernel/csr_mv_scatter.h"

namespace orb::spblas {

// Only entries on the diagonal count, wherever in their row they stand.
template <bool conjugated, class T>
void mv_diagonal(const Csr<T>& a, Range rows, T alpha, const T* x, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    for (int k = row.begin; k < row.end; ++k)
      if (row.columns[k] == i)
        add_to(y + i, product<conjugated>(row.values[k], alpha, one_of<T>::loadu(x + i)));
  }
}

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_mv_par(int first, int last, T alpha, const T* values, const int* columns,
                           const int* row_begin, const int* row_end, const T* x, T* y) {
  if (last < first) return;
  // The symmetric kernels with a stored diagonal, and they alone, are given x and y from row `first` on.
  constexpr bool from_first = s.op == 'n' && s.kind == 's' && !s.unit();
  const int shift = s.first_number() + (from_first ? first - 1 : 0);
  const Csr<T> a = csr<s>(values, columns, row_begin, row_end);
  const Range range = rows<s>(first, last);
  x -= shift, y -= shift;
  if constexpr (s.kind == 'g')
    mv_general<s.conjugates()>(a, range, alpha, x, y);
  else if constexpr (s.kind == 't' && s.unit())
    mv_unit_triangle<s.conjugates(), s.side()>(a, range, alpha, x, y);
  else if constexpr (s.kind == 't')
    mv_triangle<s.conjugates(), s.side()>(a, range, alpha, x, y);
  else if constexpr (s.unit() || s.kind == 'a')
    mv_mirror_corrected<mirror_of<s>, s.side(), s.unit()>(a, range, alpha, x, y);
  else
    mv_mirror<mirror_of<s>, s.side()>(a, range, alpha, x, y);
}

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_mv_seq(int m, const T* alpha, const T* values, const int* columns, const int* row_begin,
                           const int* row_end, const T* x, T* y) {
  if (m < 1) return;
  if constexpr (s.kind == 'd' && s.unit()) return axpy(&m, alpha, x, y);
  const Csr<T> a = csr<s>(values, columns, row_begin, row_end);
  const Range range = rows<s>(1, m);
  x -= s.first_number(), y -= s.first_number();
  if constexpr (s.kind == 'g')
    mv_general_transposed<s.conjugates()>(a, range, *alpha, x, y);
  else if constexpr (s.kind == 't')
    mv_triangle_transposed<s.conjugates(), s.side(), s.unit()>(a, range, *alpha, x, y);
  else
    mv_diagonal<s.conjugates()>(a, range, *alpha, x, y);
}

}  // namespace orb::spblas

#define ORB_CSR_MV_PAR(name)                                                                                 \
  ORB_EXPORT void name(const int* first, const int* last, const int*, const ORB_SHAPE_ELEMENT(name) * alpha, \
                       const ORB_SHAPE_ELEMENT(name) * values, const int* columns, const int* row_begin,     \
                       const int* row_end, const ORB_SHAPE_ELEMENT(name) * x, ORB_SHAPE_ELEMENT(name) * y) { \
    orb::spblas::csr_mv_par<ORB_SHAPE(name)>(*first, *last, *alpha, values, columns, row_begin, row_end, x,  \
                                             y);                                                             \
  }
#define ORB_CSR_MV_SEQ(name)                                                                                 \
  ORB_EXPORT void name(const int* m, const ORB_SHAPE_ELEMENT(name) * alpha,                                  \
                       const ORB_SHAPE_ELEMENT(name) * values, const int* columns, const int* row_begin,     \
                       const int* row_end, const ORB_SHAPE_ELEMENT(name) * x, ORB_SHAPE_ELEMENT(name) * y) { \
    orb::spblas::csr_mv_seq<ORB_SHAPE(name)>(*m, alpha, values, columns, row_begin, row_end, x, y);          \
  }
