// Cholesky factorisation: what the factor multiplies to, exact factors of integers, and where a matrix stops
// being positive definite.
#include "tests/blas/lapack/table.h"

using namespace orb::test;

namespace {

template <class T>
constexpr auto potrf = entry_of<T>(orb_blas_spotrf, orb_blas_dpotrf, orb_blas_cpotrf, orb_blas_zpotrf);

// A Hermitian matrix by its lower triangle, stored in either one; the other triangle and the imaginary parts
// of the diagonal are NaN, so that their use shows.
template <class T>
struct Hermitian {
  bool upper;
  Table<T> a;
  Hermitian(bool up, int n, int ld, int place = -1) : upper(up), a(n, n, ld, place) {}
  Wide operator()(int i, int j) const { return upper ? std::conj(wide(a(j, i))) : wide(a(i, j)); }
  void set(int i, int j, Wide x) {
    if (i == j) x.imag(NAN);
    (upper ? a(j, i) : a(i, j)) = narrow<T>(upper && i != j ? std::conj(x) : x);
  }
  int factor() {
    const char* uplo = upper ? "U" : "l";
    int info = -7;
    call(potrf<T>, uplo, &a.rows, a.data(), &a.ld, &info);
    for (int j = 0; j < a.cols; ++j)
      for (int i = j + 1; i < a.rows; ++i)
        EXPECT_TRUE(same(upper ? a(i, j) : a(j, i), narrow<T>(Wide(NAN, NAN)))) << "other triangle";
    return info;
  }
};

template <class T>
class Potrf : public Factor<T> {};
TYPED_TEST_SUITE(Potrf, ElementTypes);

// An element is a sum of n products, and one that is divided by a pivot, perhaps by way of its reciprocal.
TYPED_TEST(Potrf, MultipliesToTheMatrix) {
  using T = TypeParam;
  for (bool upper : {false, true})
    for (int n : {0, 1, 2, 3, 4, 7, 16, 17, 31, 32, 33, 47, 48, 49, 64, 65, 97, 130, 201}) {
      Hermitian<T> a(upper, n, n + n % 3 + 1, n % 4);
      std::minstd_rand random{unsigned(n + 1)};
      WideMatrix start{n, n};
      for (int j = 0; j < n; ++j)
        for (int i = j; i < n; ++i) {
          const Wide x = i == j ? Wide(roundl(2 * sqrtl(n) + 1)) : wide(random_element<T>(random));
          a.set(i, j, x);
          start(i, j) = x;
        }
      ASSERT_EQ(a.factor(), 0) << n;
      for (int j = 0; j < n; ++j) {
        ASSERT_EQ(a(j, j).imag(), 0);
        for (int i = j; i < n; ++i) {
          Wide sum = 0;
          long double size = 0;
          for (int k = 0; k <= j; ++k) {
            sum += a(i, k) * std::conj(a(j, k));
            size += std::abs(a(i, k)) * std::abs(a(j, k));
          }
          ASSERT_LE(std::abs(start(i, j) - sum), (n + 4) * rounding<T> * size)
              << (upper ? "upper " : "lower ") << n << " at " << i << ", " << j;
        }
      }
    }
}

// Small integers with powers of two on the diagonal: A = L L^H and every step of its factorisation is exact.
template <class T>
struct ExactFactor {
  WideMatrix l;
  ExactFactor(int n) : l{n, n} {
    std::minstd_rand random{7};
    const auto small = [&] { return (long double)(int(random() >> 9) % 3 - 1); };
    for (int i = 0; i < n; ++i)
      for (int j = 0; j <= i; ++j)
        l(i, j) = i == j ? Wide(1 << i % 3) : Wide(small(), is_complex<T> ? small() : 0);
  }
  void multiply_into(Hermitian<T>& a) const {
    for (int j = 0; j < l.cols; ++j)
      for (int i = j; i < l.rows; ++i) {
        Wide sum = 0;
        for (int k = 0; k <= j; ++k) sum += l(i, k) * std::conj(l(j, k));
        a.set(i, j, sum);
      }
  }
  // The first k rows of the factor are in place.
  void check(const Hermitian<T>& a, int k) const {
    for (int i = 0; i < k; ++i)
      for (int j = 0; j <= i; ++j) ASSERT_EQ(a(i, j), l(i, j)) << i << ", " << j;
  }
};

TYPED_TEST(Potrf, TellsTheFirstMinorThatIsNotPositive) {
  using T = TypeParam;
  const int n = 100;
  const ExactFactor<T> factor(n);
  for (bool upper : {false, true})
    for (int k : {0, 1, 15, 31, 32, 63, 64, 98, 99, n})
      for (long double pivot : {0.L, -3.L, (long double)NAN}) {
        SCOPED_TRACE(testing::Message() << (upper ? "upper " : "lower ") << k << " pivot " << pivot);
        Hermitian<T> a(upper, n, n + 1);
        factor.multiply_into(a);
        if (k < n) a.set(k, k, a(k, k).real() - std::norm(factor.l(k, k)) + pivot);
        ASSERT_EQ(a.factor(), k < n ? k + 1 : 0);
        factor.check(a, k);
        if (k < n) {
          EXPECT_TRUE(same((double)a(k, k).real(), (double)pivot));
        }
      }
}

}  // namespace
