// What the faces ask of a scalar argument.
#pragma once

#include "serv/kernel/zero.h"

namespace orb {

// A real factor as an element of the matrix that it multiplies.
template <class T, class R>
ORB_INLINE T as_element(R a) {
  if constexpr (Complex<T> && Real<R>)
    return {a, 0};
  else
    return a;
}

}  // namespace orb
