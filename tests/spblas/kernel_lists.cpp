#include "tests/spblas/kernel_lists.h"

#define ORB_CSR_MV_PAR(name) all.mv_par.push_back({#name, name});
#define ORB_CSR_MV_SEQ(name) all.mv_seq.push_back({#name, name});
#define ORB_CSR_MM_PAR(name) all.mm_par.push_back({#name, name});
#define ORB_CSR_MM_SEQ(name) all.mm_seq.push_back({#name, name});
#define ORB_CSR_SV(name) all.sv.push_back({#name, name});
#define ORB_CSR_SM(name) all.sm.push_back({#name, name});

namespace orb::test {

template <>
Lists<float> lists() {
  Lists<float> all;
#include "orb/sparse_kernels/csr_mm_s.def"
#include "orb/sparse_kernels/csr_mv_s.def"
#include "orb/sparse_kernels/csr_sm_s.def"
#include "orb/sparse_kernels/csr_sv_s.def"
  return all;
}
template <>
Lists<double> lists() {
  Lists<double> all;
#include "orb/sparse_kernels/csr_mm_d.def"
#include "orb/sparse_kernels/csr_mv_d.def"
#include "orb/sparse_kernels/csr_sm_d.def"
#include "orb/sparse_kernels/csr_sv_d.def"
  return all;
}
template <>
Lists<c32> lists() {
  Lists<c32> all;
#include "orb/sparse_kernels/csr_mm_c.def"
#include "orb/sparse_kernels/csr_mv_c.def"
#include "orb/sparse_kernels/csr_sm_c.def"
#include "orb/sparse_kernels/csr_sv_c.def"
  return all;
}
template <>
Lists<c64> lists() {
  Lists<c64> all;
#include "orb/sparse_kernels/csr_mm_z.def"
#include "orb/sparse_kernels/csr_mv_z.def"
#include "orb/sparse_kernels/csr_sm_z.def"
#include "orb/sparse_kernels/csr_sv_z.def"
  return all;
}

}  // namespace orb::test
