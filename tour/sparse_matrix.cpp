// From the entries of a file to compressed rows, and their product.
#include <algorithm>

#include "orb/sparse.h"
#include "tour/sparse.h"

namespace orb::tour {
namespace {

template <class T, class Value>
SparseMatrix<T> rows_of(const MarketMatrix& file, Value value) {
  const char* const descriptions[] = {"G  C  ", "SLNC  ", "AL C  ", "HLNC  "};
  auto entries = file.entries;
  std::stable_sort(entries.begin(), entries.end(), [](const MarketEntry& e, const MarketEntry& f) {
    return e.row != f.row ? e.row < f.row : e.column < f.column;
  });
  SparseMatrix<T> a{file.rows, file.columns, descriptions[int(file.symmetry)], {}, {}, {}};
  a.begin.assign(std::size_t(a.rows) + 1, 0);
  for (const MarketEntry& e : entries) {
    a.values.push_back(value(e.value));
    a.column.push_back(e.column);
    ++a.begin[std::size_t(e.row) + 1];
  }
  for (std::size_t i = 1; i < a.begin.size(); ++i) a.begin[i] += a.begin[i - 1];
  return a;
}

}  // namespace

SparseMatrix<double> real_rows(const MarketMatrix& file) {
  return rows_of<double>(file, [](std::complex<double> z) { return z.real(); });
}
SparseMatrix<std::complex<double>> complex_rows(const MarketMatrix& file) {
  return rows_of<std::complex<double>>(file, [](std::complex<double> z) { return z; });
}

void multiply(const SparseMatrix<double>& a, char op, const std::vector<double>& x, std::vector<double>& y) {
  orb_dcsrmv(op, a.rows, a.columns, 1, a.description.c_str(), a.values.data(), a.column.data(),
             a.begin.data(), a.begin.data() + 1, x.data(), 0, y.data());
}
void multiply(const SparseMatrix<std::complex<double>>& a, char op,
              const std::vector<std::complex<double>>& x, std::vector<std::complex<double>>& y) {
  const auto as = [](const std::complex<double>* p) {
    return reinterpret_cast<const orb_complex_double*>(p);
  };
  orb_zcsrmv(op, a.rows, a.columns, {1, 0}, a.description.c_str(), as(a.values.data()), a.column.data(),
             a.begin.data(), a.begin.data() + 1, as(x.data()), {0, 0},
             reinterpret_cast<orb_complex_double*>(y.data()));
}

}  // namespace orb::tour
