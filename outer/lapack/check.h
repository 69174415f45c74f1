// Checks that the faces of the factorisations share, in LAPACK's order and with its answers.
#pragma once

#include "orb/blas.h"
#include "outer/boundary.h"

namespace orb {

ORB_INLINE bool is_triangle_letter(const char* p) { return is_option(p, 'U') || is_option(p, 'L'); }
ORB_INLINE bool is_side_letter(const char* p) { return is_option(p, 'L') || is_option(p, 'R'); }
ORB_INLINE bool can_lead(int ld, int rows) { return ld >= 1 && ld >= rows; }

// Tells of a bad argument, if `place` is one: the routine's name in six letters, and its place. True then.
ORB_INLINE bool reported(const char* name, int place) {
  if (place) xerbla_(name, &place, 6);
  return place != 0;
}

}  // namespace orb
