// Products with a dense matrix, by the shape of the kernel, and the macros that turn its name into its body.
#pragma once

#include "orb/sparse_kernels.h"
#include "spblas/kernel/axpy.h"
#include "spblas/kernel/csr_mm_rows.h"
#include "spblas/kernel/row_blocks.h"

namespace orb::spblas {

template <class T>
struct Dense {
  T* p;
  int ld;
};

// One step of the work on all of a range of rows and of columns. By rows, a row of the matrix meets all dense
// columns before the next, and lines of B and C are used whole; by columns, a panel of columns stays while
// the matrix passes. Never inlined: an entry has a frame of its own, and its loops would find fewer
// registers.
template <bool by_rows, class Step, class T>
__attribute__((noinline)) void sweep(Step step, const Csr<T>& a, Range rows, int first, int last, T alpha,
                                     Dense<const T> b, Dense<T> c) {
  const auto panels = [&](auto registers, auto body) ORB_INLINE_BODY {
    for_panels<T, by_rows, registers>(first, last, [&](auto panel, int j) ORB_INLINE_BODY {
      body(panel(b.p, b.ld, j), panel(c.p, c.ld, j));
    });
  };
  const auto row_by_panels = [&]<class S>(S step_of_row, const Row<T>& row, int i) ORB_INLINE_BODY {
    panels(Int<S::template registers<T, true>>{},
           [&](const auto& bp, const auto& cp) ORB_INLINE_BODY { step_of_row.row(row, i, alpha, bp, cp); });
  };
  if constexpr (by_rows)
    for (int i = rows.first; i < rows.end; ++i) {
      const Row<T> row = a.row(i);
      if constexpr (requires { typename Step::ForShortRows; })
        if (is_short(row)) {
          row_by_panels(typename Step::ForShortRows{}, row, i);
          continue;
        }
      row_by_panels(step, row, i);
    }
  else
    panels(Int<Step::template registers<T, false>>{}, [&](const auto& bp, const auto& cp) ORB_INLINE_BODY {
      for (int i = rows.first; i < rows.end; ++i) step.row(a.row(i), i, alpha, bp, cp);
    });
}

// f(step) for the steps that make up a kernel, in order.
template <Shape s, class F>
ORB_INLINE void for_steps(F f) {
  constexpr bool conjugates = s.conjugates();
  if constexpr (s.kind == 'd') {
    f(DiagonalEntries<conjugates>{});
  } else if constexpr (s.kind == 'g' && s.transposes()) {
    f(GeneralTransposed<conjugates>{});
  } else if constexpr (s.kind == 'g') {
    f(General<conjugates>{});
  } else if constexpr (s.kind == 't' && s.transposes()) {
    f(TriangleTransposed<conjugates>{Triangle(s.side()), s.unit()});
  } else {
    f(WholeRow<s.conjugates_entry()>{});
    if constexpr (s.kind == 't')
      f(Correction<conjugates>{Triangle(s.side()), s.unit()});
    else
      f(MirrorImages<mirror_of<s>>{Triangle(s.side()), s.unit()});
  }
}

template <Shape s, class T = element_of<s>>
ORB_INLINE void csr_mm_par(int first, int last, int m, int k, T alpha, const T* values, const int* columns,
                           const int* row_begin, const int* row_end, Dense<const T> b, Dense<T> c) {
  if (last < first || m < 1) return;
  const Csr<T> a = csr<s>(values, columns, row_begin, row_end);
  const Range all = rows<s>(1, m);
  constexpr bool in_blocks = s.kind == 'g' && !s.transposes() && !s.by_rows();
  const int length = in_blocks ? rows_per_block<s.conjugates()>(a, all.end - 1, m, k) : m;
  // The last of m / length blocks runs to the end.
  Range block{all.first, all.first};
  for (int left = m < length ? 1 : m / length; left > 0; --left) {
    block = {block.end, left > 1 ? block.end + length : all.end};
    for_steps<s>([&](auto step) { sweep<s.by_rows()>(step, a, block, first, last, alpha, b, c); });
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
    for_steps<s>([&](auto step) {
      sweep<s.by_rows()>(step, csr<s>(values, columns, row_begin, row_end), rows<s>(1, m), 1, n, *alpha, b,
                         c);
    });
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
