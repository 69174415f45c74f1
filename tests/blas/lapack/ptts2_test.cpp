// Factored tridiagonal systems: the residual against the bound of rounding, and every number of columns
// against the same columns alone.
#include "tests/blas/lapack/table.h"

using namespace orb::test;

namespace {

template <class T>
void ptts2(int iuplo, int n, int nrhs, const part_of<T>* d, const T* e, T* b, int ldb) {
  if constexpr (std::is_same_v<T, float>)
    call(orb_blas_sptts2, &n, &nrhs, d, e, b, &ldb);
  else if constexpr (std::is_same_v<T, double>)
    call(orb_blas_dptts2, &n, &nrhs, d, e, b, &ldb);
  else if constexpr (std::is_same_v<T, c32>)
    call(orb_blas_cptts2, &iuplo, &n, &nrhs, d, e, b, &ldb);
  else
    call(orb_blas_zptts2, &iuplo, &n, &nrhs, d, e, b, &ldb);
}

template <class T>
struct Factors {
  std::vector<part_of<T>> d;
  std::vector<T> e;
  Factors(int n) : d(random_vector<part_of<T>>(n, 7)), e(random_vector<T>(n - 1, 8)) {
    for (auto& p : d) p = std::abs(p) + part_of<T>(0.1);
  }
  // The entry of the unit bidiagonal factor L below its diagonal i.
  Wide below(int iuplo, int i) const {
    return iuplo == 1 ? std::conj(wide(e[size_t(i)])) : wide(e[size_t(i)]);
  }

  // The largest |b - A x| beyond its bound: the two sweeps round each entry of L twice, each of L^H twice and
  // D once, so that |b - A x| <= 5 u |L| D |L^H| |x| up to terms in u^2.
  void check(int iuplo, const T* b, const T* x) const {
    const int n = int(d.size());
    std::vector<Wide> y(size_t(n + 1)), at(size_t(n + 1));
    std::vector<long double> size(size_t(n + 1));
    for (int i = 0; i < n; ++i) {
      const Wide up = i < n - 1 ? std::conj(below(iuplo, i)) * wide(x[i + 1]) : 0;
      y[size_t(i)] = (long double)d[size_t(i)] * (wide(x[i]) + up);
      size[size_t(i)] = (long double)d[size_t(i)] * (std::abs(wide(x[i])) + std::abs(up));
    }
    for (int i = 0; i < n; ++i) {
      const size_t k = size_t(i);
      const Wide product = y[k] + (i ? below(iuplo, i - 1) * y[k - 1] : 0);
      const long double bound = size[k] + (i ? std::abs(below(iuplo, i - 1)) * size[k - 1] : 0);
      ASSERT_LE(std::abs(wide(b[i]) - product), 6 * rounding<T> * bound) << "row " << i << " of " << n;
    }
  }
};

template <class T>
class Ptts2 : public Factor<T> {};
TYPED_TEST_SUITE(Ptts2, ElementTypes);

TYPED_TEST(Ptts2, SolvesInBothFormsForAnyNumberOfColumns) {
  using T = TypeParam;
  for (int iuplo : {0, 1})
    for (int n : {1, 2, 3, 4, 17, 40})
      for (int nrhs : {1, 2, 3, 4, 5, 7, 8, 9, 17}) {
        const Factors<T> factors(n);
        const Table<T> b(n, nrhs, n + nrhs % 2, nrhs % 4);
        b.randomise(unsigned(n));
        const auto start = b.all();
        spy().reset();
        ptts2(iuplo, n, nrhs, factors.d.data(), factors.e.data(), b.data(), b.ld);
        EXPECT_EQ(spy().scratch.size(), nrhs > 1 ? 1u : 0u);
        for (int j = 0; j < nrhs; ++j) {
          factors.check(iuplo, &start[size_t(j * b.ld)], &b(0, j));
          std::vector<T> alone(start.begin() + j * b.ld, start.begin() + j * b.ld + n);
          ptts2(iuplo, n, 1, factors.d.data(), factors.e.data(), alone.data(), n);
          EXPECT_TRUE(same_elements(std::vector<T>(&b(0, j), &b(0, j) + n), alone)) << n << " x " << nrhs;
        }
      }
}

TYPED_TEST(Ptts2, NothingToDo) {
  ptts2<TypeParam>(1, 0, 3, nullptr, nullptr, nullptr, 1);
  ptts2<TypeParam>(1, 3, 0, nullptr, nullptr, nullptr, 3);
  EXPECT_TRUE(spy().scratch.empty());
}

}  // namespace
