// C faces of the general matrix-vector routines. The transpose of a row-major matrix lies in the same memory;
// where the call asks for its conjugate, the vectors and factors are conjugated instead:
//   y = alpha A^H x + beta y   is   conj(y) = conj(alpha) A^T conj(x) + conj(beta) conj(y).
#include <utility>

#include "outer/blas/checks.h"
#include "outer/blas/level2_work.h"
#include "outer/cblas/arguments.h"

namespace orb {
namespace {

// y = alpha op(A) x + beta y for an op that the row-major reading has turned round: product(op, alpha, x,
// incx, beta) is the column-major routine, `rows` the elements of x.
template <class T, class Product>
ORB_INLINE void turned(char trans, int rows, int length, T alpha, const T* x, int incx, T beta, T* y,
                       int incy, Product product) {
  if constexpr (Complex<T>)
    if (trans == 'C') {
      const Conjugated<T> other(rows, x, incx);
      conjugate(length, y, incy);
      product('N', conj(alpha), other.data(), 1, conj(beta));
      conjugate(length, y, incy);
      return;
    }
  product(trans == 'N' ? 'T' : 'N', alpha, x, incx, beta);
}

template <auto* entry, class T>
ORB_INLINE void cblas_gemv(const char* name, CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, int m, int n,
                           T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y, int incy) {
  Options options(name, layout);
  const char trans = options.transpose(transa, 2, "Illegal TransA setting, %d\n");
  if (options.refused()) return;
  const auto product = [&](char op, T factor, const T* from, int step, T scale) {
    Gemv<entry>::run(&op, &m, &n, &factor, a, &lda, from, &step, &scale, y, &incy);
  };
  if (options.row_major) std::swap(m, n);
  if (options.refused(bad_gemv(&trans, m, n, lda, incx, incy)) || m == 0 || n == 0) return;
  if (options.row_major)
    turned(trans, trans == 'N' ? m : n, trans == 'N' ? n : m, alpha, x, incx, beta, y, incy, product);
  else
    product(trans, alpha, x, incx, beta);
}

template <auto* entry, class T>
ORB_INLINE void cblas_gbmv(const char* name, CBLAS_LAYOUT layout, CBLAS_TRANSPOSE transa, int m, int n,
                           int kl, int ku, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y,
                           int incy) {
  Options options(name, layout);
  const char trans = options.transpose(transa, 2, "Illegal TransA setting, %d\n");
  if (options.refused()) return;
  const auto product = [&](char op, T factor, const T* from, int step, T scale) {
    call<entry>(&op, &m, &n, &kl, &ku, &factor, a, &lda, from, &step, &scale, y, &incy);
  };
  if (options.row_major) {
    std::swap(m, n);
    std::swap(kl, ku);
  }
  if (options.refused(bad_gbmv(&trans, m, n, kl, ku, lda, incx, incy)) || m == 0 || n == 0) return;
  if (options.row_major)
    turned(trans, trans == 'N' ? m : n, trans == 'N' ? n : m, alpha, x, incx, beta, y, incy, product);
  else
    product(trans, alpha, x, incx, beta);
}

// A += alpha x y^T is A^T += alpha y x^T.
template <auto* entry, class T>
ORB_INLINE void cblas_ger(const char* name, CBLAS_LAYOUT layout, int m, int n, T alpha, const T* x, int incx,
                          const T* y, int incy, T* a, int lda) {
  Options options(name, layout);
  if (options.refused()) return;
  if (options.row_major) {
    std::swap(m, n);
    std::swap(x, y);
    std::swap(incx, incy);
  }
  if (options.refused(bad_ger(m, n, incx, incy, lda))) return;
  Ger<entry>::run(&m, &n, &alpha, x, &incx, y, &incy, a, &lda);
}

// A += alpha x y^H is A^T += alpha conj(y) x^T.
template <auto* plain, auto* conjugated, class T>
ORB_INLINE void cblas_gerc(const char* name, CBLAS_LAYOUT layout, int m, int n, T alpha, const T* x, int incx,
                           const T* y, int incy, T* a, int lda) {
  Options options(name, layout);
  if (options.refused()) return;
  if (options.row_major) {
    if (options.refused(bad_ger(n, m, incy, incx, lda))) return;
    const Conjugated<T> other(n, y, incy);
    Ger<plain>::run(&n, &m, &alpha, other.data(), &unit_stride, x, &incx, a, &lda);
  } else {
    if (options.refused(bad_ger(m, n, incx, incy, lda))) return;
    Ger<conjugated>::run(&m, &n, &alpha, x, &incx, y, &incy, a, &lda);
  }
}

}  // namespace
}  // namespace orb

#define CBLAS_GEMV(name, entry, S, V, T)                                                              \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, S alpha, const V* a, \
                       int lda, const V* x, int incx, S beta, V* y, int incy) {                       \
    orb::cblas_gemv<entry>(#name, layout, trans, m, n, orb::value<T>(alpha), orb::as<T>(a), lda,      \
                           orb::as<T>(x), incx, orb::value<T>(beta), orb::as<T>(y), incy);            \
  }
CBLAS_GEMV(cblas_sgemv, orb_blas_xsgemv, float, float, float)
CBLAS_GEMV(cblas_dgemv, orb_blas_xdgemv, double, double, double)
CBLAS_GEMV(cblas_cgemv, orb_blas_xcgemv, const void*, void, orb::c32)
CBLAS_GEMV(cblas_zgemv, orb_blas_xzgemv, const void*, void, orb::c64)

#define CBLAS_GBMV(name, entry, S, V, T)                                                                  \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_TRANSPOSE trans, int m, int n, int kl, int ku, S alpha, \
                       const V* a, int lda, const V* x, int incx, S beta, V* y, int incy) {               \
    orb::cblas_gbmv<entry>(#name, layout, trans, m, n, kl, ku, orb::value<T>(alpha), orb::as<T>(a), lda,  \
                           orb::as<T>(x), incx, orb::value<T>(beta), orb::as<T>(y), incy);                \
  }
CBLAS_GBMV(cblas_sgbmv, orb_blas_sgbmv, float, float, float)
CBLAS_GBMV(cblas_dgbmv, orb_blas_dgbmv, double, double, double)
CBLAS_GBMV(cblas_cgbmv, orb_blas_cgbmv, const void*, void, orb::c32)
CBLAS_GBMV(cblas_zgbmv, orb_blas_zgbmv, const void*, void, orb::c64)

#define CBLAS_GER(name, face, S, V, T)                                                               \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, int m, int n, S alpha, const V* x, int incx, const V* y, \
                       int incy, V* a, int lda) {                                                    \
    orb::face(#name, layout, m, n, orb::value<T>(alpha), orb::as<T>(x), incx, orb::as<T>(y), incy,   \
              orb::as<T>(a), lda);                                                                   \
  }
CBLAS_GER(cblas_sger, cblas_ger<orb_blas_sger>, float, float, float)
CBLAS_GER(cblas_dger, cblas_ger<orb_blas_dger>, double, double, double)
CBLAS_GER(cblas_cgeru, cblas_ger<orb_blas_cgeru>, const void*, void, orb::c32)
CBLAS_GER(cblas_zgeru, cblas_ger<orb_blas_zgeru>, const void*, void, orb::c64)
#define GERC(p) cblas_gerc<orb_blas_##p##geru, orb_blas_##p##gerc>
CBLAS_GER(cblas_cgerc, GERC(c), const void*, void, orb::c32)
CBLAS_GER(cblas_zgerc, GERC(z), const void*, void, orb::c64)
