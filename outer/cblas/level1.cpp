// Level-1 vectors: the C names. V is the pointed-to type that the caller sees, T that of the kernel.
#include "orb/cblas.h"
#include "outer/blas/axpby.h"
#include "outer/cblas/arguments.h"

namespace {

using orb::c32;
using orb::c64;
using orb::call;

using orb::as;
using orb::value;

// The count of a routine on one vector, for which a stride below 1 means an empty vector.
ORB_INLINE int count_if_forward(int n, int incx) { return incx > 0 ? n : 0; }

}  // namespace

#define AXPY(name, kernel, T)                                                  \
  ORB_EXPORT void name(int n, T alpha, const T* x, int incx, T* y, int incy) { \
    call<kernel>(&n, &alpha, x, &incx, y, &incy);                              \
  }
AXPY(cblas_saxpy, orb_blas_xsaxpy, float)
AXPY(cblas_daxpy, orb_blas_xdaxpy, double)

#define COMPLEX_AXPY(name, kernel, T)                                                          \
  ORB_EXPORT void name(int n, const void* alpha, const void* x, int incx, void* y, int incy) { \
    call<kernel>(&n, as<T>(alpha), as<T>(x), &incx, as<T>(y), &incy);                          \
  }
COMPLEX_AXPY(cblas_caxpy, orb_blas_xcaxpy, c32)
COMPLEX_AXPY(cblas_zaxpy, orb_blas_xzaxpy, c64)

#define AXPBY(p, S, V, T)                                                                          \
  ORB_EXPORT void cblas_##p##axpby(int n, S alpha, const V* x, int incx, S beta, V* y, int incy) { \
    orb::axpby<orb_blas_x##p##copy, orb_blas_##p##scal, orb_blas_x##p##axpy>(                      \
        n, value<T>(alpha), as<T>(x), incx, value<T>(beta), as<T>(y), incy);                       \
  }
AXPBY(s, float, float, float)
AXPBY(d, double, double, double)
AXPBY(c, const void*, void, c32)
AXPBY(z, const void*, void, c64)

#define DOT(name, kernel, R, T)                                          \
  ORB_EXPORT R name(int n, const T* x, int incx, const T* y, int incy) { \
    return call<kernel>(&n, x, &incx, y, &incy);                         \
  }
DOT(cblas_sdot, orb_blas_xsdot, float, float)
DOT(cblas_ddot, orb_blas_xddot, double, double)
DOT(cblas_dsdot, orb_blas_dsdot, double, float)

ORB_EXPORT float cblas_sdsdot(int n, float sb, const float* x, int incx, const float* y, int incy) {
  return call<orb_blas_sdsdot>(&n, &sb, x, &incx, y, &incy);
}

#define COMPLEX_DOT(name, kernel, T)                                                            \
  ORB_EXPORT void name(int n, const void* x, int incx, const void* y, int incy, void* result) { \
    call<kernel>(as<T>(result), &n, as<T>(x), &incx, as<T>(y), &incy);                          \
  }
COMPLEX_DOT(cblas_cdotu_sub, orb_blas_cdotu, c32)
COMPLEX_DOT(cblas_cdotc_sub, orb_blas_xcdotc, c32)
COMPLEX_DOT(cblas_zdotu_sub, orb_blas_zdotu, c64)
COMPLEX_DOT(cblas_zdotc_sub, orb_blas_zdotc, c64)

#define SCAL(name, kernel, S, V, T)                      \
  ORB_EXPORT void name(int n, S alpha, V* x, int incx) { \
    const int count = count_if_forward(n, incx);         \
    call<kernel>(&count, &alpha, as<T>(x), &incx);       \
  }
SCAL(cblas_sscal, orb_blas_sscal, float, float, float)
SCAL(cblas_dscal, orb_blas_dscal, double, double, double)
SCAL(cblas_csscal, orb_blas_csscal, float, void, c32)
SCAL(cblas_zdscal, orb_blas_zdscal, double, void, c64)

#define COMPLEX_SCAL(name, kernel, T)                                 \
  ORB_EXPORT void name(int n, const void* alpha, void* x, int incx) { \
    const int count = count_if_forward(n, incx);                      \
    call<kernel>(&count, as<T>(alpha), as<T>(x), &incx);              \
  }
COMPLEX_SCAL(cblas_cscal, orb_blas_cscal, c32)
COMPLEX_SCAL(cblas_zscal, orb_blas_zscal, c64)

#define COPY(name, kernel, V, T)                                      \
  ORB_EXPORT void name(int n, const V* x, int incx, V* y, int incy) { \
    call<kernel>(&n, as<T>(x), &incx, as<T>(y), &incy);               \
  }
COPY(cblas_scopy, orb_blas_xscopy, float, float)
COPY(cblas_dcopy, orb_blas_xdcopy, double, double)
COPY(cblas_ccopy, orb_blas_xccopy, void, c32)
COPY(cblas_zcopy, orb_blas_xzcopy, void, c64)

#define SWAP(name, kernel, V, T)                                \
  ORB_EXPORT void name(int n, V* x, int incx, V* y, int incy) { \
    call<kernel>(&n, as<T>(x), &incx, as<T>(y), &incy);         \
  }
SWAP(cblas_sswap, orb_blas_xsswap, float, float)
SWAP(cblas_dswap, orb_blas_xdswap, double, double)
SWAP(cblas_cswap, orb_blas_xcswap, void, c32)
SWAP(cblas_zswap, orb_blas_xzswap, void, c64)

#define REDUCE(name, kernel, R, V, T)              \
  ORB_EXPORT R name(int n, const V* x, int incx) { \
    const int count = count_if_forward(n, incx);   \
    return call<kernel>(&count, as<T>(x), &incx);  \
  }
REDUCE(cblas_sasum, orb_blas_sasum, float, float, float)
REDUCE(cblas_dasum, orb_blas_dasum, double, double, double)
REDUCE(cblas_scasum, orb_blas_scasum, float, void, c32)
REDUCE(cblas_dzasum, orb_blas_dzasum, double, void, c64)
REDUCE(cblas_snrm2, orb_blas_snrm2, float, float, float)
REDUCE(cblas_dnrm2, orb_blas_dnrm2, double, double, double)
REDUCE(cblas_scnrm2, orb_blas_scnrm2, float, void, c32)
REDUCE(cblas_dznrm2, orb_blas_dznrm2, double, void, c64)

#define PLACE(name, kernel, V, T)                            \
  ORB_EXPORT CBLAS_INDEX name(int n, const V* x, int incx) { \
    const int count = count_if_forward(n, incx);             \
    const int place = call<kernel>(&count, as<T>(x), &incx); \
    return CBLAS_INDEX(place > 0 ? place - 1 : 0);           \
  }
PLACE(cblas_isamax, orb_blas_isamax, float, float)
PLACE(cblas_idamax, orb_blas_idamax, double, double)
PLACE(cblas_icamax, orb_blas_icamax, void, c32)
PLACE(cblas_izamax, orb_blas_izamax, void, c64)
PLACE(cblas_isamin, orb_blas_isamin, float, float)
PLACE(cblas_idamin, orb_blas_idamin, double, double)
PLACE(cblas_icamin, orb_blas_icamin, void, c32)
PLACE(cblas_izamin, orb_blas_izamin, void, c64)

ORB_EXPORT float cblas_scabs1(const void* z) {
  const c32 v = *as<c32>(z);
  return __builtin_fabsf(v.re) + __builtin_fabsf(v.im);
}
ORB_EXPORT double cblas_dcabs1(const void* z) { return call<orb_blas_dcabs1>(as<c64>(z)); }

#define ROT(name, kernel, R, V, T)                                        \
  ORB_EXPORT void name(int n, V* x, int incx, V* y, int incy, R c, R s) { \
    call<kernel>(&n, as<T>(x), &incx, as<T>(y), &incy, &c, &s);           \
  }
ROT(cblas_srot, orb_blas_xsrot, float, float, float)
ROT(cblas_drot, orb_blas_xdrot, double, double, double)
ROT(cblas_csrot, orb_blas_xcsrot, float, void, c32)
ROT(cblas_zdrot, orb_blas_xzdrot, double, void, c64)

#define ROTG(name, kernel, R, V, T) \
  ORB_EXPORT void name(V* a, V* b, R* c, V* s) { call<kernel>(as<T>(a), as<T>(b), c, as<T>(s)); }
ROTG(cblas_srotg, orb_blas_srotg, float, float, float)
ROTG(cblas_drotg, orb_blas_drotg, double, double, double)
ROTG(cblas_crotg, orb_blas_crotg, float, void, c32)
ROTG(cblas_zrotg, orb_blas_zrotg, double, void, c64)

#define ROTM(name, kernel, T)                                                   \
  ORB_EXPORT void name(int n, T* x, int incx, T* y, int incy, const T* param) { \
    call<kernel>(&n, x, &incx, y, &incy, param);                                \
  }
ROTM(cblas_srotm, orb_blas_srotm, float)
ROTM(cblas_drotm, orb_blas_drotm, double)

#define ROTMG(name, kernel, T) \
  ORB_EXPORT void name(T* d1, T* d2, T* x1, T y1, T* param) { call<kernel>(d1, d2, x1, &y1, param); }
ROTMG(cblas_srotmg, orb_blas_srotmg, float)
ROTMG(cblas_drotmg, orb_blas_drotmg, double)
