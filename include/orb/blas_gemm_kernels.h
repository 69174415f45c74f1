/** @file
 *  Panels and inner kernels under the matrix products and the triangular solves of liborb_t7.so. They compute
 *  exact shapes and know no edges: the drivers remove those first. Three families, each with a panel format
 * of its own, so that no kernel can run on another family's panels. All arguments by reference; panels and
 * tiles start on a 16-byte boundary.
 */
#ifndef ORB_BLAS_GEMM_KERNELS_H
#define ORB_BLAS_GEMM_KERNELS_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/* Double panels and outer-product kernels
 *  kp is the depth rounded up to a multiple of 4; positions from the depth to kp hold 0.
 *  A panel: row pairs; element (2p + r, k) lies at p*2*kp + 2*k + r, multiplied by alpha.
 *  B panel: column quads; element (k, 4q + c) lies at q*4*kp + 4*k + c.
 *  Private panel, 8192 bytes: one column quad of B, each value doubled into a 16-byte slot, slot 4*k + c. */

/** @{ */
/** Packs m rows (even) of depth k (at most 128) of A, times alpha: `an` reads A(i, k) at a + i + k*lda, `at`
 * at a + k + i*lda. Writes m * kp doubles. */
void orb_blas_dgcopyan(const int* m, const int* k, const double* a, const int* lda, double* buf,
                       const double* alpha);
void orb_blas_dgcopyat(const int* m, const int* k, const double* a, const int* lda, double* buf,
                       const double* alpha);
/** @} */
/** @{ */
/** Packs n columns (a multiple of 4) of depth k of B: `bn` reads B(k, j) at b + k + j*ldb, `bt` at b + j +
 * k*ldb. Writes kp * n doubles. */
void orb_blas_dgcopybn(const int* k, const int* n, const double* b, const int* ldb, double* buf);
void orb_blas_dgcopybt(const int* k, const int* n, const double* b, const int* ldb, double* buf);
/** @} */

/** C += A B on packed panels, C m by n (m even, n a multiple of 4), depth exactly 128. Each element is one
 * sum in rising k, added to C once. C may have any alignment. `k` and `unused` are not read; `priv` is the
 * private panel, written, and left holding the last column quad. */
void orb_blas_dinner(const int* m, const int* n, const int* k, const double* a, const double* b,
                     const void* unused, double* c, const int* ldc, double* priv);
/** @{ */
/** The same for a depth of kp: C += A B (`roll`), C = beta C + A B (`b_roll`, beta twice at the 16-byte
 * aligned beta2), C = A B without reading C (`z_roll`). Only `b_roll` reads beta2. */
void orb_blas_dinner_roll(const int* m, const int* n, const int* kp, const double* a, const double* b,
                          const void* unused, double* c, const int* ldc, double* priv, const double* beta2);
void orb_blas_dinnerb_roll(const int* m, const int* n, const int* kp, const double* a, const double* b,
                           const void* unused, double* c, const int* ldc, double* priv, const double* beta2);
void orb_blas_dinnerz_roll(const int* m, const int* n, const int* kp, const double* a, const double* b,
                           const void* unused, double* c, const int* ldc, double* priv, const double* beta2);
/** @} */

/* Single panels, tiles and dot kernels
 *  A tile: groups of four rows, 16 * depth bytes each; in a group, block b holds for each row in order the
 * four elements k = 4b ... 4b + 3, times alpha. B panel: column j from 64 * j singles on, k contiguous. C
 * tiles: element (i, j) at (i / 16) * 16 * n + j * 16 + i mod 16. */

/** @{ */
/** Packs `rows` rows (a multiple of 4) of depth k (a multiple of 16) of A, times alpha: `sgtran` where A(i,
 * k) lies at a + i + k*lda, `sgtrat` where it lies at a + k + i*lda. */
void orb_blas_sgtran(const float* a, const int* lda, const int* rows, const int* k, float* buf,
                     const float* alpha);
void orb_blas_sgtrat(const float* a, const int* lda, const int* rows, const int* k, float* buf,
                     const float* alpha);
/** @} */
/** @{ */
/** Packs n columns of depth k (a multiple of 8) of B: `bn` reads B(k, j) at b + k + j*ldb, `bt` at b + j +
 * k*ldb. Column j goes to buf + j * ldbuf. */
void orb_blas_sgcopybn(const int* n, const int* k, const float* b, const int* ldb, float* buf,
                       const int* ldbuf);
void orb_blas_sgcopybt(const int* n, const int* k, const float* b, const int* ldb, float* buf,
                       const int* ldbuf);
/** @} */
/** @{ */
/** tile += A B for one tile of 16 (sin16) or 8 (sin8) rows over all n columns, at the depth in the name; `k`
 * is not read. Columns of B are ldb singles apart, those of the tile ldc. Four partial sums a row, (s0 + s2)
 * + (s1 + s3). */
void orb_blas_sin16_16(const int* rows, const int* n, const int* k, const float* a, const float* b,
                       const int* ldb, float* c, const int* ldc);
void orb_blas_sin16_32(const int* rows, const int* n, const int* k, const float* a, const float* b,
                       const int* ldb, float* c, const int* ldc);
void orb_blas_sin16_48(const int* rows, const int* n, const int* k, const float* a, const float* b,
                       const int* ldb, float* c, const int* ldc);
void orb_blas_sin16_64(const int* rows, const int* n, const int* k, const float* a, const float* b,
                       const int* ldb, float* c, const int* ldc);
void orb_blas_sin8_64(const int* rows, const int* n, const int* k, const float* a, const float* b,
                      const int* ldb, float* c, const int* ldc);
/** @} */
/** @{ */
/** Fill tiles from the block C, m (a multiple of 16) by n: beta C (`scopycf`), 0 without reading C
 * (`scopycf0`), or C
 *  (`scopycf1`). `ldt` is a tile's row count, 16. Only `scopycf` reads beta. */
void orb_blas_scopycf(const int* m, const int* n, const float* c, const int* ldc, float* tiles,
                      const int* ldt, const float* beta);
void orb_blas_scopycf0(const int* m, const int* n, const float* c, const int* ldc, float* tiles,
                       const int* ldt, const float* beta);
void orb_blas_scopycf1(const int* m, const int* n, const float* c, const int* ldc, float* tiles,
                       const int* ldt, const float* beta);
/** @} */
/** Copies the tiles back to the block C, m (a multiple of 16) by n. */
void orb_blas_scopycr(const int* m, const int* n, float* c, const int* ldc, const float* tiles,
                      const int* ldt);

/* Subtracting double tiles, under the triangular solves
 *  Tile: groups of four rows, 4 * K doubles each; group g, pair of k p, row r, parity t at g*4*K + 8*p + 2*r
 * + t. */

/** @{ */
/** Packs `rows` rows (a multiple of 4) of depth k (even): `dgtran` where A(i, k) lies at a + i + k*lda,
 * `dgtrat` where it lies at a + k + i*lda. */
void orb_blas_dgtran_dtrsm(const double* a, const int* lda, const int* rows, const int* k, double* buf);
void orb_blas_dgtrat_dtrsm(const double* a, const int* lda, const int* rows, const int* k, double* buf);
/** @} */
/** @{ */
/** C -= tile B for the R by K of the name, n >= 1 columns. `_a` wants the columns of B and C on 16-byte
 * boundaries,
 *  `_u` takes any. `unused` is not read. */
void orb_blas_dgemm_nn_4x4_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                  const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_4x4_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                  const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_4x8_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                  const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_4x8_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                  const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_4x16_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                   const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_4x16_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                   const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_4x32_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                   const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_4x32_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                   const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_8x8_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                  const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_8x8_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                  const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_8x16_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                   const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_8x16_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                   const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_16x16_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                    const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_16x16_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                    const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_16x32_m1_1_a(const int* n, const double* tile, const void* unused, const double* b,
                                    const int* ldb, double* c, const int* ldc);
void orb_blas_dgemm_nn_16x32_m1_1_u(const int* n, const double* tile, const void* unused, const double* b,
                                    const int* ldb, double* c, const int* ldc);
/** @} */
/** @{ */
/** C -= op(A) B, C m by n, at the depth K of the name; `nn` reads A as it stands, `tn` its transpose. Rows
 * beyond the last multiple of 4 are left alone. `buf` holds one packed tile, 16 rows (4 for K = 4, 8 for K =
 * 8) by K. */
void dgemm_nn_m_n_4_m1_1_a(const int* m, const int* n, const double* a, const int* lda, const double* b,
                           const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_nn_m_n_4_m1_1_u(const int* m, const int* n, const double* a, const int* lda, const double* b,
                           const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_nn_m_n_8_m1_1_a(const int* m, const int* n, const double* a, const int* lda, const double* b,
                           const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_nn_m_n_8_m1_1_u(const int* m, const int* n, const double* a, const int* lda, const double* b,
                           const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_nn_m_n_16_m1_1_a(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_nn_m_n_16_m1_1_u(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_nn_m_n_32_m1_1_a(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_nn_m_n_32_m1_1_u(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_tn_m_n_8_m1_1_a(const int* m, const int* n, const double* a, const int* lda, const double* b,
                           const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_tn_m_n_8_m1_1_u(const int* m, const int* n, const double* a, const int* lda, const double* b,
                           const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_tn_m_n_16_m1_1_a(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_tn_m_n_16_m1_1_u(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_tn_m_n_32_m1_1_a(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
void dgemm_tn_m_n_32_m1_1_u(const int* m, const int* n, const double* a, const int* lda, const double* b,
                            const int* ldb, double* c, const int* ldc, double* buf);
/** @} */

ORB_END_DECLS

#endif
