// Cholesky factorisation by halves: the first half, a triangular solve for what joins it to the second, a
// symmetric update of the second, and the second half.
// Source: F. G. Gustavson, Recursion leads to automatic variable blocking for dense linear-algebra
// algorithms, IBM J. Res. Dev. 41 (1997) 737-755.
#include "blas/kernel/lapack/potrf_leaf.h"
#include "blas/kernel/lapack/routines.h"
#include "orb/blas_lapack.h"

namespace orb::blas {
namespace {

template <class T>
int leaf(bool upper, int n, T* a, int lda) {
  CholeskyLeaf<T> small(upper, n, a, lda);
  const int place = small.factor();
  small.copy_to(upper, a, lda);
  return place;
}

// Place from 1 of the first pivot that is not above 0, or 0.
template <class T>
int potrf(bool upper, int n, T* a, int lda) {
  if (n <= CholeskyLeaf<T>::most) return n > 0 ? leaf(upper, n, a, lda) : 0;
  constexpr int unit = 16;  // keeps the blocks of the products whole
  const int half = (n / 2 + unit - 1) / unit * unit, rest = n - half;
  if (const int place = potrf(upper, half, a, lda)) return place;
  T* const joint = upper ? a + half * lda : a + half;
  T* const corner = a + half + half * lda;
  const T one = element<T>(1);
  const real_of<T> minus_one = -1, unchanged = 1;
  if (upper) {
    Routines<T>::trsm("L", "U", "C", "N", &half, &rest, &one, a, &lda, joint, &lda);
    Routines<T>::herk("U", "C", &rest, &half, &minus_one, joint, &lda, &unchanged, corner, &lda);
  } else {
    Routines<T>::trsm("R", "L", "C", "N", &rest, &half, &one, a, &lda, joint, &lda);
    Routines<T>::herk("L", "N", &rest, &half, &minus_one, joint, &lda, &unchanged, corner, &lda);
  }
  const int place = potrf(upper, rest, corner, lda);
  return place ? half + place : 0;
}

}  // namespace
}  // namespace orb::blas

#define POTRF(name, T)                                                                    \
  ORB_EXPORT void name(const char* uplo, const int* n, T* a, const int* lda, int* info) { \
    *info = orb::blas::potrf(orb::is_option(uplo, 'U'), *n, a, *lda);                     \
  }
POTRF(orb_blas_spotrf, float)
POTRF(orb_blas_dpotrf, double)
POTRF(orb_blas_cpotrf, orb_complex_float)
POTRF(orb_blas_zpotrf, orb_complex_double)
