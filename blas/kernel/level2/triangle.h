// Where the stored triangle of a matrix stands, whole, packed or in a band; and the walk over its columns in
// groups that one pass takes together. A group has common rows (c), which all of its columns have outside the
// group's own rows, and near rows (.); D is the diagonal:
//
//   upper:  c c c    lower:  D
//           c c c            . D
//           D . .            . . D
//             D .            c c c
//               D            c c c
//
// In a band, columns also have near rows beyond the common ones.
#pragma once

#include <algorithm>

#include "blas/kernel/level2/columns.h"

namespace orb::blas {

// A layout: column(j)[i] is a(i, j) wherever the triangle has it, and the triangle reaches `reach` rows off
// the diagonal at most. E is T or const T.
template <class E>
struct Dense {
  E* a;
  int lda, n, reach = n;
  E* column(int j) const { return a + j * lda; }
};

template <bool upper, class E>
struct Packed {
  E* ap;
  int n, reach = n;
  E* column(int j) const { return ap + (upper ? j * (j + 1) : j * (2 * n - j - 1)) / 2; }
};

template <bool upper, class E>
struct Band {
  E* a;
  int lda, n, reach;
  E* column(int j) const { return a + (j * lda + (upper ? reach : 0) - j); }
};

struct Rows {
  int begin, end;
  int count() const { return end - begin; }
};

// The rows that column c has off the diagonal.
template <bool upper, class Layout>
ORB_INLINE Rows rows_of(const Layout& s, int c) {
  if constexpr (upper) return {std::max(0, c - s.reach), c};
  return {c + 1, std::min(s.n, c + 1 + s.reach)};
}

// Columns j to j + width - 1 of a triangle.
template <bool upper, int width, class Layout>
struct Group {
  const Layout& s;
  int j;

  // The rows, outside the group's own, that all columns of the group have. They lie next to the group.
  ORB_INLINE Rows common() const {
    if constexpr (upper) return {std::min(rows_of<true>(s, j + width - 1).begin, j), j};
    return {j + width, std::max(rows_of<false>(s, j).end, j + width)};
  }
  // The group's columns from the first common row on.
  ORB_INLINE auto common_columns() const {
    Columns<width, std::remove_const_t<std::remove_pointer_t<decltype(s.column(0))>>> c;
    const int first = common().begin;
    unroll<width>([&](auto k) { c.at[k] = s.column(j + k) + first; });
    return c;
  }
  // f(i) for the rows of column c off the diagonal that are not common.
  template <class F>
  ORB_INLINE void for_near(int c, F f) const {
    const Rows own = rows_of<upper>(s, c), all = common();
    for (int i = std::max(own.begin, upper ? j : 0); i < std::min(own.end, upper ? c : j + width); ++i) f(i);
    if constexpr (upper)
      for (int i = own.begin; i < all.begin; ++i) f(i);
    else
      for (int i = all.end; i < own.end; ++i) f(i);
  }
};

// body(group) for all columns in groups of `width`, those left over one by one: from the front, or from the
// back.
template <bool upper, int width, bool from_front, class Layout, class Body>
ORB_INLINE void for_groups(const Layout& s, Body body) {
  const int whole = s.n / width * width;
  if constexpr (from_front) {
    for (int j = 0; j < whole; j += width) body(Group<upper, width, Layout>{s, j});
    for (int j = whole; j < s.n; ++j) body(Group<upper, 1, Layout>{s, j});
  } else {
    for (int j = s.n; j > whole; --j) body(Group<upper, 1, Layout>{s, j - 1});
    for (int j = whole; j > 0; j -= width) body(Group<upper, width, Layout>{s, j - width});
  }
}

}  // namespace orb::blas
