// Singular values by two roads that share nothing but the matrix.
#pragma once

#include <vector>

#include "tour/matrix.h"

namespace orb::tour {

struct Components {
  Matrix directions;                           // n by k, orthonormal columns
  std::vector<double> values;                  // k singular values, falling
  std::vector<std::vector<double>> residuals;  // after each step, for each component
  bool converged = false;
};

// The k largest singular values of X and the directions that belong to them, by orthogonal iteration:
// Q = orthonormal basis of X' (X Q), again and again. The products are dgemm's, the basis is made by
// Gram-Schmidt with ddot, daxpy, dnrm2 and dscal. The residual of a component is |X'X q - s^2 q| / s_1^2, and
// the iteration ends when all are down to (m + n) u, where rounding takes over.
// H. Rutishauser, Computational aspects of F. L. Bauer's simultaneous iteration method, Numer. Math. 13
// (1969).
Components leading_components(const Matrix& x, int k);

// All singular values of X, falling, by rotating pairs of columns until each is orthogonal to all others:
// ddot and drot. M. R. Hestenes, Inversion of matrices by biorthogonalization, J. SIAM 6 (1958).
std::vector<double> all_singular_values(Matrix x);

}  // namespace orb::tour
