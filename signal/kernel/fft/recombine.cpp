// Exported: recombination of real transforms and its tables.
#include "signal/kernel/fft/recombine.h"

#include "orb/signal_real.h"
#include "signal/kernel/fft/spec.h"

using namespace orb::signal;

#define RECOMBINATION(recombine_table, separate_table, after, before, C, T)                                \
  ORB_EXPORT void* recombine_table(int order, const T* sines, int sine_order, T* table) {                  \
    return align32(write_recombine_table(table, order, Sines<T>{sines, sine_order}));                      \
  }                                                                                                        \
  ORB_EXPORT void* separate_table(int order, const T* sines, int sine_order, T* table) {                   \
    return align32(write_separate_table(table, order, Sines<T>{sines, sine_order}));                       \
  }                                                                                                        \
  ORB_EXPORT void after(C* data, int half_n, int, const T* table) { recombine(&data->re, half_n, table); } \
  ORB_EXPORT void before(const T* in, C* out, int half_n, int, const T* table) {                           \
    separate(in, &out->re, half_n, table);                                                                 \
  }
RECOMBINATION(t7_vsps_initTabTwdRealRec_32f, t7_vsps_initTabTwdCcsRec_32f, t7_vsps_cRealRecombine_32f,
              t7_vsps_cCcsRecombine_32f, orb_complex_float, float)
RECOMBINATION(t7_vsps_initTabTwdRealRec_64f, t7_vsps_initTabTwdCcsRec_64f, t7_vsps_cRealRecombine_64f,
              t7_vsps_cCcsRecombine_64f, orb_complex_double, double)
