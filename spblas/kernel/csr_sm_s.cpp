// Triangular systems with many right-hand sides, type s.
#include "spblas/kernel/csr_sm.h"

#include "orb/sparse_kernels/csr_sm_s.def"
