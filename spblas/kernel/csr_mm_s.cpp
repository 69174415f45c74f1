// Compressed rows times a dense matrix, type s.
#include "spblas/kernel/csr_mm.h"

#include "orb/sparse_kernels/csr_mm_s.def"
