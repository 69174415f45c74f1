// Exported: bit-reversals in place, from array to array, and of a block.
#include "signal/kernel/fft/bit_rev.h"

#include <string.h>

#include "orb/signal_power_of_two.h"
#include "serv/kernel/complex.h"

using orb::signal::reverse_bits;

ORB_EXPORT void t7_vsps_BitRev1_S(float* data, int n, const int* table) {
  reverse_bits(data, data, n, table);
}
ORB_EXPORT void t7_vsps_BitRev1_D(double* data, int n, const int* table) {
  reverse_bits(data, data, n, table);
}
ORB_EXPORT void t7_vsps_BitRev1_C(orb_complex_float* data, int n, const int* table) {
  reverse_bits(data, data, n, table);
}
ORB_EXPORT void t7_vsps_BitRev1_Z(orb_complex_double* data, int n, const int* table) {
  reverse_bits(data, data, n, table);
}
ORB_EXPORT void t7_vsps_BitRev2_S(const float* in, float* out, int n, const int* table) {
  reverse_bits(in, out, n, table);
}
ORB_EXPORT void t7_vsps_BitRev2_D(const double* in, double* out, int n, const int* table) {
  reverse_bits(in, out, n, table);
}
ORB_EXPORT void t7_vsps_BitRev2_C(const orb_complex_float* in, orb_complex_float* out, int n,
                                  const int* table) {
  reverse_bits(in, out, n, table);
}
ORB_EXPORT void t7_vsps_BitRev2_Z(const orb_complex_double* in, orb_complex_double* out, int n,
                                  const int* table) {
  reverse_bits(in, out, n, table);
}

ORB_EXPORT void t7_vsps_sBitRev1_Blk(float* block, int n, const int* table) {
  reverse_bits(block, block, n, table);
}
ORB_EXPORT void t7_vsps_dBitRev1_Blk(double* block, int n, const int* table) {
  reverse_bits(block, block, n, table);
}
ORB_EXPORT void t7_vsps_cBitRev1_Blk(orb_complex_float* block, int n, const int* table) {
  reverse_bits(block, block, n, table);
}
ORB_EXPORT void t7_vsps_zBitRev1_Blk(orb_complex_double* block, int n, const int* table) {
  reverse_bits(block, block, n, table);
}

namespace {
// Elements of any kind, as bytes that may not pass through a floating-point register.
struct Bytes4 {
  char b[4];
};
struct Bytes8 {
  char b[8];
};
template <class E>
void reverse_any(const void* in, void* out, int n, const int* table) {
  reverse_bits(static_cast<const E*>(in), static_cast<E*>(out), n, table);
}
}  // namespace

ORB_EXPORT void t7_vsps_BitRev1_4(void* data, int n, const int* table) {
  reverse_any<Bytes4>(data, data, n, table);
}
ORB_EXPORT void t7_vsps_BitRev1_8(void* data, int n, const int* table) {
  reverse_any<Bytes8>(data, data, n, table);
}
ORB_EXPORT void t7_vsps_BitRev2_4(const void* in, void* out, int n, const int* table) {
  reverse_any<Bytes4>(in, out, n, table);
}
ORB_EXPORT void t7_vsps_BitRev2_8(const void* in, void* out, int n, const int* table) {
  reverse_any<Bytes8>(in, out, n, table);
}
