// Compressed rows times a vector, type z.
#include "spblas/kernel/csr_mv.h"

#include "orb/sparse_kernels/csr_mv_z.def"
