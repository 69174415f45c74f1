// Triangular systems with one right-hand side, type s.
#include "spblas/kernel/csr_sv.h"

#include "orb/sparse_kernels/csr_sv_s.def"
