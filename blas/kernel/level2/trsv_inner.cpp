// Solves with one triangle by itself: the inner routines of the blocked solve, one for each choice of
// options.
#include "blas/kernel/level2/trsv.h"
#include "orb/blas_level2.h"

#define INNER(name, T, upper, op, unit)                                                                \
  ORB_EXPORT void name(const int* n, const T* a, const int* lda, T* x, const int* incx) {              \
    using namespace orb::blas;                                                                         \
    solve_triangle<upper, Op::op>(Dense<const T>{a, *lda, *n}, unit, orb::strided_start(x, *n, *incx), \
                                  *incx);                                                              \
  }
INNER(orb_blas_strsv_lnn, float, false, plain, false)
INNER(orb_blas_strsv_lnu, float, false, plain, true)
INNER(orb_blas_strsv_ltn, float, false, transposed, false)
INNER(orb_blas_strsv_ltu, float, false, transposed, true)
INNER(orb_blas_strsv_unn, float, true, plain, false)
INNER(orb_blas_strsv_unu, float, true, plain, true)
INNER(orb_blas_strsv_utn, float, true, transposed, false)
INNER(orb_blas_strsv_utu, float, true, transposed, true)
INNER(orb_blas_dtrsv_lnn, double, false, plain, false)
INNER(orb_blas_dtrsv_lnu, double, false, plain, true)
INNER(orb_blas_dtrsv_ltn, double, false, transposed, false)
INNER(orb_blas_dtrsv_ltu, double, false, transposed, true)
INNER(orb_blas_dtrsv_unn, double, true, plain, false)
INNER(orb_blas_dtrsv_unu, double, true, plain, true)
INNER(orb_blas_dtrsv_utn, double, true, transposed, false)
INNER(orb_blas_dtrsv_utu, double, true, transposed, true)
INNER(orb_blas_ctrsv_lnn, orb_complex_float, false, plain, false)
INNER(orb_blas_ctrsv_lnu, orb_complex_float, false, plain, true)
INNER(orb_blas_ctrsv_ltn, orb_complex_float, false, transposed, false)
INNER(orb_blas_ctrsv_ltu, orb_complex_float, false, transposed, true)
INNER(orb_blas_ctrsv_lcn, orb_complex_float, false, conjugated, false)
INNER(orb_blas_ctrsv_lcu, orb_complex_float, false, conjugated, true)
INNER(orb_blas_ctrsv_unn, orb_complex_float, true, plain, false)
INNER(orb_blas_ctrsv_unu, orb_complex_float, true, plain, true)
INNER(orb_blas_ctrsv_utn, orb_complex_float, true, transposed, false)
INNER(orb_blas_ctrsv_utu, orb_complex_float, true, transposed, true)
INNER(orb_blas_ctrsv_ucn, orb_complex_float, true, conjugated, false)
INNER(orb_blas_ctrsv_ucu, orb_complex_float, true, conjugated, true)
INNER(orb_blas_ztrsv_lnn, orb_complex_double, false, plain, false)
INNER(orb_blas_ztrsv_lnu, orb_complex_double, false, plain, true)
INNER(orb_blas_ztrsv_ltn, orb_complex_double, false, transposed, false)
INNER(orb_blas_ztrsv_ltu, orb_complex_double, false, transposed, true)
INNER(orb_blas_ztrsv_lcn, orb_complex_double, false, conjugated, false)
INNER(orb_blas_ztrsv_lcu, orb_complex_double, false, conjugated, true)
INNER(orb_blas_ztrsv_unn, orb_complex_double, true, plain, false)
INNER(orb_blas_ztrsv_unu, orb_complex_double, true, plain, true)
INNER(orb_blas_ztrsv_utn, orb_complex_double, true, transposed, false)
INNER(orb_blas_ztrsv_utu, orb_complex_double, true, transposed, true)
INNER(orb_blas_ztrsv_ucn, orb_complex_double, true, conjugated, false)
INNER(orb_blas_ztrsv_ucu, orb_complex_double, true, conjugated, true)
