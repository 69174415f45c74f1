// Sequences of rotations against explicit ones, to the bit: an element takes the same rounded operations on
// every path.
#include "tests/blas/lapack/table.h"

using namespace orb::test;

namespace {

template <class T>
constexpr auto lasr = entry_of<T>(orb_blas_slasr, orb_blas_dlasr, orb_blas_clasr, orb_blas_zlasr);

struct Sequence {
  char side, pivot, direct;
};
std::ostream& operator<<(std::ostream& out, Sequence s) { return out << s.side << s.pivot << s.direct; }

std::vector<Sequence> all_sequences() {
  std::vector<Sequence> all;
  for (char side : {'L', 'r'})
    for (char pivot : {'V', 't', 'B'})
      for (char direct : {'f', 'B'}) all.push_back({side, pivot, direct});
  return all;
}

// The lines of rotation k of a sequence over z lines, from 0.
std::pair<int, int> lines_of(char pivot, int k, int z) {
  if (pivot == 'V') return {k, k + 1};
  if (pivot == 't') return {0, k + 1};
  return {k, z - 1};
}

template <class T>
void rotate(T& x, T& y, part_of<T> c, part_of<T> s) {
  const T old = x;
  x = add(multiply(c, old), multiply(s, y));
  y = subtract(multiply(c, y), multiply(s, old));
}

template <class T>
class Lasr : public Factor<T> {
 protected:
  using Part = part_of<T>;
  static void check(Sequence q, int m, int n, const std::vector<Part>& c, const std::vector<Part>& s,
                    const Table<T>& a) {
    const bool left = q.side == 'L';
    const int z = left ? m : n;
    std::vector<T> expected = a.all();
    for (int step = 0; step < z - 1; ++step) {
      const int k = q.direct == 'f' ? step : z - 2 - step;
      const auto [x, y] = lines_of(q.pivot, k, z);
      if (c[size_t(k)] == 1 && s[size_t(k)] == 0) continue;
      for (int i = 0; i < (left ? n : m); ++i)
        rotate(expected[size_t(left ? x + i * a.ld : i + x * a.ld)],
               expected[size_t(left ? y + i * a.ld : i + y * a.ld)], c[size_t(k)], s[size_t(k)]);
    }
    call(lasr<T>, &q.side, &q.pivot, &q.direct, &m, &n, c.data(), s.data(), a.data(), &a.ld);
    ASSERT_TRUE(same_elements(a.all(), expected)) << q << " " << m << " x " << n;
  }
};
TYPED_TEST_SUITE(Lasr, ElementTypes);

TYPED_TEST(Lasr, EverySideAndPlaneInBothDirections) {
  using T = TypeParam;
  for (Sequence q : all_sequences())
    for (int m : {0, 1, 2, 3, 8, 13})
      for (int n : {0, 1, 2, 3, 4, 5, 9}) {
        const Table<T> a(m, n, m + n % 3 + 1, n % 4);
        a.randomise(unsigned(m + n));
        this->check(q, m, n, random_vector<part_of<T>>(std::max(m, n) - 1, 3),
                    random_vector<part_of<T>>(std::max(m, n) - 1, 4), a);
      }
}

TYPED_TEST(Lasr, ColumnsLongerThanAStrip) {
  using T = TypeParam;
  const Table<T> a(5003, 4, 5003);
  a.randomise(1);
  for (Sequence q : all_sequences())
    if (q.side == 'r')
      this->check(q, 5003, 4, random_vector<part_of<T>>(3, 3), random_vector<part_of<T>>(3, 4), a);
}

// 0 times infinity would make a NaN.
TYPED_TEST(Lasr, PassesOverTheIdentity) {
  using T = TypeParam;
  using R = part_of<T>;
  for (Sequence q : all_sequences()) {
    const Table<T> a(6, 6, 6);
    a.randomise(1);
    for (int i = 0; i < 6; ++i) a(i, 3) = a(3, i) = narrow<T>(INFINITY);
    this->check(q, 6, 6, {1, 1, 1, 1, 1}, {0, 0, 0, 0, 0}, a);
    EXPECT_TRUE(same(a(3, 3), narrow<T>(INFINITY))) << q;
    this->check(q, 6, 6, {R(0.6), R(-0.8), 1, 1, R(0.6)}, {R(0.8), R(0.6), 0, R(1e-3), R(0.8)}, a);
  }
}

}  // namespace
