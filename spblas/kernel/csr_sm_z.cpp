// Triangular systems with many right-hand sides, type z.
#include "spblas/kernel/csr_sm.h"

#include "orb/sparse_kernels/csr_sm_z.def"
