// Symmetric indefinite factorisation: what the factors multiply to, and the choice of pivots against plain
// elimination of one pivot after the other.
#include "tests/blas/lapack/table.h"

using namespace orb::test;

namespace {

template <class T>
constexpr auto sytrf = entry_of<T>(orb_blas_ssytrf, orb_blas_dsytrf, orb_blas_csytrf, orb_blas_zsytrf);

// Rows and columns counted from where the elimination starts: from the first row for the lower triangle, from
// the last one back for the upper.
struct Order {
  bool upper;
  int n;
  int operator()(int i) const { return upper ? n - 1 - i : i; }
};

template <class T>
struct Factored {
  Order order;
  Table<T> a;
  std::vector<T> start;
  Guarded<int> ipiv;
  int info = -7;

  Factored(bool upper, int n, int ld, int place = -1) : order{upper, n}, a(n, n, ld, place), ipiv(n) {}
  // The element of the triangle of what `all` held.
  Wide in(const std::vector<T>& all, int i, int j) const {
    const int p = order(std::max(i, j)), q = order(std::min(i, j));
    return wide(all[size_t(p + q * a.ld)]);
  }
  void set(int i, int j, Wide x) { a(order(std::max(i, j)), order(std::min(i, j))) = narrow<T>(x); }
  void run(int lwork = -2) {
    const int n = order.n, room = lwork == -2 ? std::max(1, 100 * n) : lwork;
    const char* uplo = order.upper ? "u" : "L";
    const Guarded<T> work(room);
    start = a.all();
    call(sytrf<T>, uplo, &n, a.data(), &a.ld, ipiv.data(), work.data(), &room, &info);
  }
  int pivot(int k) const { return ipiv[order(k)]; }
  bool paired(int k) const { return pivot(k) < 0; }
  int exchange(int k) const { return order(std::abs(pivot(k)) - 1); }

  // |A - P1 L1 P2 L2 ... D ... L1^T P1| <= (3 n + 12) u (the same product of absolute values), n being the
  // longest sum: each entry of L D takes as many subtractions, and a division by a pivot of order 2 some
  // more operations, which are stable since Bunch's and Kaufman's pivots have a bounded condition.
  void check_product() const {
    const int n = order.n;
    const std::vector<T> now = a.all();
    WideMatrix product{n, n}, size{n, n};
    for (int k = 0; k < n; ++k)
      for (int i = k; i < n && i <= k + (paired(k) && first_of_pair(k)); ++i) {
        product(i, k) = product(k, i) = in(now, i, k);
        size(i, k) = size(k, i) = std::abs(in(now, i, k));
      }
    for (int k = n - 1; k >= 0; --k) {
      const int first = paired(k) ? k - 1 : k;
      for (int row = n - 1; row > k; --row)
        for (int col = first; col <= k; ++col) add_multiple(product, size, now, row, col);
      const int p = exchange(k);
      for (int j = 0; j < n; ++j) {
        std::swap(product(k, j), product(p, j)), std::swap(size(k, j), size(p, j));
      }
      for (int i = 0; i < n; ++i) {
        std::swap(product(i, k), product(i, p)), std::swap(size(i, k), size(i, p));
      }
      k = first;
    }
    for (int j = 0; j < n; ++j)
      for (int i = j; i < n; ++i)
        ASSERT_LE(std::abs(in(start, i, j) - product(i, j)), (3 * n + 12) * rounding<T> * size(i, j).real())
            << (order.upper ? "upper " : "lower ") << n << " at " << i << ", " << j;
  }
  bool first_of_pair(int k) const {
    int pairs = 0;
    for (int i = 0; i < k; ++i) pairs += paired(i);
    return pairs % 2 == 0;
  }

 private:
  // Rows and columns of the trailing part: L (L^-1 applied backwards) as one row and column operation.
  void add_multiple(WideMatrix& product, WideMatrix& size, const std::vector<T>& now, int row,
                    int col) const {
    const int n = order.n;
    const Wide factor = in(now, row, col);
    for (int j = 0; j < n; ++j) {
      product(row, j) += factor * product(col, j);
      size(row, j) += std::abs(factor) * size(col, j);
    }
    for (int i = 0; i < n; ++i) {
      product(i, row) += factor * product(i, col);
      size(i, row) += std::abs(factor) * size(i, col);
    }
  }
};

long double size_of(Wide x) { return std::abs(x.real()) + std::abs(x.imag()); }

// One pivot after the other in wide arithmetic: pairs (row exchanged, order of the pivot) in the order of the
// elimination. `in_order` maps a place to memory, where the first of equals wins.
std::vector<std::pair<int, int>> plain_pivots(WideMatrix a, Order order) {
  const int n = a.rows;
  const long double alpha = (1 + sqrtl(17)) / 8;
  std::vector<std::pair<int, int>> pivots;
  for (int k = 0; k < n;) {
    int p = k, width = 1, below = -1;
    long double column = 0, row = 0;
    for (int i = k + 1; i < n; ++i) {
      const long double size = size_of(a(i, k));
      if (size > column || (size == column && size > 0 && order.upper)) column = size, below = i;
    }
    const long double diagonal = size_of(a(k, k));
    if (diagonal < alpha * column) {
      for (int j = k; j < n; ++j)
        if (j != below) row = std::max(row, size_of(a(below, j)));
      if (diagonal >= alpha * column * column / row)
        p = k;
      else if (size_of(a(below, below)) >= alpha * row)
        p = below;
      else
        p = below, width = 2;
    }
    const int at = k + width - 1;
    for (int j = k; j < n; ++j) std::swap(a(at, j), a(p, j));
    for (int i = k; i < n; ++i) std::swap(a(i, at), a(i, p));
    const Wide d = width == 1 ? a(k, k) : a(k, k) * a(k + 1, k + 1) - a(k + 1, k) * a(k + 1, k);
    for (int i = k + width; i < n && d != Wide(0); ++i)
      for (int j = k + width; j < n; ++j)
        a(i, j) -= width == 1 ? a(i, k) * a(k, j) / d
                              : (a(i, k) * (a(k + 1, k + 1) * a(k, j) - a(k + 1, k) * a(k + 1, j)) +
                                 a(i, k + 1) * (a(k, k) * a(k + 1, j) - a(k + 1, k) * a(k, j))) /
                                    d;
    pivots.push_back({p, width});
    k += width;
  }
  return pivots;
}

template <class T>
class Sytrf : public Factor<T> {};
TYPED_TEST_SUITE(Sytrf, ElementTypes);

TYPED_TEST(Sytrf, MultipliesToTheMatrixAndChoosesAsPlainElimination) {
  using T = TypeParam;
  int singles = 0, pairs = 0;
  for (bool upper : {false, true})
    for (int n : {1, 2, 3, 4, 5, 8, 13, 31, 32, 33, 34, 63, 64, 65, 97, 130}) {
      SCOPED_TRACE(testing::Message() << (upper ? "upper " : "lower ") << n);
      Factored<T> f(upper, n, n + n % 3, n % 4);
      std::minstd_rand random{unsigned(n)};
      for (int j = 0; j < n; ++j)
        for (int i = j; i < n; ++i) f.set(i, j, wide(random_element<T>(random)));
      WideMatrix a{n, n};
      f.run();
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) a(i, j) = f.in(f.start, i, j);
      ASSERT_EQ(f.info, 0);
      f.check_product();
      int k = 0;
      for (const auto& [p, width] : plain_pivots(a, f.order)) {
        for (int i = k; i < k + width; ++i) {
          ASSERT_EQ(f.exchange(i), p) << "pivot " << k;
          ASSERT_EQ(f.paired(i), width == 2) << "pivot " << k;
        }
        k += width;
        ++(width == 1 ? singles : pairs);
      }
      for (int j = 0; j < n; ++j)
        for (int i = j + 1; i < n; ++i)
          ASSERT_TRUE(same(f.a(f.order(j), f.order(i)), narrow<T>(Wide(NAN, NAN)))) << "other triangle";
    }
  EXPECT_GT(singles, 100);
  EXPECT_GT(pairs, 100);
}

TYPED_TEST(Sytrf, TheFirstOfEqualsInMemoryIsThePivot) {
  using T = TypeParam;
  for (bool upper : {false, true})
    for (unsigned seed = 1; seed < 40; ++seed) {
      Factored<T> f(upper, 6, 6);
      std::minstd_rand random{seed};
      WideMatrix a{6, 6};
      for (int j = 0; j < 6; ++j)
        for (int i = j; i < 6; ++i) {
          a(i, j) = a(j, i) = int(random() >> 9) % 3 - 1;
          f.set(i, j, a(i, j));
        }
      f.run();
      ASSERT_EQ(f.exchange(f.paired(0)), plain_pivots(a, f.order)[0].first) << "seed " << seed;
    }
}

TYPED_TEST(Sytrf, TellsTheFirstZeroOfTheElimination) {
  using T = TypeParam;
  for (bool upper : {false, true})
    for (const auto& [first, second] : {std::pair{1, 3}, {0, 0}, {49, 60}, {60, 60}}) {
      Factored<T> f(upper, 61, 61);
      for (int j = 0; j < 61; ++j)
        for (int i = j; i < 61; ++i) f.set(i, j, i == j && i != first && i != second ? 1 + i : 0);
      f.run();
      EXPECT_EQ(f.info, f.order(first) + 1);
      EXPECT_TRUE(same_elements(f.a.all(), f.start));
      for (int k = 0; k < 61; ++k) EXPECT_EQ(f.exchange(k), k);
    }
}

TYPED_TEST(Sytrf, AnyWorkspaceGivesTheSame) {
  using T = TypeParam;
  const int n = 75;
  T best;
  int asked = -1, info = -7;
  call(sytrf<T>, "U", &n, nullptr, &n, nullptr, &best, &asked, &info);
  EXPECT_EQ(info, 0);
  const int optimal = int(wide(best).real());
  ASSERT_GE(optimal, n);
  Factored<T> roomy(false, n, n), narrow_one(false, n, n);
  roomy.a.randomise(3), narrow_one.a.randomise(3);
  roomy.run(optimal);
  const auto of_its_own = [] {
    return std::count_if(spy().scratch.begin(), spy().scratch.end(),
                         [](const MemoryRequest& r) { return r.alignment == 64; });
  };
  EXPECT_EQ(of_its_own(), 0);
  narrow_one.run(1);
  EXPECT_EQ(of_its_own(), 1);
  EXPECT_TRUE(same_elements(roomy.a.all(), narrow_one.a.all()));
  EXPECT_TRUE(std::equal(roomy.ipiv.begin(), roomy.ipiv.end(), narrow_one.ipiv.begin()));
}

TYPED_TEST(Sytrf, NothingToDo) {
  Factored<TypeParam> f(true, 0, 1);
  f.run(1);
  EXPECT_EQ(f.info, 0);
}

}  // namespace
