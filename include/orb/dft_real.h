/** @file
 *  Computation of real descriptors of one dimension in liborb_t7.so. Forward goes from real data to the
 *  conjugate-even transform, backward the other way; that is packed into reals (CCS, Pack or Perm format) or,
 *  with complex storage, half_length complex numbers. The input fields of the record describe the array that
 *  is read, the output fields the one that is written; in place with packed data the input fields serve both.
 */
#ifndef ORB_DFT_REAL_H
#define ORB_DFT_REAL_H

#include "orb/dft_record.h"
#include "orb/types.h"

ORB_BEGIN_DECLS

/** @{ */
/** What DftiComputeForward() and DftiComputeBackward() call: the data, or the input and the output. */
int orb_dft_compute_fwd_s_r2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_s_r2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_d_r2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_fwd_d_r2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_s_r2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_s_r2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_d_r2c_1d_i(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
int orb_dft_compute_bwd_d_r2c_1d_o(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
/** @} */

/** @{ */
/** `count` transforms with packed data, distances of the record apart. */
int orb_dft_xsforward(DftiRecord* record, float* data, int count, void* work);
int orb_dft_xsforward_out(DftiRecord* record, const float* in, float* out, int count, void* work);
int orb_dft_xsbackward(DftiRecord* record, float* data, int count, void* work);
int orb_dft_xsbackward_out(DftiRecord* record, const float* in, float* out, int count, void* work);
int orb_dft_xdforward(DftiRecord* record, double* data, int count, void* work);
int orb_dft_xdforward_out(DftiRecord* record, const double* in, double* out, int count, void* work);
int orb_dft_xdbackward(DftiRecord* record, double* data, int count, void* work);
int orb_dft_xdbackward_out(DftiRecord* record, const double* in, double* out, int count, void* work);
/** @} */

/** @{ */
/** The same with complex numbers on the side of the transform; both arrays may begin at one address. */
int orb_dft_xscforward(DftiRecord* record, const float* in, orb_complex_float* out, int count, void* work);
int orb_dft_xscforward_out(DftiRecord* record, const float* in, orb_complex_float* out, int count,
                           void* work);
int orb_dft_xcsbackward(DftiRecord* record, const orb_complex_float* in, float* out, int count, void* work);
int orb_dft_xcsbackward_out(DftiRecord* record, const orb_complex_float* in, float* out, int count,
                            void* work);
int orb_dft_xdzforward(DftiRecord* record, const double* in, orb_complex_double* out, int count, void* work);
int orb_dft_xdzforward_out(DftiRecord* record, const double* in, orb_complex_double* out, int count,
                           void* work);
int orb_dft_xzdbackward(DftiRecord* record, const orb_complex_double* in, double* out, int count, void* work);
int orb_dft_xzdbackward_out(DftiRecord* record, const orb_complex_double* in, double* out, int count,
                            void* work);
/** @} */

/** @{ */
/** One contiguous line by the signal kernels of the record's format, then times its scale. */
int orb_dft_xvsps_fwd_rtocomplex_32f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_complextor_32f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_fwd_rtocomplex_64f(const void* in, void* out, DftiRecord* record, void* work);
int orb_dft_xvsps_inv_complextor_64f(const void* in, void* out, DftiRecord* record, void* work);
/** @} */

/** @{ */
/** Puts straight code for lines of 2, 4, ..., 64 elements into the record: forward and backward, single and
 *  double. Another length gives STATUS_UNIMPLEMENTED and changes nothing. */
int orb_dft_set_codelet_sf(DftiRecord* record);
int orb_dft_set_codelet_sb(DftiRecord* record);
int orb_dft_set_codelet_df(DftiRecord* record);
int orb_dft_set_codelet_db(DftiRecord* record);
/** @} */

ORB_END_DECLS

#endif
