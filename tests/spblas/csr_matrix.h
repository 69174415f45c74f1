// Sparse matrices for the tests: made by rows, handed to kernels in guarded arrays, expanded to what a
// kernel's name makes of them.
#pragma once

#include <algorithm>
#include <vector>

#include "tests/spblas/kernel_lists.h"
#include "tests/support/guarded.h"

namespace orb::test {

// Small integers, so that every order of additions gives the same bits, or values that round.
enum class Data { exact, rounding };

template <class T>
T whole(int re, int im) {
  if constexpr (is_complex<T>)
    return {part_of<T>(re), part_of<T>(im)};
  else
    return T(re);
}
template <class T>
T datum(Data data, int i) {
  return data == Data::exact ? whole<T>(i * 7 % 9 - 4, i * 5 % 7 - 3) : value<T>(i);
}

template <class T>
struct Entry {
  int column;  // from 0
  T value;
};

template <class T>
struct Matrix {
  int columns;
  std::vector<std::vector<Entry<T>>> rows;
  int m() const { return int(rows.size()); }
};

// Rows of 0 to 11 entries, in no order of columns, a column sometimes twice, entries everywhere.
template <class T>
Matrix<T> scattered(int m, int columns, Data data) {
  Matrix<T> a{columns, {}};
  unsigned seed = unsigned(m * 131 + columns);
  for (int i = 0; i < m; ++i) {
    a.rows.emplace_back();
    for (int k = 0; k < (i * 5 + 3) % 12; ++k) {
      seed = seed * 1664525u + 1013904223u;
      const bool on_diagonal = k == 1 && i < columns;
      a.rows.back().push_back(
          {on_diagonal ? i : int((seed >> 8) % unsigned(columns)), datum<T>(data, i + 3 * k)});
    }
  }
  return a;
}

// Rows in ascending order of columns, each column once, with the diagonal: quotients by an exact one are
// exact.
template <class T>
Matrix<T> ordered(int m, Data data, bool with_diagonal = true) {
  Matrix<T> a = scattered<T>(m, m, data);
  for (int i = 0; i < m; ++i) {
    auto& row = a.rows[size_t(i)];
    std::erase_if(row, [i](const Entry<T>& e) { return e.column == i; });
    if (with_diagonal) {
      const T exact = i % 3 == 0   ? whole<T>(1, 0)
                      : i % 3 == 1 ? whole<T>(-2, 0)
                                   : whole<T>(is_complex<T> ? 0 : 4, -1);
      row.push_back({i, data == Data::exact ? exact : add(datum<T>(data, i), whole<T>(9, 2))});
    }
    std::stable_sort(row.begin(), row.end(), [](auto& e, auto& f) { return e.column < f.column; });
    row.erase(std::unique(row.begin(), row.end(), [](auto& e, auto& f) { return e.column == f.column; }),
              row.end());
  }
  return a;
}

// The four arrays. Row pointers count from `origin`, and `gap` entries that belong to no row follow each.
template <class T>
struct Stored {
  Guarded<T> values;
  Guarded<int> columns, begin, end;

  Stored(const Matrix<T>& a, int base, int origin, int gap)
      : values(entries(a, gap)),
        columns(entries(a, gap)),
        begin(std::max(a.m(), 1)),
        end(std::max(a.m(), 1)) {
    int k = 0;
    for (int i = 0; i < a.m(); ++i) {
      begin[i] = origin + k;
      for (const Entry<T>& e : a.rows[size_t(i)]) values[k] = e.value, columns[k++] = e.column + base;
      end[i] = origin + k;
      if (i + 1 < a.m())
        for (int g = 0; g < gap; ++g) values[k] = whole<T>(1000, 1000), columns[k++] = -1000000;
    }
  }

 private:
  static int entries(const Matrix<T>& a, int gap) {
    int n = gap * std::max(a.m() - 1, 0);
    for (const auto& row : a.rows) n += int(row.size());
    return n;
  }
};

// op(A) as the name means it, of the rows `first` to `last` alone, from 1, by rows: every other one is empty.
template <class T>
std::vector<std::vector<T>> expanded(const Name& name, const Matrix<T>& a, int first, int last) {
  const int rows = name.transposes() ? a.columns : a.m(), columns = name.transposes() ? a.m() : a.columns;
  std::vector<std::vector<T>> dense(static_cast<size_t>(rows), std::vector<T>(static_cast<size_t>(columns)));
  const bool general = name.kind == 'g';
  const auto put = [&](int r, int c, T v) {
    if (name.transposes()) std::swap(r, c);
    T& e = dense[size_t(r)][size_t(c)];
    const bool conjugates = name.kind == 'h' ? name.op == 't' : name.op == 'c' || name.op == 's';
    e = add(e, conjugates ? conjugate(v) : v);
  };
  for (int i = first - 1; i < last; ++i) {
    for (const auto& [column, v] : a.rows[size_t(i)]) {
      const bool triangle = name.kind != 'd' && name.inside(column, i);
      if (general || triangle) put(i, column, v);
      if (triangle && name.mirrors())
        put(column, i, name.kind == 'a' ? subtract(T{}, v) : name.kind == 'h' ? conjugate(v) : v);
      if (!general && column == i && name.kind != 'a' && !name.unit()) put(i, i, v);
    }
    if (name.unit()) put(i, i, whole<T>(1, 0));
  }
  return dense;
}

// y + alpha D x
template <class T>
std::vector<T> plus_product(std::vector<T> y, T alpha, const std::vector<std::vector<T>>& dense,
                            const std::vector<T>& x) {
  for (size_t i = 0; i < dense.size(); ++i)
    for (size_t j = 0; j < dense[i].size(); ++j)
      y[i] = add(y[i], multiply(multiply(alpha, dense[i][j]), x[j]));
  return y;
}

template <class T>
std::vector<T> data_vector(int n, Data data, int seed) {
  std::vector<T> x;
  for (int i = 0; i < n; ++i) x.push_back(datum<T>(data, 3 * i + seed));
  return x;
}

}  // namespace orb::test
