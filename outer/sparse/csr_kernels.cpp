// The tables, filled at compile time from the lists of names.
#include "outer/sparse/csr_kernels.h"

namespace orb {
namespace {

using spblas::shape_of;

#define ORB_CSR_MV_PAR(name) all.mv_par.add(shape_of(#name), &Kernel<name>::address);
#define ORB_CSR_MV_SEQ(name) all.mv_seq.add(shape_of(#name), &Kernel<name>::address);
#define ORB_CSR_MM_PAR(name) all.mm_par.add(shape_of(#name), &Kernel<name>::address);
#define ORB_CSR_MM_SEQ(name) all.mm_seq.add(shape_of(#name), &Kernel<name>::address);
#define ORB_CSR_SV(name) all.sv.add(shape_of(#name), &Kernel<name>::address);
#define ORB_CSR_SM(name) all.sm.add(shape_of(#name), &Kernel<name>::address);

consteval CsrKernels<float> kernels_s() {
  CsrKernels<float> all;
#include "orb/sparse_kernels/csr_mm_s.def"
#include "orb/sparse_kernels/csr_mv_s.def"
#include "orb/sparse_kernels/csr_sm_s.def"
#include "orb/sparse_kernels/csr_sv_s.def"
  return all;
}
consteval CsrKernels<double> kernels_d() {
  CsrKernels<double> all;
#include "orb/sparse_kernels/csr_mm_d.def"
#include "orb/sparse_kernels/csr_mv_d.def"
#include "orb/sparse_kernels/csr_sm_d.def"
#include "orb/sparse_kernels/csr_sv_d.def"
  return all;
}
consteval CsrKernels<c32> kernels_c() {
  CsrKernels<c32> all;
#include "orb/sparse_kernels/csr_mm_c.def"
#include "orb/sparse_kernels/csr_mv_c.def"
#include "orb/sparse_kernels/csr_sm_c.def"
#include "orb/sparse_kernels/csr_sv_c.def"
  return all;
}
consteval CsrKernels<c64> kernels_z() {
  CsrKernels<c64> all;
#include "orb/sparse_kernels/csr_mm_z.def"
#include "orb/sparse_kernels/csr_mv_z.def"
#include "orb/sparse_kernels/csr_sm_z.def"
#include "orb/sparse_kernels/csr_sv_z.def"
  return all;
}

constexpr CsrKernels<float> of_s = kernels_s();
constexpr CsrKernels<double> of_d = kernels_d();
constexpr CsrKernels<c32> of_c = kernels_c();
constexpr CsrKernels<c64> of_z = kernels_z();

}  // namespace

template <>
const CsrKernels<float>& csr_kernels() {
  return of_s;
}
template <>
const CsrKernels<double>& csr_kernels() {
  return of_d;
}
template <>
const CsrKernels<c32>& csr_kernels() {
  return of_c;
}
template <>
const CsrKernels<c64>& csr_kernels() {
  return of_z;
}

}  // namespace orb
