// Formats of a real transform of n numbers, n even: from Perm to Pack and back.
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

}  // namespace orb::signal
