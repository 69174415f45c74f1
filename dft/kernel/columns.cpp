// The exported layers of columns and slices.
#include "dft/kernel/slice.h"
#include "orb/dft_compute.h"

using namespace orb::dft;

#define DFT_MULT(in_place, apart, C)                                                                        \
  ORB_EXPORT int in_place(DftiRecord* record, C* data, DftiLine routine, int count, void* work) {           \
    return transform_neighbours<C>(data, record->input_stride, data, record->input_stride, routine, record, \
                                   count, work);                                                            \
  }                                                                                                         \
  ORB_EXPORT int apart(DftiRecord* record, const C* in, C* out, DftiLine routine, int count, void* work) {  \
    return transform_neighbours<C>(in, record->input_stride, out, record->output_stride, routine, record,   \
                                   count, work);                                                            \
  }
DFT_MULT(orb_dft_xcdft_mult, orb_dft_xcdft_out_mult, orb_complex_float)
DFT_MULT(orb_dft_xzdft_mult, orb_dft_xzdft_out_mult, orb_complex_double)

#define DFT_1D_COPY(in_place, apart, C)                                                                     \
  ORB_EXPORT int in_place(C* data, int distance, DftiLine routine, DftiRecord* record, int count,           \
                          int stride, C* buffer, int block_log2, void* work) {                              \
    return transform_columns<C>({data, distance, stride}, {data, distance, stride}, routine, record, count, \
                                buffer, block_log2, work);                                                  \
  }                                                                                                         \
  ORB_EXPORT int apart(const C* in, int in_distance, int in_stride, C* out, int out_distance,               \
                       int out_stride, DftiLine routine, DftiRecord* record, int count, C* buffer,          \
                       int block_log2, void* work) {                                                        \
    return transform_columns<C>({in, in_distance, in_stride}, {out, out_distance, out_stride}, routine,     \
                                record, count, buffer, block_log2, work);                                   \
  }
DFT_1D_COPY(orb_dft_xcdft1d_copy, orb_dft_xcdft1d_out_copy, orb_complex_float)
DFT_1D_COPY(orb_dft_xzdft1d_copy, orb_dft_xzdft1d_out_copy, orb_complex_double)

#define DFT_2D(in_place, apart, C)                                                                           \
  ORB_EXPORT int in_place(C* data, const int* stride1, const int* stride2, DftiLine routine1,                \
                          DftiLine routine2, DftiRecord* record, void* work) {                               \
    return transform_slice<C>({data, *stride1, *stride2}, {data, *stride1, *stride2}, routine1, routine2,    \
                              record, work);                                                                 \
  }                                                                                                          \
  ORB_EXPORT int apart(const C* in, C* out, const int* in_stride1, const int* in_stride2,                    \
                       const int* out_stride1, const int* out_stride2, DftiLine routine1, DftiLine routine2, \
                       DftiRecord* record, void* work) {                                                     \
    return transform_slice<C>({in, *in_stride1, *in_stride2}, {out, *out_stride1, *out_stride2}, routine1,   \
                              routine2, record, work);                                                       \
  }
DFT_2D(orb_dft_xcdft2d, orb_dft_xcdft2d_out, orb_complex_float)
DFT_2D(orb_dft_xzdft2d, orb_dft_xzdft2d_out, orb_complex_double)
