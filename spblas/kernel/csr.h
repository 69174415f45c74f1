// A matrix of compressed rows as the kernels walk it.
//
// Rows are numbered here as the matrix numbers its columns, from 0 or from 1, and all arrays that run along
// rows or columns are shifted to match: x[column] and y[row] stand as they are written, and a column is
// compared with a row without another sum.
#pragma once

#include "serv/kernel/simd_complex.h"
#include "spblas/kernel/shape.h"

namespace orb::spblas {

// Rows from `first` to before `end`.
struct Range {
  int first, end;
};

// The entries `begin` to before `end`: of one row, or some of them.
template <class T>
struct Row {
  const T* values;
  const int* columns;
  int begin, end;

  ORB_INLINE int count() const { return end - begin; }
};

template <class T>
struct Csr {
  const T* values;
  const int *columns, *row_begin, *row_end;
  int origin;  // where row_begin counts from: rows are found from any

  ORB_INLINE int begin(int i) const { return row_begin[i] - origin; }
  ORB_INLINE int end(int i) const { return row_end[i] - origin; }
  ORB_INLINE Row<T> row(int i) const { return {values, columns, begin(i), end(i)}; }
};

// What a kernel of this shape was given. With no rows nothing of it is read.
template <Shape s, class T = element_of<s>>
ORB_INLINE Csr<T> csr(const T* values, const int* columns, const int* row_begin, const int* row_end) {
  constexpr int base = s.first_number();
  return {values, columns, row_begin - base, row_end - base, row_begin[0]};
}
template <Shape s>
ORB_INLINE Range rows(int first, int last) {
  return {first - 1 + s.first_number(), last + s.first_number()};
}

// Does this column of row i lie strictly in the triangle, or strictly in the other one?
template <Side side>
ORB_INLINE bool inside(int column, int i) {
  return side == Side::lower ? column < i : column > i;
}
template <Side side>
ORB_INLINE bool outside(int column, int i) {
  return side == Side::lower ? column > i : column < i;
}

// An entry as a factor of V: a register, or one element.
template <class V, bool conjugated, class T>
ORB_INLINE auto factor(T value) {
  if constexpr (conjugated)
    return conj(V::splat(value));
  else
    return V::splat(value);
}

template <bool conjugated, class T>
ORB_INLINE T conjugate_if(T value) {
  if constexpr (conjugated)
    return conj(value);
  else
    return value;
}

// One number in a register. A complex number is made there, not stored by halves and loaded whole, for which
// the processor would wait.
template <Real T>
ORB_INLINE Lane<T> one(T value) {
  return {value};
}
template <Complex C>
ORB_INLINE ComplexLane<C> one(C value) {
  return {ComplexLane<C>::Register::pair(value.re, value.im)};
}
template <class T>
ORB_INLINE T element(one_of<T> v) {
  T value;
  v.storeu(&value);
  return value;
}

// value * x for single elements.
template <bool conjugated, class T>
ORB_INLINE one_of<T> product(T value, one_of<T> x) {
  return factor<one_of<T>, conjugated>(value) * x;
}
// (value * alpha) * x
template <bool conjugated, class T>
ORB_INLINE one_of<T> product(T value, T alpha, one_of<T> x) {
  return one_of<T>::splat(conjugate_if<conjugated>(value) * alpha) * x;
}

template <class T>
ORB_INLINE void add_to(T* target, one_of<T> x) {
  (one_of<T>::loadu(target) + x).storeu(target);
}
template <class T>
ORB_INLINE void subtract_from(T* target, one_of<T> x) {
  (one_of<T>::loadu(target) - x).storeu(target);
}

}  // namespace orb::spblas
