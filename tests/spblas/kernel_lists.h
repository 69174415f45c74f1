// All kernels on compressed rows, from the lists that the library is made from, and what a name says, read
// here a second time.
#pragma once

#include <vector>

#include "orb/sparse_kernels.h"
#include "tests/support/element.h"

namespace orb::test {

struct Name {
  char type, base, op, kind, uplo, diag, layout;
  explicit Name(const char* s)
      : type(s[11]), base(s[15]), op(s[16]), kind(s[17]), uplo(s[18]), diag(s[19]), layout(s[20]) {}

  int first_number() const { return base - '0'; }
  bool by_rows() const { return layout == 'c'; }
  bool unit() const { return diag == 'u'; }
  bool lower() const { return uplo == 'l'; }
  bool mirrors() const { return kind == 's' || kind == 'h' || kind == 'a'; }
  bool transposes() const { return (op == 't' || op == 'c') && (kind == 'g' || kind == 't'); }
  bool inside(int column, int row) const { return lower() ? column < row : column > row; }
  bool outside(int column, int row) const { return lower() ? column > row : column < row; }
};

template <class F>
struct Kernel {
  const char* name;
  F* entry;
};

using I = const int*;
template <class T>
struct Lists {
  using MvPar = void(I, I, I, const T*, const T*, I, I, I, const T*, T*);
  using MvSeq = void(I, const T*, const T*, I, I, I, const T*, T*);
  using MmPar = void(I, I, I, I, const T*, const T*, I, I, I, const T*, I, T*, I);
  using MmSeq = void(I, I, const T*, const T*, I, I, I, const T*, I, T*, I);
  using Sv = void(I, const T*, const T*, I, I, I, T*);
  using Sm = void(I, I, I, I, const T*, const T*, I, I, I, T*, I);
  std::vector<Kernel<MvPar>> mv_par;
  std::vector<Kernel<MvSeq>> mv_seq;
  std::vector<Kernel<MmPar>> mm_par;
  std::vector<Kernel<MmSeq>> mm_seq;
  std::vector<Kernel<Sv>> sv;
  std::vector<Kernel<Sm>> sm;
};

template <class T>
Lists<T> lists();
template <>
Lists<float> lists();
template <>
Lists<double> lists();
template <>
Lists<c32> lists();
template <>
Lists<c64> lists();

}  // namespace orb::test
