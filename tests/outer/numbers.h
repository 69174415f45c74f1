// Numbers and calls that the tests of the faces share.
#pragma once

#include <complex>
#include <type_traits>
#include <vector>

#include "tests/support/call.h"
#include "tests/support/element.h"

namespace orb::test {

// Element types to and from the wider numbers that the models compute with. Data are small integers, so that
// every order of operations gives the same bits.
using Wide = std::complex<double>;

template <class T>
T number(Wide z) {
  if constexpr (is_complex<T>)
    return {decltype(T::re)(z.real()), decltype(T::im)(z.imag())};
  else
    return T(z.real());
}
template <class T>
Wide wide(T x) {
  if constexpr (is_complex<T>)
    return {x.re, x.im};
  else
    return x;
}
template <class T>
std::vector<Wide> wide(const std::vector<T>& x) {
  std::vector<Wide> w;
  for (const T& e : x) w.push_back(wide(e));
  return w;
}

template <class T>
std::vector<T> integers(int n, int seed) {
  std::vector<T> x;
  for (int i = 0; i < n; ++i)
    x.push_back(number<T>({double((i * 7 + seed) % 11 - 5), double((i * 5 + seed) % 7 - 3)}));
  return x;
}

// Where element i of a strided vector stands.
inline size_t place(int i, int n, int inc) { return size_t(inc < 0 ? (i + 1 - n) * inc : i * inc); }
inline int extent(int n, int inc) { return n > 0 ? (n - 1) * std::abs(inc) + 1 : 0; }

// Calls an entry of either face with the same list of values: where the face wants a pointer to one, it gets
// that.
template <class P, class A>
P as_parameter(A& a) {
  if constexpr (std::is_convertible_v<A, P>)
    return a;
  else
    return &a;
}
template <class R, class... P, class... A>
R call_face(R (*f)(P...), A... a) {
  return call(f, as_parameter<P>(a)...);
}

}  // namespace orb::test
