// gemv and ger with arguments known to be good, on as many threads as pay. The bits of the result do not
// depend on their number: each element of y and of A is computed as if alone, but that the kernels take
// columns in fours (gemv) and twos (ger).
#pragma once

#include "outer/blas/pieces.h"
#include "outer/kernels.h"

namespace orb {

// From how many bytes of the matrix on does a second thread pay? The work is one of memory, not of
// arithmetic: waking a thread takes as long as reading half a megabyte, and the gain passed a tenth in all
// three sweeps beyond two.
template <class T>
ORB_INLINE bool worth_sweeping(int m, int n) {
  return double(m) * n * sizeof(T) >= 2.2e6;
}

template <auto* entry>
struct Gemv;
template <class T, void (*entry)(const char*, const int*, const int*, const T*, const T*, const int*,
                                 const T*, const int*, const T*, T*, const int*)>
struct Gemv<entry> {
  ORB_ASIDE static void divided(const char* trans, const int* m, const int* n, const T* alpha, const T* a,
                                const int* lda, const T* x, const int* incx, const T* beta, T* y,
                                const int* incy) {
    const bool plain = is_option(trans, 'N');
    const int length = plain ? *m : *n;
    in_pieces(length, {16, 64}, [=](int first, int count) {
      call<entry>(trans, plain ? &count : m, plain ? n : &count, alpha, a + first * (plain ? 1 : *lda), lda,
                  x, incx, beta, part_of_vector(y, length, *incy, first, count), incy);
    });
  }
  ORB_INLINE static void run(const char* trans, const int* m, const int* n, const T* alpha, const T* a,
                             const int* lda, const T* x, const int* incx, const T* beta, T* y,
                             const int* incy) {
    const auto next = worth_sweeping<T>(*m, *n) ? divided : kernel<entry>();
    next(trans, m, n, alpha, a, lda, x, incx, beta, y, incy);
  }
};

template <auto* entry>
struct Ger;
template <class T, void (*entry)(const int*, const int*, const T*, const T*, const int*, const T*, const int*,
                                 T*, const int*)>
struct Ger<entry> {
  ORB_ASIDE static void divided(const int* m, const int* n, const T* alpha, const T* x, const int* incx,
                                const T* y, const int* incy, T* a, const int* lda) {
    in_pieces(*n, {4, 16}, [=](int first, int count) {
      call<entry>(m, &count, alpha, x, incx, part_of_vector(y, *n, *incy, first, count), incy,
                  a + first * *lda, lda);
    });
  }
  ORB_INLINE static void run(const int* m, const int* n, const T* alpha, const T* x, const int* incx,
                             const T* y, const int* incy, T* a, const int* lda) {
    const auto next = worth_sweeping<T>(*m, *n) ? divided : kernel<entry>();
    next(m, n, alpha, x, incx, y, incy, a, lda);
  }
};

}  // namespace orb
