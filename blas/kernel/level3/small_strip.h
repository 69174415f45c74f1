// Strips of op(A) for the small path: rows side by side in `count` registers W for each k, on 16-byte
// boundaries. A strip of fewer rows repeats its last one.
#pragma once

#include "blas/kernel/level3/small_product.h"

namespace orb::blas {

// From rows side by side in A: element (row, k) at a + row + k * lda.
template <class W, int count, class T>
void lay_strip(int rows, int depth, const T* a, int lda, T* strip) {
  for (; depth > 0; --depth, a += lda, strip += count * W::lanes) {
    W x[count];
    load_rows(a, rows, x);
    unroll<count>([&](auto r) ORB_INLINE_BODY { x[r].store(strip + r * W::lanes); });
  }
}

// From rows one behind the other in A: element (row, k) at a + k + row * lda.
template <class W, int count, class T>
void lay_strip_transposed(int rows, int depth, const T* a, int lda, T* strip) {
  constexpr int height = count * W::lanes;
  const auto row = [=](int r) { return a + std::min(r, rows - 1) * lda; };
  int k = 0;
  if constexpr (W::lanes > 1)
    for (; depth - k >= W::lanes; k += W::lanes)
      for (int top = 0; top < height; top += W::lanes) {
        W block[W::lanes];
        unroll<W::lanes>([&](auto r) ORB_INLINE_BODY { block[r] = W::loadu(row(top + r) + k); });
        W::transpose(block);
        unroll<W::lanes>([&](auto d) ORB_INLINE_BODY { block[d].store(strip + top + (k + d) * height); });
      }
  for (; k < depth; ++k)
    for (int r = 0; r < height; ++r) strip[r + k * height] = row(r)[k];
}

}  // namespace orb::blas
