// The matrix products of all element types under one name, for the drivers built on them.
#pragma once

#include "orb/blas_gemm.h"
#include "orb/blas_level3.h"
#include "serv/kernel/complex.h"

namespace orb::blas {

template <class T>
constexpr auto gemm_entry = orb_blas_xsgemm;
template <>
inline constexpr auto gemm_entry<double> = orb_blas_xdgemm;
template <>
inline constexpr auto gemm_entry<c32> = orb_blas_xcgemm;
template <>
inline constexpr auto gemm_entry<c64> = orb_blas_xzgemm;

// An operand of a product: a matrix and how it is taken, N, T or C.
template <class T>
struct Factored {
  char trans;
  const T* p;
  int ld;
};

// C = alpha op(A) op(B) + beta C, op(A) m by k, op(B) k by n.
template <class T>
void product(int m, int n, int k, T alpha, Factored<T> a, Factored<T> b, T beta, T* c, int ldc) {
  gemm_entry<T>(&a.trans, &b.trans, &m, &n, &k, &alpha, a.p, &a.ld, b.p, &b.ld, &beta, c, &ldc);
}

}  // namespace orb::blas
