// The upper storeys of a triangular system from the left: blocks of 512 rows, in them halves of 256, and all
// that lies between blocks through the matrix product. A block of at most 256 rows goes through the forms for
// whole fours of rows and the straight solve of the last few.
// Source: E. Elmroth, F. Gustavson, I. Jonsson, B. Kagstrom, Recursive blocked algorithms and hybrid data
// structures for dense matrix library software, SIAM Review 46 (2004) 3-45.
#include <algorithm>

#include "blas/kernel/level3/dtrsm_sweep.h"
#include "orb/blas_gemm.h"
#include "orb/blas_triangular.h"
#include "serv/kernel/simd.h"

namespace orb::blas::dtrsm {
namespace {

constexpr int block_rows = 512, recursion_rows = 256;
constexpr int strip_columns = 128, least_rows_for_strips = 16;  // strips keep their rows of B in the cache
constexpr double one = 1, minus_one = -1;

template <class Sweep>
struct Forms;  // the lower storeys of a case
template <>
struct Forms<Lln> {
  static constexpr auto aligned = dtrsm_lln_by_4_a, unaligned = dtrsm_lln_by_4_u, few = dtrsm_lln_lt_4;
};
template <>
struct Forms<Llt> {
  static constexpr auto aligned = dtrsm_llt_by_4_a, unaligned = dtrsm_llt_by_4_u, few = dtrsm_llt_lt_4;
};
template <>
struct Forms<Lun> {
  static constexpr auto aligned = dtrsm_lun_by_4_a, unaligned = dtrsm_lun_by_4_u, few = dtrsm_lun_lt_4;
};
template <>
struct Forms<Lut> {
  static constexpr auto aligned = dtrsm_lut_by_4_a, unaligned = dtrsm_lut_by_4_u, few = dtrsm_lut_lt_4;
};

template <class Sweep>
struct Rows {
  // Takes the `rows` rows from i on, which are solved, out of the `left` rows from `to` on.
  static void subtract(int i, int rows, int to, int left, int n, const double* a, int lda, double* b,
                       int ldb) {
    orb_blas_xdgemm(Sweep::plain ? "N" : "T", "N", &left, &n, &rows, &minus_one, Sweep::at(a, lda, to, i),
                    &lda, b + i, &ldb, &one, b + to, &ldb);
  }

  static void solve_fours(const char* diag, int m, int n, const double* a, int lda, double* b, int ldb) {
    const bool aligned = ldb % 2 == 0 && is_aligned(b);
    const auto solve = aligned ? Forms<Sweep>::aligned : Forms<Sweep>::unaligned;
    const int strip = m < least_rows_for_strips ? n : strip_columns;
    for (int j = 0; j < n; j += strip) {
      const int columns = std::min(strip, n - j);
      solve(diag, &m, &columns, a, &lda, b + j * ldb, &ldb);
    }
  }

  static void solve(const char* diag, int m, int n, const double* a, int lda, double* b, int ldb) {
    const int few = m % 4, fours = m - few;
    const int i = Sweep::row(m, 0, fours), last = Sweep::row(m, fours, few);
    if (fours > 0) solve_fours(diag, fours, n, a + i * (lda + 1), lda, b + i, ldb);
    if (few == 0) return;
    if (fours > 0) subtract(i, fours, last, few, n, a, lda, b, ldb);
    Forms<Sweep>::few(diag, &few, &n, a + last * (lda + 1), &lda, b + last, &ldb);
  }

  // Blocks of `most` rows by solve_block, the partial one last.
  template <class Solve>
  static void sweep(int most, Solve solve_block, const char* diag, int m, int n, const double* a, int lda,
                    double* b, int ldb) {
    for (int done = 0; done < m; done += most) {
      const int rows = std::min(most, m - done), left = m - done - rows;
      const int i = Sweep::row(m, done, rows);
      solve_block(diag, rows, n, a + i * (lda + 1), lda, b + i, ldb);
      if (left > 0) subtract(i, rows, Sweep::row(m, done + rows, left), left, n, a, lda, b, ldb);
    }
  }

  static void recurse(const char* diag, int m, int n, const double* a, int lda, double* b, int ldb) {
    sweep(recursion_rows, solve, diag, m, n, a, lda, b, ldb);
  }
  static void solve_blocks(const char* diag, int m, int n, const double* a, int lda, double* b, int ldb) {
    sweep(block_rows, recurse, diag, m, n, a, lda, b, ldb);
  }
};

}  // namespace
}  // namespace orb::blas::dtrsm

using namespace orb::blas::dtrsm;

ORB_EXPORT void dtrsm_lln(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb) {
  Rows<Lln>::solve(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb) {
  Rows<Llt>::solve(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb) {
  Rows<Lun>::solve(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut(const char* diag, const int* m, const int* n, const double* a, const int* lda,
                          double* b, const int* ldb) {
  Rows<Lut>::solve(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_lln_rec(const char* diag, const int* m, const int* n, const double* a,
                                       const int* lda, double* b, const int* ldb) {
  Rows<Lln>::recurse(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_llt_rec(const char* diag, const int* m, const int* n, const double* a,
                                       const int* lda, double* b, const int* ldb) {
  Rows<Llt>::recurse(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_lun_rec(const char* diag, const int* m, const int* n, const double* a,
                                       const int* lda, double* b, const int* ldb) {
  Rows<Lun>::recurse(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_lut_rec(const char* diag, const int* m, const int* n, const double* a,
                                       const int* lda, double* b, const int* ldb) {
  Rows<Lut>::recurse(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_lln_r(const char* diag, const int* m, const int* n, const double* a,
                                     const int* lda, double* b, const int* ldb, const int*) {
  Rows<Lln>::solve_blocks(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_llt_r(const char* diag, const int* m, const int* n, const double* a,
                                     const int* lda, double* b, const int* ldb, const int*) {
  Rows<Llt>::solve_blocks(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_lun_r(const char* diag, const int* m, const int* n, const double* a,
                                     const int* lda, double* b, const int* ldb, const int*) {
  Rows<Lun>::solve_blocks(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void orb_blas_dtrsm_lut_r(const char* diag, const int* m, const int* n, const double* a,
                                     const int* lda, double* b, const int* ldb, const int*) {
  Rows<Lut>::solve_blocks(diag, *m, *n, a, *lda, b, *ldb);
}
