// x = op(A) x, A triangular, by diagonal blocks. In every case a block first spreads its elements, still as
// they were, over those elements of x that are finished but for it, and is then multiplied itself.
#include "blas/kernel/level2/triangular.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

constexpr int block_width = 64;

// The exported kernels of one type.
template <class T>
struct Kernels;
template <>
struct Kernels<float> {
  static constexpr auto gemv = orb_blas_xsgemv;
  static constexpr auto trmv_in = orb_blas_strmv_in;
};
template <>
struct Kernels<double> {
  static constexpr auto gemv = orb_blas_xdgemv;
  static constexpr auto trmv_in = orb_blas_dtrmv_in;
};
template <>
struct Kernels<c32> {
  static constexpr auto gemv = orb_blas_xcgemv;
  static constexpr auto trmv_in = orb_blas_ctrmv_in;
};
template <>
struct Kernels<c64> {
  static constexpr auto gemv = orb_blas_xzgemv;
  static constexpr auto trmv_in = orb_blas_ztrmv_in;
};

template <class T>
void trmv(const char* uplo, const char* trans, const char* diag, int n, const T* a, const int* lda, T* x,
          const int* incx) {
  if (n <= 0) return;
  const bool plain = is_option(trans, 'N'), from_front = is_option(uplo, 'U') == plain;
  constexpr T one = number<T>(1);
  x = strided_start(x, n, *incx);
  for_blocks<block_width>(n, from_front, [&](int at, int width) {
    const int finished = from_front ? 0 : at + width, count = from_front ? at : n - finished;
    T* const own = sub_vector(x, at, width, *incx);
    if (count > 0)
      Kernels<T>::gemv(trans, plain ? &count : &width, plain ? &width : &count, &one,
                       plain ? a + finished + at * *lda : a + at + finished * *lda, lda, own, incx, &one,
                       sub_vector(x, finished, count, *incx), incx);
    Kernels<T>::trmv_in(uplo, trans, diag, &width, a + at + at * *lda, lda, own, incx);
  });
}

}  // namespace
}  // namespace orb::blas

#define TRMV(name, T)                                                                                   \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const T* a, \
                       const int* lda, T* x, const int* incx) {                                         \
    orb::blas::trmv(uplo, trans, diag, *n, a, lda, x, incx);                                            \
  }
TRMV(orb_blas_xstrmv, float)
TRMV(orb_blas_xdtrmv, double)
TRMV(orb_blas_xctrmv, orb_complex_float)
TRMV(orb_blas_xztrmv, orb_complex_double)
