// What the sparse chapter's files share.
#pragma once

#include <algorithm>
#include <complex>
#include <string>
#include <vector>

#include "tour/chapter.h"
#include "tour/matrix_market.h"

namespace orb::tour {

// Compressed rows, columns from 0 and ascending in each row.
template <class T>
struct SparseMatrix {
  int rows = 0, columns = 0;
  std::string description;  // as the library's routines take it
  std::vector<T> values;
  std::vector<int> column, begin;

  int longest_row() const {
    int most = 0;
    for (int i = 0; i < rows; ++i) most = std::max(most, begin[std::size_t(i) + 1] - begin[std::size_t(i)]);
    return most;
  }
};
SparseMatrix<double> real_rows(const MarketMatrix& file);
SparseMatrix<std::complex<double>> complex_rows(const MarketMatrix& file);

// y = op(A) x
void multiply(const SparseMatrix<double>& a, char op, const std::vector<double>& x, std::vector<double>& y);
void multiply(const SparseMatrix<std::complex<double>>& a, char op,
              const std::vector<std::complex<double>>& x, std::vector<std::complex<double>>& y);

// A run of the method of conjugate gradients.
struct Descent {
  std::vector<double> x;
  std::vector<double> residuals;  // |r| / |b| after each step, as the recurrence has it
  double largest_x = 0;           // of all |x|
  bool definite = true;           // false: a direction along which A is not positive ended the run
  bool converged = false;
};

// Solves A x = b for a symmetric A of which the lower triangle is stored, from x = 0, until |r| <= tolerance
// |b|. M. R. Hestenes, E. Stiefel, J. Res. Nat. Bur. Standards 49 (1952) 409-436. Preconditioned, the
// directions come from M z = r with M = (D + L) D^-1 (D + L)', one symmetric sweep of Gauss and Seidel: two
// triangular solutions.
Descent conjugate_gradients(const SparseMatrix<double>& a, const std::vector<double>& b, bool preconditioned,
                            double tolerance, int most_steps);

void draw_descents(const Tour&, const SparseMatrix<double>& a, const Descent& plain,
                   const Descent& preconditioned);

}  // namespace orb::tour
