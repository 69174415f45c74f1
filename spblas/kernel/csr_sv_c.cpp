// Triangular systems with one right-hand side, type c.
#include "spblas/kernel/csr_sv.h"

#include "orb/sparse_kernels/csr_sv_c.def"
