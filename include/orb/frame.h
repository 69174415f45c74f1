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

/** @name Probed entries
 *  What they would offer is absent here: a kernel-level interface to the matrix product, and threaded inner
 *  steps of trmv, syr and syr2. They may be called with any arguments and touch no memory. Those that return
 *  a number return 0, which tells the caller to use the serial `orb_blas_x` entry as a whole. @{ */
#define ORB_DECLARE_GEMM_PROBES(letter)                  \
  int orb_blas_##letter##gemm_api_support(void);         \
  int orb_blas_x##letter##gemm_par(void);                \
  int orb_blas_##letter##gemm_get_bufs_size(void);       \
  int orb_blas_##letter##gemm_get_kernel(void);          \
  int orb_blas_##letter##gemm_get_bufs(void);            \
  void orb_blas_##letter##gemm_zero_desc(void);          \
  void orb_blas_##letter##gemm_get_optimal_kernel(void); \
  void orb_blas_##letter##gemm_get_blks_size(void);      \
  void orb_blas_##letter##gemm_set_blks_size(void);      \
  void orb_blas_##letter##gemm_num_kernels(void);        \
  void orb_blas_##letter##gemm_free_bufs(void)
ORB_DECLARE_GEMM_PROBES(s);
ORB_DECLARE_GEMM_PROBES(d);
ORB_DECLARE_GEMM_PROBES(c);
ORB_DECLARE_GEMM_PROBES(z);
#undef ORB_DECLARE_GEMM_PROBES

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
