// Products with a dense matrix, one panel of columns after the other.
#pragma once

#include "spblas/kernel/csr_mv_mirror.h"
#include "spblas/kernel/panel_dot.h"

namespace orb::spblas {

template <bool conjugated, class T, class B, class C>
void mm_general(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  const auto factor = C::Register::splat(alpha);
  for (int i = rows.first; i < rows.end; ++i) c.put(i, factor * panel_dot<conjugated>(a.row(i), b) + c.at(i));
}

// All that is stored, whatever belongs there: each group of four joins the element of C as
// (((p3 + p2) + p1) + p0) * alpha, what is left of the row as p * alpha.
template <bool conjugated, class T, class B, class C>
void mm_whole_rows(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  const auto factor = C::Register::splat(alpha);
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const auto product = [&](int k) ORB_INLINE_BODY {
      return factor_for<B, conjugated>(row.value[k]) * b.at(row.column[k]);
    };
    auto sum = c.at(i);
    int k = 0;
    for (; row.count - k >= 4; k += 4) {
      auto group = product(k + 3);
      group += product(k + 2);
      group += product(k + 1);
      group += product(k);
      sum += factor * group;
    }
    for (; k < row.count; ++k) sum += factor * product(k);
    c.put(i, sum);
  }
}

// The second sweep of the kinds that store a triangle: what does not belong to it is summed and taken off.
template <bool conjugated, Side side, bool unit, class T, class B, class C>
void mm_correct_triangle(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    auto strange = C::Value::zero();
    for (int k = 0; k < row.count; ++k)
      if (unit ? !inside<side>(row.column[k], i) : outside<side>(row.column[k], i))
        strange += C::Register::splat(conjugate_if<conjugated>(row.value[k]) * alpha) * b.at(row.column[k]);
    auto sum = c.at(i);
    if (unit) sum += C::Register::splat(alpha) * b.at(i);
    c.put(i, sum - strange);
  }
}

// The same with the mirror images. The diagonal: ones (unit), or as the first sweep left it, or zero for a
// mirror that negates.
template <Mirror mirror, Side side, bool unit, class T, class B, class C>
void mm_mirror(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const auto t = C::Register::splat(alpha) * b.at(i);
    auto strange = C::Value::zero();
    for (int k = 0; k < row.count; ++k) {
      const int column = row.column[k];
      if (inside<side>(column, i)) {
        const auto image = factor_for<C, mirror.conjugates_image>(row.value[k]) * t;
        c.put(column, mirror.negates ? c.at(column) - image : c.at(column) + image);
      } else if (column != i || unit || mirror.negates) {
        const T taken = conjugate_if<mirror.conjugates_entry>(row.value[k]) * alpha;
        strange += C::Register::splat(taken) * b.at(column);
      }
    }
    c.put(i, (unit ? c.at(i) + t : c.at(i)) - strange);
  }
}

template <bool conjugated, class T, class B, class C>
void mm_general_transposed(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const auto t = C::Register::splat(alpha) * b.at(i);
    for (int k = 0; k < row.count; ++k)
      c.put(row.column[k], c.at(row.column[k]) + factor_for<C, conjugated>(row.value[k]) * t);
  }
}

template <bool conjugated, Side side, bool unit, class T, class B, class C>
void mm_triangle_transposed(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    const auto bi = b.at(i);
    const auto part = [&](int k) ORB_INLINE_BODY {
      return C::Register::splat(conjugate_if<conjugated>(row.value[k]) * alpha) * bi;
    };
    for (int k = 0; k < row.count; ++k) c.put(row.column[k], c.at(row.column[k]) + part(k));
    if (unit) c.put(i, c.at(i) + C::Register::splat(alpha) * bi);
    for (int k = 0; k < row.count; ++k) {
      const int column = row.column[k];
      if (unit ? !inside<side>(column, i) : outside<side>(column, i)) c.put(column, c.at(column) - part(k));
    }
  }
}

template <bool conjugated, class T, class B, class C>
void mm_diagonal(const Csr<T>& a, Range rows, T alpha, const B& b, const C& c) {
  for (int i = rows.first; i < rows.end; ++i) {
    const Row<T> row = a.row(i);
    for (int k = 0; k < row.count; ++k)
      if (row.column[k] == i)
        c.put(i, c.at(i) + C::Register::splat(conjugate_if<conjugated>(row.value[k]) * alpha) * b.at(i));
  }
}

}  // namespace orb::spblas
