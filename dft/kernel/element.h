// What depends on the precision: fields of the record and kernels, by the real type.
#pragma once

#include "orb/blas_level1.h"
#include "orb/dfti.h"
#include "orb/signal.h"
#include "serv/kernel/complex.h"

namespace orb::dft {

template <class T>
struct ComplexOf;
template <>
struct ComplexOf<float> {
  using type = c32;
};
template <>
struct ComplexOf<double> {
  using type = c64;
};
template <class T>
using complex_of = typename ComplexOf<T>::type;

template <class T>
constexpr bool is_double = sizeof(T) == 8;

// One of two fields, by the precision: the single one first.
template <class T, class Single, class Double>
constexpr auto by_precision(Single single, Double wide) {
  if constexpr (is_double<T>)
    return wide;
  else
    return single;
}

// The line routine of a direction, and its scale.
template <class T, bool forward>
constexpr auto line_field() {
  if constexpr (forward)
    return by_precision<T>(&DftiRecord::fwd_s, &DftiRecord::fwd_d);
  else
    return by_precision<T>(&DftiRecord::bwd_s, &DftiRecord::bwd_d);
}
template <class T, bool forward>
constexpr auto parallel_field() {
  if constexpr (forward)
    return by_precision<T>(&DftiRecord::par_fwd_s, &DftiRecord::par_fwd_d);
  else
    return by_precision<T>(&DftiRecord::par_bwd_s, &DftiRecord::par_bwd_d);
}
template <class T, bool forward>
T scale_of(const DftiRecord* record) {
  if constexpr (forward)
    return record->*by_precision<T>(&DftiRecord::forward_scale_f, &DftiRecord::forward_scale_d);
  else
    return record->*by_precision<T>(&DftiRecord::backward_scale_f, &DftiRecord::backward_scale_d);
}

// Copies and scales of the dense family under one name each.
inline void copy(int n, const float* x, int incx, float* y, int incy) {
  orb_blas_xscopy(&n, x, &incx, y, &incy);
}
inline void copy(int n, const double* x, int incx, double* y, int incy) {
  orb_blas_xdcopy(&n, x, &incx, y, &incy);
}
inline void copy(int n, const c32* x, int incx, c32* y, int incy) { orb_blas_xccopy(&n, x, &incx, y, &incy); }
inline void copy(int n, const c64* x, int incx, c64* y, int incy) { orb_blas_xzcopy(&n, x, &incx, y, &incy); }

constexpr int unit_stride = 1;
inline void scale(int n, float s, float* x) { orb_blas_sscal(&n, &s, x, &unit_stride); }
inline void scale(int n, double s, double* x) { orb_blas_dscal(&n, &s, x, &unit_stride); }
inline void scale(int n, float s, c32* x) { orb_blas_csscal(&n, &s, x, &unit_stride); }
inline void scale(int n, double s, c64* x) { orb_blas_zdscal(&n, &s, x, &unit_stride); }

// Real and imaginary arrays of one operand, as line routines get them where parts are stored apart.
template <class T>
struct Parts {
  T *re, *im;
};

}  // namespace orb::dft
