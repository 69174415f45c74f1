// Identity of the library, and the entries that the outer layer probes.
#include "orb/frame.h"

#include "serv/kernel/boundary.h"

// The class x86-32 with SSE2 and SSE3, among the numbers by which outer layers tell kernel libraries apart.
ORB_EXPORT int dll_cpu_version(void) { return 3; }

// "Not offered here": the outer layer then calls the serial drivers as a whole.
ORB_EXPORT int orb_blas_sgemm_api_support(void) { return 0; }
ORB_EXPORT int orb_blas_sgemm_get_bufs(void) { return 0; }
ORB_EXPORT int orb_blas_sgemm_get_bufs_size(void) { return 0; }
ORB_EXPORT int orb_blas_sgemm_get_kernel(void) { return 0; }
ORB_EXPORT int orb_blas_xsgemm_par(void) { return 0; }
ORB_EXPORT int orb_blas_dgemm_api_support(void) { return 0; }
ORB_EXPORT int orb_blas_dgemm_get_bufs(void) { return 0; }
ORB_EXPORT int orb_blas_dgemm_get_bufs_size(void) { return 0; }
ORB_EXPORT int orb_blas_dgemm_get_kernel(void) { return 0; }
ORB_EXPORT int orb_blas_xdgemm_par(void) { return 0; }
ORB_EXPORT int orb_blas_cgemm_api_support(void) { return 0; }
ORB_EXPORT int orb_blas_cgemm_get_bufs(void) { return 0; }
ORB_EXPORT int orb_blas_cgemm_get_bufs_size(void) { return 0; }
ORB_EXPORT int orb_blas_cgemm_get_kernel(void) { return 0; }
ORB_EXPORT int orb_blas_xcgemm_par(void) { return 0; }
ORB_EXPORT int orb_blas_xzgemm_par(void) { return 0; }
ORB_EXPORT int orb_blas_zgemm_api_support(void) { return 0; }
ORB_EXPORT int orb_blas_zgemm_get_bufs(void) { return 0; }
ORB_EXPORT int orb_blas_zgemm_get_bufs_size(void) { return 0; }
ORB_EXPORT int orb_blas_zgemm_get_kernel(void) { return 0; }

// Present so that every kernel library exports the same names; nothing to do without a kernel object or
// threads.
ORB_EXPORT void orb_blas_sgemm_free_bufs(void) {}
ORB_EXPORT void orb_blas_sgemm_get_blks_size(void) {}
ORB_EXPORT void orb_blas_sgemm_get_optimal_kernel(void) {}
ORB_EXPORT void orb_blas_sgemm_num_kernels(void) {}
ORB_EXPORT void orb_blas_sgemm_set_blks_size(void) {}
ORB_EXPORT void orb_blas_sgemm_zero_desc(void) {}
ORB_EXPORT void orb_blas_xssyr2_in_thread(void) {}
ORB_EXPORT void orb_blas_xssyr_in_thread(void) {}
ORB_EXPORT void orb_blas_xstrmv_in_thread(void) {}
ORB_EXPORT void orb_blas_dgemm_free_bufs(void) {}
ORB_EXPORT void orb_blas_dgemm_get_blks_size(void) {}
ORB_EXPORT void orb_blas_dgemm_get_optimal_kernel(void) {}
ORB_EXPORT void orb_blas_dgemm_num_kernels(void) {}
ORB_EXPORT void orb_blas_dgemm_set_blks_size(void) {}
ORB_EXPORT void orb_blas_dgemm_zero_desc(void) {}
ORB_EXPORT void orb_blas_xdsyr2_in_thread(void) {}
ORB_EXPORT void orb_blas_xdsyr_in_thread(void) {}
ORB_EXPORT void orb_blas_xdtrmv_in_thread(void) {}
ORB_EXPORT void orb_blas_cgemm_free_bufs(void) {}
ORB_EXPORT void orb_blas_cgemm_get_blks_size(void) {}
ORB_EXPORT void orb_blas_cgemm_get_optimal_kernel(void) {}
ORB_EXPORT void orb_blas_cgemm_num_kernels(void) {}
ORB_EXPORT void orb_blas_cgemm_set_blks_size(void) {}
ORB_EXPORT void orb_blas_cgemm_zero_desc(void) {}
ORB_EXPORT void orb_blas_xctrmv_in_thread(void) {}
ORB_EXPORT void orb_blas_xztrmv_in_thread(void) {}
ORB_EXPORT void orb_blas_zgemm_free_bufs(void) {}
ORB_EXPORT void orb_blas_zgemm_get_blks_size(void) {}
ORB_EXPORT void orb_blas_zgemm_get_optimal_kernel(void) {}
ORB_EXPORT void orb_blas_zgemm_num_kernels(void) {}
ORB_EXPORT void orb_blas_zgemm_set_blks_size(void) {}
ORB_EXPORT void orb_blas_zgemm_zero_desc(void) {}
