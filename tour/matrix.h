// A dense matrix as the BLAS has it: columns one after the other.
#pragma once

#include <cstddef>
#include <vector>

namespace orb::tour {

struct Matrix {
  int rows = 0, columns = 0;
  std::vector<double> elements;

  Matrix() = default;
  Matrix(int m, int n) : rows(m), columns(n), elements(std::size_t(m) * std::size_t(n)) {}

  double* column(int j) { return elements.data() + std::size_t(rows) * std::size_t(j); }
  const double* column(int j) const { return elements.data() + std::size_t(rows) * std::size_t(j); }
  double& operator()(int i, int j) { return column(j)[i]; }
  double operator()(int i, int j) const { return column(j)[i]; }
};

}  // namespace orb::tour
