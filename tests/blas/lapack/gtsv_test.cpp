// Tridiagonal systems against a dense elimination in wide arithmetic, and the factor that is left.
#include "tests/blas/lapack/table.h"

using namespace orb::test;

namespace {

template <class T>
constexpr auto gtsv = entry_of<T>(orb_blas_sgtsv, orb_blas_dgtsv, orb_blas_cgtsv, orb_blas_zgtsv);

long double row_norm(const WideMatrix& a) {
  long double most = 0;
  for (int i = 0; i < a.rows; ++i) {
    long double sum = 0;
    for (int j = 0; j < a.cols; ++j) sum += std::abs(a(i, j));
    most = std::max(most, sum);
  }
  return most;
}

// The inverse, by Gauss-Jordan elimination with exchanges of rows.
WideMatrix inverse(WideMatrix a) {
  const int n = a.rows;
  WideMatrix b{n, n};
  for (int i = 0; i < n; ++i) b(i, i) = 1;
  for (int k = 0; k < n; ++k) {
    int top = k;
    for (int i = k; i < n; ++i)
      if (std::abs(a(i, k)) > std::abs(a(top, k))) top = i;
    const Wide pivot = a(top, k);
    for (int j = 0; j < n; ++j) {
      std::swap(a(k, j), a(top, j)), std::swap(b(k, j), b(top, j));
      a(k, j) /= pivot, b(k, j) /= pivot;
    }
    for (int i = 0; i < n; ++i) {
      const Wide factor = i == k ? 0 : a(i, k);
      for (int j = 0; j < n; ++j) a(i, j) -= factor * a(k, j), b(i, j) -= factor * b(k, j);
    }
  }
  return b;
}

// Diagonals of an array each, so that each ends at a guard page.
template <class T>
struct System {
  int n;
  Table<T> dl, d, du;
  System(int order, unsigned seed)
      : n(order), dl(std::max(n - 1, 0), 1, n, 1), d(n, 1, n, 2), du(std::max(n - 1, 0), 1, n, 3) {
    dl.randomise(seed), d.randomise(seed + 1), du.randomise(seed + 2);
  }
  WideMatrix dense() const {
    WideMatrix a{n, n};
    for (int i = 0; i < n; ++i) a(i, i) = wide(d(i, 0));
    for (int i = 0; i < n - 1; ++i) a(i, i + 1) = wide(du(i, 0)), a(i + 1, i) = wide(dl(i, 0));
    return a;
  }
  // What the call left: the upper triangle with its second superdiagonal.
  WideMatrix triangle() const {
    WideMatrix u{n, n};
    for (int i = 0; i < n; ++i) u(i, i) = wide(d(i, 0));
    for (int i = 0; i < n - 1; ++i) u(i, i + 1) = wide(du(i, 0));
    for (int i = 0; i < n - 2; ++i) u(i, i + 2) = wide(dl(i, 0));
    return u;
  }
  int solve(const Table<T>& b) const {
    int info = -7;
    call(gtsv<T>, &n, &b.cols, dl.data(), d.data(), du.data(), b.data(), &b.ld, &info);
    return info;
  }
};

// A U^-1 is the lower factor with its rows exchanged: each row ends with a one, each in another column, and
// no multiplier is larger than one by |re| + |im| of both parts of the quotient.
void check_lower_factor(const WideMatrix& a, const WideMatrix& u, long double error) {
  const int n = a.rows;
  ASSERT_LT(error, 0.1);
  const WideMatrix to_lower = inverse(u);
  std::vector<bool> taken(size_t(n), false);
  for (int i = 0; i < n; ++i) {
    int last = -1;
    Wide end = 0;
    for (int j = 0; j < n; ++j) {
      Wide e = 0;
      for (int k = 0; k < n; ++k) e += a(i, k) * to_lower(k, j);
      EXPECT_LE(std::abs(e), sqrtl(2) + error);
      if (std::abs(e) > error) last = j, end = e;
    }
    ASSERT_GE(last, 0);
    EXPECT_LE(std::abs(end - Wide(1)), error) << "row " << i;
    EXPECT_FALSE(taken[size_t(last)]) << "row " << i;
    taken[size_t(last)] = true;
  }
}

template <class T>
class Gtsv : public Factor<T> {};
TYPED_TEST_SUITE(Gtsv, ElementTypes);

// Wilkinson's bound: the solution belongs to a matrix within 3 n^2 u times the growth, which is 2 for a
// tridiagonal matrix at most (complex: 4), of |A|.
TYPED_TEST(Gtsv, AgreesWithADenseSolution) {
  using T = TypeParam;
  for (int n : {1, 2, 3, 4, 5, 16, 33})
    for (int nrhs : {0, 1, 2, 5}) {
      const System<T> system(n, unsigned(n + nrhs));
      const WideMatrix a = system.dense(), solver = inverse(a);
      const Table<T> b(n, nrhs, n + 1, nrhs % 4);
      b.randomise(9);
      const auto start = b.all();
      ASSERT_EQ(system.solve(b), 0) << n;
      const long double backward = 3.L * n * n * 4 * rounding<T> * row_norm(a);
      if (n <= 5) check_lower_factor(a, system.triangle(), backward * row_norm(inverse(system.triangle())));
      for (int j = 0; j < nrhs; ++j) {
        long double error = 0, size = 0;
        for (int i = 0; i < n; ++i) {
          Wide x = 0;
          for (int k = 0; k < n; ++k) x += solver(i, k) * wide(start[size_t(k + j * b.ld)]);
          error = std::max(error, std::abs(wide(b(i, j)) - x));
          size = std::max(size, std::abs(wide(b(i, j))));
        }
        EXPECT_LE(error, row_norm(solver) * backward * size) << n << " x " << nrhs;
      }
    }
}

TYPED_TEST(Gtsv, TellsTheFirstZeroPivot) {
  using T = TypeParam;
  const struct {
    int dl[3], d[4], du[3], place;
  } cases[] = {{{0, 1, 1}, {0, 1, 1, 1}, {1, 1, 1}, 1},  // a zero column
               {{1, 0, 1}, {1, 1, 1, 1}, {1, 1, 1}, 2},  // rows 1 and 2 alike up to there
               {{2, 2, 0}, {1, 1, 1, 0}, {0, 0, 7}, 4},  // exchanges on the way
               {{1, 1, 1}, {1, 2, 2, 1}, {1, 1, 1}, 4}};
  for (const auto& k : cases) {
    const System<T> system(4, 1);
    for (int i = 0; i < 4; ++i) system.d(i, 0) = narrow<T>(k.d[i]);
    for (int i = 0; i < 3; ++i) system.dl(i, 0) = narrow<T>(k.dl[i]), system.du(i, 0) = narrow<T>(k.du[i]);
    const Table<T> b(4, 1, 4);
    b.randomise(1);
    EXPECT_EQ(system.solve(b), k.place);
  }
  const Table<T> none(0, 0, 1);
  EXPECT_EQ(System<T>(0, 1).solve(none), 0);
}

}  // namespace
