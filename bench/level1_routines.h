// The vector routines as the level-1 cases need them: name, call, and the error of one result over its
// bound.
#pragma once

#include <algorithm>

#include "bench/operand.h"

namespace orb::bench {

template <class T>
struct Vectors {
  // Windows: starting places in x, a cache line apart.
  Vectors(int length, std::size_t y_offset, int windows)
      : n(length),
        x(std::size_t(length) + std::size_t(windows - 1) * (64 / sizeof(T))),
        y(std::size_t(length), y_offset),
        last_window(windows - 1) {
    reset();
  }
  void reset() {
    fill_uniform(x, 1);
    fill_uniform(y, 2);
    window = 0;
  }
  int n;
  Array<T> x, y;
  T alpha = factor();  // of modulus 1: repeated scaling neither overflows nor dies away
  Real<T> c = Real<T>(0.6), s = Real<T>(0.8);
  T result{};
  int place = 0;
  int last_window, window = 0;

 private:
  static T factor() {
    if constexpr (Scalar<T>::is_complex) return {Real<T>(0.6), Real<T>(0.8)};
    return T(-1);
  }
};

inline constexpr int one = 1;  // all increments

// The largest error of n elements. `of` gives each element's.
template <class Of>
double largest(int n, Of of) {
  double worst = 0;
  for (int i = 0; i < n; ++i) worst = std::max(worst, of(std::size_t(i)));
  return worst;
}

template <class T>
double difference(const Array<T>& got, const Array<T>& expected) {
  const bool same = std::equal(got.begin(), got.end(), expected.begin());
  return same ? 0 : std::numeric_limits<double>::infinity();
}

struct Axpy {
  static constexpr const char *routine = "axpy", *entries[] = {"saxpy", "daxpy", "caxpy", "zaxpy"};
  static constexpr int passes = 3;
  static constexpr bool two_vectors = true;
  template <class T>
  using Entry = void(const int*, const T*, const T*, const int*, T*, const int*);
  template <class T>
  static void call(Entry<T>* axpy, Vectors<T>& v) {
    axpy(&v.n, &v.alpha, v.x.data(), &one, v.y.data(), &one);
  }
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    return largest(after.n, [&](auto i) {
      const Wide<T> product = Wide<T>(before.alpha) * Wide<T>(before.x[i]), y(before.y[i]);
      return over_bound(Wide<T>(after.y[i]), product + y,
                        3 * unit_roundoff<T>() * (std::abs(product) + std::abs(y)));
    });
  }
};

// The complex routine conjugates x. It is called through its C face: the Fortran function returns its complex
// value by one convention from some compilers and by another from others, and the libraries do not agree.
struct Dot {
  static constexpr const char *routine = "dot", *entries[] = {"sdot", "ddot", "cdotc", "zdotc"};
  static constexpr int passes = 2;
  static constexpr bool two_vectors = true;
  static std::string symbol(const std::string& entry) {
    return entry.ends_with("dotc") ? "cblas_" + entry + "_sub" : entry + '_';
  }
  template <class T>
  using RealEntry = T(const int*, const T*, const int*, const T*, const int*);
  template <class T>
  using ComplexEntry = void(int, const T*, int, const T*, int, T*);
  template <class T>
  using Entry = std::conditional_t<Scalar<T>::is_complex, ComplexEntry<T>, RealEntry<T>>;
  template <class T>
  static void call(Entry<T>* dot, Vectors<T>& v) {
    if constexpr (Scalar<T>::is_complex)
      dot(v.n, v.x.data(), 1, v.y.data(), 1, &v.result);
    else
      v.result = dot(&v.n, v.x.data(), &one, v.y.data(), &one);
  }
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    Wide<T> sum = 0;
    long double magnitude = 0;
    for (std::size_t i = 0; i < before.x.size(); ++i) {
      const Wide<T> product = Wide<T>(before.y[i]) * conjugate(Wide<T>(before.x[i]));
      sum += product, magnitude += std::abs(product);
    }
    return over_bound(Wide<T>(after.result), sum, (after.n + 2) * unit_roundoff<T>() * magnitude);
  }

 private:
  static long double conjugate(long double x) { return x; }
  static std::complex<long double> conjugate(std::complex<long double> x) { return std::conj(x); }
};

struct Scal {
  static constexpr const char *routine = "scal", *entries[] = {"sscal", "dscal", "cscal", "zscal"};
  static constexpr int passes = 2;
  static constexpr bool two_vectors = false;
  template <class T>
  using Entry = void(const int*, const T*, T*, const int*);
  template <class T>
  static void call(Entry<T>* scal, Vectors<T>& v) {
    scal(&v.n, &v.alpha, v.x.data(), &one);
  }
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    return largest(after.n, [&](auto i) {
      const Wide<T> product = Wide<T>(before.alpha) * Wide<T>(before.x[i]);
      return over_bound(Wide<T>(after.x[i]), product, 2 * unit_roundoff<T>() * std::abs(product));
    });
  }
};

struct Copy {
  static constexpr const char *routine = "copy", *entries[] = {"scopy", "dcopy", "ccopy", "zcopy"};
  static constexpr int passes = 2;
  static constexpr bool two_vectors = true;
  template <class T>
  using Entry = void(const int*, const T*, const int*, T*, const int*);
  template <class T>
  static void call(Entry<T>* copy, Vectors<T>& v) {
    copy(&v.n, v.x.data(), &one, v.y.data(), &one);
  }
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    return difference(after.y, before.x) + difference(after.x, before.x);
  }
};

struct Swap {
  static constexpr const char *routine = "swap", *entries[] = {"sswap", "dswap", "cswap", "zswap"};
  static constexpr int passes = 4;
  static constexpr bool two_vectors = true;
  template <class T>
  using Entry = void(const int*, T*, const int*, T*, const int*);
  template <class T>
  static void call(Entry<T>* swap, Vectors<T>& v) {
    swap(&v.n, v.x.data(), &one, v.y.data(), &one);
  }
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    return difference(after.y, before.x) + difference(after.x, before.y);
  }
};

template <class T>
using NormEntry = Real<T>(const int*, const T*, const int*);

struct Asum {
  static constexpr const char *routine = "asum", *entries[] = {"sasum", "dasum", "scasum", "dzasum"};
  static constexpr int passes = 1;
  static constexpr bool two_vectors = false;
  template <class T>
  using Entry = NormEntry<T>;
  template <class T>
  static void call(Entry<T>* asum, Vectors<T>& v) {
    v.result = asum(&v.n, v.x.data(), &one);
  }
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    long double sum = 0;
    for (const T& x : before.x) sum += std::abs(std::real(x)) + std::abs(std::imag(x));
    const int terms = Scalar<T>::is_complex ? 2 * after.n : after.n;
    return over_bound<long double>(std::real(after.result), sum, terms * unit_roundoff<Real<T>>() * sum);
  }
};

struct Nrm2 {
  static constexpr const char *routine = "nrm2", *entries[] = {"snrm2", "dnrm2", "scnrm2", "dznrm2"};
  static constexpr int passes = 1;
  static constexpr bool two_vectors = false;
  template <class T>
  using Entry = NormEntry<T>;
  template <class T>
  static void call(Entry<T>* nrm2, Vectors<T>& v) {
    v.result = nrm2(&v.n, v.x.data(), &one);
  }
  // The root halves the relative error of the sum of squares; the other half is left for scaling.
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    long double squares = 0;
    for (const T& x : before.x) squares += std::norm(Wide<T>(x));
    const int terms = Scalar<T>::is_complex ? 2 * after.n : after.n;
    const long double norm = std::sqrt(squares);
    return over_bound<long double>(std::real(after.result), norm,
                                   (terms + 4) * unit_roundoff<Real<T>>() * norm);
  }
};

struct Iamax {
  static constexpr const char *routine = "iamax", *entries[] = {"isamax", "idamax", "icamax", "izamax"};
  static constexpr int passes = 1;
  static constexpr bool two_vectors = false;
  template <class T>
  using Entry = int(const int*, const T*, const int*);
  // Which element is the largest decides the branches taken: each call gets other elements, or the processor
  // would learn the answer by heart.
  static constexpr int windows = 32;
  template <class T>
  static void call(Entry<T>* iamax, Vectors<T>& v) {
    const T* x = v.x.data() + v.window * int(64 / sizeof(T));
    v.window = v.window == v.last_window ? 0 : v.window + 1;
    v.place = iamax(&v.n, x, &one);
  }
  // Any place that holds the largest magnitude, but for the one rounding of |re| + |im|, is right.
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    const auto magnitude = [](const T& x) {
      return std::abs((long double)std::real(x)) + std::abs((long double)std::imag(x));
    };
    long double most = 0;
    for (int i = 0; i < before.n; ++i) most = std::max(most, magnitude(before.x[std::size_t(i)]));
    if (after.place < 1 || after.place > before.n) return std::numeric_limits<double>::infinity();
    return over_bound(magnitude(before.x[std::size_t(after.place - 1)]), most,
                      2 * unit_roundoff<Real<T>>() * most);
  }
};

struct Rot {
  static constexpr const char *routine = "rot", *entries[] = {"srot", "drot", "csrot", "zdrot"};
  static constexpr int passes = 4;
  static constexpr bool two_vectors = true;
  template <class T>
  using Entry = void(const int*, T*, const int*, T*, const int*, const Real<T>*, const Real<T>*);
  template <class T>
  static void call(Entry<T>* rot, Vectors<T>& v) {
    rot(&v.n, v.x.data(), &one, v.y.data(), &one, &v.c, &v.s);
  }
  template <class T>
  static double error(const Vectors<T>& before, const Vectors<T>& after) {
    const long double c = before.c, s = before.s;
    return largest(after.n, [&](auto i) {
      const Wide<T> x(before.x[i]), y(before.y[i]);
      const long double bound = 3 * unit_roundoff<T>() * (std::abs(x) + std::abs(y));
      return std::max(over_bound(Wide<T>(after.x[i]), c * x + s * y, bound),
                      over_bound(Wide<T>(after.y[i]), c * y - s * x, bound));
    });
  }
};

}  // namespace orb::bench
