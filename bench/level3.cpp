// Cases of the matrix-matrix routines but for the real general product (gemm.cpp): n by n, lower triangles. A
// result R is checked by R v for a vector v of ones, against the same in extended precision.
#include "bench/matrix.h"
#include "bench/matrix_case.h"

namespace orb::bench {
namespace {

template <class T>
struct Operands {
  int n;
  Array<T> a, b, c;
  explicit Operands(int order) : n(order), a(square(order)), b(square(order)), c(square(order)) {}
  void fill(double spread) {
    fill_near_identity(a, n, spread, 1);
    fill_uniform(b, 2);
    fill_uniform(c, 3);
  }
  static std::size_t square(int n) { return std::size_t(n) * std::size_t(n); }
  View<T> view(const Array<T>& m, Kind kind) const { return {m.data(), n, kind}; }
};

template <class T>
const T one = T(1);

// Each routine: its name by type, operations per n^3, the call, and its error over the bound.
struct Gemm {
  static constexpr const char *routine = "gemm", *names[] = {"sgemm", "dgemm", "cgemm", "zgemm"};
  static constexpr double operations = 2;
  template <class T>
  using Entry = void(const char*, const char*, const int*, const int*, const int*, const T*, const T*,
                     const int*, const T*, const int*, const T*, T*, const int*, int, int);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f("N", "N", &o.n, &o.n, &o.n, &one<T>, o.a.data(), &o.n, o.b.data(), &o.n, &one<T>, o.c.data(), &o.n, 1,
      1);
  }
  template <class T>
  static double error(const Operands<T>& old, const Operands<T>& now) {
    return over_bound(now.view(now.c, Kind::general) * ones<T>(old.n),
                      old.view(old.a, Kind::general) * (old.view(old.b, Kind::general) * ones<T>(old.n)) +
                          old.view(old.c, Kind::general) * ones<T>(old.n),
                      old.n);
  }
};
struct Gemm3m : Gemm {
  static constexpr const char *routine = "gemm3m", *names[] = {"", "", "cgemm3m", "zgemm3m"};
  template <class T>
  static double error(const Operands<T>& old, const Operands<T>& now) {
    return Gemm::error<T>(old, now) / 4;  // its bound is one for the whole matrix
  }
};

struct Symm {
  static constexpr const char *routine = "symm", *names[] = {"ssymm", "dsymm", "csymm", "zsymm"};
  static constexpr double operations = 2;
  template <class T>
  using Entry = void(const char*, const char*, const int*, const int*, const T*, const T*, const int*,
                     const T*, const int*, const T*, T*, const int*, int, int);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f("L", "L", &o.n, &o.n, &one<T>, o.a.data(), &o.n, o.b.data(), &o.n, &one<T>, o.c.data(), &o.n, 1, 1);
  }
  template <class T>
  static double error(const Operands<T>& old, const Operands<T>& now) {
    return over_bound(now.view(now.c, Kind::general) * ones<T>(old.n),
                      old.view(old.a, Kind::symmetric) * (old.view(old.b, Kind::general) * ones<T>(old.n)) +
                          old.view(old.c, Kind::general) * ones<T>(old.n),
                      old.n);
  }
};

struct Syrk {
  static constexpr const char *routine = "syrk", *names[] = {"ssyrk", "dsyrk", "csyrk", "zsyrk"};
  static constexpr double operations = 1;
  template <class T>
  using Entry = void(const char*, const char*, const int*, const int*, const T*, const T*, const int*,
                     const T*, T*, const int*, int, int);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f("L", "N", &o.n, &o.n, &one<T>, o.a.data(), &o.n, &one<T>, o.c.data(), &o.n, 1, 1);
  }
  template <class T>
  static double error(const Operands<T>& old, const Operands<T>& now) {
    return over_bound(now.view(now.c, Kind::symmetric) * ones<T>(old.n),
                      old.view(old.a, Kind::general) * (old.view(old.a, Kind::transposed) * ones<T>(old.n)) +
                          old.view(old.c, Kind::symmetric) * ones<T>(old.n),
                      old.n);
  }
};

struct Syr2k {
  static constexpr const char *routine = "syr2k", *names[] = {"ssyr2k", "dsyr2k", "csyr2k", "zsyr2k"};
  static constexpr double operations = 2;
  template <class T>
  using Entry = Symm::Entry<T>;  // the same types of arguments, with k for n
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f("L", "N", &o.n, &o.n, &one<T>, o.a.data(), &o.n, o.b.data(), &o.n, &one<T>, o.c.data(), &o.n, 1, 1);
  }
  template <class T>
  static double error(const Operands<T>& old, const Operands<T>& now) {
    const auto term = [&](const Array<T>& p, const Array<T>& q) {
      return old.view(p, Kind::general) * (old.view(q, Kind::transposed) * ones<T>(old.n));
    };
    return over_bound(
        now.view(now.c, Kind::symmetric) * ones<T>(old.n),
        term(old.a, old.b) + term(old.b, old.a) + old.view(old.c, Kind::symmetric) * ones<T>(old.n),
        2 * old.n);
  }
};

// B = A B and A^-1 B, or with A on the right.
template <bool solve, char side>
struct Triangular {
  static constexpr const char* routine = solve ? "trsm" : "trmm";
  static constexpr const char* names[] = {solve ? "strsm" : "strmm", solve ? "dtrsm" : "dtrmm",
                                          solve ? "ctrsm" : "ctrmm", solve ? "ztrsm" : "ztrmm"};
  static constexpr double operations = 1;
  static constexpr char option = side;
  template <class T>
  using Entry = void(const char*, const char*, const char*, const char*, const int*, const int*, const T*,
                     const T*, const int*, T*, const int*, int, int, int, int);
  template <class T>
  static void call(Entry<T>* f, Operands<T>& o) {
    f(&option, "L", "N", "N", &o.n, &o.n, &one<T>, o.a.data(), &o.n, o.b.data(), &o.n, 1, 1, 1, 1);
  }
  template <class T>
  static double error(const Operands<T>& old, const Operands<T>& now) {
    const Operands<T>&from = solve ? now : old, &to = solve ? old : now;
    const View<T> triangle = old.view(old.a, Kind::lower), whole = from.view(from.b, Kind::general);
    const Sized<T> v = ones<T>(old.n);
    return over_bound(to.view(to.b, Kind::general) * v,
                      side == 'L' ? triangle * (whole * v) : whole * (triangle * v), old.n);
  }
};

template <class Routine, class T>
void add_routine(std::vector<Case>& cases) {
  std::string option;
  if constexpr (requires { Routine::option; }) option = std::string(1, Routine::option) + ' ';
  add_matrix_cases<Routine, Operands, T>(cases, {3, 3}, option, option == "R " ? " R" : "");
}

template <class T>
void add_type(std::vector<Case>& cases) {
  if constexpr (Scalar<T>::is_complex) {
    add_routine<Gemm, T>(cases);
    add_routine<Gemm3m, T>(cases);
  }
  add_routine<Symm, T>(cases);
  add_routine<Syrk, T>(cases);
  add_routine<Syr2k, T>(cases);
  add_routine<Triangular<false, 'L'>, T>(cases);
  add_routine<Triangular<true, 'L'>, T>(cases);
  add_routine<Triangular<true, 'R'>, T>(cases);
}

}  // namespace

void add_level3(std::vector<Case>& cases) {
  add_type<float>(cases);
  add_type<double>(cases);
  add_type<std::complex<float>>(cases);
  add_type<std::complex<double>>(cases);
}

}  // namespace orb::bench
