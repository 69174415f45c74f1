// Comparison to the bit, where -0 is not 0. Any NaN equals any other: which operand's payload and sign a sum
// of two NaNs takes is not promised.
#pragma once

#include <string.h>

#include <string>
#include <utility>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/element.h"

namespace orb::test {

template <class T>
bool same(T a, T b) {
  if constexpr (is_complex<T>)
    return same(a.re, b.re) && same(a.im, b.im);
  else
    return memcmp(&a, &b, sizeof a) == 0 || (a != a && b != b);
}

template <class T>
std::string shown(T x) {
  if constexpr (is_complex<T>)
    return testing::PrintToString(std::pair(x.re, x.im));
  else
    return testing::PrintToString(x);
}

// `got` is an array with data() and size().
template <class Array, class T>
testing::AssertionResult same_elements(const Array& got, const std::vector<T>& want) {
  if (size_t(got.size()) != want.size()) return testing::AssertionFailure() << "sizes differ";
  for (size_t i = 0; i < want.size(); ++i)
    if (!same(got.data()[i], want[i]))
      return testing::AssertionFailure()
             << "element " << i << " is " << shown(got.data()[i]) << ", not " << shown(want[i]);
  return testing::AssertionSuccess();
}

}  // namespace orb::test
