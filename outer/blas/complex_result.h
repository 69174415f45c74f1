// Complex function results as Fortran compilers return them on this platform: a single in two integer
// registers, a double through a hidden pointer that the callee removes. The compiler's own complex type does
// both; the kernels store through a plain first pointer.
#pragma once

#include "orb/blas.h"
#include "serv/kernel/complex.h"

namespace orb {

template <class T>
struct FortranComplex;
template <>
struct FortranComplex<c32> {
  using type = orb_fortran_complex_float;
};
template <>
struct FortranComplex<c64> {
  using type = orb_fortran_complex_double;
};
template <class T>
using fortran_complex = typename FortranComplex<T>::type;

// What store(T*) stores, returned.
template <class T, class Store>
ORB_INLINE fortran_complex<T> complex_result(Store store) {
  T pair;
  store(&pair);
  fortran_complex<T> value;
  __real__ value = pair.re;
  __imag__ value = pair.im;
  return value;
}

}  // namespace orb
