// The tables of the signal kernels that a record can own: where each kind stands and what makes, frees and
// measures it.
#pragma once

#include "dft/kernel/element.h"

namespace orb::dft {

struct Tables {
  VspsDFTSpec* DftiRecord::*spec;
  VspStatus (*init)(VspsDFTSpec** spec, int length, int flag, int hint);
  VspStatus (*free)(VspsDFTSpec* spec);
  VspStatus (*work_size)(const VspsDFTSpec* spec, int* bytes);
};

constexpr Tables complex_single = {&DftiRecord::spec_dft_c_32fc, t7_vspsDFTInitAlloc_C_32fc,
                                   t7_vspsDFTFree_C_32fc, t7_vspsDFTGetBufSize_C_32fc};
constexpr Tables complex_double = {&DftiRecord::spec_dft_c_64fc, t7_vspsDFTInitAlloc_C_64fc,
                                   t7_vspsDFTFree_C_64fc, t7_vspsDFTGetBufSize_C_64fc};
constexpr Tables parts_single = {&DftiRecord::spec_dft_c_32f, t7_vspsDFTInitAlloc_C_32f, t7_vspsDFTFree_C_32f,
                                 t7_vspsDFTGetBufSize_C_32f};
constexpr Tables parts_double = {&DftiRecord::spec_dft_c_64f, t7_vspsDFTInitAlloc_C_64f, t7_vspsDFTFree_C_64f,
                                 t7_vspsDFTGetBufSize_C_64f};
constexpr Tables real_single = {&DftiRecord::spec_dft_r_32f, t7_vspsDFTInitAlloc_R_32f, t7_vspsDFTFree_R_32f,
                                t7_vspsDFTGetBufSize_R_32f};
constexpr Tables real_double = {&DftiRecord::spec_dft_r_64f, t7_vspsDFTInitAlloc_R_64f, t7_vspsDFTFree_R_64f,
                                t7_vspsDFTGetBufSize_R_64f};
constexpr Tables scrambled_single = {&DftiRecord::spec_outord_32fc, t7_vspsDFTOutOrdInitAlloc_C_32fc,
                                     t7_vspsDFTOutOrdFree_C_32fc, t7_vspsDFTOutOrdGetBufSize_C_32fc};
constexpr Tables scrambled_double = {&DftiRecord::spec_outord_64fc, t7_vspsDFTOutOrdInitAlloc_C_64fc,
                                     t7_vspsDFTOutOrdFree_C_64fc, t7_vspsDFTOutOrdGetBufSize_C_64fc};

constexpr const Tables* all_tables[] = {&complex_single,   &complex_double,  &parts_single,
                                        &parts_double,     &real_single,     &real_double,
                                        &scrambled_single, &scrambled_double};

// The longest line of a precision; powers of two may be longer.
inline int longest_line(int precision, bool power_of_two) {
  if (precision == VAL_SINGLE) return power_of_two ? 0xfffffff : 0x3ffffff;
  return power_of_two ? 0x7ffffff : 0x1ffffff;
}

}  // namespace orb::dft
