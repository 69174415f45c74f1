// Exported: sizes and tables of the large orders.
#include "orb/signal_power_of_two.h"
#include "signal/kernel/fft/large_shape.h"

namespace orb::signal {
namespace {

// The column twiddles in the order of their use: for each group of columns, pass by pass.
template <class T>
T* column_twiddles(LargeShape<T> shape, Sines<T> sines, T* table) {
  const int length = shape.row_length(), together = shape.columns_together();
  for (int column = 0; column < length; column += together) {
    int done = 1;  // rows that are one transform already
    for (; 4 * done <= shape.rows(); done *= 4)
      for (int row = 0; row < done; ++row)
        table = write_twiddles(table, sines, 4, shape.row_order() + __builtin_ctz(4 * done),
                               unsigned(row * length + column), unsigned(together));
    if (done < shape.rows())
      for (int row = 0; row < done; ++row)
        table =
            write_twiddles(table, sines, 2, shape.order, unsigned(row * length + column), unsigned(together));
  }
  return align32(table);
}

template <class T>
T* step_tables(FftSpec<T>* spec, LargeShape<T> shape, Sines<T> sines, T* table) {
  if (shape.rows_are_large()) {
    table = step_tables(spec, shape.row_shape(), sines, table);
  } else {
    spec->twiddles = table;
    table = level_twiddles(shape.row_order(), sines, table);
  }
  spec->columns[shape.level()] = table;
  return column_twiddles(shape, sines, table);
}

template <class T>
void* large_tables(FftSpec<T>* spec, int order, Sines<T> sines, void* address) {
  int* const reversal = static_cast<int*>(address);
  spec->bit_rev = reversal;
  void* const behind = order < LargeShape<T>::block_reversal_order
                           ? t7_vsps_initTabBitRev(order, reversal)
                           : t7_vsps_initTabBitRevLarge(order, 6, reversal);
  return step_tables(spec, LargeShape<T>(order), sines, static_cast<T*>(behind));
}

template <class T>
void large_sizes(int order, int* spec_size, int* init_size, int* buf_size) {
  const LargeShape<T> shape(order);
  *spec_size = shape.twiddle_bytes();
  *init_size = 0;
  *buf_size = shape.work_size();
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;

ORB_EXPORT void t7_vsps_getSizesTwd_Large_32f(int order, int* spec_size, int* init_size, int* buf_size) {
  large_sizes<float>(order, spec_size, init_size, buf_size);
}
ORB_EXPORT void t7_vsps_getSizeTwd_Large_64f(int order, int* spec_size, int* init_size, int* buf_size) {
  large_sizes<double>(order, spec_size, init_size, buf_size);
}
ORB_EXPORT void* t7_vsps_initTabTwd_Large_32f(VspsFFTSpec* spec, int order, const float* sines,
                                              int sine_order, void* address) {
  return large_tables(fft_spec<float>(spec), order, Sines<float>{sines, sine_order}, address);
}
ORB_EXPORT void* t7_vsps_initTabTwd_Large_64f(VspsFFTSpec* spec, int order, const double* sines,
                                              int sine_order, void* address) {
  return large_tables(fft_spec<double>(spec), order, Sines<double>{sines, sine_order}, address);
}
