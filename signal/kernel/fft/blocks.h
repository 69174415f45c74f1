// Blocks of rows moved between an array and a buffer.
#pragma once

#include <string.h>

namespace orb::signal {

template <class E>
void merge_rows(const E* source, E* buffer, int stride, int rows, int columns) {
  for (; rows > 0; --rows, source += stride, buffer += columns)
    memcpy(buffer, source, sizeof(E) * unsigned(columns));
}
template <class E>
void split_rows(E* target, const E* buffer, int stride, int rows, int columns) {
  for (; rows > 0; --rows, target += stride, buffer += columns)
    memcpy(target, buffer, sizeof(E) * unsigned(columns));
}

}  // namespace orb::signal
