// The banded triangular solve with every column done by a level-1 kernel.
#include "blas/kernel/level2/divide.h"
#include "blas/kernel/level2/triangular.h"
#include "orb/blas_level1.h"
#include "orb/blas_level2.h"

namespace orb::blas {
namespace {

constexpr int contiguous = 1;

void take_off(int n, c32 t, const c32* a, c32* x, const int* incx) {
  orb_blas_caxpy_a(&n, &t, a, &contiguous, x, incx);
}
void take_off(int n, c64 t, const c64* a, c64* x, const int* incx) {
  orb_blas_zaxpy_a(&n, &t, a, &contiguous, x, incx);
}
template <Op op>
c32 dot(int n, const c32* a, const c32* x, const int* incx) {
  c32 sum;
  (op == Op::conjugated ? orb_blas_xcdotc : orb_blas_cdotu)(&sum, &n, a, &contiguous, x, incx);
  return sum;
}
template <Op op>
c64 dot(int n, const c64* a, const c64* x, const int* incx) {
  c64 sum;
  (op == Op::conjugated ? orb_blas_zdotc : orb_blas_zdotu)(&sum, &n, a, &contiguous, x, incx);
  return sum;
}

template <bool upper, Op op, class T>
void solve_by_vectors(const Band<upper, const T>& s, bool unit, T* x, const int* incx) {
  constexpr bool plain = op == Op::plain;
  for_groups<upper, 1, upper != plain>(s, [&](const auto& g) {
    const Rows rows = rows_of<upper>(s, g.j);
    const T* column = s.column(g.j);
    T* others = sub_vector(x, rows.begin, rows.count(), *incx);
    T& own = x[g.j * *incx];
    if constexpr (!plain) own -= dot<op>(rows.count(), column + rows.begin, others, incx);
    if (!unit) own = divide(own, as<op>(column[g.j]));
    if constexpr (plain) take_off(rows.count(), -own, column + rows.begin, others, incx);
  });
}

template <class T>
void tbsv(const char* uplo, const char* trans, const char* diag, int n, int k, const T* a, int lda, T* x,
          const int* incx) {
  if (n <= 0) return;
  with_options<T>(uplo, trans, [&]<bool upper, Op op>() {
    solve_by_vectors<upper, op>(Band<upper, const T>{a, lda, n, k}, is_option(diag, 'U'),
                                strided_start(x, n, *incx), incx);
  });
}

}  // namespace
}  // namespace orb::blas

#define TBSV_VIAL1(name, T)                                                                               \
  ORB_EXPORT void name(const char* uplo, const char* trans, const char* diag, const int* n, const int* k, \
                       const T* a, const int* lda, T* x, const int* incx) {                               \
    orb::blas::tbsv(uplo, trans, diag, *n, *k, a, *lda, x, incx);                                         \
  }
TBSV_VIAL1(orb_blas_ctbsv_vial1, orb_complex_float)
TBSV_VIAL1(orb_blas_ztbsv_vial1, orb_complex_double)
