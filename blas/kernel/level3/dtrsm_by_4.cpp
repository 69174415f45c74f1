// A triangular system from the left whose rows come in whole fours: 32 rows at a time, then 16, 8 and 4.
// Every block is solved by halves down to the straight solve of four rows and subtracted from the rows behind
// it by the tiles for this purpose.
#include "blas/kernel/level3/dtrsm_sweep.h"
#include "orb/blas_gemm_kernels.h"
#include "orb/blas_triangular.h"

namespace orb::blas::dtrsm {
namespace {

constexpr int most_rows = 32, tile_rows = 16;

// One of the tiles' two forms: what each size subtracts with, aligned or not.
template <bool aligned, class F>
constexpr F form(F a, F u) {
  return aligned ? a : u;
}

template <int rows, bool aligned>
constexpr auto square_tile() {
  if constexpr (rows == 4) return form<aligned>(orb_blas_dgemm_nn_4x4_m1_1_a, orb_blas_dgemm_nn_4x4_m1_1_u);
  if constexpr (rows == 8) return form<aligned>(orb_blas_dgemm_nn_8x8_m1_1_a, orb_blas_dgemm_nn_8x8_m1_1_u);
  if constexpr (rows == 16)
    return form<aligned>(orb_blas_dgemm_nn_16x16_m1_1_a, orb_blas_dgemm_nn_16x16_m1_1_u);
}

// Over any number of rows. None has depth 4: behind four rows nothing is left to subtract from.
template <int depth, bool plain, bool aligned>
constexpr auto walker() {
  if constexpr (depth == 8)
    return plain ? form<aligned>(dgemm_nn_m_n_8_m1_1_a, dgemm_nn_m_n_8_m1_1_u)
                 : form<aligned>(dgemm_tn_m_n_8_m1_1_a, dgemm_tn_m_n_8_m1_1_u);
  if constexpr (depth == 16)
    return plain ? form<aligned>(dgemm_nn_m_n_16_m1_1_a, dgemm_nn_m_n_16_m1_1_u)
                 : form<aligned>(dgemm_tn_m_n_16_m1_1_a, dgemm_tn_m_n_16_m1_1_u);
  if constexpr (depth == 32)
    return plain ? form<aligned>(dgemm_nn_m_n_32_m1_1_a, dgemm_nn_m_n_32_m1_1_u)
                 : form<aligned>(dgemm_tn_m_n_32_m1_1_a, dgemm_tn_m_n_32_m1_1_u);
}

template <class Sweep>
constexpr auto straight() {
  if constexpr (Sweep::plain) return Sweep::forward ? dtrsm_lln_4 : dtrsm_lun_4;
  return Sweep::forward ? dtrsm_lut_4 : dtrsm_llt_4;
}

template <class Sweep, bool aligned>
struct Fours {
  static constexpr auto pack = Sweep::plain ? orb_blas_dgtran_dtrsm : orb_blas_dgtrat_dtrsm;

  template <int rows>
  [[gnu::noinline]] static void solve(const char* diag, int n, const double* a, int lda, double* b, int ldb) {
    if constexpr (rows == 4) {
      straight<Sweep>()(diag, &n, a, &lda, b, &ldb);
    } else {
      constexpr int half = rows / 2, first = Sweep::row(rows, 0, half), second = Sweep::row(rows, half, half);
      solve<half>(diag, n, a + first * (lda + 1), lda, b + first, ldb);
      alignas(16) double tile[half * half];
      pack(Sweep::at(a, lda, second, first), &lda, &half, &half, tile);
      square_tile<half, aligned>()(&n, tile, nullptr, b + first, &ldb, b + second, &ldb);
      solve<half>(diag, n, a + second * (lda + 1), lda, b + second, ldb);
    }
  }

  static void solve_all(const char* diag, int m, int n, const double* a, int lda, double* b, int ldb) {
    alignas(16) double tile[tile_rows * most_rows];
    int done = 0;
    const auto take = [&]<int rows>() {
      for (; m - done >= rows; done += rows) {
        const int i = Sweep::row(m, done, rows), left = m - done - rows;
        const int to = Sweep::row(m, done + rows, left);
        solve<rows>(diag, n, a + i * (lda + 1), lda, b + i, ldb);
        if constexpr (rows > 4)
          walker<rows, Sweep::plain, aligned>()(&left, &n, Sweep::at(a, lda, to, i), &lda, b + i, &ldb,
                                                b + to, &ldb, tile);
      }
    };
    take.template operator()<32>(), take.template operator()<16>();
    take.template operator()<8>(), take.template operator()<4>();
  }
};

}  // namespace
}  // namespace orb::blas::dtrsm

using namespace orb::blas::dtrsm;

ORB_EXPORT void dtrsm_lln_8_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Lln, true>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_8_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Lln, false>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_16_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lln, true>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_16_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lln, false>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_32_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lln, true>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_32_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lln, false>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_by_4_a(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Lln, true>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lln_by_4_u(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Lln, false>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_8_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Llt, true>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_8_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Llt, false>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_16_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Llt, true>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_16_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Llt, false>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_32_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Llt, true>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_32_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Llt, false>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_by_4_a(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Llt, true>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_llt_by_4_u(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Llt, false>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_8_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Lun, true>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_8_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Lun, false>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_16_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lun, true>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_16_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lun, false>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_32_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lun, true>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_32_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lun, false>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_by_4_a(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Lun, true>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lun_by_4_u(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Lun, false>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_8_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Lut, true>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_8_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                              double* b, const int* ldb) {
  Fours<Lut, false>::solve<8>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_16_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lut, true>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_16_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lut, false>::solve<16>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_32_a(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lut, true>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_32_u(const char* diag, const int*, const int* n, const double* a, const int* lda,
                               double* b, const int* ldb) {
  Fours<Lut, false>::solve<32>(diag, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_by_4_a(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Lut, true>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
ORB_EXPORT void dtrsm_lut_by_4_u(const char* diag, const int* m, const int* n, const double* a,
                                 const int* lda, double* b, const int* ldb) {
  Fours<Lut, false>::solve_all(diag, *m, *n, a, *lda, b, *ldb);
}
