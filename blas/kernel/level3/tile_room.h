// Where the drivers of tiles pack their operands: on the stack if little is needed, otherwise in one block of
// scratch.
#pragma once

#include <algorithm>

#include "blas/kernel/level3/tile_panels.h"
#include "orb/services.h"
#include "serv/kernel/scratch.h"

namespace orb::blas::tiles {

constexpr int panel_bytes = 512 * 1024;       // of op(A): half of a second-level cache of 1 MiB
constexpr int small_panel_bytes = 16 * 1024;  // what fits the stack, and the first-level cache

template <class T>
struct Room {
  int rows;  // of op(A), packed at a time: whole strips of `most_depth`, or of k if that is less
  T* panel;
  real_of<T>* splats;
};

template <class T, class Body>
__attribute__((noinline)) void with_stack(int rows, Body body) {
  alignas(64) T panel[small_panel_bytes / sizeof(T)];
  alignas(64) real_of<T> splats[splat_reals<T>];
  body(Room<T>{rows, panel, splats});
}

template <class T, class Body>
void with_scratch(int alignment, Body body) {
  // The splats stand 384 bytes past a line, away from the sets that the panel's start falls into.
  constexpr int page = 4096, gap = 384, splat_bytes = splat_reals<T> * int(sizeof(real_of<T>));
  char* const block =
      static_cast<char*>(orb_serv_allocate(page + panel_bytes + gap + splat_bytes, alignment));
  char* const panel = round_forward(block, page);
  body(Room<T>{panel_bytes / most_depth / int(sizeof(T)), reinterpret_cast<T*>(panel),
               reinterpret_cast<real_of<T>*>(panel + panel_bytes + gap)});
  orb_serv_deallocate(block);
}

// body(room) for a call that packs `rows` rows and k terms in all.
template <class T, class Body>
void with_room(int rows, int k, int alignment, Body body) {
  constexpr int most = small_panel_bytes / int(sizeof(T)), height = RowStrips<T>::height;
  if (rows <= most - height && (rows + height) * std::min(k, most_depth) <= most)
    with_stack<T>((rows + height - 1) / height * height, body);
  else
    with_scratch<T>(alignment, body);
}

}  // namespace orb::blas::tiles
