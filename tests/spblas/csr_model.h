// What a kernel does, derived from its name alone and in the promised order of additions, for one vector at a
// time.
#pragma once

#include "tests/spblas/csr_matrix.h"

namespace orb::test {

template <class T>
T divide(T n, T d) {
  if constexpr (is_complex<T>) {
    using W = long double;
    const W re = d.re, im = d.im, r = 1 / (re * re + im * im);
    return {part_of<T>((n.re * re + n.im * im) * r), part_of<T>((n.im * re - n.re * im) * r)};
  } else {
    return n / d;
  }
}

template <class T>
class Model {
 public:
  using Vector = std::vector<T>;
  Model(const Name& kernel, const Matrix<T>& matrix, T factor) : name(kernel), a(matrix), alpha(factor) {}

  // Products of the rows `first` to `last`, from 1.
  void mv(int first, int last, const Vector& x, Vector& y) {
    for (row = first - 1; row < last; ++row) {
      if (name.kind == 'd') {
        diagonal(x, y);
      } else if (name.transposes()) {
        scatter(x, y);
      } else if (name.kind == 'g') {
        here(y) = add(multiply(dot(0, size(), x), alpha), here(y));
      } else if (name.kind == 't') {
        triangle(x, y);
      } else if (name.unit() || name.kind == 'a') {
        here(y) = add(multiply(dot(0, size(), x), alpha), here(y));
        correct(x, y, true);
      } else {
        mirror(x, y);
      }
    }
  }

  // One dense column of a product.
  void mm(const Vector& x, Vector& y) {
    const bool swept = name.mirrors() || (name.kind == 't' && !name.transposes());
    if (!swept) return mv(1, a.m(), x, y);
    for (row = 0; row < a.m(); ++row) {
      int k = 0;
      for (; size() - k >= 4; k += 4) {
        const T sum = add(add(add(product(k + 3, x), product(k + 2, x)), product(k + 1, x)), product(k, x));
        here(y) = add(here(y), multiply(sum, alpha));
      }
      for (; k < size(); ++k) here(y) = add(here(y), multiply(product(k, x), alpha));
    }
    for (row = 0; row < a.m(); ++row) correct(x, y, name.mirrors());
  }

  // One right-hand side. `by_reciprocal`: as the kernels for many have it.
  void solve(Vector& y, bool by_reciprocal) {
    const bool rising = name.kind == 'd' || name.lower() != name.transposes();
    for (int turn = 0; turn < a.m(); ++turn) {
      row = rising ? turn : a.m() - 1 - turn;
      if (name.kind == 'd') {
        here(y) = multiply(divide(alpha, at_diagonal()), here(y));
      } else if (name.transposes()) {
        if (!name.unit()) here(y) = divide(here(y), at_diagonal());
        const T t = subtract(T{}, here(y));
        for (int n = 0; n < size(); ++n) {
          const int k = name.lower() ? size() - 1 - n : n;
          if (name.inside(column(k), row)) there(y, k) = add(there(y, k), multiply(entry(k), t));
        }
      } else {
        const T left = subtract(here(y), name.lower() ? sum_before(y) : dot(row_place(true), size(), y));
        here(y) = name.unit()     ? left
                  : by_reciprocal ? multiply(divide(whole<T>(1, 0), at_diagonal()), left)
                                  : divide(left, at_diagonal());
      }
    }
  }

 private:
  int size() const { return int(a.rows[size_t(row)].size()); }
  int column(int k) const { return a.rows[size_t(row)][size_t(k)].column; }
  T stored(int k) const { return a.rows[size_t(row)][size_t(k)].value; }
  bool conjugates() const { return name.op == 'c' || name.op == 's'; }
  T entry(int k) const {
    return (name.kind == 'h' ? name.op == 't' : conjugates()) ? conjugate(stored(k)) : stored(k);
  }
  T image(int k) const {
    const T v = (name.kind == 'h' ? name.op == 'n' : conjugates()) ? conjugate(stored(k)) : stored(k);
    return name.kind == 'a' ? subtract(T{}, v) : v;
  }
  T& here(Vector& y) const { return y[size_t(row)]; }
  T& there(Vector& y, int k) const { return y[size_t(column(k))]; }
  T product(int k, const Vector& x) const { return multiply(entry(k), x[size_t(column(k))]); }
  bool strange(int k) const {
    const bool counts = !name.unit() && name.kind != 'a';
    return counts ? name.outside(column(k), row) : !name.inside(column(k), row);
  }

  T dot(int from, int to, const Vector& x) const {
    T s[4] = {};
    int k = from;
    for (; to - k >= 4; k += 4)
      for (int r = 0; r < 4; ++r) s[r] = add(s[r], product(k + r, x));
    T sum = add(add(add(s[0], s[1]), s[2]), s[3]);
    for (; k < to; ++k) sum = add(sum, product(k, x));
    return sum;
  }
  // The entries before the diagonal; and how many there are, with it if it is passed.
  T sum_before(const Vector& y) const {
    T sum{};
    for (int k = 0; k < row_place(false); ++k) sum = add(sum, product(k, y));
    return sum;
  }
  int row_place(bool behind) const {
    int k = 0;
    while (k < size() && (column(k) < row || (behind && column(k) == row))) ++k;
    return k;
  }
  T at_diagonal() const { return entry(row_place(false)); }

  void diagonal(const Vector& x, Vector& y) {
    if (name.unit()) here(y) = add(here(y), multiply(alpha, x[size_t(row)]));
    for (int k = 0; k < size() && !name.unit(); ++k)
      if (column(k) == row) here(y) = add(here(y), multiply(multiply(entry(k), alpha), x[size_t(row)]));
  }
  void scatter(const Vector& x, Vector& y) {
    const T xi = x[size_t(row)], t = multiply(xi, alpha);
    const auto part = [&](int k) { return multiply(multiply(entry(k), alpha), xi); };
    for (int k = 0; k < size(); ++k)
      there(y, k) = add(there(y, k), name.kind == 'g' ? multiply(entry(k), t) : part(k));
    if (name.kind == 'g') return;
    if (name.unit()) here(y) = add(here(y), t);
    for (int k = 0; k < size(); ++k)
      if (strange(k)) there(y, k) = subtract(there(y, k), part(k));
  }
  void triangle(const Vector& x, Vector& y) {
    T sum = name.unit() ? T{} : dot(0, size(), x), taken{};
    for (int k = 0; k < size(); ++k) {
      if (name.unit()) sum = add(sum, product(k, x));
      if (!strange(k)) continue;
      T& target = name.unit() ? taken : sum;
      target = name.unit() ? add(target, product(k, x)) : subtract(target, product(k, x));
    }
    if (name.unit()) sum = subtract(sum, subtract(taken, x[size_t(row)]));
    here(y) = add(multiply(sum, alpha), here(y));
  }
  void mirror(const Vector& x, Vector& y) {
    const T t = multiply(alpha, x[size_t(row)]);
    T sum{};
    for (int k = 0; k < size(); ++k) {
      if (name.outside(column(k), row)) continue;
      sum = add(sum, product(k, x));
      if (column(k) != row) there(y, k) = add(there(y, k), multiply(t, image(k)));
    }
    here(y) = add(multiply(sum, alpha), here(y));
  }
  void correct(const Vector& x, Vector& y, bool mirrors) {
    const T t = multiply(x[size_t(row)], alpha);
    T taken{};
    for (int k = 0; k < size(); ++k)
      if (strange(k))
        taken = add(taken, multiply(multiply(entry(k), alpha), x[size_t(column(k))]));
      else if (mirrors && column(k) != row)
        there(y, k) = add(there(y, k), multiply(t, image(k)));
    if (name.unit()) here(y) = add(here(y), t);
    here(y) = subtract(here(y), taken);
  }

  Name name;
  const Matrix<T>& a;
  T alpha;
  int row = 0;
};

}  // namespace orb::test
