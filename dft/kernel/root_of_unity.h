// Complex roots of unity, each to the last bit or two: the angle is folded into the first eighth of the
// circle by exact integer arithmetic before a sine or cosine is taken.
#pragma once

#include <cmath>

#include "serv/kernel/complex.h"

namespace orb::dft {

// exp(-2 pi i k / n), 0 <= k < n.
inline c64 root_of_unity(int k, int n) {
  const long long circle = n, eighths = 8ll * k / circle;
  // The angle in units of 1 / (8 n) of the circle: from the start of its quarter, then from the nearer end.
  const long long in_quarter = 8ll * k - 2 * circle * (eighths / 2);
  const bool upper = eighths % 2;
  const double angle =
      double(upper ? 2 * circle - in_quarter : in_quarter) * (0.78539816339744830961566 / double(circle));
  double same_angle = angle;
  asm("" : "+x"(same_angle));  // else both calls become one of sincos, which is no name of the C standard
  const double s = std::sin(angle), c = std::cos(same_angle);
  const double re = upper ? s : c, im = upper ? c : s;  // within the first quarter, positive sense
  switch (eighths / 2) {
    case 0:
      return {re, -im};
    case 1:
      return {-im, -re};
    case 2:
      return {-re, im};
    default:
      return {im, re};
  }
}

}  // namespace orb::dft
