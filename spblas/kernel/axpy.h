// The upward y += alpha x of the outer layer by element type.
#pragma once

#include "orb/services.h"
#include "serv/kernel/complex.h"

namespace orb::spblas {

constexpr int unit_stride = 1;

inline void axpy(const int* n, const float* alpha, const float* x, float* y) {
  orb_blas_saxpy(n, alpha, x, &unit_stride, y, &unit_stride);
}
inline void axpy(const int* n, const double* alpha, const double* x, double* y) {
  orb_blas_daxpy(n, alpha, x, &unit_stride, y, &unit_stride);
}
inline void axpy(const int* n, const c32* alpha, const c32* x, c32* y) {
  orb_blas_caxpy(n, alpha, x, &unit_stride, y, &unit_stride);
}
inline void axpy(const int* n, const c64* alpha, const c64* x, c64* y) {
  orb_blas_zaxpy(n, alpha, x, &unit_stride, y, &unit_stride);
}

}  // namespace orb::spblas
