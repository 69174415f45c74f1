// A triangular problem as the BLAS writes it, and its parts as a blocked sweep over the unknowns needs them.
// Unknowns are the rows of B on the left side and its columns on the right; S is op(A) on the left and its
// transpose on the right, so that S X = B holds with the unknowns as rows of X on both.
#pragma once

#include "blas/kernel/level3/product.h"
#include "blas/kernel/level3/scalars.h"
#include "blas/kernel/level3/triangular_views.h"
#include "orb/blas_gemm.h"
#include "orb/blas_level1.h"
#include "orb/services.h"

namespace orb::blas::triangular {

template <class T>
struct Problem {
  bool left, upper, plain, conjugated, unit;
  int order, others;  // unknowns and right-hand sides
  const T* a;
  int lda;
  T* b;
  int ldb;

  // Are unknowns found from the first on?
  bool forward() const { return (upper != plain) == left; }
  // The first of the `count` unknowns that follow `done` others in the order of a system.
  int first(int done, int count) const { return forward() ? done : order - done - count; }

  int s_step() const { return plain == left ? 1 : lda; }
  int r_step() const { return plain == left ? lda : 1; }
  const char* uplo() const { return upper ? "U" : "L"; }
  const char* diag() const { return unit ? "U" : "N"; }
  const char* op() const { return plain ? "N" : conjugated ? "C" : "T"; }
  T* unknown(int s) const { return left ? b + s : b + s * ldb; }

  // Unknowns s ... s + count - 1 as a problem of their own; right-hand sides l ... l + count - 1 likewise.
  Problem block(int s, int count) const {
    Problem part = *this;
    part.order = count, part.a = a + s * (lda + 1), part.b = unknown(s);
    return part;
  }
  Problem strip(int l, int count) const {
    Problem part = *this;
    part.others = count, part.b = left ? b + l * ldb : b + l;
    return part;
  }

  // The unknowns from `to` on take factor S times the unknowns from `from` on.
  void add_product(T factor, int from, int terms, int to, int count) const {
    const Factored<T> s{*op(), a + to * s_step() + from * r_step(), lda}, x{'N', unknown(from), ldb};
    if (left)
      product(count, others, terms, factor, s, x, number<T>(1), unknown(to), ldb);
    else
      product(others, count, terms, factor, x, s, number<T>(1), unknown(to), ldb);
  }

  // Both in the order of a system.
  Triangle<T> triangle() const {
    const int last = forward() ? 0 : order - 1, sign = forward() ? 1 : -1;
    return {a + last * (lda + 1), sign * s_step(), sign * r_step(), order, unit, conjugated};
  }
  Unknowns<T> unknowns() const {
    const int last = forward() ? 0 : order - 1, sign = forward() ? 1 : -1;
    return {unknown(last), sign * (left ? 1 : ldb), left ? ldb : 1, others};
  }
};

// The steps between blocks get their letters from here and read them directly.
template <class T>
Problem<T> problem(bool left, const char* uplo, const char* transa, const char* diag, int m, int n,
                   const T* a, int lda, T* b, int ldb) {
  const bool conjugated = Complex<T> && is_option(transa, 'C');
  return {left,
          is_option(uplo, 'U'),
          is_option(transa, 'N'),
          conjugated,
          is_option(diag, 'U'),
          left ? m : n,
          left ? n : m,
          a,
          lda,
          b,
          ldb};
}

inline bool lsame(const char* a, const char* b) { return orb_serv_lsame(a, b, 1, 1) != 0; }

// The entries of the BLAS leave their letters to the service.
template <class T>
Problem<T> blas_problem(const char* side, const char* uplo, const char* transa, const char* diag, int m,
                        int n, const T* a, int lda, T* b, int ldb) {
  return problem(lsame(side, "L"), lsame(uplo, "U") ? "U" : "L",
                 lsame(transa, "N")   ? "N"
                 : lsame(transa, "C") ? "C"
                                      : "T",
                 lsame(diag, "U") ? "U" : "N", m, n, a, lda, b, ldb);
}

template <class T>
using Step = void (*)(const char*, const char*, const char*, const char*, const int*, const int*, const T*,
                      const T*, const int*, T*, const int*);

// An entry with the arguments of the BLAS.
template <class T>
void call(Step<T> entry, const Problem<T>& p, T alpha = number<T>(1)) {
  entry(p.left ? "L" : "R", p.uplo(), p.op(), p.diag(), p.left ? &p.order : &p.others,
        p.left ? &p.others : &p.order, &alpha, p.a, &p.lda, p.b, &p.ldb);
}

// B = alpha B, column by column. An alpha of 0 clears without reading B.
inline void scale(int m, int n, double alpha, double* b, int ldb) {
  is_zero(alpha) ? orb_blas_dzerom(&m, &n, b, &ldb) : orb_blas_dscalm(&m, &n, &alpha, b, &ldb);
}
inline void scale(int m, int n, float alpha, float* b, int ldb) {
  orb_blas_sgemm_mscale(&m, &n, &alpha, b, &ldb);
}
inline constexpr auto scale_vector(c32) { return orb_blas_cscal; }
inline constexpr auto scale_vector(c64) { return orb_blas_zscal; }
template <Complex T>
void scale(int m, int n, T alpha, T* b, int ldb) {
  constexpr int unit_stride = 1;
  if (is_zero(alpha)) return scale(2 * m, n, real_of<T>(0), &b->re, 2 * ldb);
  for (int j = 0; j < n; ++j) scale_vector(alpha)(&m, &alpha, b + j * ldb, &unit_stride);
}

}  // namespace orb::blas::triangular
