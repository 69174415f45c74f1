// Blocked systems: a block of unknowns is solved in strips of right-hand sides and then leaves the unknowns
// still to come by one product of all right-hand sides.
#pragma once

#include <algorithm>

#include "blas/kernel/level3/triangular_system.h"
#include "orb/blas_triangular.h"

namespace orb::blas::triangular {

// Blocks of `most` unknowns, the partial one last, strips of `width` right-hand sides; solve(part) solves
// both.
template <class T, class Solve>
void sweep(const Problem<T>& p, int most, int width, Solve solve) {
  for (int done = 0; done < p.order; done += most) {
    const int count = std::min(most, p.order - done), rest = p.order - done - count;
    const int from = p.first(done, count);
    const Problem<T> block = p.block(from, count);
    for (int l = 0; l < p.others; l += width) solve(block.strip(l, std::min(width, p.others - l)));
    if (rest > 0) p.add_product(number<T>(-1), from, count, p.first(done + count, rest), rest);
  }
}

// The entries that solve a small block unblocked.
template <class T>
struct Innermost;
template <>
struct Innermost<float> {
  static constexpr auto lln = orb_blas_strsmlln, lun = orb_blas_strsmlun;
  static void transposed(const Problem<float>& p) {
    orb_blas_strsmlt(p.uplo(), p.diag(), &p.order, &p.others, p.a, &p.lda, p.b, &p.ldb);
  }
  static void right(const Problem<float>& p) { call(orb_blas_strsm_i, p); }
};
template <>
struct Innermost<c32> {
  static constexpr auto lln = orb_blas_ctrsmlln, lun = orb_blas_ctrsmlun;
  static void transposed(const Problem<c32>& p) {
    orb_blas_ctrsmlt(p.uplo(), p.op(), p.diag(), &p.order, &p.others, p.a, &p.lda, p.b, &p.ldb);
  }
  static void right(const Problem<c32>& p) {
    if (p.plain) return orb_blas_ctrsmrn(p.uplo(), p.diag(), &p.others, &p.order, p.a, &p.lda, p.b, &p.ldb);
    orb_blas_ctrsmrt(p.uplo(), p.op(), p.diag(), &p.others, &p.order, p.a, &p.lda, p.b, &p.ldb);
  }
};
template <>
struct Innermost<c64> {
  static constexpr auto lln = orb_blas_ztrsmlln, lun = orb_blas_ztrsmlun;
  static void transposed(const Problem<c64>& p) {
    orb_blas_ztrsmlt(p.uplo(), p.op(), p.diag(), &p.order, &p.others, p.a, &p.lda, p.b, &p.ldb);
  }
  static void right(const Problem<c64>& p) {
    if (p.plain) return orb_blas_ztrsmrn(p.uplo(), p.diag(), &p.others, &p.order, p.a, &p.lda, p.b, &p.ldb);
    orb_blas_ztrsmrt(p.uplo(), p.op(), p.diag(), &p.others, &p.order, p.a, &p.lda, p.b, &p.ldb);
  }
};

template <class T>
void solve_innermost(const Problem<T>& p) {
  using Entries = Innermost<T>;
  if (!p.left) return Entries::right(p);
  if (!p.plain) return Entries::transposed(p);
  (p.upper ? Entries::lun : Entries::lln)(p.diag(), &p.order, &p.others, p.a, &p.lda, p.b, &p.ldb);
}
inline void solve_innermost(const Problem<double>& p) { call(orb_blas_dtrsm_i, p); }

}  // namespace orb::blas::triangular
