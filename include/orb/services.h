/** @file
 *  What the kernel library asks of the layer above it. liborb_t7.so leaves these names undefined; the outer
 *  layer that loads it defines them. liborb.so is one such layer; whoever writes another supplies all of
 * these. C calling convention, arguments by value unless said otherwise, all integers 32 bits and signed.
 */
#ifndef ORB_SERVICES_H
#define ORB_SERVICES_H

#include <stddef.h>

#include "orb/dft_record.h"
#include "orb/types.h"

ORB_BEGIN_DECLS

/* Memory */

/** Scratch memory for one call: `bytes` bytes, aligned at least to `alignment`, a power of two (64 and 128
 * are asked for). The dense kernels do not look for failure: it must not return a null pointer to them. */
void* orb_serv_allocate(int bytes, int alignment);

/** Gives back what orb_serv_allocate() returned, by the pointer that it returned. */
void orb_serv_deallocate(void* block);

/** Long-lived memory, owned by descriptors and handles: `bytes` bytes at `alignment` (16, 32, 64, 128), or a
 *  null pointer, which the caller turns into its own error. */
void* orb_serv_orb_malloc(int bytes, int alignment);

/** Gives back what orb_serv_orb_malloc() returned. A null pointer is allowed. */
void orb_serv_orb_free(void* block);

/** @{ */
/** The C-style allocator of the signal family: variables, read anew at each call. */
extern void* (*i_malloc)(size_t bytes);
extern void (*i_free)(void* block);
/** @} */

/* Queries */

/** Non-zero if the characters at `a` and `b` are equal but for case. The lengths are both 1 and not read. */
int orb_serv_lsame(const char* a, const char* b, int length_a, int length_b);

/** Processor generation, a small number: 4 and 5 are told apart from all others. */
int orb_serv_cpu_detect(void);

/** Size class of the second-level cache: 2, 3 or other. 3 doubles the column block of the single-precision
 *  matrix products. */
int orb_serv_l2cache(void);

/** @{ */
/** Writes the version text, at most `length` characters, to `buffer`: blank-padded for Fortran callers, ended
 *  by a zero for C callers. */
void orb_serv_getversionstring(char* buffer, int length);
void orb_serv_getversionstring_c(char* buffer, int length);
/** @} */

/** @{ */
/** The one lock of the library, held only for a moment */
void orb_serv_lock(void);
void orb_serv_unlock(void);
/** @} */

/* Message catalogue */

/** The text of message `number` with its placeholders filled by `count` further values. The pointer stays
 *  valid until the calling thread asks for its next message. */
const char* orb_serv_orb_get_msg(int number, int count, ...);

/** Prints message `number`, filled in likewise. `channel` is always 1. */
void orb_serv_orb_print(int channel, int number, int count, ...);

/** @{ */
/** Upward entries
 *  Level-1 and level-2 BLAS as the outer layer divides it, all arguments by reference, no hidden lengths:
 *  y = alpha op(A) x + beta y, y += alpha x, and x . y. */
void orb_blas_sgemv(const char* trans, const int* m, const int* n, const float* alpha, const float* a,
                    const int* lda, const float* x, const int* incx, const float* beta, float* y,
                    const int* incy);
void orb_blas_dgemv(const char* trans, const int* m, const int* n, const double* alpha, const double* a,
                    const int* lda, const double* x, const int* incx, const double* beta, double* y,
                    const int* incy);
void orb_blas_cgemv(const char* trans, const int* m, const int* n, const orb_complex_float* alpha,
                    const orb_complex_float* a, const int* lda, const orb_complex_float* x, const int* incx,
                    const orb_complex_float* beta, orb_complex_float* y, const int* incy);
void orb_blas_zgemv(const char* trans, const int* m, const int* n, const orb_complex_double* alpha,
                    const orb_complex_double* a, const int* lda, const orb_complex_double* x, const int* incx,
                    const orb_complex_double* beta, orb_complex_double* y, const int* incy);
void orb_blas_saxpy(const int* n, const float* alpha, const float* x, const int* incx, float* y,
                    const int* incy);
void orb_blas_daxpy(const int* n, const double* alpha, const double* x, const int* incx, double* y,
                    const int* incy);
void orb_blas_caxpy(const int* n, const orb_complex_float* alpha, const orb_complex_float* x, const int* incx,
                    orb_complex_float* y, const int* incy);
void orb_blas_zaxpy(const int* n, const orb_complex_double* alpha, const orb_complex_double* x,
                    const int* incx, orb_complex_double* y, const int* incy);
float orb_blas_sdot(const int* n, const float* x, const int* incx, const float* y, const int* incy);
double orb_blas_ddot(const int* n, const double* x, const int* incx, const double* y, const int* incy);
/** @} */

/** @{ */
/** Commit of a descriptor of the kind (see dft_commit.h): how, and with how many threads. */
int orb_dft_commit_descriptor_s_c2c_1d_omp(DftiRecord** handle);
int orb_dft_commit_descriptor_s_c2c_md_omp(DftiRecord** handle);
int orb_dft_commit_descriptor_s_r2c_1d_omp(DftiRecord** handle);
int orb_dft_commit_descriptor_s_r2c_md_omp(DftiRecord** handle);
int orb_dft_commit_descriptor_d_c2c_1d_omp(DftiRecord** handle);
int orb_dft_commit_descriptor_d_c2c_md_omp(DftiRecord** handle);
int orb_dft_commit_descriptor_d_r2c_1d_omp(DftiRecord** handle);
int orb_dft_commit_descriptor_d_r2c_md_omp(DftiRecord** handle);
/** @} */

/** @{ */
/** A whole batch through a committed descriptor with more than one thread. `head` points to a word that holds
 *  the handle; offsets are already added to the data. Letters: elements of the data, s float, d double, c and
 *  z complex; two of them where input and output differ; without `out` in place. */
int orb_dft_compute_forward_c_par(DftiRecord* const* head, orb_complex_float* data);
int orb_dft_compute_forward_c_out_par(DftiRecord* const* head, const orb_complex_float* in,
                                      orb_complex_float* out);
int orb_dft_compute_forward_z_par(DftiRecord* const* head, orb_complex_double* data);
int orb_dft_compute_forward_z_out_par(DftiRecord* const* head, const orb_complex_double* in,
                                      orb_complex_double* out);
int orb_dft_compute_forward_s_par(DftiRecord* const* head, float* data);
int orb_dft_compute_forward_s_out_par(DftiRecord* const* head, const float* in, float* out);
int orb_dft_compute_forward_d_par(DftiRecord* const* head, double* data);
int orb_dft_compute_forward_d_out_par(DftiRecord* const* head, const double* in, double* out);
int orb_dft_compute_forward_sc_par(DftiRecord* const* head, float* data);
int orb_dft_compute_forward_sc_out_par(DftiRecord* const* head, const float* in, orb_complex_float* out);
int orb_dft_compute_forward_dz_par(DftiRecord* const* head, double* data);
int orb_dft_compute_forward_dz_out_par(DftiRecord* const* head, const double* in, orb_complex_double* out);
int orb_dft_compute_backward_c_par(DftiRecord* const* head, orb_complex_float* data);
int orb_dft_compute_backward_c_out_par(DftiRecord* const* head, const orb_complex_float* in,
                                       orb_complex_float* out);
int orb_dft_compute_backward_z_par(DftiRecord* const* head, orb_complex_double* data);
int orb_dft_compute_backward_z_out_par(DftiRecord* const* head, const orb_complex_double* in,
                                       orb_complex_double* out);
int orb_dft_compute_backward_s_par(DftiRecord* const* head, float* data);
int orb_dft_compute_backward_s_out_par(DftiRecord* const* head, const float* in, float* out);
int orb_dft_compute_backward_d_par(DftiRecord* const* head, double* data);
int orb_dft_compute_backward_d_out_par(DftiRecord* const* head, const double* in, double* out);
int orb_dft_compute_backward_cs_par(DftiRecord* const* head, orb_complex_float* data);
int orb_dft_compute_backward_cs_out_par(DftiRecord* const* head, const orb_complex_float* in, float* out);
int orb_dft_compute_backward_zd_par(DftiRecord* const* head, orb_complex_double* data);
int orb_dft_compute_backward_zd_out_par(DftiRecord* const* head, const orb_complex_double* in, double* out);
/** @} */

ORB_END_DECLS

#endif
