// The radix-4 loop over whole arrays, with and without the reversal.
#pragma once

#include "signal/kernel/fft/straight.h"

namespace orb::signal {

// n = 2^k numbers, 8 at least, in natural order to their transform in natural order. The levels run in
// `work`, whose memory may be that of `out` but not that of `in`; see passes.h for the tables.
template <Direction d, class T, class In, class Out>
void norm_transform(In in, Out out, Blocked<T> work, int n, const T* twiddles, const int* reversed) {
  if (n == 8) return straight<3, d, T>(in, out);
  first_level_reversing<d>(in, work, n, reversed);
  later_levels<d>(work, out, n, twiddles, [](int, int) {});
}

// The same on numbers in bit-reversed order, 16 at least; all three may be one array.
template <Direction d, class T, class In, class Out>
void reversed_transform(In in, Out out, Blocked<T> work, int n, const T* twiddles) {
  later_levels<d>(work, out, n, twiddles, [=](int at, int m) { first_level<d>(in + at, work + at, m); });
}

// Interleaved, in place or not: the work is done in the output where it is aligned and distinct, else in the
// buffer. Two arrays always go through the buffer.
template <Direction d, class T>
void norm_fft(Interleaved<const T> in, Interleaved<T> out, int n, const T* twiddles, const int* reversed,
              T* buffer) {
  const bool in_output = is_aligned(out.p) && in.p != out.p;
  norm_transform<d>(in, out, Blocked<T>{in_output ? out.p : buffer}, n, twiddles, reversed);
}
template <Direction d, class T>
void norm_fft(Apart<const T> in, Apart<T> out, int n, const T* twiddles, const int* reversed, T* buffer) {
  norm_transform<d>(in, out, Blocked<T>{buffer}, n, twiddles, reversed);
}

template <Direction d, class T>
void reversed_fft(Interleaved<T> data, int n, const T* twiddles, T* buffer) {
  reversed_transform<d>(data, data, Blocked<T>{is_aligned(data.p) ? data.p : buffer}, n, twiddles);
}
template <Direction d, class T>
void reversed_fft(Apart<T> data, int n, const T* twiddles, T* buffer) {
  reversed_transform<d>(data, data, Blocked<T>{buffer}, n, twiddles);
}

}  // namespace orb::signal
