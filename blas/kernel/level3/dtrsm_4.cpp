// Up to four rows of a triangular system from the left, solved straight: an unknown is its right-hand side
// less its terms, one by one in the order in which the unknowns are found, and then a true division. Two
// columns go side by side, since divisions one behind the other leave the divider waiting.
#include "blas/kernel/level3/dtrsm_sweep.h"
#include "orb/blas_triangular.h"
#include "serv/kernel/loops.h"

namespace orb::blas::dtrsm {
namespace {

// The triangle of a block in the order of its sweep, each coefficient in both lanes.
template <int rows>
struct Triangle {
  f64x2 at[rows][rows];
};

// One right-hand side a lane, x[s] being row s of the sweep.
template <int rows, bool unit>
ORB_INLINE void solve_lanes(const Triangle<rows>& t, f64x2 (&x)[rows]) {
  unroll<rows>([&](auto s) ORB_INLINE_BODY {
    unroll<s>([&](auto r) ORB_INLINE_BODY { x[s] = x[s] - t.at[s][r] * x[r]; });
    if constexpr (!unit) x[s] = x[s] / t.at[s][s];
  });
}

template <class Sweep, int rows, bool unit>
ORB_INLINE void solve_columns(int n, const double* a, int lda, double* b, int ldb) {
  constexpr auto row = [](int s) { return Sweep::row(rows, s, 1); };
  Triangle<rows> t;
  unroll<rows>([&](auto s) ORB_INLINE_BODY {
    unroll<s + !unit>([&](auto r)
                          ORB_INLINE_BODY { t.at[s][r] = f64x2::splat(*Sweep::at(a, lda, row(s), row(r))); });
  });
  // Columns j and j + next, which are the same for a last one alone.
  const auto solve = [&](double* column, int next) ORB_INLINE_BODY {
    f64x2 x[rows];
    unroll<rows>([&](auto s) ORB_INLINE_BODY { x[s] = f64x2::gather(column + row(s), next); });
    solve_lanes<rows, unit>(t, x);
    unroll<rows>([&](auto s) ORB_INLINE_BODY { x[s].scatter(column + row(s), next); });
  };
  int j = 0;
  for (; n - j >= 2; j += 2, b += 2 * ldb) solve(b, ldb);
  if (j < n) solve(b, 0);
}

template <class Sweep, int rows>
void solve_straight(const char* diag, int n, const double* a, int lda, double* b, int ldb) {
  is_unit(diag) ? solve_columns<Sweep, rows, true>(n, a, lda, b, ldb)
                : solve_columns<Sweep, rows, false>(n, a, lda, b, ldb);
}

template <class Sweep>
void solve_few(const char* diag, int m, int n, const double* a, int lda, double* b, int ldb) {
  switch (m) {
    case 1:
      return solve_straight<Sweep, 1>(diag, n, a, lda, b, ldb);
    case 2:
      return solve_straight<Sweep, 2>(diag, n, a, lda, b, ldb);
    case 3:
      return solve_straight<Sweep, 3>(diag, n, a, lda, b, ldb);
  }
}

}  // namespace
}  // namespace orb::blas::dtrsm

using namespace orb::blas::dtrsm;

ORB_EXPORT void dtrsm_lln_4(const char* diag, const int* n, const double* a, const int* lda, double* b,
                            const int* ldb) {
  solve_straight<Lln, 4>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_4(const char* diag, const int* n, const double* a, const int* lda, double* b,
                            const int* ldb) {
  solve_straight<Llt, 4>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_4(const char* diag, const int* n, const double* a, const int* lda, double* b,
                            const int* ldb) {
  solve_straight<Lun, 4>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_4(const char* diag, const int* n, const double* a, const int* lda, double* b,
                            const int* ldb) {
  solve_straight<Lut, 4>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  solve_few<Lln>(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  solve_few<Llt>(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  solve_few<Lun>(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_lt_4(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  solve_few<Lut>(diag, *m, *n, a, *lda, b, *ldb);
}
