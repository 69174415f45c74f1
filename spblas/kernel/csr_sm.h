// Systems with many right-hand sides, by the shape of the kernel, and the macro that turns its name into its
// body.
#pragma once

#include "orb/sparse_kernels.h"
#include "spblas/kernel/csr_sm_columns.h"
#include "spblas/kernel/csr_sm_forward.h"

namespace orb::spblas {

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_sm(int first, int last, int m, int n, const T* alpha, const T* values, const int* columns,
                       const int* row_begin, const int* row_end, T* p, int ldc) {
  if (last < first || m < 1) return;
  constexpr bool conjugates = s.conjugates(), unit = s.unit(), by_rows = s.by_rows();
  const Csr<T> a = csr<s>(values, columns, row_begin, row_end);
  const Range range = rows<s>(1, m);
  const Columns<T> c{p, ldc, first, last};
  if constexpr (s.kind == 'd')
    sm_diagonal<conjugates, by_rows>(a, range, *alpha, c);
  else if constexpr (s.transposes())
    sm_transposed<conjugates, unit, s.side(), by_rows>(a, range, c);
  else if constexpr (s.side() == Side::lower)
    sm_forward<conjugates, unit, by_rows>(a, range, n, c);
  else
    sm_backward<conjugates, unit, by_rows>(a, range, c);
}

}  // namespace orb::spblas

#define ORB_CSR_SM(name)                                                                                    \
  ORB_EXPORT void name(const int* first, const int* last, const int* m, const int* n,                       \
                       const ORB_SHAPE_ELEMENT(name) * alpha, const ORB_SHAPE_ELEMENT(name) * values,       \
                       const int* columns, const int* row_begin, const int* row_end,                        \
                       ORB_SHAPE_ELEMENT(name) * c, const int* ldc) {                                       \
    orb::spblas::csr_sm<ORB_SHAPE(name)>(*first, *last, *m, *n, alpha, values, columns, row_begin, row_end, \
                                         c, *ldc);                                                          \
  }
