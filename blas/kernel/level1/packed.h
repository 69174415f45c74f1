// Walks over the entries of a packed sparse vector.
#pragma once

#include "serv/kernel/boundary.h"

namespace orb::blas {

// The place of entry i in the full vector y; places count from 1.
template <class T>
ORB_INLINE T* place(T* y, const int* indx, int i) {
  return y + (indx[i] - 1);
}

// step(i) for all entries in rising order, two a round.
template <class Step>
ORB_INLINE void for_entries(int nz, Step step) {
  int i = 0;
  for (; nz - i >= 2; i += 2) step(i), step(i + 1);
  if (i < nz) step(i);
}

}  // namespace orb::blas
