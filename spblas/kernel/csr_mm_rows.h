// What one row of the matrix does to one panel in products with a dense matrix. Each step says how many
// registers its panels may have. The triangle and a diagonal of ones are told at run time: that costs next to
// nothing here and quarters what is compiled.
#pragma once

#include "spblas/kernel/csr_mv_mirror.h"
#include "spblas/kernel/panel_dot.h"

namespace orb::spblas {

// inside() and outside() of csr.h: all bits of both numbers turned over turn their order round.
struct Triangle {
  int flip;
  explicit Triangle(Side side) : flip(side == Side::lower ? 0 : -1) {}
  ORB_INLINE bool inside(int column, int i) const { return (column ^ flip) < (i ^ flip); }
  ORB_INLINE bool outside(int column, int i) const { return (column ^ flip) > (i ^ flip); }
};

template <bool conjugated>
struct GeneralShort {
  template <class T, bool by_rows>
  static constexpr int registers = 4;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    c.put(i, C::Register::splat(alpha) * short_panel_dot<conjugated>(row, b) + c.at(i));
  }
};

template <bool conjugated>
struct General {
  using ForShortRows = GeneralShort<conjugated>;
  template <class T, bool by_rows>
  static constexpr int registers = dot_registers<T, by_rows>;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    c.put(i, C::Register::splat(alpha) * panel_dot<conjugated>(row, b) + c.at(i));
  }
};

// All that is stored, whatever belongs there: each group of four joins the element of C as
// (((p3 + p2) + p1) + p0) * alpha, what is left of the row as p * alpha.
template <bool conjugated>
struct WholeRow {
  template <class T, bool by_rows>
  static constexpr int registers = 2;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    const auto factor = C::Register::splat(alpha);
    const auto term = [&](int k) ORB_INLINE_BODY {
      return factor_for<B, conjugated>(row.values[k]) * b.at(row.columns[k]);
    };
    auto sum = c.at(i);
    int k = row.begin;
    for (; row.end - k >= 4; k += 4) {
      auto group = term(k + 3);
      group += term(k + 2);
      group += term(k + 1);
      group += term(k);
      sum += factor * group;
    }
    for (; k < row.end; ++k) sum += factor * term(k);
    c.put(i, sum);
  }
};

// The second sweep over a triangle: what does not belong to it is summed and taken off.
template <bool conjugated>
struct Correction {
  Triangle triangle;
  bool unit;

  template <class T, bool by_rows>
  static constexpr int registers = 2;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    auto strange = C::Value::zero();
    for (int k = row.begin; k < row.end; ++k)
      if (triangle.outside(row.columns[k], i) || (unit && row.columns[k] == i))
        strange += C::Register::splat(conjugate_if<conjugated>(row.values[k]) * alpha) * b.at(row.columns[k]);
    auto sum = c.at(i);
    if (unit) sum += C::Register::splat(alpha) * b.at(i);
    c.put(i, sum - strange);
  }
};

// The same with the mirror images. The diagonal: ones (unit), or as the first sweep left it, or zero for a
// mirror that negates.
template <Mirror mirror>
struct MirrorImages {
  Triangle triangle;
  bool unit;

  template <class T, bool by_rows>
  static constexpr int registers = 2;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    const auto t = C::Register::splat(alpha) * b.at(i);
    auto strange = C::Value::zero();
    for (int k = row.begin; k < row.end; ++k) {
      const int column = row.columns[k];
      if (triangle.inside(column, i)) {
        const auto image = factor_for<C, mirror.conjugates_image>(row.values[k]) * t;
        c.put(column, mirror.negates ? c.at(column) - image : c.at(column) + image);
      } else if (column != i || unit || mirror.negates) {
        const T taken = conjugate_if<mirror.conjugates_entry>(row.values[k]) * alpha;
        strange += C::Register::splat(taken) * b.at(column);
      }
    }
    c.put(i, (unit ? c.at(i) + t : c.at(i)) - strange);
  }
};

template <bool conjugated>
struct GeneralTransposed {
  // By columns, each column more is one more stretch of memory that entries are scattered over.
  template <class T, bool by_rows>
  static constexpr int registers = by_rows ? 4 : 2;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    const auto t = C::Register::splat(alpha) * b.at(i);
    for (int k = row.begin; k < row.end; ++k)
      c.put(row.columns[k], c.at(row.columns[k]) + factor_for<C, conjugated>(row.values[k]) * t);
  }
};

template <bool conjugated>
struct TriangleTransposed {
  Triangle triangle;
  bool unit;

  template <class T, bool by_rows>
  static constexpr int registers = 2;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    const auto bi = b.at(i);
    const auto part = [&](int k) ORB_INLINE_BODY {
      return C::Register::splat(conjugate_if<conjugated>(row.values[k]) * alpha) * bi;
    };
    for (int k = row.begin; k < row.end; ++k) c.put(row.columns[k], c.at(row.columns[k]) + part(k));
    if (unit) c.put(i, c.at(i) + C::Register::splat(alpha) * bi);
    for (int k = row.begin; k < row.end; ++k) {
      const int column = row.columns[k];
      if (triangle.outside(column, i) || (unit && column == i)) c.put(column, c.at(column) - part(k));
    }
  }
};

template <bool conjugated>
struct DiagonalEntries {
  template <class T, bool by_rows>
  static constexpr int registers = 2;

  template <class T, class B, class C>
  ORB_INLINE void row(const Row<T>& row, int i, T alpha, const B& b, const C& c) const {
    for (int k = row.begin; k < row.end; ++k)
      if (row.columns[k] == i)
        c.put(i, c.at(i) + C::Register::splat(conjugate_if<conjugated>(row.values[k]) * alpha) * b.at(i));
  }
};

}  // namespace orb::spblas
