// The kinds of records and compute calls behind common words: a kind knows how a sequence of complex numbers
// stands in its arrays, and calls its entries the way an old caller may.
#pragma once

#include <algorithm>

#include "orb/signal.h"
#include "tests/signal/reference.h"
#include "tests/support/call.h"
#include "tests/support/element.h"
#include "tests/support/guarded.h"

namespace orb::test {

// One or two arrays of T, at a place within 16 bytes (see Guarded).
template <class T>
struct Arrays {
  std::vector<std::unique_ptr<Guarded<T>>> parts;
  Arrays(int count, int size, int place) {
    for (int i = 0; i < count; ++i) parts.push_back(std::make_unique<Guarded<T>>(size, place));
  }
  T* operator[](int i) const { return parts[size_t(i)]->data(); }
  std::vector<T> image() const {
    std::vector<T> all;
    for (const auto& p : parts) all.insert(all.end(), p->begin(), p->end());
    return all;
  }
};

template <class T>
using complex_type = std::conditional_t<sizeof(T) == 4, orb_complex_float, orb_complex_double>;

// Numbers side by side: fwd and inv take (in, out, spec, buffer).
template <class T_, class Spec, auto fwd, auto inv>
struct InterleavedCalls {
  using T = T_;
  using C = complex_type<T>;
  static constexpr bool is_real = false;
  static Arrays<T> arrays(int n, int place) { return {1, 2 * n, place}; }
  static void put(const Sequence& x, const Arrays<T>& to) {
    for (size_t i = 0; i < x.size(); ++i) to[0][2 * i] = T(x[i].real()), to[0][2 * i + 1] = T(x[i].imag());
  }
  static void put_spectrum(const Sequence& x, const Arrays<T>& to) { put(x, to); }
  static Sequence get(const Arrays<T>& from, int n) {
    Sequence x((size_t)n);
    for (int i = 0; i < n; ++i) x[size_t(i)] = {from[0][2 * i], from[0][2 * i + 1]};
    return x;
  }
  static Sequence get_spectrum(const Arrays<T>& from, int n) { return get(from, n); }
  static VspStatus run(int sign, const Arrays<T>* in, const Arrays<T>* out, const Spec* spec, void* buffer) {
    return call(sign == forward_sign ? fwd : inv, in ? reinterpret_cast<C*>((*in)[0]) : nullptr,
                out ? reinterpret_cast<C*>((*out)[0]) : nullptr, spec, buffer);
  }
};

// Real and imaginary parts in an array each.
template <class T_, class Spec, auto fwd, auto inv>
struct SplitCalls {
  using T = T_;
  static constexpr bool is_real = false;
  static Arrays<T> arrays(int n, int place) { return {2, n, place}; }
  static void put(const Sequence& x, const Arrays<T>& to) {
    for (size_t i = 0; i < x.size(); ++i) to[0][i] = T(x[i].real()), to[1][i] = T(x[i].imag());
  }
  static void put_spectrum(const Sequence& x, const Arrays<T>& to) { put(x, to); }
  static Sequence get(const Arrays<T>& from, int n) {
    Sequence x((size_t)n);
    for (int i = 0; i < n; ++i) x[size_t(i)] = {from[0][i], from[1][i]};
    return x;
  }
  static Sequence get_spectrum(const Arrays<T>& from, int n) { return get(from, n); }
  static VspStatus run(int sign, const Arrays<T>* in, const Arrays<T>* out, const Spec* spec, void* buffer) {
    return call(sign == forward_sign ? fwd : inv, in ? (*in)[0] : nullptr, in ? (*in)[1] : nullptr,
                out ? (*out)[0] : nullptr, out ? (*out)[1] : nullptr, spec, buffer);
  }
};

enum class Format { perm, pack, ccs };

// Real data, its transform in a format. Place of Re X[k] among the reals, and of Im X[k] where it is stored.
struct Places {
  int re, im;  // -1: not stored, zero
};
inline Places places(Format format, int n, int k) {
  const bool even = n % 2 == 0, middle = even && 2 * k == n;
  if (format == Format::ccs) return {2 * k, 2 * k + 1};
  if (k == 0) return {0, -1};
  if (format == Format::perm && even) return middle ? Places{1, -1} : Places{2 * k, 2 * k + 1};
  return {2 * k - 1, middle ? -1 : 2 * k};
}

template <class T_, class Spec, Format format_, auto fwd, auto inv>
struct RealCalls {
  using T = T_;
  static constexpr Format format = format_;
  static constexpr bool is_real = true;
  static int reals(int n) { return format == Format::ccs ? n + 2 - n % 2 : n; }
  static Arrays<T> arrays(int n, int place) { return {1, reals(n), place}; }
  static void put(const Sequence& x, const Arrays<T>& to) {
    for (size_t i = 0; i < x.size(); ++i) to[0][i] = T(x[i].real());
  }
  static void put_spectrum(const Sequence& x, const Arrays<T>& to) {
    const int n = int(x.size());
    for (int k = 0; k <= n / 2; ++k) {
      const Places at = places(format, n, k);
      to[0][at.re] = T(x[size_t(k)].real());
      if (at.im >= 0) to[0][at.im] = T(x[size_t(k)].imag());
    }
  }
  static Sequence get(const Arrays<T>& from, int n) {
    Sequence x((size_t)n);
    for (int i = 0; i < n; ++i) x[size_t(i)] = {from[0][i], 0};
    return x;
  }
  static Sequence get_spectrum(const Arrays<T>& from, int n) {
    Sequence x((size_t)n);
    for (int k = 0; k <= n / 2; ++k) {
      const Places at = places(format, n, k);
      const Wide value{from[0][at.re], at.im < 0 ? 0 : from[0][at.im]};
      if (k > 0) x[size_t(n - k)] = std::conj(value);
      x[size_t(k)] = value;
    }
    return x;
  }
  static VspStatus run(int sign, const Arrays<T>* in, const Arrays<T>* out, const Spec* spec, void* buffer) {
    return call(sign == forward_sign ? fwd : inv, in ? (*in)[0] : nullptr, out ? (*out)[0] : nullptr, spec,
                buffer);
  }
};

}  // namespace orb::test
