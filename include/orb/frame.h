/** @file
 *  Identity of the kernel library, and the entries that every kernel library of the family offers for
 * probing.
 */
#ifndef ORB_FRAME_H
#define ORB_FRAME_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** The processor class that the kernel library was built for: 3, x86-32 with SSE2 and SSE3. */
int dll_cpu_version(void);

/** @{ */
/** Probed: a kernel-level interface to the matrix product, or a driver that knows of threads. Neither is
 * offered here, and 0 says so: call the serial `orb_blas_x` entry as a whole. Any arguments may be passed; no
 * memory is touched. */
int orb_blas_sgemm_api_support(void);
int orb_blas_xsgemm_par(void);
int orb_blas_sgemm_get_bufs_size(void);
int orb_blas_sgemm_get_kernel(void);
int orb_blas_sgemm_get_bufs(void);
int orb_blas_dgemm_api_support(void);
int orb_blas_xdgemm_par(void);
int orb_blas_dgemm_get_bufs_size(void);
int orb_blas_dgemm_get_kernel(void);
int orb_blas_dgemm_get_bufs(void);
int orb_blas_cgemm_api_support(void);
int orb_blas_xcgemm_par(void);
int orb_blas_cgemm_get_bufs_size(void);
int orb_blas_cgemm_get_kernel(void);
int orb_blas_cgemm_get_bufs(void);
int orb_blas_zgemm_api_support(void);
int orb_blas_xzgemm_par(void);
int orb_blas_zgemm_get_bufs_size(void);
int orb_blas_zgemm_get_kernel(void);
int orb_blas_zgemm_get_bufs(void);
/** @} */

/** @{ */
/** Probed: would fill or use a kernel object. Do nothing, with any arguments. */
void orb_blas_sgemm_zero_desc(void);
void orb_blas_sgemm_get_optimal_kernel(void);
void orb_blas_sgemm_get_blks_size(void);
void orb_blas_sgemm_set_blks_size(void);
void orb_blas_sgemm_num_kernels(void);
void orb_blas_sgemm_free_bufs(void);
void orb_blas_dgemm_zero_desc(void);
void orb_blas_dgemm_get_optimal_kernel(void);
void orb_blas_dgemm_get_blks_size(void);
void orb_blas_dgemm_set_blks_size(void);
void orb_blas_dgemm_num_kernels(void);
void orb_blas_dgemm_free_bufs(void);
void orb_blas_cgemm_zero_desc(void);
void orb_blas_cgemm_get_optimal_kernel(void);
void orb_blas_cgemm_get_blks_size(void);
void orb_blas_cgemm_set_blks_size(void);
void orb_blas_cgemm_num_kernels(void);
void orb_blas_cgemm_free_bufs(void);
void orb_blas_zgemm_zero_desc(void);
void orb_blas_zgemm_get_optimal_kernel(void);
void orb_blas_zgemm_get_blks_size(void);
void orb_blas_zgemm_set_blks_size(void);
void orb_blas_zgemm_num_kernels(void);
void orb_blas_zgemm_free_bufs(void);
/** @} */

/** @{ */
/** Probed: threaded inner steps of trmv, syr and syr2. Absent: they do nothing, with any arguments. */
void orb_blas_xstrmv_in_thread(void);
void orb_blas_xdtrmv_in_thread(void);
void orb_blas_xctrmv_in_thread(void);
void orb_blas_xztrmv_in_thread(void);
void orb_blas_xssyr_in_thread(void);
void orb_blas_xdsyr_in_thread(void);
void orb_blas_xssyr2_in_thread(void);
void orb_blas_xdsyr2_in_thread(void);
/** @} */

ORB_END_DECLS

#endif
