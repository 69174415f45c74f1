// A few columns of a dense matrix that are worked on together, and the walk over all columns in such panels.
// The columns of a panel never meet in the arithmetic: its width shows in no result.
#pragma once

#include <type_traits>

#include "serv/kernel/loops.h"
#include "spblas/kernel/csr.h"

namespace orb::spblas {

// One row of a panel: `width` registers of one element or of several neighbouring columns.
template <class V, int width>
struct Bundle {
  V v[width];

  static ORB_INLINE Bundle zero() {
    return each([](auto) ORB_INLINE_BODY { return V::zero(); });
  }
  // f(Int<0>{}), f(Int<1>{}), ...
  template <class F>
  static ORB_INLINE Bundle each(F f) {
    Bundle b;
    unroll<width>([&](auto w) ORB_INLINE_BODY { b.v[w] = f(w); });
    return b;
  }
  // The registers one behind the other.
  template <class T>
  static ORB_INLINE Bundle load(const T* p) {
    return each([&](auto w) ORB_INLINE_BODY { return V::loadu(p + w * V::lanes); });
  }
  template <class T>
  ORB_INLINE void store(T* p) const {
    unroll<width>([&](auto w) ORB_INLINE_BODY { v[w].storeu(p + w * V::lanes); });
  }
  friend ORB_INLINE Bundle operator+(const Bundle& a, const Bundle& b) {
    return each([&](auto w) ORB_INLINE_BODY { return a.v[w] + b.v[w]; });
  }
  friend ORB_INLINE Bundle operator-(const Bundle& a, const Bundle& b) {
    return each([&](auto w) ORB_INLINE_BODY { return a.v[w] - b.v[w]; });
  }
  template <class F>
  friend ORB_INLINE Bundle operator*(const F& factor, const Bundle& b) {
    return each([&](auto w) ORB_INLINE_BODY { return factor * b.v[w]; });
  }
  ORB_INLINE Bundle& operator+=(const Bundle& b) { return *this = *this + b; }
  ORB_INLINE Bundle& operator-=(const Bundle& b) { return *this = *this - b; }
};

// Rows are numbered as in csr.h. T is const for a matrix that is only read.
template <class T, class V, int width, bool by_rows>
struct Panel {
  using Element = std::remove_const_t<T>;
  using Register = V;
  using Value = Bundle<V, width>;
  static constexpr int columns = width * V::lanes;
  static constexpr bool by_columns = !by_rows;
  T* p;
  int ld;

  // Element of row r in the j-th column of the panel.
  ORB_INLINE T* place(int r, int j) const { return by_rows ? p + r * ld + j : p + j * ld + r; }
  ORB_INLINE Value at(int r) const {
    return Value::each([&](auto w) ORB_INLINE_BODY { return V::loadu(place(r, w * V::lanes)); });
  }
  ORB_INLINE void put(int r, const Value& value) const {
    unroll<width>([&](auto w) ORB_INLINE_BODY { value.v[w].storeu(place(r, w * V::lanes)); });
  }
};

// What a stored number does to a row of a panel.
template <class P, bool conjugated>
ORB_INLINE auto factor_for(typename P::Element value) {
  return factor<typename P::Register, conjugated>(value);
}

// Makes panels of one shape from the place of their first element.
template <class V, int width, bool by_rows>
struct PanelMaker {
  // The columns from j on, from 0, of the matrix p.
  template <class T>
  ORB_INLINE auto operator()(T* p, int ld, int j) const {
    T* start = by_rows ? p + j : p + j * ld - 1;  // by columns, rows count from 1
    return Panel<T, V, width, by_rows>{start, ld};
  }
};

template <int columns, int lanes, class Body>
ORB_INLINE void walk_panels(int j, int end, Body body) {
  for (; end - j >= columns; j += columns) body(Int<columns>{}, j);
  if constexpr (columns > 1) walk_panels<(columns > lanes ? columns / 2 : 1), lanes>(j, end, body);
}

// body(maker, j) for the columns `first` to `last`, from 1: in panels of `registers` registers by rows, of as
// many columns by columns, as long as they last, then in smaller ones.
template <class T, bool by_rows, int registers, class Body>
ORB_INLINE void for_panels(int first, int last, Body body) {
  using V = vector_of<T>;
  using One = one_of<T>;
  constexpr int lanes = by_rows ? V::lanes : 1;
  walk_panels<registers * lanes, lanes>(first - 1, last, [&](auto columns, int j) ORB_INLINE_BODY {
    if constexpr (by_rows && columns >= lanes)
      body(PanelMaker<V, columns / lanes, by_rows>{}, j);
    else
      body(PanelMaker<One, columns, by_rows>{}, j);
  });
}

}  // namespace orb::spblas
