// How the large orders are cut: 2^blk rows; columns travel together so that the work buffer holds 2^buf
// numbers.
#pragma once

#include "signal/kernel/fft/tables.h"

namespace orb::signal {

struct Cut {
  int blk, buf;
};

// By order from the first large one on; the last row holds for all above it.
constexpr Cut cuts_32f[] = {{3, 9}, {4, 10}, {4, 10}, {4, 10}, {5, 13}, {8, 15}};
constexpr Cut cuts_64f[] = {{4, 8}, {4, 10}, {4, 10}, {4, 10}, {6, 13}, {6, 13}, {8, 14}};

template <class T>
struct LargeShape {
  int order, blk, buf;

  explicit constexpr LargeShape(int of_order) : order(of_order), blk(), buf() {
    const bool single = sizeof(T) == 4;
    const int last = single ? 5 : 6, row = of_order - FftLimits<T>::loop_order - 1;
    const Cut cut = single ? cuts_32f[row < last ? row : last] : cuts_64f[row < last ? row : last];
    blk = cut.blk, buf = cut.buf;
  }
  constexpr int row_order() const { return order - blk; }
  constexpr int row_length() const { return 1 << row_order(); }
  constexpr int rows() const { return 1 << blk; }
  constexpr int columns_together() const { return 1 << (buf - blk); }
  constexpr bool rows_are_large() const { return row_order() > FftLimits<T>::loop_order; }
  constexpr LargeShape row_shape() const { return LargeShape(row_order()); }
  // Place among the record's column tables: 0 for the innermost.
  constexpr int level() const { return rows_are_large() ? row_shape().level() + 1 : 0; }
  constexpr int column_twiddle_bytes() const { return int(2 * sizeof(T)) << order; }
  constexpr int twiddle_bytes() const {
    return column_twiddle_bytes() +
           (rows_are_large() ? row_shape().twiddle_bytes() : loop_twiddle_bytes<T>(row_order()));
  }
  constexpr int work_size() const {
    int bytes = rows_are_large() ? row_shape().work_size() : work_bytes<T>(row_order());
    for (int least : {work_bytes<T>(buf), order >= block_reversal_order ? work_bytes<T>(13) : 0})
      if (bytes < least) bytes = least;
    return bytes;
  }

  static constexpr int block_reversal_order = 18;  // from here on in blocks of 64 by 64
};

}  // namespace orb::signal
