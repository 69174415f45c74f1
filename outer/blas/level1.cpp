// Level-1 vectors: the Fortran names and the upward entries. Each jumps on into its kernel.
//
// The kernels read a stride of -1 as 1 where the direction cannot show, and other strides below 1 as strides;
// for routines on one vector the BLAS wants a stride below 1 to mean an empty vector.
#include "orb/blas.h"
#include "orb/services.h"
#include "outer/blas/axpby.h"
#include "outer/blas/complex_result.h"
#include "outer/kernels.h"

namespace {

using orb::c32;
using orb::c64;
using orb::call;

constexpr int nothing = 0;

ORB_INLINE const int* count_if_forward(const int* n, const int* incx) { return *incx > 0 ? n : &nothing; }

}  // namespace

#define AXPY(name, kernel, T)                                                                            \
  ORB_FACE void name(const int* n, const T* alpha, const T* x, const int* incx, T* y, const int* incy) { \
    call<kernel>(n, alpha, x, incx, y, incy);                                                            \
  }
AXPY(saxpy_, orb_blas_xsaxpy, float)
AXPY(daxpy_, orb_blas_xdaxpy, double)
AXPY(caxpy_, orb_blas_xcaxpy, c32)
AXPY(zaxpy_, orb_blas_xzaxpy, c64)
AXPY(orb_blas_saxpy, orb_blas_xsaxpy, float)
AXPY(orb_blas_daxpy, orb_blas_xdaxpy, double)
AXPY(orb_blas_caxpy, orb_blas_xcaxpy, c32)
AXPY(orb_blas_zaxpy, orb_blas_xzaxpy, c64)

#define AXPBY(p, T)                                                                                          \
  ORB_EXPORT void p##axpby_(const int* n, const T* alpha, const T* x, const int* incx, const T* beta, T* y,  \
                            const int* incy) {                                                               \
    orb::axpby<orb_blas_x##p##copy, orb_blas_##p##scal, orb_blas_x##p##axpy>(*n, *alpha, x, *incx, *beta, y, \
                                                                             *incy);                         \
  }
AXPBY(s, float)
AXPBY(d, double)
AXPBY(c, c32)
AXPBY(z, c64)

#define DOT(name, kernel, R, T)                                                             \
  ORB_FACE R name(const int* n, const T* x, const int* incx, const T* y, const int* incy) { \
    return call<kernel>(n, x, incx, y, incy);                                               \
  }
DOT(sdot_, orb_blas_xsdot, float, float)
DOT(ddot_, orb_blas_xddot, double, double)
DOT(dsdot_, orb_blas_dsdot, double, float)
DOT(orb_blas_sdot, orb_blas_xsdot, float, float)
DOT(orb_blas_ddot, orb_blas_xddot, double, double)

ORB_FACE float sdsdot_(const int* n, const float* sb, const float* x, const int* incx, const float* y,
                       const int* incy) {
  return call<orb_blas_sdsdot>(n, sb, x, incx, y, incy);
}

#define COMPLEX_DOT(name, kernel, T)                                                             \
  ORB_EXPORT orb::fortran_complex<T> name(const int* n, const T* x, const int* incx, const T* y, \
                                          const int* incy) {                                     \
    return orb::complex_result<T>([=](T* r) { call<kernel>(r, n, x, incx, y, incy); });          \
  }
COMPLEX_DOT(cdotu_, orb_blas_cdotu, c32)
COMPLEX_DOT(cdotc_, orb_blas_xcdotc, c32)
COMPLEX_DOT(zdotu_, orb_blas_zdotu, c64)
COMPLEX_DOT(zdotc_, orb_blas_zdotc, c64)

#define SCAL(name, kernel, S, T)                                            \
  ORB_FACE void name(const int* n, const S* alpha, T* x, const int* incx) { \
    call<kernel>(count_if_forward(n, incx), alpha, x, incx);                \
  }
SCAL(sscal_, orb_blas_sscal, float, float)
SCAL(dscal_, orb_blas_dscal, double, double)
SCAL(cscal_, orb_blas_cscal, c32, c32)
SCAL(zscal_, orb_blas_zscal, c64, c64)
SCAL(csscal_, orb_blas_csscal, float, c32)
SCAL(zdscal_, orb_blas_zdscal, double, c64)

#define COPY(name, kernel, T)                                                            \
  ORB_FACE void name(const int* n, const T* x, const int* incx, T* y, const int* incy) { \
    call<kernel>(n, x, incx, y, incy);                                                   \
  }
COPY(scopy_, orb_blas_xscopy, float)
COPY(dcopy_, orb_blas_xdcopy, double)
COPY(ccopy_, orb_blas_xccopy, c32)
COPY(zcopy_, orb_blas_xzcopy, c64)

#define SWAP(name, kernel, T)                                                      \
  ORB_FACE void name(const int* n, T* x, const int* incx, T* y, const int* incy) { \
    call<kernel>(n, x, incx, y, incy);                                             \
  }
SWAP(sswap_, orb_blas_xsswap, float)
SWAP(dswap_, orb_blas_xdswap, double)
SWAP(cswap_, orb_blas_xcswap, c32)
SWAP(zswap_, orb_blas_xzswap, c64)

// Sums, norms and places of extremes.
#define REDUCE(name, kernel, R, T)                             \
  ORB_FACE R name(const int* n, const T* x, const int* incx) { \
    return call<kernel>(count_if_forward(n, incx), x, incx);   \
  }
REDUCE(sasum_, orb_blas_sasum, float, float)
REDUCE(dasum_, orb_blas_dasum, double, double)
REDUCE(scasum_, orb_blas_scasum, float, c32)
REDUCE(dzasum_, orb_blas_dzasum, double, c64)
REDUCE(snrm2_, orb_blas_snrm2, float, float)
REDUCE(dnrm2_, orb_blas_dnrm2, double, double)
REDUCE(scnrm2_, orb_blas_scnrm2, float, c32)
REDUCE(dznrm2_, orb_blas_dznrm2, double, c64)
REDUCE(isamax_, orb_blas_isamax, int, float)
REDUCE(idamax_, orb_blas_idamax, int, double)
REDUCE(icamax_, orb_blas_icamax, int, c32)
REDUCE(izamax_, orb_blas_izamax, int, c64)
REDUCE(isamin_, orb_blas_isamin, int, float)
REDUCE(idamin_, orb_blas_idamin, int, double)
REDUCE(icamin_, orb_blas_icamin, int, c32)
REDUCE(izamin_, orb_blas_izamin, int, c64)

ORB_FACE float scabs1_(const c32* z) { return __builtin_fabsf(z->re) + __builtin_fabsf(z->im); }
ORB_FACE double dcabs1_(const c64* z) { return call<orb_blas_dcabs1>(z); }

#define ROT(name, kernel, R, T)                                                                            \
  ORB_FACE void name(const int* n, T* x, const int* incx, T* y, const int* incy, const R* c, const R* s) { \
    call<kernel>(n, x, incx, y, incy, c, s);                                                               \
  }
ROT(srot_, orb_blas_xsrot, float, float)
ROT(drot_, orb_blas_xdrot, double, double)
ROT(csrot_, orb_blas_xcsrot, float, c32)
ROT(zdrot_, orb_blas_xzdrot, double, c64)

ORB_FACE void srotg_(float* a, float* b, float* c, float* s) { call<orb_blas_srotg>(a, b, c, s); }
ORB_FACE void drotg_(double* a, double* b, double* c, double* s) { call<orb_blas_drotg>(a, b, c, s); }
ORB_FACE void crotg_(c32* a, const c32* b, float* c, c32* s) { call<orb_blas_crotg>(a, b, c, s); }
ORB_FACE void zrotg_(c64* a, const c64* b, double* c, c64* s) { call<orb_blas_zrotg>(a, b, c, s); }

#define ROTM(name, kernel, T)                                                                      \
  ORB_FACE void name(const int* n, T* x, const int* incx, T* y, const int* incy, const T* param) { \
    call<kernel>(n, x, incx, y, incy, param);                                                      \
  }
ROTM(srotm_, orb_blas_srotm, float)
ROTM(drotm_, orb_blas_drotm, double)

#define ROTMG(name, kernel, T) \
  ORB_FACE void name(T* d1, T* d2, T* x1, const T* y1, T* param) { call<kernel>(d1, d2, x1, y1, param); }
ROTMG(srotmg_, orb_blas_srotmg, float)
ROTMG(drotmg_, orb_blas_drotmg, double)
