// Cases of the matrix-vector routines, n by n, unit strides, lower triangles.
#include "bench/matrix.h"
#include "bench/matrix_case.h"

namespace orb::bench {
namespace {

template <class T>
struct Operands {
  int n;
  Array<T> a, x, y;
  explicit Operands(int order) : n(order), a(square(order)), x(std::size_t(order)), y(std::size_t(order)) {}
  void fill(double spread) {
    fill_near_identity(a, n, spread, 1);
    fill_uniform(x, 2);
    fill_uniform(y, 3);
  }
  static std::size_t square(int n) { return std::size_t(n) * std::size_t(n); }
  View<T> view(Kind kind) const { return {a.data(), n, kind}; }
};
template <class T>
Sized<T> sized(const Array<T>& v) {
  Sized<T> s;
  for (const T& e : v) s.value.push_back(Wide<T>(e)), s.size.push_back(std::abs(Wide<T>(e)));
  return s;
}

const int one_step = 1;
template <class T>
const T one = T(1);
// Factors whose repeated use keeps operands in range.
template <class T>
const T small = T(Real<T>(1) / 1024);

// Each routine: its name by type, the work, the call, and its error over the bound.
template <char trans>
struct Gemv {
  static constexpr const char *routine = "gemv", *names[] = {"sgemv", "dgemv", "cgemv", "zgemv"};
  static constexpr char option = trans;
  static constexpr double operations = 2;
  template <class T>
  using Entry = void(const char*, const int*, const int*, const T*, const T*, const int*, const T*,
                     const int*, const T*, T*, const int*, int);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f(&option, &o.n, &o.n, &small<T>, o.a.data(), &o.n, o.x.data(), &one_step, &one<T>, o.y.data(), &one_step,
      1);
  }
  template <class T>
  static double error(const Operands<T>& before, const Operands<T>& after) {
    Sized<T> x = sized(before.x);
    for (auto& e : x.value) e *= Wide<T>(small<T>);
    return over_bound(sized(after.y),
                      before.view(trans == 'N' ? Kind::general : Kind::transposed) * x + sized(before.y),
                      before.n);
  }
};

struct Symv {
  static constexpr const char *routine = "symv", *names[] = {"ssymv", "dsymv", "chemv", "zhemv"};
  static constexpr char option = 'L';
  static constexpr double operations = 2;
  template <class T>
  using Entry = void(const char*, const int*, const T*, const T*, const int*, const T*, const int*, const T*,
                     T*, const int*, int);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f(&option, &o.n, &small<T>, o.a.data(), &o.n, o.x.data(), &one_step, &one<T>, o.y.data(), &one_step, 1);
  }
  template <class T>
  static double error(const Operands<T>& before, const Operands<T>& after) {
    Sized<T> x = sized(before.x);
    for (auto& e : x.value) e *= Wide<T>(small<T>);
    const Kind kind = Scalar<T>::is_complex ? Kind::hermitian : Kind::symmetric;
    return over_bound(sized(after.y), before.view(kind) * x + sized(before.y), before.n);
  }
};

struct Ger {
  static constexpr const char *routine = "ger", *names[] = {"sger", "dger", "cgeru", "zgeru"};
  static constexpr char option = ' ';
  static constexpr double operations = 2;
  template <class T>
  using Entry = void(const int*, const int*, const T*, const T*, const int*, const T*, const int*, T*,
                     const int*);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f(&o.n, &o.n, &small<T>, o.x.data(), &one_step, o.y.data(), &one_step, o.a.data(), &o.n);
  }
  template <class T>
  static double error(const Operands<T>& before, const Operands<T>& after) {
    double worst = 0;
    for (std::size_t i = 0; i < before.a.size(); ++i) {
      const Wide<T> term = Wide<T>(small<T>) * Wide<T>(before.x[i % std::size_t(before.n)]) *
                           Wide<T>(before.y[i / std::size_t(before.n)]);
      const Wide<T> old = Wide<T>(before.a[i]);
      worst = std::max(worst, over_bound(Wide<T>(after.a[i]), old + term,
                                         4 * unit_roundoff<T>() * (std::abs(old) + std::abs(term))));
    }
    return worst;
  }
};

// x = A x, or solved for it.
template <bool solve>
struct Triangular {
  static constexpr const char* routine = solve ? "trsv" : "trmv";
  static constexpr const char* names[] = {solve ? "strsv" : "strmv", solve ? "dtrsv" : "dtrmv",
                                          solve ? "ctrsv" : "ctrmv", solve ? "ztrsv" : "ztrmv"};
  static constexpr char option = 'L';
  static constexpr double operations = 1;
  template <class T>
  using Entry = void(const char*, const char*, const char*, const int*, const T*, const int*, T*, const int*,
                     int, int, int);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f(&option, "N", "N", &o.n, o.a.data(), &o.n, o.x.data(), &one_step, 1, 1, 1);
  }
  template <class T>
  static double error(const Operands<T>& before, const Operands<T>& after) {
    const Array<T>&from = solve ? after.x : before.x, &to = solve ? before.x : after.x;
    return over_bound(sized(to), before.view(Kind::lower) * sized(from), before.n);
  }
};

template <class Routine, class T>
void add_routine(std::vector<Case>& cases) {
  const std::string option(1, Routine::option);
  add_matrix_cases<Routine, Operands, T>(cases, {2, 1}, option + ' ', option == "T" ? " T" : "");
}

template <class T>
void add_type(std::vector<Case>& cases) {
  add_routine<Gemv<'N'>, T>(cases);
  add_routine<Gemv<'T'>, T>(cases);
  add_routine<Ger, T>(cases);
  add_routine<Symv, T>(cases);
  add_routine<Triangular<false>, T>(cases);
  add_routine<Triangular<true>, T>(cases);
}

}  // namespace

void add_level2(std::vector<Case>& cases) {
  add_type<float>(cases);
  add_type<double>(cases);
  add_type<std::complex<float>>(cases);
  add_type<std::complex<double>>(cases);
}

}  // namespace orb::bench
