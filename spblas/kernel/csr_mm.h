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
// the matrix passes.
template <class Step, bool by_rows, class T>
void sweep(const Csr<T>& a, Range rows, int first, int last, T alpha, Dense<const T> b, Dense<T> c) {
  constexpr int registers = Step::template registers<T, by_rows>;
  const auto panels = [&](auto body) ORB_INLINE_BODY {
    for_panels<T, by_rows, registers>(first, last, [&](auto panel, int j) ORB_INLINE_BODY {
      body(panel(b.p, b.ld, j), panel(c.p, c.ld, j));
    });
  };
  if constexpr (by_rows)
    for (int i = rows.first; i < rows.end; ++i) {
      const Row<T> row = a.row(i);
      panels([&](const auto& bp, const auto& cp) ORB_INLINE_BODY { Step::row(row, i, alpha, bp, cp); });
    }
  else
    panels([&](const auto& bp, const auto& cp) ORB_INLINE_BODY {
      for (int i = rows.first; i < rows.end; ++i) Step::row(a.row(i), i, alpha, bp, cp);
    });
}

// The steps that make up the kernels, in order.
template <class... Steps>
struct Work {};
template <Shape s>
consteval auto work_of() {
  constexpr bool conjugates = s.conjugates(), unit = s.unit();
  if constexpr (s.kind == 'd')
    return Work<DiagonalEntries<conjugates>>{};
  else if constexpr (s.kind == 'g' && s.transposes())
    return Work<GeneralTransposed<conjugates>>{};
  else if constexpr (s.kind == 'g')
    return Work<General<conjugates>>{};
  else if constexpr (s.kind == 't' && s.transposes())
    return Work<TriangleTransposed<conjugates, s.side(), unit>>{};
  else if constexpr (s.kind == 't')
    return Work<WholeRow<conjugates>, Correction<conjugates, s.side(), unit>>{};
  else
    return Work<WholeRow<s.conjugates_entry()>, MirrorImages<mirror_of<s>, s.side(), unit>>{};
}
template <bool by_rows, class... Steps, class... A>
ORB_INLINE void run(Work<Steps...>, const A&... arguments) {
  (sweep<Steps, by_rows>(arguments...), ...);
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
    run<s.by_rows()>(work_of<s>(), a, block, first, last, alpha, b, c);
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
    run<s.by_rows()>(work_of<s>(), csr<s>(values, columns, row_begin, row_end), rows<s>(1, m), 1, n, *alpha,
                     b, c);
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
