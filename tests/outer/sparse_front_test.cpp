// The sparse front against dense products in complex doubles, for every kind, operation and number of
// threads.
#include <cmath>

#include "gtest/gtest.h"
#include "orb/blas.h"
#include "orb/orb.h"
#include "orb/sparse.h"
#include "tests/outer/numbers.h"

using namespace orb::test;

namespace {

int bad_place = 0;
std::string bad_routine;

template <class T>
struct Faces;
#define FACES(T, t)                            \
  template <>                                  \
  struct Faces<T> {                            \
    static constexpr auto mv = orb_##t##csrmv; \
    static constexpr auto mm = orb_##t##csrmm; \
    static constexpr auto sv = orb_##t##csrsv; \
    static constexpr auto sm = orb_##t##csrsm; \
  };
FACES(float, s)
FACES(double, d)
FACES(orb_complex_float, c)
FACES(orb_complex_double, z)

using Table = std::vector<std::vector<Wide>>;

// m by k, about `each` entries a row in ascending order, small integers, one or a power of i on the diagonal,
// so that solutions are exact.
template <class T>
struct Csr {
  int m, k;
  std::vector<T> values;
  std::vector<int> columns, rows{7};
  Table stored;

  Csr(int m_, int k_, int each, bool from_one)
      : m(m_), k(k_), stored(static_cast<size_t>(m_), std::vector<Wide>(static_cast<size_t>(k_))) {
    for (int i = 0; i < m; ++i) {
      for (int c = 0; c < k; ++c) {
        if (c != i && (i * 31 + c * 17) % k >= each) continue;
        const Wide v = c == i ? (i % 2           ? Wide(-1)
                                 : is_complex<T> ? Wide(0, 1)
                                                 : Wide(1))
                              : Wide((i + 2 * c) % 3 - 1, (i * 3 + c) % 3 - 1);
        values.push_back(number<T>(v));
        columns.push_back(c + from_one);
        stored[size_t(i)][size_t(c)] = wide(number<T>(v));
      }
      rows.push_back(7 + int(values.size()));
    }
  }
};

// op(A) as the description means it.
template <class T>
Table meant(const Csr<T>& a, const std::string& d, char op) {
  Table full(a.stored.size(), std::vector<Wide>(size_t(a.k)));
  for (int i = 0; i < a.m; ++i)
    for (int c = 0; c < a.k; ++c) {
      const Wide v = a.stored[size_t(i)][size_t(c)];
      const auto put = [&](int r, int s, Wide w) { full[size_t(r)][size_t(s)] = w; };
      const bool inside = d[1] == 'L' ? c < i : c > i;
      if (d[0] == 'G' || (inside && d[0] != 'D')) put(i, c, v);
      if (inside && std::string("SHA").find(d[0]) != std::string::npos)
        put(c, i, d[0] == 'A' ? -v : d[0] == 'H' ? conj(v) : v);
      if (c == i && d[0] != 'G' && d[0] != 'A') put(i, i, d[2] == 'U' ? Wide(1) : v);
    }
  const bool transposes = op == 'T' || op == 'C', conjugates = op == 'C' || op == 'S';
  Table t(size_t(transposes ? a.k : a.m), std::vector<Wide>(size_t(transposes ? a.m : a.k)));
  for (size_t i = 0; i < t.size(); ++i)
    for (size_t c = 0; c < t[i].size(); ++c) {
      const Wide v = transposes ? full[c][i] : full[i][c];
      t[i][c] = conjugates ? conj(v) : v;
    }
  return t;
}

std::vector<Wide> times(const Table& a, const std::vector<Wide>& x) {
  std::vector<Wide> y;
  for (const auto& row : a) {
    y.push_back(0);
    for (size_t i = 0; i < row.size(); ++i) y.back() += row[i] * x[i];
  }
  return y;
}

const char* const descriptions[] = {"G__", "SLN", "SLU", "SUN", "SUU", "HLU", "HUU", "AL_",
                                    "AU_", "TLN", "TLU", "TUN", "TUU", "D_N", "D_U"};

template <class T>
class SparseFront : public testing::Test {
 public:
  ~SparseFront() override { orb_set_num_threads(0); }
};
using Types = testing::Types<float, double, orb_complex_float, orb_complex_double>;
TYPED_TEST_SUITE(SparseFront, Types);

// Both bases and both layouts, on one thread and on three; sizes on both sides of where division begins.
TYPED_TEST(SparseFront, ProductsOfEveryKindAndOperation) {
  using T = TypeParam;
  for (const char* kind : descriptions)
    for (char base : {'C', 'f'})
      for (char op : {'N', 'T', 'c', 'S'})
        for (int m : {9, 320})
          for (int threads : {1, 3}) {
            if (m == 320 && (op == 'T' || op == 'S' || threads == 1)) continue;
            const bool from_one = base == 'f', general = kind[0] == 'G';
            const int k = general ? m + 2 : m, each = m == 9 ? 4 : 140;
            const std::string d = std::string(kind) + base + "??";
            SCOPED_TRACE(testing::Message() << d << " op " << op << " m " << m << " threads " << threads);
            const Csr<T> a(m, k, each, from_one);
            const char capital = char(op & ~0x20);
            const Table table = meant(a, d, capital);
            const int ny = int(table.size()), nx = int(table[0].size());
            const auto x = integers<T>(nx, 1);
            auto y = integers<T>(ny, 2);
            const T alpha = number<T>({2, -1}), beta = number<T>({3, 1});
            const auto product = times(table, wide(x));
            auto expected = product;
            for (size_t i = 0; i < expected.size(); ++i)
              expected[i] = wide(alpha) * expected[i] + wide(beta) * wide(y[i]);
            orb_set_num_threads(threads);
            Faces<T>::mv(op, m, k, alpha, d.c_str(), a.values.data(), a.columns.data(), a.rows.data(),
                         a.rows.data() + 1, x.data(), beta, y.data());
            ASSERT_EQ(wide(y), expected);

            const int n = 9, ldb = from_one ? nx : n, ldc = (from_one ? ny : n) + 1;
            const auto at = [&](int r, int j, int ld) { return size_t(from_one ? j * ld + r : r * ld + j); };
            std::vector<T> b(size_t(nx * n)), c(size_t(ldc * (from_one ? n : ny)), number<T>({NAN, NAN}));
            for (int r = 0; r < nx; ++r)
              for (int j = 0; j < n; ++j) b[at(r, j, ldb)] = number<T>(wide(x[size_t(r)]) * double(j - 4));
            Faces<T>::mm(op, m, n, k, alpha, d.c_str(), a.values.data(), a.columns.data(), a.rows.data(),
                         a.rows.data() + 1, b.data(), ldb, number<T>(0), c.data(), ldc);
            for (int r = 0; r < ny; ++r)
              for (int j = 0; j < n; ++j)
                ASSERT_EQ(wide(c[at(r, j, ldc)]), wide(alpha) * product[size_t(r)] * double(j - 4));
          }
}

TYPED_TEST(SparseFront, SystemsOfEveryTriangleAndOperation) {
  using T = TypeParam;
  for (const char* kind : {"TLN", "TLU", "TUN", "TUU", "D_N", "D_U"})
    for (char base : {'c', 'F'})
      for (char op : {'n', 'T', 'C', 's'})
        for (int threads : {1, 2}) {
          const bool from_one = base == 'F';
          const std::string d = std::string(kind) + base + "  ";
          SCOPED_TRACE(testing::Message() << d << " op " << op);
          const int m = 24, n = 700;
          const Csr<T> a(m, m, 4, from_one);
          const auto x = integers<T>(m, 3);
          const T alpha = number<T>({0.5, 0});
          const auto right = times(meant(a, d, char(op & ~0x20)), wide(x));
          std::vector<T> b, y(m);
          for (Wide w : right) b.push_back(number<T>(2.0 * w));
          Faces<T>::sv(op, m, alpha, d.c_str(), a.values.data(), a.columns.data(), a.rows.data(),
                       a.rows.data() + 1, b.data(), y.data());
          ASSERT_EQ(wide(y), wide(x));

          const int ld = from_one ? m : n;
          std::vector<T> many(size_t(m * n));
          for (int r = 0; r < m; ++r)
            for (int j = 0; j < n; ++j) many[size_t(from_one ? j * ld + r : r * ld + j)] = b[size_t(r)];
          orb_set_num_threads(threads);
          Faces<T>::sm(op, m, n, alpha, d.c_str(), a.values.data(), a.columns.data(), a.rows.data(),
                       a.rows.data() + 1, many.data(), ld, many.data(), ld);
          for (int r = 0; r < m; ++r)
            for (int j = 0; j < n; ++j)
              ASSERT_EQ(wide(many[size_t(from_one ? j * ld + r : r * ld + j)]), wide(x[size_t(r)]));
        }
}

// Gathered and dense products have the same bits for any number of threads; mirrored ones for the same
// number.
TYPED_TEST(SparseFront, BitsAndThreads) {
  using T = TypeParam;
  const int m = 700;
  Csr<T> a(m, m, 120, false);
  for (T& v : a.values) v = number<T>(wide(v) / 7.0);
  const auto x = integers<T>(m, 1);
  const auto product = [&](const char* d, int threads) {
    std::vector<T> y(m);
    orb_set_num_threads(threads);
    Faces<T>::mv('N', m, m, number<T>({1.0 / 3, 0.1}), d, a.values.data(), a.columns.data(), a.rows.data(),
                 a.rows.data() + 1, x.data(), number<T>(0), y.data());
    return wide(y);
  };
  for (const char* d : {"G  C  ", "TLNC  ", "TUUC  "})
    for (int threads : {2, 3, 7}) EXPECT_EQ(product(d, threads), product(d, 1)) << d;
  for (const char* d : {"SLNC  ", "SUUC  ", "AL C  "})
    for (int threads : {2, 3}) EXPECT_EQ(product(d, threads), product(d, threads)) << d;
}

// What a factor of zero promises: beta overwrites, alpha reads nothing.
TYPED_TEST(SparseFront, FactorsOfZero) {
  using T = TypeParam;
  std::vector<T> y = {number<T>({NAN, NAN})};
  const T zero = number<T>(0), one = number<T>(1);
  Faces<T>::mv('N', 1, 1, zero, "G  C  ", nullptr, nullptr, nullptr, nullptr, nullptr, zero, y.data());
  EXPECT_EQ(wide(y[0]), Wide(0));
  Faces<T>::mv('N', 0, 1, one, "G  C  ", nullptr, nullptr, nullptr, nullptr, nullptr, one, nullptr);
  Faces<T>::mm('T', 1, 0, 1, one, "G  C  ", nullptr, nullptr, nullptr, nullptr, nullptr, 1, one, nullptr, 1);
  Faces<T>::sv('N', 0, one, "TLNC  ", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
}

TYPED_TEST(SparseFront, BadArgumentsAreToldByPlace) {
  using T = TypeParam;
  const T one = number<T>(1);
  T y = number<T>({4, 4});
  const auto mv = [&](char op, int m, int k, const char* d) {
    bad_place = 0;
    Faces<T>::mv(op, m, k, one, d, nullptr, nullptr, nullptr, nullptr, nullptr, one, &y);
    return bad_place;
  };
  const auto mm = [&](const char* d, int n, int ldb, int ldc) {
    bad_place = 0;
    Faces<T>::mm('T', 2, n, 3, one, d, nullptr, nullptr, nullptr, nullptr, nullptr, ldb, one, &y, ldc);
    return bad_place;
  };
  const auto sm = [&](char op, int m, int n, const char* d, int ldb, int ldc) {
    bad_place = 0;
    Faces<T>::sm(op, m, n, one, d, nullptr, nullptr, nullptr, nullptr, nullptr, ldb, &y, ldc);
    return bad_place;
  };
  EXPECT_EQ(mv('X', 1, 1, "G  C  "), 1);
  EXPECT_EQ(mv('N', -1, 1, "G  C  "), 2);
  EXPECT_EQ(mv('N', 1, -1, "G  C  "), 3);
  EXPECT_EQ(mv('N', 1, 2, "SLNC  "), 3);
  for (const char* d : {"X  C  ", "SXNC  ", "SLXC  ", "G  X  ", "T NC  ", "      ", ""})
    EXPECT_EQ(mv('N', 1, 1, d), 5);
  EXPECT_EQ(bad_routine.substr(1), "CSRMV");
  EXPECT_EQ(mm("G  C  ", -1, 9, 9), 3);
  EXPECT_EQ(mm("TLNC  ", 4, 9, 9), 4);
  EXPECT_EQ(mm("Q  C  ", 4, 9, 9), 6);
  EXPECT_EQ(mm("G  C  ", 4, 3, 9), 12);
  EXPECT_EQ(mm("G  C  ", 4, 4, 3), 15);
  EXPECT_EQ(mm("G  F  ", 4, 1, 9), 12);
  EXPECT_EQ(mm("G  F  ", 4, 2, 2), 15);
  EXPECT_EQ(sm('X', 1, 1, "TLNC  ", 1, 1), 1);
  EXPECT_EQ(sm('N', -1, 1, "TLNC  ", 1, 1), 2);
  EXPECT_EQ(sm('N', 1, -1, "TLNC  ", 1, 1), 3);
  EXPECT_EQ(sm('N', 1, 1, "SLNC  ", 1, 1), 5);
  EXPECT_EQ(sm('N', 1, 2, "TLNC  ", 1, 2), 11);
  EXPECT_EQ(sm('N', 2, 1, "TLNF  ", 2, 1), 13);
  EXPECT_EQ(wide(y), Wide(is_complex<T> ? Wide(4, 4) : Wide(4)));
}

// A call as an old caller makes it, with a stack off by a word.
TYPED_TEST(SparseFront, AnyStack) {
  using T = TypeParam;
  const Csr<T> a(9, 9, 4, false);
  const auto x = integers<T>(9, 1);
  // a character travels as a whole word
  const auto mv =
      reinterpret_cast<void (*)(int, int, int, T, const char*, const T*, const int*, const int*, const int*,
                                const T*, T, T*)>(reinterpret_cast<void*>(Faces<T>::mv));
  for (int i = 0; i < 4; ++i) {
    std::vector<T> y(9);
    call(mv, int('N'), 9, 9, number<T>(1), "G  C  ", a.values.data(), a.columns.data(), a.rows.data(),
         a.rows.data() + 1, x.data(), number<T>(0), y.data());
    EXPECT_EQ(wide(y), times(a.stored, wide(x)));
  }
}

TEST(SparseFrontHeader, Example) {
  const double values[] = {4, 1, 5, 2, 6};
  const int columns[] = {0, 0, 1, 1, 2}, rows[] = {0, 1, 3, 5};
  const double x[] = {1, 2, 3};
  double y[3];
  orb_dcsrmv('N', 3, 3, 1.0, "SLNC  ", values, columns, rows, rows + 1, x, 0.0, y);  // y is 6, 17, 22
  EXPECT_EQ(std::vector(y, y + 3), (std::vector<double>{6, 17, 22}));
}

}  // namespace

extern "C" void xerbla_(const char* name, const int* place, size_t length) {
  bad_routine.assign(name, length);
  bad_place = *place;
}
