/** @file
 *  Commit of a descriptor, for the outer layer, whose commit routines stand in the records and are called by
 *  DftiCommitDescriptor(). Such a routine
 *
 *  - calls orb_dft_apply_bkdowns_<kind>() and is done if that returns 0;
 *  - otherwise sets `thread_count` of the head to the number of threads at hand, may fill the `par_` slots,
 *    and returns what orb_dft_commit_descriptor_core_<kind>() returns.
 *
 *  A kind is the precision (s, d), the domain (c2c, r2c) and the rank (1d, md). Except where said otherwise
 *  each call returns a status of dfti.h.
 */
#ifndef ORB_DFT_COMMIT_H
#define ORB_DFT_COMMIT_H

#include "orb/dft_record.h"
#include "orb/services.h"
#include "orb/types.h"

ORB_BEGIN_DECLS

/* Life of a record */

/** Creates a descriptor without a commit routine, for use inside a transform. Arguments must be good, the
 * lengths with the fastest dimension first. */
int orb_dft_create_descriptor_md(DftiRecord** handle, int precision, int domain, int rank,
                                 const int* lengths);

/** Data arguments of a compute call: doubled out of place, and doubled for complex parts stored apart. */
int orb_dft_determine_nioargs(const DftiRecord* head);

/** Releases every table and buffer that a commit built or the outer layer put there, and nulls the pointers;
 *  may be called twice. */
int orb_dft_free_allocated_buffers(DftiRecord* head);

/* Breakdowns: short contiguous one-dimensional complex transforms that need none of the general machinery */

/** What orb_dft_apply_bkdowns() and the commit of a breakdown return beside the public statuses. */
enum {
  DFT_NOT_TAKEN = 100,       /**< no breakdown took the descriptor */
  DFT_GAVE_UP = 101,         /**< a breakdown found at its commit that it cannot */
  DFT_NO_FACTORISATION = 102 /**< a length that does not divide into a route through two dimensions */
};

/** @{ */
/** Single and double precision. 1: lengths up to 4096 whose work fits on the stack, with scales that fold
 * into the transform; 2 and 3: powers of two by straight code, without scales. */
extern const DftiBreakdown orb_dft_bkd1_c, orb_dft_bkd2_c, orb_dft_bkd3_c;
extern const DftiBreakdown orb_dft_bkd1_z, orb_dft_bkd2_z, orb_dft_bkd3_z;
/** @} */

/** Tries the entries of a null-ended list in order: 0 when one took the descriptor, else DFT_NOT_TAKEN. */
int orb_dft_apply_bkdowns(DftiRecord* head, const DftiBreakdown* const* list);

/** @{ */
/** The same with the list of the kind; empty but for complex data of one dimension. */
int orb_dft_apply_bkdowns_s_c2c_1d(DftiRecord* head);
int orb_dft_apply_bkdowns_s_c2c_md(DftiRecord* head);
int orb_dft_apply_bkdowns_s_r2c_1d(DftiRecord* head);
int orb_dft_apply_bkdowns_s_r2c_md(DftiRecord* head);
int orb_dft_apply_bkdowns_d_c2c_1d(DftiRecord* head);
int orb_dft_apply_bkdowns_d_c2c_md(DftiRecord* head);
int orb_dft_apply_bkdowns_d_r2c_1d(DftiRecord* head);
int orb_dft_apply_bkdowns_d_r2c_md(DftiRecord* head);
/** @} */

/* The general commit */

/** Commits: lines of every dimension, tables, work memory for the threads, compute routines. With `parallel`
 *  0 the thread limit that suits the size does not apply. What the outer layer put into the head's
 *  aux_buffer, parallel_data, twiddle_table and aux_table stays. */
int orb_dft_commit_descriptor_core(DftiRecord** handle, int parallel);

/** @{ */
/** The same for descriptors known to be of the kind. */
int orb_dft_commit_descriptor_core_s_c2c_1d(DftiRecord** handle, int parallel);
int orb_dft_commit_descriptor_core_s_c2c_md(DftiRecord** handle, int parallel);
int orb_dft_commit_descriptor_core_s_r2c_1d(DftiRecord** handle, int parallel);
int orb_dft_commit_descriptor_core_s_r2c_md(DftiRecord** handle, int parallel);
int orb_dft_commit_descriptor_core_d_c2c_1d(DftiRecord** handle, int parallel);
int orb_dft_commit_descriptor_core_d_c2c_md(DftiRecord** handle, int parallel);
int orb_dft_commit_descriptor_core_d_r2c_1d(DftiRecord** handle, int parallel);
int orb_dft_commit_descriptor_core_d_r2c_md(DftiRecord** handle, int parallel);
/** @} */

/** Settles mode_flags, the two-dimensional drivers, the table of user threads and thread_count. */
int orb_dft_threaded_mode_definition(DftiRecord* head, int parallel);

/** @{ */
/** The same for descriptors known to be of the kind. */
int orb_dft_threaded_mode_definition_s_c2c_1d(DftiRecord* head, int parallel);
int orb_dft_threaded_mode_definition_s_c2c_md(DftiRecord* head, int parallel);
int orb_dft_threaded_mode_definition_s_r2c_1d(DftiRecord* head, int parallel);
int orb_dft_threaded_mode_definition_s_r2c_md(DftiRecord* head, int parallel);
int orb_dft_threaded_mode_definition_d_c2c_1d(DftiRecord* head, int parallel);
int orb_dft_threaded_mode_definition_d_c2c_md(DftiRecord* head, int parallel);
int orb_dft_threaded_mode_definition_d_r2c_1d(DftiRecord* head, int parallel);
int orb_dft_threaded_mode_definition_d_r2c_md(DftiRecord* head, int parallel);
/** @} */

/** Allocates work_buffer: max_work_size bytes, rounded up to 64, for each thread that may compute. */
int orb_dft_vsp_buffer_allocation(DftiRecord* head);

/** Non-zero if the kernels can apply both scales themselves; then their flag goes to `flag`, unless null. */
int orb_dft_vsp_can_scale(const DftiRecord* record, int* flag);

/** The status for a status of the signal kernels. */
int orb_dft_transfer_vsp_orb_error(int status);

/** A free place among the user threads, now taken, or -1. Its work memory is that many max_work_size behind
 *  work_buffer. */
int orb_dft_grasp_user_thread(DftiRecord* head);
/** Gives it back. */
void orb_dft_release_user_thread(DftiRecord* head, int slot);

/* Tables of one dimension. A failure has released what the descriptor had. */

/** @{ */
/** Complex lines, in the order that the record asks for. */
int orb_dft_vsp_init_s_c2c(DftiRecord* record, DftiRecord* head);
int orb_dft_vsp_init_d_c2c(DftiRecord* record, DftiRecord* head);
/** @} */
/** @{ */
/** Complex lines of a later dimension of real data: natural order. */
int orb_dft_vsp_init_s_r2c(DftiRecord* record, DftiRecord* head);
int orb_dft_vsp_init_d_r2c(DftiRecord* record, DftiRecord* head);
/** @} */
/** @{ */
/** Complex lines with parts apart. */
int orb_dft_vsp_init_s_ri2ri(DftiRecord* record, DftiRecord* head);
int orb_dft_vsp_init_d_ri2ri(DftiRecord* record, DftiRecord* head);
/** @} */
/** @{ */
/** Real lines. */
int orb_dft_c_vsp_real_init(DftiRecord* record, DftiRecord* head);
int orb_dft_z_vsp_real_init(DftiRecord* record, DftiRecord* head);
/** @} */

/** @{ */
/** Coefficients and bit reversal of the native radix-4 kernels into twiddle_table: for n = record->length, a
 *  power of two, from the first 64-byte boundary behind the start on, exp(-2 pi i j / n) with its square and
 *  cube for j below n / 4, then 128 bytes, then n words. Lines of a commit do not read them yet. */
int orb_dft_c_fft_init(DftiRecord* record, DftiRecord* head);
int orb_dft_z_fft_init(DftiRecord* record, DftiRecord* head);
/** @} */

/** @{ */
/** Prepares one long line as a two-dimensional transform; DFT_NO_FACTORISATION for a prime. */
int orb_dft_xc_init_data_1d_via_2d(DftiRecord* record, DftiRecord* head);
int orb_dft_xz_init_data_1d_via_2d(DftiRecord* record, DftiRecord* head);
/** @} */

ORB_END_DECLS

#endif
