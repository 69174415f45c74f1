// Matrices of small integers as the BLAS stores them, for models of the faces: by rows or by columns, whole,
// as a band, or packed. What no routine may read is NaN.
#pragma once

#include <math.h>

#include "orb/cblas.h"
#include "tests/outer/numbers.h"
#include "tests/support/bits.h"

namespace orb::test {

// An option as both faces take it.
struct Letter {
  char c;
  operator const char*() const { return &c; }
  operator CBLAS_TRANSPOSE() const {
    return c == 'N' ? CblasNoTrans : c == 'T' ? CblasTrans : CblasConjTrans;
  }
  operator CBLAS_UPLO() const { return c == 'U' ? CblasUpper : CblasLower; }
  operator CBLAS_DIAG() const { return c == 'U' ? CblasUnit : CblasNonUnit; }
  operator CBLAS_SIDE() const { return c == 'L' ? CblasLeft : CblasRight; }
};

template <class T>
T not_a_number() {
  if constexpr (is_complex<T>)
    return {NAN, NAN};
  else
    return NAN;
}

enum class Storage { whole, band, packed };

template <class T>
struct Stored {
  int rows, columns;
  bool by_rows;
  Storage storage = Storage::whole;
  int below = 0, above = 0;  // diagonals of a band beside the main one
  char triangle = 0;         // U or L: the other one is not there
  int ld = 0;
  std::vector<T> data = {};

  Stored& fill(int seed) {
    ld = storage == Storage::band ? below + above + 2 : (by_rows ? columns : rows) + 1;
    data.assign(
        size_t(storage == Storage::packed ? rows * (rows + 1) / 2 : ld * ((by_rows ? rows : columns) + 1)),
        not_a_number<T>());
    for (int j = 0; j < columns; ++j)
      for (int i = 0; i < rows; ++i)
        if (holds(i, j)) (*this)(i, j) = integers<T>(1, seed + 5 * i + 3 * j)[0];
    return *this;
  }
  bool holds(int i, int j) const {
    return !(triangle == 'U' && i > j) && !(triangle == 'L' && i < j) &&
           (storage != Storage::band || (i - j <= below && j - i <= above));
  }
  T& operator()(int i, int j) { return data[index(i, j)]; }
  // A value, 0 outside of what is there.
  Wide at(int i, int j) const { return holds(i, j) ? wide(data[index(i, j)]) : 0; }
  // A value of the symmetric or Hermitian matrix of which this is a triangle.
  Wide full(int i, int j, bool hermitian) const {
    if (i == j && hermitian) return at(i, i).real();
    return holds(i, j) ? at(i, j) : hermitian ? std::conj(at(j, i)) : at(j, i);
  }
  // A value of op(A), A as it is or triangular with the diagonal that `diag` tells.
  Wide op(char trans, int i, int j, char diag = 'N') const {
    if (i == j && diag == 'U') return 1;
    return trans == 'N' ? at(i, j) : trans == 'T' ? at(j, i) : std::conj(at(j, i));
  }

 private:
  size_t index(int i, int j) const {
    // By rows it is the transpose by columns.
    const int r = by_rows ? j : i, c = by_rows ? i : j, up = by_rows ? below : above;
    const bool upper = (triangle == 'U') != by_rows;
    switch (storage) {
      case Storage::band:
        return size_t(up + r - c + c * ld);
      case Storage::packed:
        return size_t(upper ? r + c * (c + 1) / 2 : r - c + c * (2 * rows - c + 1) / 2);
      default:
        return size_t(r + c * ld);
    }
  }
};

// The same numbers (a zero of either sign), and NaN where NaN is.
template <class T>
testing::AssertionResult matches(const std::vector<T>& got, const std::vector<T>& want) {
  for (size_t i = 0; i < want.size(); ++i)
    if (!same(got[i], want[i]) && wide(got[i]) != wide(want[i]))
      return testing::AssertionFailure()
             << "element " << i << " is " << shown(got[i]) << ", not " << shown(want[i]);
  return testing::AssertionSuccess();
}

// check(run, by_rows) for the Fortran face, and for the C face in both layouts; run(arguments...) makes the
// call.
template <class F, class C, class Check>
void each_face(F fortran, C c, Check check) {
  check([=](auto... a) { call_face(fortran, a...); }, false);
  check([=](auto... a) { call_face(c, CblasColMajor, a...); }, false);
  check([=](auto... a) { call_face(c, CblasRowMajor, a...); }, true);
}

}  // namespace orb::test
