// Triangular systems with one right-hand side, type z.
#include "spblas/kernel/csr_sv.h"

#include "orb/sparse_kernels/csr_sv_z.def"
