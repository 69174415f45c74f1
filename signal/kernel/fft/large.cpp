// Exported: large orders, as rows that fit the caches and columns that travel through a buffer in groups.
// Source: D. H. Bailey, FFTs in external or hierarchical memory, J. Supercomputing 4 (1990) 23-35.
#include "orb/signal_power_of_two.h"
#include "signal/kernel/arrays.h"
#include "signal/kernel/fft/bit_rev.h"
#include "signal/kernel/fft/blocks.h"
#include "signal/kernel/fft/large_shape.h"
#include "signal/kernel/fft/radix4.h"
#include "signal/kernel/scale.h"

namespace orb::signal {
namespace {

// Bit-reversal in blocks of 64 by 64 elements, n/64 apart, which stay in the cache while they are turned.
// `in` and `out` are one array or do not overlap; `buffer` has room for two blocks.
template <class E>
void reverse_in_blocks(const E* in, E* out, int order, const int* table, E* buffer) {
  constexpr int side = 64, block = side * side;
  const int blocks = 1 << (order - 12), stride = 1 << (order - 6);
  const int* const inside = table + blocks;
  const auto fetch = [&](int start, E* to) {
    merge_rows(in + start, to, stride, side, side);
    reverse_bits(to, to, block, inside);
  };
  for (int b = 0; b < blocks; ++b) {
    const int i = b * side, j = table[b];
    if (i > j) continue;
    fetch(i, buffer);
    if (i < j) {
      fetch(j, buffer + block);
      split_rows(out + i, buffer + block, stride, side, side);
    }
    split_rows(out + j, buffer, stride, side, side);
  }
}

template <class E>
void reverse_array(const E* in, E* out, int order, const int* table, void* buffer) {
  if (order < LargeShape<float>::block_reversal_order)
    reverse_bits(in, out, 1 << order, table);
  else
    reverse_in_blocks(in, out, order, table, static_cast<E*>(buffer));
}
template <class T>
void reverse(Interleaved<const T> in, Interleaved<T> out, int order, const int* table, T* buffer) {
  using C = complex_of<T>;
  reverse_array(reinterpret_cast<const C*>(in.p), reinterpret_cast<C*>(out.p), order, table, buffer);
}
template <class T>
void reverse(Apart<const T> in, Apart<T> out, int order, const int* table, T* buffer) {
  reverse_array(in.re, out.re, order, table, buffer);
  reverse_array(in.im, out.im, order, table, buffer);
}

// Butterflies down the columns, from `data` through the buffer to `out`, which is the same memory.
template <Direction d, class T, class In, class Out>
void transform_columns(LargeShape<T> shape, In data, Out out, const T* w, T* buffer) {
  const int length = shape.row_length(), together = shape.columns_together();
  const Blocked<T> work{buffer};
  for (int column = 0; column < length; column += together) {
    for (int row = 0; row < shape.rows(); row += 4)
      radix4_rows<d>(data + (row * length + column), length, work + row * together, together, together, w);
    w += 6 * together;
    int done = 4;
    for (; 4 * done < shape.rows(); w += 6 * done * together, done *= 4)
      radix4_blocks<d>(work, work, done * together, shape.rows() / (4 * done), w);
    const bool by_four = 4 * done == shape.rows();
    for (int row = 0; row < done; ++row, w += (by_four ? 6 : 2) * together) {
      const auto from = work + row * together;
      const auto to = out + (row * length + column);
      if (by_four)
        radix4_rows<d>(from, done * together, to, done * length, together, w);
      else
        radix2_rows<d>(from, done * together, to, done * length, together, w);
    }
  }
}

template <class T>
Blocked<T> row_work(Blocked<T> row, T*) {
  return row;
}
template <class Row, class T>
Blocked<T> row_work(Row, T* buffer) {
  return {buffer};
}

// Numbers in bit-reversed order to their transform. Three views of one memory: `in` as they stand, `rows` as
// rows leave them, `out` as the result stands. `scale` is null or multiplies all rows.
template <Direction d, class T, class In, class Rows, class Out>
void block_step(const FftSpec<T>& spec, LargeShape<T> shape, In in, Rows rows, Out out, T* buffer,
                const T* scale) {
  const int length = shape.row_length();
  for (int at = 0; at < shape.rows() * length; at += length) {
    if (shape.rows_are_large()) {
      block_step<d>(spec, shape.row_shape(), in + at, rows + at, rows + at, buffer, scale);
    } else {
      reversed_transform<d>(in + at, rows + at, row_work(rows + at, buffer), length, spec.twiddles);
      if (scale) multiply(rows + at, length, *scale);
    }
  }
  transform_columns<d>(shape, rows, out, spec.columns[shape.level()], buffer);
}

// Rows of an aligned array stay in the work format until the columns put it right.
template <Direction d, class T>
void large_fft(const FftSpec<T>& spec, Interleaved<const T> in, Interleaved<T> out, int order, T* buffer) {
  const T* const scale = (d == forward ? spec.do_fwd_scale : spec.do_inv_scale) ? &spec.scale : nullptr;
  reverse(in, out, order, spec.bit_rev, buffer);
  if (is_aligned(out.p))
    block_step<d>(spec, LargeShape<T>(order), out, Blocked<T>{out.p}, out, buffer, scale);
  else
    block_step<d>(spec, LargeShape<T>(order), out, out, out, buffer, scale);
}
template <Direction d, class T>
void large_fft(const FftSpec<T>& spec, Apart<const T> in, Apart<T> out, int order, T* buffer) {
  const T* const scale = (d == forward ? spec.do_fwd_scale : spec.do_inv_scale) ? &spec.scale : nullptr;
  reverse(in, out, order, spec.bit_rev, buffer);
  block_step<d>(spec, LargeShape<T>(order), out, out, out, buffer, scale);
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;
using orb::signal::forward;

#define LARGE_INTERLEAVED(name, direction, C, T)                                                   \
  ORB_EXPORT void name(const VspsFFTSpec* spec, const C* in, C* out, int order, void* buffer) {    \
    large_fft<direction>(*fft_spec<T>(spec), view(in), view(out), order, static_cast<T*>(buffer)); \
  }
LARGE_INTERLEAVED(t7_vsps_cFftFwd_Large_32fc, forward, orb_complex_float, float)
LARGE_INTERLEAVED(t7_vsps_cFftInv_Large_32fc, inverse, orb_complex_float, float)
LARGE_INTERLEAVED(t7_vsps_cFftFwd_Large_64fc, forward, orb_complex_double, double)
LARGE_INTERLEAVED(t7_vsps_cFftInv_Large_64fc, inverse, orb_complex_double, double)

#define LARGE_APART(name, direction, T)                                                                     \
  ORB_EXPORT void name(const VspsFFTSpec* spec, const T* in_re, const T* in_im, T* out_re, T* out_im,       \
                       int order, void* buffer) {                                                           \
    large_fft<direction>(*fft_spec<T>(spec), Apart<const T>{in_re, in_im}, Apart<T>{out_re, out_im}, order, \
                         static_cast<T*>(buffer));                                                          \
  }
LARGE_APART(t7_vsps_crFftFwd_Large_32f, forward, float)
LARGE_APART(t7_vsps_crFftInv_Large_32f, inverse, float)
LARGE_APART(t7_vsps_crFftFwd_Large_64f, forward, double)
LARGE_APART(t7_vsps_crFftInv_Large_64f, inverse, double)
