// Fourier transforms of real series through a descriptor of the library.
#pragma once

#include <cmath>
#include <complex>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "orb/dfti.h"

namespace orb::tour {

using Series = std::vector<double>;
using Spectrum = std::vector<std::complex<double>>;

// Of a series of n numbers the spectrum holds frequencies 0 to n/2, counted in cycles over the whole series;
// the others are conjugates of these. Backward divides by n, so that it undoes forward.
class Transform {
 public:
  explicit Transform(int n) : n_(n) {
    require(DftiCreateDescriptor(&descriptor_, VAL_DOUBLE, VAL_REAL, 1, n));
    try {
      require(DftiSetValue(descriptor_, CFG_PLACEMENT, VAL_NOT_INPLACE));
      require(DftiSetValue(descriptor_, CFG_CONJUGATE_EVEN_STORAGE, VAL_COMPLEX_COMPLEX));
      require(DftiSetValue(descriptor_, CFG_BACKWARD_SCALE, 1.0 / n));
      require(DftiCommitDescriptor(descriptor_));
    } catch (...) {
      DftiFreeDescriptor(&descriptor_);
      throw;
    }
  }
  ~Transform() { DftiFreeDescriptor(&descriptor_); }
  Transform(const Transform&) = delete;
  Transform& operator=(const Transform&) = delete;

  Spectrum forward(Series x) const {
    Spectrum result(std::size_t(n_ / 2 + 1));
    require(DftiComputeForward(descriptor_, x.data(), result.data()));
    return result;
  }
  Series backward(Spectrum s) const {
    Series result(std::size_t(n_), 0.0);
    require(DftiComputeBackward(descriptor_, s.data(), result.data()));
    return result;
  }

 private:
  static void require(int status) {
    if (status != STATUS_OK) throw std::runtime_error(std::string("transform: ") + DftiErrorMessage(status));
  }

  int n_;
  DftiRecord* descriptor_ = nullptr;
};

// Relative error of a forward or backward transform in the root mean square: errors of rounding of log2 n
// levels add up like a random walk. J. C. Schatzman, Accuracy of the discrete Fourier transform and the fast
// Fourier transform, SIAM J. Sci. Comput. 17 (1996). The constant leaves room for the long butterflies of
// large primes.
inline double transform_bound(std::size_t n) {
  return 1.6 * std::numeric_limits<double>::epsilon() * std::sqrt(std::log2(double(n)));
}

}  // namespace orb::tour
