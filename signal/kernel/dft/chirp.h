// Any length by a convolution of a power of two: with c[k] = exp(-pi i k^2 / n), X[k] is c[k] times the
// convolution of x[j] c[j] with the conjugate chirp. The inverse transform is the forward one with numbers k
// and n - k exchanged.
#pragma once

#include "signal/kernel/dft/spec.h"

namespace orb::signal {

// Bytes of the convolution's own array in front of the buffer of its FFT.
template <class T>
int convolution_bytes(int order) {
  return int(2 * sizeof(T)) << order;
}

// Builds chirp, filter and FFT for n from the roots of unity of 2n.
template <class T>
VspStatus make_convolution(DftSpec<T>& spec, int n, int hint, const complex_of<T>* base);

template <Direction d, class T>
VspStatus convolve(const DftSpec<T>& spec, Interleaved<const T> in, Interleaved<T> out, int n, void* buffer);
template <Direction d, class T>
VspStatus convolve(const DftSpec<T>& spec, Apart<const T> in, Apart<T> out, int n, void* buffer);

}  // namespace orb::signal
