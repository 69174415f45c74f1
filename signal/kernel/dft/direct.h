// The direct sum over an odd n, by pairs of numbers j and n - j.
#pragma once

#include "signal/kernel/dft/butterflies.h"

namespace orb::signal {

// `roots` holds exp(-2 pi i k / n); `room` takes n - 1 numbers. `in` and `out` may be one array.
template <Direction d, class T, class In, class Out>
void direct_sum(In in, Out out, int n, const complex_of<T>* roots, complex_of<T>* room) {
  using Z = one_of<complex_of<T>>;
  const int half = n / 2;
  complex_of<T>*const sums = room, *const differences = room + half;
  const Z first = in.template numbers<Z>(0);
  Z total = first;
  for (int j = 1; j <= half; ++j) {
    const Z a = in.template numbers<Z>(j), b = in.template numbers<Z>(n - j);
    (a + b).store(sums + j - 1), (a - b).store(differences + j - 1);
    total = total + (a + b);
  }
  out.put(0, total);
  for (int k = 1; k <= half; ++k) {
    Z a = first, b = Z::zero();
    for (int j = 0, place = k; j < half; ++j) {
      a = a + Z::splat(roots[place].re) * Z::load(sums + j);
      b = b - Z::splat(roots[place].im) * Z::load(differences + j);  // roots hold the negated sine
      place += k;
      if (place >= n) place -= n;
    }
    Z minus, plus;
    turn_apart(a, b, minus, plus);
    out.put(d == forward ? k : n - k, minus);
    out.put(d == forward ? n - k : k, plus);
  }
}

// Real input; the transform in Perm format. A register holds a sum and a difference, which take the cosine
// and the negated sine together.
template <class T>
void direct_sum_real(const T* in, T* out, int n, const complex_of<T>* roots, complex_of<T>* room) {
  using Z = one_of<complex_of<T>>;
  const int half = n / 2;
  const T first = in[0];
  T total = first;
  for (int j = 1; j <= half; ++j) {
    const T sum = in[j] + in[n - j];
    room[j - 1] = {sum, in[j] - in[n - j]};
    total += sum;
  }
  out[0] = total;
  for (int k = 1; k <= half; ++k) {
    Z value = Z::zero();
    for (int j = 0, place = k; j < half; ++j) {
      value = value + Z{Z::load(roots + place).v * Z::load(room + j).v};
      place += k;
      if (place >= n) place -= n;
    }
    out[2 * k - 1] = first + value.v.first();
    out[2 * k] = swap_parts(value.v).first();
  }
}

}  // namespace orb::signal
