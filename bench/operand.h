// Operands of the cases: element types, aligned memory, repeatable data and the comparison of results.
#pragma once

#include <cmath>
#include <complex>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>

namespace orb::bench {

template <class T>
struct Scalar {
  using Real = T;
  using Wide = long double;
  static constexpr bool is_complex = false;
  static constexpr int index = sizeof(T) / 8;  // into lists in the order s d c z
};
template <class T>
struct Scalar<std::complex<T>> {
  using Real = T;
  using Wide = std::complex<long double>;
  static constexpr bool is_complex = true;
  static constexpr int index = 2 + sizeof(T) / 8;
};
template <class T>
using Real = typename Scalar<T>::Real;
template <class T>
using Wide = typename Scalar<T>::Wide;

template <class T>
std::string letter_of() {
  return std::string(1, "sdcz"[Scalar<T>::index]);
}

// Largest relative error of one rounding; a complex product has two, and their sum another.
template <class T>
long double unit_roundoff() {
  const long double u = std::numeric_limits<Real<T>>::epsilon() / 2;
  return Scalar<T>::is_complex ? 2 * std::sqrt(2.0L) * u : u;
}

// Memory for `count` elements that starts `offset` bytes past a 64-byte boundary.
template <class T>
class Array {
 public:
  Array(std::size_t count, std::size_t offset = 0)
      : block_(static_cast<char*>(std::aligned_alloc(64, (count * sizeof(T) + offset) / 64 * 64 + 64))),
        start_(reinterpret_cast<T*>(block_.get() + offset)),
        count_(count) {
    if (!block_) throw std::bad_alloc();
  }
  T* data() { return start_; }
  const T* data() const { return start_; }
  std::size_t size() const { return count_; }
  T& operator[](std::size_t i) { return start_[i]; }
  const T& operator[](std::size_t i) const { return start_[i]; }
  T* begin() { return start_; }
  T* end() { return start_ + count_; }
  const T* begin() const { return start_; }
  const T* end() const { return start_ + count_; }

 private:
  struct Free {
    void operator()(char* block) const { std::free(block); }
  };
  std::unique_ptr<char, Free> block_;
  T* start_;
  std::size_t count_;
};

// Numbers between -1 and 1, the same in every run.
template <class T>
void fill_uniform(Array<T>& array, unsigned seed) {
  std::minstd_rand random(seed);
  auto next = [&] { return Real<T>(2 * (double(random()) / double(std::minstd_rand::max())) - 1); };
  for (T& element : array) {
    if constexpr (Scalar<T>::is_complex) {
      const Real<T> re = next();
      element = {re, next()};
    } else {
      element = next();
    }
  }
}

// |got - expected| over its bound. Anything that is not a number counts as wrong.
template <class W>
double over_bound(W got, W expected, long double bound) {
  const long double error = std::abs(got - expected);
  if (error == 0) return 0;
  const double ratio = double(error / bound);
  return std::isnan(ratio) ? std::numeric_limits<double>::infinity() : ratio;
}

}  // namespace orb::bench
