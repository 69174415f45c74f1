// Triangular systems with many right-hand sides, type c.
#include "spblas/kernel/csr_sm.h"

#include "orb/sparse_kernels/csr_sm_c.def"
