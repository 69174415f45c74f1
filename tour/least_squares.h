// The smallest |y - X b| by two roads, for an X of independent columns.
#pragma once

#include <vector>

#include "tour/matrix.h"

namespace orb::tour {

struct Fit {
  std::vector<double> coefficients;  // none if the road ended before
  int failing_minor = 0;             // of X'X, where it was found not to be positive definite
};

// X'X b = X'y: dsyrk, potrf, dtrsm. X'X is rounded, and has the square of X's condition.
Fit by_normal_equations(const Matrix& x, const Matrix& y);

// Reflectors turn the columns of X one by one into those of a triangle R, and y with them; then R b = Q'y:
// larfx, dtrsm. Lengths and angles stay, and so does the condition.
// G. H. Golub, Numerical methods for solving linear least squares problems, Numer. Math. 7 (1965).
Fit by_reflectors(const Matrix& x, const Matrix& y);

}  // namespace orb::tour
