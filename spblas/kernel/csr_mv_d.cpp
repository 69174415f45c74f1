// Compressed rows times a vector, type d.
#include "spblas/kernel/csr_mv.h"

#include "orb/sparse_kernels/csr_mv_d.def"
