// Systems with many right-hand sides, by the shape of the kernel, and the macro that turns its name into its
// body.
#pragma once

#include "orb/sparse_kernels.h"
#include "spblas/kernel/csr_sm_forward.h"
#include "spblas/kernel/csr_sm_panels.h"

namespace orb::spblas {

template <bool contiguous, class T>
ORB_INLINE void scale_row(const Columns<T>& c, int r, T by) {
  T* row = c.place(r, c.first);
  if constexpr (contiguous)
    compiled_loop(c.count(), row, [&]<class V>(int j) ORB_INLINE_BODY {
      (V::splat(by) * V::loadu(row + j)).storeu(row + j);
    });
  else
    for (int j = 0; j < c.count(); ++j) row[j * c.step] = by * row[j * c.step];
}

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_sm(int first, int last, int m, int n, const T* alpha, const T* values, const int* columns,
                       const int* row_begin, const int* row_end, T* p, int ldc) {
  if (last < first || m < 1) return;
  const Csr<T> a = csr<s>(values, columns, row_begin, row_end);
  const Range range = rows<s>(1, m);
  constexpr bool by_rows = s.by_rows();
  const int ld = by_rows ? ldc : 1, step = by_rows ? 1 : ldc;
  const Columns<T> c{p - s.first_number() * ld, ld, step, first - 1, last};
  if constexpr (s.kind == 'd')
    sm_diagonal<s.conjugates()>(a, range, *alpha, [&](int i, T by) { scale_row<by_rows>(c, i, by); });
  else if constexpr (!s.transposes() && s.side() == Side::lower)
    sm_forward<s.conjugates(), s.unit(), by_rows>(a, range, n, c);
  else
    for_panels<s>(first, last, [&](auto panel, int j) ORB_INLINE_BODY {
      if constexpr (s.transposes())
        sm_transposed<s.conjugates(), s.unit(), s.side()>(a, range, panel(p, ldc, j));
      else
        sm_backward<s.conjugates(), s.unit()>(a, range, panel(p, ldc, j));
    });
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
