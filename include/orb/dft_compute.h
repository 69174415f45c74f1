/** @file
 *  Computation of complex descriptors in liborb_t7.so, from the routines that a commit installs down to the
 * lines. Everything here stays on the calling thread, but for what the compute routines hand to the outer
 * layer. Statuses are those of dfti.h; the first failure of a line ends the call, and the arrays hold what
 * was done until then.
 */
#ifndef ORB_DFT_COMPUTE_H
#define ORB_DFT_COMPUTE_H

#include "orb/dft_record.h"
#include "orb/types.h"

ORB_BEGIN_DECLS

/* Compute routines: fwd and bwd, single and double, one or many dimensions, in place (i) and not (o). In
   place: the data, or its real and its imaginary array. Out of place: the input, one array or two, then the
   output. Words behind those are not looked at. */

/** @{ */
/** What DftiComputeForward() and DftiComputeBackward() call. */
int orb_dft_compute_fwd_s_c2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_s_c2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_s_c2c_md_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_s_c2c_md_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_d_c2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_d_c2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_d_c2c_md_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_d_c2c_md_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_s_c2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_s_c2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_s_c2c_md_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_s_c2c_md_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_d_c2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_d_c2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_d_c2c_md_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_d_c2c_md_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
/** @} */

/** @{ */
/** `count` transforms, distances of the record apart; the data begins at the offset. Where parts are stored
 *  apart, a pointer to a pair of pointers stands for the data, and only one dimension is offered
 *  (STATUS_UNIMPLEMENTED). In place the input fields place the data. `work` has max_work_size bytes. */
int orb_dft_xcforward(DftiRecord* record, void* data, int count, void* work);
int orb_dft_xcforward_out(DftiRecord* record, const void* in, void* out, int count, void* work);
int orb_dft_xcbackward(DftiRecord* record, void* data, int count, void* work);
int orb_dft_xcbackward_out(DftiRecord* record, const void* in, void* out, int count, void* work);
int orb_dft_xzforward(DftiRecord* record, void* data, int count, void* work);
int orb_dft_xzforward_out(DftiRecord* record, const void* in, void* out, int count, void* work);
int orb_dft_xzbackward(DftiRecord* record, void* data, int count, void* work);
int orb_dft_xzbackward_out(DftiRecord* record, const void* in, void* out, int count, void* work);
/** @} */

/** @{ */
/** A slice of two dimensions, of the record and of the next: lines of the first with `routine1`, then of the
 * second with `routine2`. Out of place the second pass works in the output. */
int orb_dft_xcdft2d(orb_complex_float* data, const int* stride1, const int* stride2, DftiLine routine1,
                    DftiLine routine2, DftiRecord* record, void* work);
int orb_dft_xcdft2d_out(const orb_complex_float* in, orb_complex_float* out, const int* in_stride1,
                        const int* in_stride2, const int* out_stride1, const int* out_stride2,
                        DftiLine routine1, DftiLine routine2, DftiRecord* record, void* work);
int orb_dft_xzdft2d(orb_complex_double* data, const int* stride1, const int* stride2, DftiLine routine1,
                    DftiLine routine2, DftiRecord* record, void* work);
int orb_dft_xzdft2d_out(const orb_complex_double* in, orb_complex_double* out, const int* in_stride1,
                        const int* in_stride2, const int* out_stride1, const int* out_stride2,
                        DftiLine routine1, DftiLine routine2, DftiRecord* record, void* work);
/** @} */

/** @{ */
/** `count` neighbouring columns (distance 1) along the record's dimension, at its stride. */
int orb_dft_xcdft_mult(DftiRecord* record, orb_complex_float* data, DftiLine routine, int count, void* work);
int orb_dft_xcdft_out_mult(DftiRecord* record, const orb_complex_float* in, orb_complex_float* out,
                           DftiLine routine, int count, void* work);
int orb_dft_xzdft_mult(DftiRecord* record, orb_complex_double* data, DftiLine routine, int count, void* work);
int orb_dft_xzdft_out_mult(DftiRecord* record, const orb_complex_double* in, orb_complex_double* out,
                           DftiLine routine, int count, void* work);
/** @} */

/** @{ */
/** `count` columns of record->length elements, `distance` from column to column and `stride` along them.
 *  Neighbours (distance 1) go by blocks of 2^block_log2 (3 or 4), then of 8, 4, 2 and 1; others one by one.
 *  `buffer` holds as many columns as the first block. */
int orb_dft_xcdft1d_copy(orb_complex_float* data, int distance, DftiLine routine, DftiRecord* record,
                         int count, int stride, orb_complex_float* buffer, int block_log2, void* work);
int orb_dft_xcdft1d_out_copy(const orb_complex_float* in, int in_distance, int in_stride,
                             orb_complex_float* out, int out_distance, int out_stride, DftiLine routine,
                             DftiRecord* record, int count, orb_complex_float* buffer, int block_log2,
                             void* work);
int orb_dft_xzdft1d_copy(orb_complex_double* data, int distance, DftiLine routine, DftiRecord* record,
                         int count, int stride, orb_complex_double* buffer, int block_log2, void* work);
int orb_dft_xzdft1d_out_copy(const orb_complex_double* in, int in_distance, int in_stride,
                             orb_complex_double* out, int out_distance, int out_stride, DftiLine routine,
                             DftiRecord* record, int count, orb_complex_double* buffer, int block_log2,
                             void* work);
/** @} */

/** @{ */
/** As many adjacent columns as the name says, `count` steps of `stride` elements, into contiguous rows of
 *  `count` elements: row c, element i from column c, step i. `_back_` the other way. All bits are kept. */
void orb_dft_dft_row_ccopy_1(const orb_complex_float* source, const int* stride, const int* count,
                             orb_complex_float* rows);
void orb_dft_dft_row_ccopy_2(const orb_complex_float* source, const int* stride, const int* count,
                             orb_complex_float* rows);
void orb_dft_dft_row_ccopy_4(const orb_complex_float* source, const int* stride, const int* count,
                             orb_complex_float* rows);
void orb_dft_dft_row_ccopy_8(const orb_complex_float* source, const int* stride, const int* count,
                             orb_complex_float* rows);
void orb_dft_dft_row_ccopy_16(const orb_complex_float* source, const int* stride, const int* count,
                              orb_complex_float* rows);
void orb_dft_dft_row_ccopy_back_1(const orb_complex_float* rows, const int* stride, const int* count,
                                  orb_complex_float* target);
void orb_dft_dft_row_ccopy_back_2(const orb_complex_float* rows, const int* stride, const int* count,
                                  orb_complex_float* target);
void orb_dft_dft_row_ccopy_back_4(const orb_complex_float* rows, const int* stride, const int* count,
                                  orb_complex_float* target);
void orb_dft_dft_row_ccopy_back_8(const orb_complex_float* rows, const int* stride, const int* count,
                                  orb_complex_float* target);
void orb_dft_dft_row_ccopy_back_16(const orb_complex_float* rows, const int* stride, const int* count,
                                   orb_complex_float* target);
void orb_dft_dft_row_zcopy_1(const orb_complex_double* source, const int* stride, const int* count,
                             orb_complex_double* rows);
void orb_dft_dft_row_zcopy_2(const orb_complex_double* source, const int* stride, const int* count,
                             orb_complex_double* rows);
void orb_dft_dft_row_zcopy_4(const orb_complex_double* source, const int* stride, const int* count,
                             orb_complex_double* rows);
void orb_dft_dft_row_zcopy_8(const orb_complex_double* source, const int* stride, const int* count,
                             orb_complex_double* rows);
void orb_dft_dft_row_zcopy_back_1(const orb_complex_double* rows, const int* stride, const int* count,
                                  orb_complex_double* target);
void orb_dft_dft_row_zcopy_back_2(const orb_complex_double* rows, const int* stride, const int* count,
                                  orb_complex_double* target);
void orb_dft_dft_row_zcopy_back_4(const orb_complex_double* rows, const int* stride, const int* count,
                                  orb_complex_double* target);
void orb_dft_dft_row_zcopy_back_8(const orb_complex_double* rows, const int* stride, const int* count,
                                  orb_complex_double* target);
/** @} */

/* Lines */

/** @{ */
/** One contiguous line by the signal kernels and the tables of the record, then times the record's scale if
 *  that is not exactly 1. 32fc, 64fc: complex; rev: scrambled order; 32f, 64f: parts apart, `in` and `out`
 *  point to a pair of pointers. */
int orb_dft_xvsps_fwd_32fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_fwd_64fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_fwd_rev_32fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_fwd_rev_64fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_fwd_32f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_fwd_64f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_32fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_64fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_rev_32fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_rev_64fc(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_32f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_64f(const void* in, void* out, DftiRecord* record, void* work);
/** @} */

/* One long line as rows * columns, prepared by orb_dft_xc_init_data_1d_via_2d() (xz: double). The large
   buffer has a row per element of a column, rows a padded number of elements apart. */

/** @{ */
/** The whole route. If its memory cannot be had it returns 0 with nothing done. `work` is not used. */
int orb_dft_xc_1d_via_2d_f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xc_1d_via_2d_b(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xz_1d_via_2d_f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xz_1d_via_2d_b(const void* in, void* out, DftiRecord* record, void* work);
/** @} */

/** @{ */
/** Transforms all columns of the input, forward or not, multiplies by the roots of unity between the
 * dimensions, and writes the large buffer. `staging` holds eight padded columns. */
int orb_dft_xc_multiple_row_1d_dft(DftiRecord* record, const orb_complex_float* in, orb_complex_float* large,
                                   orb_complex_float* staging, int forward, void* work);
int orb_dft_xz_multiple_row_1d_dft(DftiRecord* record, const orb_complex_double* in,
                                   orb_complex_double* large, orb_complex_double* staging, int forward,
                                   void* work);
/** @} */

/** @{ */
/** `count` rows of `columns` elements, `distance` apart, into neighbouring columns of the target, `rows`
 *  elements from step to step; the second form multiplies the rows by `factor` first. */
void orb_dft_xc_bundle_col_copy(const orb_complex_float* source, int distance, int count, int columns,
                                orb_complex_float* target, int rows);
void orb_dft_xc_bundle_col_scale_copy(orb_complex_float* source, int distance, int count, int columns,
                                      orb_complex_float* target, int rows, float factor);
void orb_dft_xz_bundle_col_copy(const orb_complex_double* source, int distance, int count, int columns,
                                orb_complex_double* target, int rows);
void orb_dft_xz_bundle_col_scale_copy(orb_complex_double* source, int distance, int count, int columns,
                                      orb_complex_double* target, int rows, double factor);
/** @} */

ORB_END_DECLS

#endif
