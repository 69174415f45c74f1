// Comparison to the bit, where -0 is not 0 and a NaN equals itself.
#pragma once

#include <string.h>

#include <vector>

#include "gtest/gtest.h"

namespace orb::test {

inline double shown(float x) { return x; }
inline double shown(double x) { return x; }
template <class C>
auto shown(C x) -> decltype(testing::PrintToString(x.re)) {
  return "(" + testing::PrintToString(x.re) + ", " + testing::PrintToString(x.im) + ")";
}

// `got` is an array with data() and size().
template <class Array, class T>
testing::AssertionResult same_bits(const Array& got, const std::vector<T>& want) {
  for (size_t i = 0; i < want.size(); ++i)
    if (memcmp(&got.data()[i], &want[i], sizeof(T)) != 0)
      return testing::AssertionFailure()
             << "element " << i << " is " << shown(got.data()[i]) << ", not " << shown(want[i]);
  return size_t(got.size()) == want.size() ? testing::AssertionSuccess()
                                           : testing::AssertionFailure() << "sizes differ";
}

}  // namespace orb::test
