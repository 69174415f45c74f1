// Scaling of what products add to, and copies of right-hand sides.
#pragma once

#include <string.h>

#include "serv/kernel/complex.h"

namespace orb {

template <Real T>
ORB_INLINE bool is(T a, int number) {
  return a == number;
}
template <Complex C>
ORB_INLINE bool is(C a, int number) {
  return a.re == number && a.im == 0;
}

// A dense matrix as lines that are contiguous: rows or columns, as it is stored. A vector is one line.
template <class T>
struct Lines {
  T* p;
  int ld, count, length;
};
template <class T>
Lines<T> lines_of(T* p, int ld, bool by_rows, int rows, int columns) {
  return by_rows ? Lines<T>{p, ld, rows, columns} : Lines<T>{p, ld, columns, rows};
}

// y *= beta; a beta of zero overwrites what is no number too.
template <class T>
void scale(const Lines<T>& y, T beta) {
  if (y.length == 0) return;  // there may be no array then
  if (is(beta, 1)) return;
  for (int i = 0; i < y.count; ++i) {
    T* line = y.p + i * y.ld;
    if (is(beta, 0))
      memset(static_cast<void*>(line), 0, size_t(y.length) * sizeof(T));
    else
      for (int j = 0; j < y.length; ++j) line[j] = beta * line[j];
  }
}

// y = alpha x, in place too.
template <class T>
void copy_scaled(const Lines<const T>& x, const Lines<T>& y, T alpha) {
  if (y.length == 0) return;  // there may be no arrays then
  for (int i = 0; i < y.count; ++i) {
    const T* from = x.p + i * x.ld;
    T* to = y.p + i * y.ld;
    if (is(alpha, 1))
      memmove(static_cast<void*>(to), from, size_t(y.length) * sizeof(T));
    else
      for (int j = 0; j < y.length; ++j) to[j] = alpha * from[j];
  }
}

template <Real T>
ORB_INLINE T negated(T a) {
  return -a;
}
template <Complex C>
ORB_INLINE C negated(C a) {
  return {-a.re, -a.im};
}

}  // namespace orb
