// C faces of the triangular matrix-vector routines. A row-major triangle is the other triangle of the
// transpose in column-major order; where the call asks for its conjugate, x is conjugated before and after.
#include "outer/blas/checks.h"
#include "outer/cblas/arguments.h"
#include "outer/kernels.h"

namespace orb {
namespace {

// The letters of a call, in column-major order once turn() has been called. The check is of the letters as
// they are given, since a conjugate transpose stays a good letter.
struct Triangle {
  char uplo, trans, diag;
  bool conjugated = false;

  Triangle(Options& options, CBLAS_UPLO u, CBLAS_TRANSPOSE t, CBLAS_DIAG d)
      : uplo(options.triangle(u, 2)),
        trans(options.transpose(t, 3, "Illegal TransA setting, %d\n")),
        diag(options.diagonal(d, 4)) {
    if (options.row_major && !options.refused()) turn();
  }

 private:
  void turn() {
    uplo = other_triangle(uplo);
    conjugated = trans == 'C';
    trans = trans == 'N' ? 'T' : 'N';
  }
};

template <class T, class Routine>
ORB_INLINE void apply(const Triangle& triangle, int n, T* x, int incx, Routine routine) {
  if constexpr (Complex<T>)
    if (triangle.conjugated) {
      conjugate(n, x, incx);
      routine();
      conjugate(n, x, incx);
      return;
    }
  routine();
}

template <auto* entry, class T>
ORB_INLINE void cblas_trmv(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans,
                           CBLAS_DIAG diag, int n, const T* a, int lda, T* x, int incx) {
  Options options(name, layout);
  const Triangle t(options, uplo, trans, diag);
  if (options.refused() || options.refused(bad_trmv(&t.uplo, &t.trans, &t.diag, n, lda, incx))) return;
  apply(t, n, x, incx, [&] { call<entry>(&t.uplo, &t.trans, &t.diag, &n, a, &lda, x, &incx); });
}

template <auto* entry, class T>
ORB_INLINE void cblas_tbmv(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans,
                           CBLAS_DIAG diag, int n, int k, const T* a, int lda, T* x, int incx) {
  Options options(name, layout);
  const Triangle t(options, uplo, trans, diag);
  if (options.refused() || options.refused(bad_tbmv(&t.uplo, &t.trans, &t.diag, n, k, lda, incx))) return;
  apply(t, n, x, incx, [&] { call<entry>(&t.uplo, &t.trans, &t.diag, &n, &k, a, &lda, x, &incx); });
}

template <auto* entry, class T>
ORB_INLINE void cblas_tpmv(const char* name, CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans,
                           CBLAS_DIAG diag, int n, const T* ap, T* x, int incx) {
  Options options(name, layout);
  const Triangle t(options, uplo, trans, diag);
  if (options.refused() || options.refused(bad_tpmv(&t.uplo, &t.trans, &t.diag, n, incx))) return;
  apply(t, n, x, incx, [&] { call<entry>(&t.uplo, &t.trans, &t.diag, &n, ap, x, &incx); });
}

}  // namespace
}  // namespace orb

#define CBLAS_TRMV(name, entry, V, T)                                                                       \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, \
                       const V* a, int lda, V* x, int incx) {                                               \
    orb::cblas_trmv<entry>(#name, layout, uplo, trans, diag, n, orb::as<T>(a), lda, orb::as<T>(x), incx);   \
  }
CBLAS_TRMV(cblas_strmv, orb_blas_xstrmv, float, float)
CBLAS_TRMV(cblas_dtrmv, orb_blas_xdtrmv, double, double)
CBLAS_TRMV(cblas_ctrmv, orb_blas_xctrmv, void, orb::c32)
CBLAS_TRMV(cblas_ztrmv, orb_blas_xztrmv, void, orb::c64)
CBLAS_TRMV(cblas_strsv, orb_blas_strsv, float, float)
CBLAS_TRMV(cblas_dtrsv, orb_blas_dtrsv, double, double)
CBLAS_TRMV(cblas_ctrsv, orb_blas_ctrsv, void, orb::c32)
CBLAS_TRMV(cblas_ztrsv, orb_blas_ztrsv, void, orb::c64)

#define CBLAS_TBMV(name, entry, V, T)                                                                        \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n,  \
                       int k, const V* a, int lda, V* x, int incx) {                                         \
    orb::cblas_tbmv<entry>(#name, layout, uplo, trans, diag, n, k, orb::as<T>(a), lda, orb::as<T>(x), incx); \
  }
CBLAS_TBMV(cblas_stbmv, orb_blas_stbmv, float, float)
CBLAS_TBMV(cblas_dtbmv, orb_blas_dtbmv, double, double)
CBLAS_TBMV(cblas_ctbmv, orb_blas_ctbmv, void, orb::c32)
CBLAS_TBMV(cblas_ztbmv, orb_blas_ztbmv, void, orb::c64)
CBLAS_TBMV(cblas_stbsv, orb_blas_stbsv, float, float)
CBLAS_TBMV(cblas_dtbsv, orb_blas_dtbsv, double, double)
CBLAS_TBMV(cblas_ctbsv, orb_blas_ctbsv, void, orb::c32)
CBLAS_TBMV(cblas_ztbsv, orb_blas_ztbsv, void, orb::c64)

#define CBLAS_TPMV(name, entry, V, T)                                                                       \
  ORB_EXPORT void name(CBLAS_LAYOUT layout, CBLAS_UPLO uplo, CBLAS_TRANSPOSE trans, CBLAS_DIAG diag, int n, \
                       const V* ap, V* x, int incx) {                                                       \
    orb::cblas_tpmv<entry>(#name, layout, uplo, trans, diag, n, orb::as<T>(ap), orb::as<T>(x), incx);       \
  }
CBLAS_TPMV(cblas_stpmv, orb_blas_stpmv, float, float)
CBLAS_TPMV(cblas_dtpmv, orb_blas_dtpmv, double, double)
CBLAS_TPMV(cblas_ctpmv, orb_blas_ctpmv, void, orb::c32)
CBLAS_TPMV(cblas_ztpmv, orb_blas_ztpmv, void, orb::c64)
CBLAS_TPMV(cblas_stpsv, orb_blas_stpsv, float, float)
CBLAS_TPMV(cblas_dtpsv, orb_blas_dtpsv, double, double)
CBLAS_TPMV(cblas_ctpsv, orb_blas_ctpsv, void, orb::c32)
CBLAS_TPMV(cblas_ztpsv, orb_blas_ztpsv, void, orb::c64)
