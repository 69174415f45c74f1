// Compressed rows times a vector, type s.
#include "spblas/kernel/csr_mv.h"

#include "orb/sparse_kernels/csr_mv_s.def"
