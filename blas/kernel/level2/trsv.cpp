// Solves op(A) x = b, A triangular, by diagonal blocks: the upward gemv, which may divide its work, takes off
// what the solved elements contribute to a block, and the inner routine solves the block.
#include "blas/kernel/level2/triangular.h"
#include "orb/blas_level2.h"
#include "orb/services.h"

namespace orb::blas {
namespace {

constexpr int block_width = 32;

// The inner routines, by upper, op and unit.
template <class T>
using Inner = void (*)(const int* n, const T* a, const int* lda, T* x, const int* incx);

template <class T>
struct Kernels;
template <>
struct Kernels<float> {
  static constexpr auto gemv = orb_blas_sgemv;
  static constexpr Inner<float> inner[2][3][2] = {
      {{orb_blas_strsv_lnn, orb_blas_strsv_lnu}, {orb_blas_strsv_ltn, orb_blas_strsv_ltu}},
      {{orb_blas_strsv_unn, orb_blas_strsv_unu}, {orb_blas_strsv_utn, orb_blas_strsv_utu}}};
};
template <>
struct Kernels<double> {
  static constexpr auto gemv = orb_blas_dgemv;
  static constexpr Inner<double> inner[2][3][2] = {
      {{orb_blas_dtrsv_lnn, orb_blas_dtrsv_lnu}, {orb_blas_dtrsv_ltn, orb_blas_dtrsv_ltu}},
      {{orb_blas_dtrsv_unn, orb_blas_dtrsv_unu}, {orb_blas_dtrsv_utn, orb_blas_dtrsv_utu}}};
};
template <>
struct Kernels<c32> {
  static constexpr auto gemv = orb_blas_cgemv;
  static constexpr Inner<c32> inner[2][3][2] = {{{orb_blas_ctrsv_lnn, orb_blas_ctrsv_lnu},
                                                 {orb_blas_ctrsv_ltn, orb_blas_ctrsv_ltu},
                                                 {orb_blas_ctrsv_lcn, orb_blas_ctrsv_lcu}},
                                                {{orb_blas_ctrsv_unn, orb_blas_ctrsv_unu},
                                                 {orb_blas_ctrsv_utn, orb_blas_ctrsv_utu},
                                                 {orb_blas_ctrsv_ucn, orb_blas_ctrsv_ucu}}};
};
template <>
struct Kernels<c64> {
  static constexpr auto gemv = orb_blas_zgemv;
  static constexpr Inner<c64> inner[2][3][2] = {{{orb_blas_ztrsv_lnn, orb_blas_ztrsv_lnu},
                                                 {orb_blas_ztrsv_ltn, orb_blas_ztrsv_ltu},
                                                 {orb_blas_ztrsv_lcn, orb_blas_ztrsv_lcu}},
                                                {{orb_blas_ztrsv_unn, orb_blas_ztrsv_unu},
                                                 {orb_blas_ztrsv_utn, orb_blas_ztrsv_utu},
                                                 {orb_blas_ztrsv_ucn, orb_blas_ztrsv_ucu}}};
};

template <class T>
void trsv(const char* uplo, const char* trans, const char* diag, int n, const T* a, const int* lda, T* x,
          const int* incx) {
  if (n <= 0) return;
  const bool upper = is_option(uplo, 'U'), plain = is_option(trans, 'N'), from_front = upper != plain;
  const int op = plain ? 0 : Complex<T> && !is_option(trans, 'T') ? 2 : 1;
  const Inner<T> inner = Kernels<T>::inner[upper][op][is_option(diag, 'U')];
  constexpr T one = number<T>(1), minus_one = number<T>(-1);
  x = strided_start(x, n, *incx);
  for_blocks<block_width>(n, from_front, [&](int at, int width) {
    const int solved = from_front ? 0 : at + width, count = from_front ? at : n - solved;
    T* const own = sub_vector(x, at, width, *incx);
    if (count > 0)
      Kernels<T>::gemv(trans, plain ? &width : &count, plain ? &count : &width, &minus_one,
                       plain ? a + at + solved * *lda : a + solved + at * *lda, lda,
                       sub_vector(x, solved, count, *incx), incx, &one, own, incx);
    inner(&width, a + at + at * *lda, lda, own, incx);
  });
}

}  // namespace
}  // namespace orb::blas

#define TRSV(name, T)                                                                                   \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const T* a, \
                       const int* lda, T* x, const int* incx) {                                         \
    orb::blas::trsv(uplo, trans, diag, *n, a, lda, x, incx);                                            \
  }
TRSV(orb_blas_strsv, float)
TRSV(orb_blas_dtrsv, double)
TRSV(orb_blas_ctrsv, orb_complex_float)
TRSV(orb_blas_ztrsv, orb_complex_double)
