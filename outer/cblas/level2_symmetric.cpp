// C faces of the symmetric and Hermitian matrix-vector routines. A row-major triangle is the other triangle
// of the transpose in column-major order. The transpose of a symmetric matrix is the matrix; that of a
// Hermitian one is its conjugate, and the vectors and factors are conjugated instead:
//   y = alpha A x + beta y                     conj(y) = conj(alpha) A^T conj(x) + conj(beta) conj(y)
//   A += alpha x x^H                           A^T += alpha conj(x) conj(x)^H
//   A += alpha x y^H + conj(alpha) y x^H       A^T += alpha conj(y) conj(x)^H + conj(alpha) conj(x) conj(y)^H
#include "outer/blas/checks.h"
#include "outer/cblas/arguments.h"
#include "outer/kernels.h"

namespace orb {
namespace {

// The triangle in column-major order.
ORB_INLINE char read_triangle(Options& options, CBLAS_UPLO uplo) {
  const char triangle = options.triangle(uplo, 2);
  return options.row_major ? other_triangle(triangle) : triangle;
}

// product(alpha, x, incx, beta) is the column-major routine on the triangle that has been read.
template <class T, class Product>
ORB_INLINE void product_by(bool row_major, int n, T alpha, const T* x, int incx, T beta, T* y, int incy,
                           Product product) {
  if constexpr (Complex<T>)
    if (row_major) {
      const Conjugated<T> other(n, x, incx);
      conjugate(n, y, incy);
      product(conj(alpha), other.data(), 1, conj(beta));
      conjugate(n, y, incy);
      return;
    }
  product(alpha, x, incx, beta);
}

template <auto* entry, class T>
ORB_INLINE void cblas_symv(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, T alpha, const T* a,
                           int lda, const T* x, int incx, T beta, T* y, int incy) {
  Options options(name, layout);
  const char triangle = read_triangle(options, uplo);
  if (options.refused() || options.refused(bad_symv(&triangle, n, lda, incx, incy))) return;
  product_by(options.row_major, n, alpha, x, incx, beta, y, incy,
             [&](T factor, const T* from, int step, T scale) {
               call<entry>(&triangle, &n, &factor, a, &lda, from, &step, &scale, y, &incy);
             });
}

template <auto* entry, class T>
ORB_INLINE void cblas_sbmv(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, int k, T alpha,
                           const T* a, int lda, const T* x, int incx, T beta, T* y, int incy) {
  Options options(name, layout);
  const char triangle = read_triangle(options, uplo);
  if (options.refused() || options.refused(bad_sbmv(&triangle, n, k, lda, incx, incy))) return;
  product_by(options.row_major, n, alpha, x, incx, beta, y, incy,
             [&](T factor, const T* from, int step, T scale) {
               call<entry>(&triangle, &n, &k, &factor, a, &lda, from, &step, &scale, y, &incy);
             });
}

template <auto* entry, class T>
ORB_INLINE void cblas_spmv(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, T alpha,
                           const T* ap, const T* x, int incx, T beta, T* y, int incy) {
  Options options(name, layout);
  const char triangle = read_triangle(options, uplo);
  if (options.refused() || options.refused(bad_spmv(&triangle, n, incx, incy))) return;
  product_by(options.row_major, n, alpha, x, incx, beta, y, incy,
             [&](T factor, const T* from, int step, T scale) {
               call<entry>(&triangle, &n, &factor, ap, from, &step, &scale, y, &incy);
             });
}

// update(x, incx) is the column-major routine.
template <class T, class Update>
ORB_INLINE void update_by(bool row_major, int n, const T* x, int incx, Update update) {
  if constexpr (Complex<T>)
    if (row_major) return update(Conjugated<T>(n, x, incx).data(), 1);
  update(x, incx);
}

template <auto* entry, class S, class T>
ORB_INLINE void cblas_syr(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const T* x,
                          int incx, T* a, int lda) {
  Options options(name, layout);
  const char triangle = read_triangle(options, uplo);
  if (options.refused() || options.refused(bad_syr(&triangle, n, incx, lda))) return;
  update_by(options.row_major, n, x, incx,
            [&](const T* from, int step) { call<entry>(&triangle, &n, &alpha, from, &step, a, &lda); });
}

template <auto* entry, class S, class T>
ORB_INLINE void cblas_spr(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const T* x,
                          int incx, T* ap) {
  Options options(name, layout);
  const char triangle = read_triangle(options, uplo);
  if (options.refused() || options.refused(bad_spr(&triangle, n, incx))) return;
  update_by(options.row_major, n, x, incx,
            [&](const T* from, int step) { call<entry>(&triangle, &n, &alpha, from, &step, ap); });
}

// update(x, incx, y, incy) is the column-major routine.
template <class T, class Update>
ORB_INLINE void update_by_two(bool row_major, int n, const T* x, int incx, const T* y, int incy,
                              Update update) {
  if constexpr (Complex<T>)
    if (row_major) return update(Conjugated<T>(n, y, incy).data(), 1, Conjugated<T>(n, x, incx).data(), 1);
  update(x, incx, y, incy);
}

// The check meets x and y as the update takes them.
template <class T>
ORB_INLINE bool exchanged(const Options& options) {
  return Complex<T> && options.row_major;
}

template <auto* entry, class T>
ORB_INLINE void cblas_syr2(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, T alpha, const T* x,
                           int incx, const T* y, int incy, T* a, int lda) {
  Options options(name, layout);
  const char triangle = read_triangle(options, uplo);
  const bool other = exchanged<T>(options);
  if (options.refused() ||
      options.refused(bad_syr2(&triangle, n, other ? incy : incx, other ? incx : incy, lda)))
    return;
  update_by_two(options.row_major, n, x, incx, y, incy, [&](const T* p, int step_p, const T* q, int step_q) {
    call<entry>(&triangle, &n, &alpha, p, &step_p, q, &step_q, a, &lda);
  });
}

template <auto* entry, class T>
ORB_INLINE void cblas_spr2(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, T alpha, const T* x,
                           int incx, const T* y, int incy, T* ap) {
  Options options(name, layout);
  const char triangle = read_triangle(options, uplo);
  const bool other = exchanged<T>(options);
  if (options.refused() || options.refused(bad_spr2(&triangle, n, other ? incy : incx, other ? incx : incy)))
    return;
  update_by_two(options.row_major, n, x, incx, y, incy, [&](const T* p, int step_p, const T* q, int step_q) {
    call<entry>(&triangle, &n, &alpha, p, &step_p, q, &step_q, ap);
  });
}

}  // namespace
}  // namespace orb

#define CBLAS_SYMV(name, entry, S, V, T)                                                                    \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const V* a, int lda,           \
                       const V* x, int incx, S beta, V* y, int incy) {                                      \
    orb::cblas_symv<entry>(#name, layout, uplo, n, orb::value<T>(alpha), orb::as<T>(a), lda, orb::as<T>(x), \
                           incx, orb::value<T>(beta), orb::as<T>(y), incy);                                 \
  }
CBLAS_SYMV(cblas_ssymv, orb_blas_xssymv, float, float, float)
CBLAS_SYMV(cblas_dsymv, orb_blas_xdsymv, double, double, double)
CBLAS_SYMV(cblas_chemv, orb_blas_chemv, const void*, void, orb::c32)
CBLAS_SYMV(cblas_zhemv, orb_blas_zhemv, const void*, void, orb::c64)

#define CBLAS_SBMV(name, entry, S, V, T)                                                                 \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, int k, S alpha, const V* a, int lda, \
                       const V* x, int incx, S beta, V* y, int incy) {                                   \
    orb::cblas_sbmv<entry>(#name, layout, uplo, n, k, orb::value<T>(alpha), orb::as<T>(a), lda,          \
                           orb::as<T>(x), incx, orb::value<T>(beta), orb::as<T>(y), incy);               \
  }
CBLAS_SBMV(cblas_ssbmv, orb_blas_ssbmv, float, float, float)
CBLAS_SBMV(cblas_dsbmv, orb_blas_dsbmv, double, double, double)
CBLAS_SBMV(cblas_chbmv, orb_blas_chbmv, const void*, void, orb::c32)
CBLAS_SBMV(cblas_zhbmv, orb_blas_zhbmv, const void*, void, orb::c64)

#define CBLAS_SPMV(name, entry, S, V, T)                                                                \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const V* ap, const V* x,   \
                       int incx, S beta, V* y, int incy) {                                              \
    orb::cblas_spmv<entry>(#name, layout, uplo, n, orb::value<T>(alpha), orb::as<T>(ap), orb::as<T>(x), \
                           incx, orb::value<T>(beta), orb::as<T>(y), incy);                             \
  }
CBLAS_SPMV(cblas_sspmv, orb_blas_sspmv, float, float, float)
CBLAS_SPMV(cblas_dspmv, orb_blas_dspmv, double, double, double)
CBLAS_SPMV(cblas_chpmv, orb_blas_chpmv, const void*, void, orb::c32)
CBLAS_SPMV(cblas_zhpmv, orb_blas_zhpmv, const void*, void, orb::c64)

#define CBLAS_SYR(name, entry, S, V, T)                                                                  \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const V* x, int incx, V* a, \
                       int lda) {                                                                        \
    orb::cblas_syr<entry>(#name, layout, uplo, n, alpha, orb::as<T>(x), incx, orb::as<T>(a), lda);       \
  }
CBLAS_SYR(cblas_ssyr, orb_blas_xssyr, float, float, float)
CBLAS_SYR(cblas_dsyr, orb_blas_xdsyr, double, double, double)
CBLAS_SYR(cblas_cher, orb_blas_cher, float, void, orb::c32)
CBLAS_SYR(cblas_zher, orb_blas_zher, double, void, orb::c64)

#define CBLAS_SPR(name, entry, S, V, T)                                                                     \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const V* x, int incx, V* ap) { \
    orb::cblas_spr<entry>(#name, layout, uplo, n, alpha, orb::as<T>(x), incx, orb::as<T>(ap));              \
  }
CBLAS_SPR(cblas_sspr, orb_blas_sspr, float, float, float)
CBLAS_SPR(cblas_dspr, orb_blas_dspr, double, double, double)
CBLAS_SPR(cblas_chpr, orb_blas_chpr, float, void, orb::c32)
CBLAS_SPR(cblas_zhpr, orb_blas_zhpr, double, void, orb::c64)

#define CBLAS_SYR2(name, entry, S, V, T)                                                                     \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const V* x, int incx,           \
                       const V* y, int incy, V* a, int lda) {                                                \
    orb::cblas_syr2<entry>(#name, layout, uplo, n, orb::value<T>(alpha), orb::as<T>(x), incx, orb::as<T>(y), \
                           incy, orb::as<T>(a), lda);                                                        \
  }
CBLAS_SYR2(cblas_ssyr2, orb_blas_xssyr2, float, float, float)
CBLAS_SYR2(cblas_dsyr2, orb_blas_xdsyr2, double, double, double)
CBLAS_SYR2(cblas_cher2, orb_blas_cher2, const void*, void, orb::c32)
CBLAS_SYR2(cblas_zher2, orb_blas_zher2, const void*, void, orb::c64)

#define CBLAS_SPR2(name, entry, S, V, T)                                                                     \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, int n, S alpha, const V* x, int incx,           \
                       const V* y, int incy, V* ap) {                                                        \
    orb::cblas_spr2<entry>(#name, layout, uplo, n, orb::value<T>(alpha), orb::as<T>(x), incx, orb::as<T>(y), \
                           incy, orb::as<T>(ap));                                                            \
  }
CBLAS_SPR2(cblas_sspr2, orb_blas_sspr2, float, float, float)
CBLAS_SPR2(cblas_dspr2, orb_blas_dspr2, double, double, double)
CBLAS_SPR2(cblas_chpr2, orb_blas_chpr2, const void*, void, orb::c32)
CBLAS_SPR2(cblas_zhpr2, orb_blas_zhpr2, const void*, void, orb::c64)
