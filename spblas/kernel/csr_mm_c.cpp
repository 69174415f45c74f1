// Compressed rows times a dense matrix, type c.
#include "spblas/kernel/csr_mm.h"

#include "orb/sparse_kernels/csr_mm_c.def"
