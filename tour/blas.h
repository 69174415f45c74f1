// The library's routines on the tour's matrices.
#pragma once

#include "orb/cblas.h"
#include "tour/matrix.h"

namespace orb::tour {

inline constexpr double unit_roundoff = 0x1p-53;

// alpha op(A) op(B) + beta C, the shapes being taken from the operands.
inline void multiply(double alpha, const Matrix& a, CBLAS_TRANSPOSE transa, const Matrix& b,
                     CBLAS_TRANSPOSE transb, double beta, Matrix& c) {
  const int inner = transa == CblasNoTrans ? a.columns : a.rows;
  cblas_dgemm(CblasColMajor, transa, transb, c.rows, c.columns, inner, alpha, a.elements.data(), a.rows,
              b.elements.data(), b.rows, beta, c.elements.data(), c.rows);
}

// Frobenius norm.
inline double norm(const Matrix& a) { return cblas_dnrm2(int(a.elements.size()), a.elements.data(), 1); }

// Frobenius norm of A - B.
inline double distance(Matrix a, const Matrix& b) {
  cblas_daxpy(int(a.elements.size()), -1, b.elements.data(), 1, a.elements.data(), 1);
  return norm(a);
}

}  // namespace orb::tour
