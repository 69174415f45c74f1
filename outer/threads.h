// How many threads, and how to run pieces of work on them.
#pragma once

#include <xmmintrin.h>

#include "orb/orb.h"

namespace orb {

// To be called by whoever is about to start threads: from then on a forked child is known to have lost them.
void threads_used();

// body(0), ..., body(pieces - 1), on a thread each if so many can be had. The threads round and treat
// subnormals as the calling one does.
template <class Body>
void run_pieces(int pieces, Body body) {
  const unsigned mode = _mm_getcsr();
  threads_used();
#ifdef _OPENMP
#pragma omp parallel for schedule(static, 1) num_threads(pieces)
#endif
  for (int i = 0; i < pieces; ++i) {
    const unsigned own = _mm_getcsr();
    _mm_setcsr(mode);
    body(i);
    _mm_setcsr(own);
  }
}

}  // namespace orb
