// How a Fortran face answers a bad argument.
#pragma once

#include <string.h>

#include "orb/blas.h"
#include "outer/boundary.h"

namespace orb {

// `name` is the routine's, blank-padded to six characters.
ORB_ASIDE inline void refuse(const char* name, int place) { xerbla_(name, &place, strlen(name)); }

}  // namespace orb
