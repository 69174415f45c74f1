// What the C faces share: typed views of their arguments, option letters, and the report of a bad argument.
#pragma once

#include <string.h>

#include "orb/cblas.h"
#include "orb/services.h"
#include "outer/boundary.h"
#include "serv/kernel/complex.h"
#include "serv/kernel/loops.h"

namespace orb {

template <class T>
ORB_INLINE T* as(void* p) {
  return static_cast<T*>(p);
}
template <class T>
ORB_INLINE const T* as(const void* p) {
  return static_cast<const T*>(p);
}

// A factor: real ones come by value, complex ones by address.
template <class T>
ORB_INLINE T value(T factor) {
  return factor;
}
template <class T>
ORB_INLINE T value(const void* factor) {
  return *static_cast<const T*>(factor);
}

// Opposite letters, for the transpose of a matrix.
ORB_INLINE char other_triangle(char uplo) { return uplo == 'U' ? 'L' : 'U'; }
ORB_INLINE char other_side(char side) { return side == 'L' ? 'R' : 'L'; }

// Tells cblas_xerbla() of the argument at `place` of the call that a routine makes of its own: after the
// exchanges of a row-major call, if it was one.
void refuse(const char* routine, bool row_major, int place, const char* form, int option);

// One call while its options are read: the first bad one is reported, and none after it.
class Options {
 public:
  Options(const char* routine, CBLAS_LAYOUT layout) : routine_(routine), row_major(layout == CblasRowMajor) {
    if (!row_major && layout != CblasColMajor) refuse(1, "Illegal layout setting, %d\n", layout);
  }
  char transpose(CBLAS_TRANSPOSE t, int place, const char* form = "Illegal Trans setting, %d\n") {
    return letter(t == CblasNoTrans     ? 'N'
                  : t == CblasTrans     ? 'T'
                  : t == CblasConjTrans ? 'C'
                                        : 0,
                  place, form, t);
  }
  char triangle(CBLAS_UPLO u, int place) {
    return letter(u == CblasUpper ? 'U' : u == CblasLower ? 'L' : 0, place, "Illegal Uplo setting, %d\n", u);
  }
  char diagonal(CBLAS_DIAG d, int place) {
    return letter(d == CblasUnit ? 'U' : d == CblasNonUnit ? 'N' : 0, place, "Illegal Diag setting, %d\n", d);
  }
  char side(CBLAS_SIDE s, int place) {
    return letter(s == CblasLeft ? 'L' : s == CblasRight ? 'R' : 0, place, "Illegal Side setting, %d\n", s);
  }
  // Was any option bad, or is there a place in the Fortran list of which a check has told?
  bool refused(int fortran_place = 0) {
    if (good_ && fortran_place) refuse(fortran_place + 1, "", 0);
    return !good_;
  }

 private:
  char letter(char c, int place, const char* form, int option) {
    if (good_ && !c) refuse(place, form, option);
    return c;
  }
  void refuse(int place, const char* form, int option) {
    good_ = false;
    orb::refuse(routine_, row_major, place, form, option);
  }

  const char* const routine_;
  bool good_ = true;

 public:
  const bool row_major;
};

template <Complex T>
void conjugate(int n, T* x, int inc) {
  T* const first = strided_start(x, n, inc);
  for (int i = 0; i < n; ++i) first[i * inc].im = -first[i * inc].im;
}

// The conjugate of a vector, side by side in scratch that lives as long.
template <Complex T>
class Conjugated {
 public:
  Conjugated(int n, const T* x, int inc)
      : data_(static_cast<T*>(orb_serv_allocate(n > 0 ? n * int(sizeof(T)) : 16, 16))) {
    const T* const first = strided_start(x, n, inc);
    for (int i = 0; i < n; ++i) data_[i] = conj(first[i * inc]);
  }
  ~Conjugated() { orb_serv_deallocate(data_); }
  Conjugated(const Conjugated&) = delete;
  Conjugated& operator=(const Conjugated&) = delete;
  const T* data() const { return data_; }

 private:
  T* const data_;
};

constexpr int unit_stride = 1;

}  // namespace orb
