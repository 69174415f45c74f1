/** @file
 *  Level-1 vector kernels of liborb_t7.so. All arguments by reference.
 */
#ifndef ORB_BLAS_LEVEL1_H
#define ORB_BLAS_LEVEL1_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** y += alpha x over n elements. n <= 0 and alpha == 0 (either sign) return at once. @{ */
void orb_blas_xsaxpy(const int* n, const float* alpha, const float* x, const int* incx, float* y,
                     const int* incy);
void orb_blas_xdaxpy(const int* n, const double* alpha, const double* x, const int* incx, double* y,
                     const int* incy);
/** @} */

ORB_END_DECLS

#endif
