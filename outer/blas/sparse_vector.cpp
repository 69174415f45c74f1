// Sparse vectors: the Fortran names.
#include "orb/blas.h"
#include "outer/blas/complex_result.h"
#include "outer/kernels.h"

using orb::c32;
using orb::c64;
using orb::call;

#define AXPYI(name, kernel, T)                                                           \
  ORB_FACE void name(const int* nz, const T* alpha, const T* x, const int* indx, T* y) { \
    call<kernel>(nz, alpha, x, indx, y);                                                 \
  }
AXPYI(saxpyi_, orb_blas_saxpyi, float)
AXPYI(daxpyi_, orb_blas_daxpyi, double)
AXPYI(caxpyi_, orb_blas_caxpyi, c32)
AXPYI(zaxpyi_, orb_blas_zaxpyi, c64)

#define DOTI(name, kernel, T)                                               \
  ORB_FACE T name(const int* nz, const T* x, const int* indx, const T* y) { \
    return call<kernel>(nz, x, indx, y);                                    \
  }
DOTI(sdoti_, orb_blas_sdoti, float)
DOTI(ddoti_, orb_blas_ddoti, double)

#define COMPLEX_DOTI(name, kernel, T)                                                               \
  ORB_EXPORT orb::fortran_complex<T> name(const int* nz, const T* x, const int* indx, const T* y) { \
    return orb::complex_result<T>([=](T* r) { call<kernel>(r, nz, x, indx, y); });                  \
  }
COMPLEX_DOTI(cdotui_, orb_blas_cdotui, c32)
COMPLEX_DOTI(cdotci_, orb_blas_cdotci, c32)
COMPLEX_DOTI(zdotui_, orb_blas_zdotui, c64)
COMPLEX_DOTI(zdotci_, orb_blas_zdotci, c64)

#define GATHER(name, kernel, T) \
  ORB_FACE void name(const int* nz, const T* y, T* x, const int* indx) { call<kernel>(nz, y, x, indx); }
GATHER(sgthr_, orb_blas_sgthr, float)
GATHER(dgthr_, orb_blas_dgthr, double)
GATHER(cgthr_, orb_blas_cgthr, c32)
GATHER(zgthr_, orb_blas_zgthr, c64)

#define GATHER_AND_CLEAR(name, kernel, T) \
  ORB_FACE void name(const int* nz, T* y, T* x, const int* indx) { call<kernel>(nz, y, x, indx); }
GATHER_AND_CLEAR(sgthrz_, orb_blas_sgthrz, float)
GATHER_AND_CLEAR(dgthrz_, orb_blas_dgthrz, double)
GATHER_AND_CLEAR(cgthrz_, orb_blas_cgthrz, c32)
GATHER_AND_CLEAR(zgthrz_, orb_blas_zgthrz, c64)

#define SCATTER(name, kernel, T) \
  ORB_FACE void name(const int* nz, const T* x, const int* indx, T* y) { call<kernel>(nz, x, indx, y); }
SCATTER(ssctr_, orb_blas_ssctr, float)
SCATTER(dsctr_, orb_blas_dsctr, double)
SCATTER(csctr_, orb_blas_csctr, c32)
SCATTER(zsctr_, orb_blas_zsctr, c64)

#define ROTI(name, kernel, T)                                                              \
  ORB_FACE void name(const int* nz, T* x, const int* indx, T* y, const T* c, const T* s) { \
    call<kernel>(nz, x, indx, y, c, s);                                                    \
  }
ROTI(sroti_, orb_blas_sroti, float)
ROTI(droti_, orb_blas_droti, double)
