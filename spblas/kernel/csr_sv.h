// Systems with one right-hand side, by the shape of the kernel, and the macro that turns its name into its
// body.
#pragma once

#include "orb/sparse_kernels.h"
#include "spblas/kernel/csr_sv_columns.h"

namespace orb::spblas {

template <bool conjugated, class T>
void sv_diagonal(const Csr<T>& a, Range rows, T alpha, T* y) {
  for (int i = rows.first; i < rows.end; ++i) {
    const T diagonal = a.values[end_below(a.row(i), i)];
    y[i] = quotient(alpha, conjugate_if<conjugated>(diagonal)) * y[i];
  }
}
template <bool conjugated, bool unit, class T>
void sv_forward(const Csr<T>& a, Range rows, T* y) {
  solve_forward<conjugated, unit>(a, rows, y, 1);
}

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_sv(int m, const T* alpha, const T* values, const int* columns, const int* row_begin,
                       const int* row_end, T* y) {
  if (m < 1) return;
  const Csr<T> a = csr<s>(values, columns, row_begin, row_end);
  const Range range = rows<s>(1, m);
  y -= s.first_number();
  if constexpr (s.kind == 'd')
    sv_diagonal<s.conjugates()>(a, range, *alpha, y);
  else if constexpr (s.transposes())
    sv_transposed<s.conjugates(), s.unit(), s.side()>(a, range, y);
  else if constexpr (s.side() == Side::lower)
    sv_forward<s.conjugates(), s.unit()>(a, range, y);
  else
    sv_backward<s.conjugates(), s.unit()>(a, range, y);
}

}  // namespace orb::spblas

#define ORB_CSR_SV(name)                                                                                 \
  ORB_EXPORT void name(const int* m, const ORB_SHAPE_ELEMENT(name) * alpha,                              \
                       const ORB_SHAPE_ELEMENT(name) * values, const int* columns, const int* row_begin, \
                       const int* row_end, ORB_SHAPE_ELEMENT(name) * y) {                                \
    orb::spblas::csr_sv<ORB_SHAPE(name)>(*m, alpha, values, columns, row_begin, row_end, y);             \
  }
