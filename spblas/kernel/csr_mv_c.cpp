// Compressed rows times a vector, type c.
#include "spblas/kernel/csr_mv.h"

#include "orb/sparse_kernels/csr_mv_c.def"
