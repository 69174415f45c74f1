// Triangular systems with one right-hand side, type d.
#include "spblas/kernel/csr_sv.h"

#include "orb/sparse_kernels/csr_sv_d.def"
