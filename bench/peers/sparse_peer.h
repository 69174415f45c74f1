// A peer for the sparse cases: a shared object with the names of our sparse front. It does what the cases ask
// for and no more: beta = 1 in products, six descriptions, no checks.
#pragma once

#include <bit>

#include "orb/sparse.h"

namespace orb::bench {

template <class T>
struct PeerMatrix {
  int m, k;
  const T* values;
  const int *columns, *row_begin;
  bool from_one() const { return row_begin[0] == 1; }
};

}  // namespace orb::bench

// Defines the front of one type on Peer<T>'s functions mv, mm, sv and sm.
#define SPARSE_PEER(t, Orb, T)                                                                              \
  extern "C" __attribute__((visibility("default"))) void orb_##t##csrmv(                                    \
      char op, int m, int k, Orb alpha, const char* matrix, const Orb* values, const int* columns,          \
      const int* row_begin, const int*, const Orb* x, Orb, Orb* y) {                                        \
    Peer<T>::mv({m, k, (const T*)values, columns, row_begin}, op == 'T', matrix[0] == 'S', std::bit_cast<T>(alpha),     \
                (const T*)x, (T*)y);                                                                        \
  }                                                                                                         \
  extern "C" __attribute__((visibility("default"))) void orb_##t##csrmm(                                    \
      char op, int m, int n, int k, Orb alpha, const char* matrix, const Orb* values, const int* columns,   \
      const int* row_begin, const int*, const Orb* b, int ldb, Orb, Orb* c, int ldc) {                      \
    Peer<T>::mm({m, k, (const T*)values, columns, row_begin}, op == 'T', matrix[0] == 'S', n, std::bit_cast<T>(alpha),  \
                (const T*)b, ldb, (T*)c, ldc);                                                              \
  }                                                                                                         \
  extern "C" __attribute__((visibility("default"))) void orb_##t##csrsv(                                    \
      char, int m, Orb, const char* matrix, const Orb* values, const int* columns, const int* row_begin,    \
      const int*, const Orb* x, Orb* y) {                                                                   \
    Peer<T>::sv({m, m, (const T*)values, columns, row_begin}, matrix[1] == 'L', (const T*)x, (T*)y);        \
  }                                                                                                         \
  extern "C" __attribute__((visibility("default"))) void orb_##t##csrsm(                                    \
      char, int m, int n, Orb, const char* matrix, const Orb* values, const int* columns,                   \
      const int* row_begin, const int*, const Orb* b, int ldb, Orb* c, int ldc) {                           \
    Peer<T>::sm({m, m, (const T*)values, columns, row_begin}, matrix[1] == 'L', n, (const T*)b, ldb, (T*)c, \
                ldc);                                                                                       \
  }
