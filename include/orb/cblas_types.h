/** @file
 *  The options of the C BLAS. Part of orb/cblas.h.
 */
#ifndef ORB_CBLAS_TYPES_H
#define ORB_CBLAS_TYPES_H

#include <stddef.h>

#include "orb/types.h"

ORB_BEGIN_DECLS

/** How matrices lie in memory: rows one behind the other, or columns. */
typedef enum CBLAS_LAYOUT { CblasRowMajor = 101, CblasColMajor = 102 } CBLAS_LAYOUT;
/** op(A): A, its transpose, its conjugate transpose. */
typedef enum CBLAS_TRANSPOSE { CblasNoTrans = 111, CblasTrans = 112, CblasConjTrans = 113 } CBLAS_TRANSPOSE;
/** Which triangle of a matrix is read. */
typedef enum CBLAS_UPLO { CblasUpper = 121, CblasLower = 122 } CBLAS_UPLO;
/** Is the diagonal read, or taken as ones? */
typedef enum CBLAS_DIAG { CblasNonUnit = 131, CblasUnit = 132 } CBLAS_DIAG;
/** On which side the triangular or symmetric matrix stands. */
typedef enum CBLAS_SIDE { CblasLeft = 141, CblasRight = 142 } CBLAS_SIDE;
/** The older name of CBLAS_LAYOUT. */
typedef CBLAS_LAYOUT CBLAS_ORDER;
/** A place in a vector, counted from 0. */
typedef size_t CBLAS_INDEX;

ORB_END_DECLS

#endif
