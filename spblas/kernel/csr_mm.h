// Products with a dense matrix, by the shape of the kernel, and the macros that turn its name into its body.
#pragma once

#include "orb/sparse_kernels.h"
#include "spblas/kernel/axpy.h"
#include "spblas/kernel/csr_mm_sweeps.h"
#include "spblas/kernel/row_blocks.h"

namespace orb::spblas {

template <class T>
struct Dense {
  T* p;
  int ld;
};

// A panel's share of the work.
template <Shape s, class T, class B, class C>
ORB_INLINE void mm_panel(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  if constexpr (s.kind == 'd') {
    mm_diagonal<s.conjugates()>(a, rows, alpha, b, c);
  } else if constexpr (s.kind == 'g' && s.transposes()) {
    mm_general_transposed<s.conjugates()>(a, rows, alpha, b, c);
  } else if constexpr (s.kind == 'g') {
    mm_general<s.conjugates()>(a, rows, alpha, b, c);
  } else if constexpr (s.kind == 't' && s.transposes()) {
    mm_triangle_transposed<s.conjugates(), s.side(), s.unit()>(a, rows, alpha, b, c);
  } else {
    mm_whole_rows<s.conjugates_entry()>(a, rows, alpha, b, c);
    if constexpr (s.kind == 't')
      mm_correct_triangle<s.conjugates(), s.side(), s.unit()>(a, rows, alpha, b, c);
    else
      mm_mirror<mirror_of<s>, s.side(), s.unit()>(a, rows, alpha, b, c);
  }
}

template <Shape s, class T>
ORB_INLINE void mm_columns(const Csr<T>& a, Range rows, int first, int last, T alpha, Dense<const T> b,
                           Dense<T> c) {
  for_panels<s>(first, last, [&](auto panel, int j) ORB_INLINE_BODY {
    mm_panel<s>(a, rows, alpha, panel(b.p, b.ld, j), panel(c.p, c.ld, j));
  });
}

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_mm_par(int first, int last, int m, int k, T alpha, const T* values, const int* columns,
                           const int* row_begin, const int* row_end, Dense<const T> b, Dense<T> c) {
  if (last < first || m < 1) return;
  const Csr<T> a = csr<s>(values, columns, row_begin, row_end);
  const Range all = rows<s>(1, m);
  constexpr bool in_blocks = s.kind == 'g' && !s.transposes() && !s.by_rows();
  const int step = in_blocks ? rows_per_block<s.conjugates()>(a, all.end - 1, m, k) : m;
  // The last of m / step blocks runs to the end.
  Range block{all.first, all.first};
  for (int left = m < step ? 1 : m / step; left > 0; --left) {
    block = {block.end, left > 1 ? block.end + step : all.end};
    mm_columns<s>(a, block, first, last, alpha, b, c);
  }
}

// y += alpha x once for each dense row (by rows) or column.
template <class T>
void mm_identity(int lines, int length, const T* alpha, Dense<const T> b, Dense<T> c) {
  for (int i = 0; i < lines; ++i) axpy(&length, alpha, b.p + i * b.ld, c.p + i * c.ld);
}

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_mm_seq(int m, int n, const T* alpha, const T* values, const int* columns,
                           const int* row_begin, const int* row_end, Dense<const T> b, Dense<T> c) {
  if (m < 1) return;
  if constexpr (s.unit())
    s.by_rows() ? mm_identity(m, n, alpha, b, c) : mm_identity(n, m, alpha, b, c);
  else
    mm_columns<s>(csr<s>(values, columns, row_begin, row_end), rows<s>(1, m), 1, n, *alpha, b, c);
}

}  // namespace orb::spblas

#define ORB_CSR_MM_PAR(name)                                                                                \
  ORB_EXPORT void name(                                                                                     \
      const int* first, const int* last, const int* m, const int* k, const ORB_SHAPE_ELEMENT(name) * alpha, \
      const ORB_SHAPE_ELEMENT(name) * values, const int* columns, const int* row_begin, const int* row_end, \
      const ORB_SHAPE_ELEMENT(name) * b, const int* ldb, ORB_SHAPE_ELEMENT(name) * c, const int* ldc) {     \
    orb::spblas::csr_mm_par<ORB_SHAPE(name)>(*first, *last, *m, *k, *alpha, values, columns, row_begin,     \
                                             row_end, {b, *ldb}, {c, *ldc});                                \
  }
#define ORB_CSR_MM_SEQ(name)                                                                                \
  ORB_EXPORT void name(const int* m, const int* n, const ORB_SHAPE_ELEMENT(name) * alpha,                   \
                       const ORB_SHAPE_ELEMENT(name) * values, const int* columns, const int* row_begin,    \
                       const int* row_end, const ORB_SHAPE_ELEMENT(name) * b, const int* ldb,               \
                       ORB_SHAPE_ELEMENT(name) * c, const int* ldc) {                                       \
    orb::spblas::csr_mm_seq<ORB_SHAPE(name)>(*m, *n, alpha, values, columns, row_begin, row_end, {b, *ldb}, \
                                             {c, *ldc});                                                    \
  }
