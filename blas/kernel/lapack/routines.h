// The exported kernels that the factorisations run over, by element type.
#pragma once

#include "orb/blas_gemm.h"
#include "orb/blas_level1.h"
#include "orb/blas_level3.h"
#include "orb/blas_triangular.h"
#include "orb/services.h"
#include "serv/kernel/complex.h"

namespace orb::blas {

template <class T>
struct Routines;
template <>
struct Routines<float> {
  static constexpr auto amax = orb_blas_isamax;
  static constexpr auto axpy = orb_blas_xsaxpy;
  static constexpr auto swap = orb_blas_xsswap;
  static constexpr auto rot = orb_blas_xsrot;
  static constexpr auto gemv = orb_blas_sgemv;
  static constexpr auto gemm = orb_blas_xsgemm;
  static constexpr auto herk = orb_blas_xssyrk;
  static constexpr auto trsm = orb_blas_xstrsm;
};
template <>
struct Routines<double> {
  static constexpr auto amax = orb_blas_idamax;
  static constexpr auto axpy = orb_blas_xdaxpy;
  static constexpr auto swap = orb_blas_xdswap;
  static constexpr auto rot = orb_blas_xdrot;
  static constexpr auto gemv = orb_blas_dgemv;
  static constexpr auto gemm = orb_blas_xdgemm;
  static constexpr auto herk = orb_blas_xdsyrk;
  static constexpr auto trsm = orb_blas_xdtrsm;
};
template <>
struct Routines<c32> {
  static constexpr auto amax = orb_blas_icamax;
  static constexpr auto axpy = orb_blas_xcaxpy;
  static constexpr auto swap = orb_blas_xcswap;
  static constexpr auto rot = orb_blas_xcsrot;
  static constexpr auto gemv = orb_blas_cgemv;
  static constexpr auto gemm = orb_blas_xcgemm;
  static constexpr auto herk = orb_blas_xcherk;
  static constexpr auto trsm = orb_blas_xctrsm;
};
template <>
struct Routines<c64> {
  static constexpr auto amax = orb_blas_izamax;
  static constexpr auto axpy = orb_blas_xzaxpy;
  static constexpr auto swap = orb_blas_xzswap;
  static constexpr auto rot = orb_blas_xzdrot;
  static constexpr auto gemv = orb_blas_zgemv;
  static constexpr auto gemm = orb_blas_xzgemm;
  static constexpr auto herk = orb_blas_xzherk;
  static constexpr auto trsm = orb_blas_xztrsm;
};

}  // namespace orb::blas
