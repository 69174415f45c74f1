// Exported: moves of blocks.
#include "signal/kernel/fft/blocks.h"

#include "orb/signal_power_of_two.h"
#include "serv/kernel/boundary.h"

using namespace orb::signal;

#define MOVES_INTERLEAVED(merge, split, C)                                                    \
  ORB_EXPORT void merge(const C* source, C* buffer, int stride, int rows, int columns) {      \
    merge_rows(source, buffer, stride, rows, columns);                                        \
  }                                                                                           \
  ORB_EXPORT void split(C* target, const C* buffer, int stride, int rows, int columns, int) { \
    split_rows(target, buffer, stride, rows, columns);                                        \
  }
MOVES_INTERLEAVED(t7_vsps_cFft_BlkMerge_32fc, t7_vsps_cFft_BlkSplit_32fc, orb_complex_float)
MOVES_INTERLEAVED(t7_vsps_cFft_BlkMerge_64fc, t7_vsps_cFft_BlkSplit_64fc, orb_complex_double)

#define MOVES_APART(merge, split, T)                                                                    \
  ORB_EXPORT void merge(const T* source_re, const T* source_im, T* buffer, int stride, int rows,        \
                        int columns) {                                                                  \
    merge_rows(source_re, buffer, stride, rows, columns);                                               \
    merge_rows(source_im, buffer + rows * columns, stride, rows, columns);                              \
  }                                                                                                     \
  ORB_EXPORT void split(T* target_re, T* target_im, const T* buffer, int stride, int rows, int columns, \
                        int) {                                                                          \
    split_rows(target_re, buffer, stride, rows, columns);                                               \
    split_rows(target_im, buffer + rows * columns, stride, rows, columns);                              \
  }
MOVES_APART(t7_vsps_crFft_BlkMerge_32f, t7_vsps_crFft_BlkSplit_32f, float)
MOVES_APART(t7_vsps_crFft_BlkMerge_64f, t7_vsps_crFft_BlkSplit_64f, double)
