// Formats of a real transform of n numbers. Between Perm and Pack n is even: for odd n they are one.
#pragma once

#include <string.h>

namespace orb::signal {

// In place: the value at the middle of the spectrum goes from place 1 to the end.
template <class T>
void perm_to_pack(T* data, int n) {
  if (n <= 2) return;
  const T middle = data[1];
  memmove(data + 1, data + 2, sizeof(T) * unsigned(n - 2));
  data[n - 1] = middle;
}

// `in` and `out` may be one array.
template <class T>
void pack_to_perm(const T* in, T* out, int n) {
  const T middle = in[n - 1];
  if (n > 2) memmove(out + 2, in + 1, sizeof(T) * unsigned(n - 2));
  out[0] = in[0];
  if (n > 1) out[1] = middle;
}

// In place, n + 2 reals for even n, n + 1 for odd.
template <class T>
void perm_to_ccs(T* data, int n) {
  if (n % 2) {
    memmove(data + 2, data + 1, sizeof(T) * unsigned(n - 1));
  } else {
    data[n] = data[1], data[n + 1] = 0;
  }
  data[1] = 0;
}

// `in` and `out` may be one array; n reals of `out` are written.
template <class T>
void ccs_to_perm(const T* in, T* out, int n) {
  const T middle = in[n % 2 ? 0 : n];
  out[0] = in[0];
  if (n % 2)
    memmove(out + 1, in + 2, sizeof(T) * unsigned(n - 1));
  else if (n > 2)
    memmove(out + 2, in + 2, sizeof(T) * unsigned(n - 2));
  if (n % 2 == 0) out[1] = middle;
}

}  // namespace orb::signal
