// The promised order of operations of the triangular systems, to the bit, and what their blocks ask of the
// services.
#include "orb/blas_gemm.h"
#include "orb/blas_triangular.h"
#include "tests/blas/level3/matrix.h"
#include "tests/support/call.h"
#include "tests/support/spy.h"

using orb::test::call;
using orb::test::Matrix;
using orb::test::same;
using orb::test::spy;

namespace {

using Block = decltype(&dtrsm_lln);
using Block4 = decltype(&dtrsm_lln_4);
using Top = decltype(&orb_blas_dtrsm_lln_r);

struct Forms {
  bool upper, transposed;
  Block4 four;
  Block few, by_4[2], exact[3][2], plain, recursive;
  Top top;
};
#define FORMS(c, upper, transposed)                                                               \
  {                                                                                               \
    upper, transposed, dtrsm_##c##_4, dtrsm_##c##_lt_4, {dtrsm_##c##_by_4_u, dtrsm_##c##_by_4_a}, \
        {{dtrsm_##c##_8_u, dtrsm_##c##_8_a},                                                      \
         {dtrsm_##c##_16_u, dtrsm_##c##_16_a},                                                    \
         {dtrsm_##c##_32_u, dtrsm_##c##_32_a}},                                                   \
        dtrsm_##c, orb_blas_dtrsm_##c##_rec, orb_blas_dtrsm_##c##_r                               \
  }
const Forms all_forms[] = {FORMS(lln, false, false), FORMS(llt, false, true), FORMS(lun, true, false),
                           FORMS(lut, true, true)};

// A triangle whose other half, and whose diagonal if it counts as ones, is NaN.
template <class T>
struct Triangle : Matrix<T> {
  bool upper, unit;
  Triangle(int order, bool is_upper, bool is_unit, int more)
      : Matrix<T>(order, order, order + more), upper(is_upper), unit(is_unit) {
    this->randomise(5);
    for (int j = 0; j < order; ++j)
      for (int i = 0; i < order; ++i) {
        T& e = (*this)(i, j);
        if (i == j)
          e = unit ? T(NAN) : e + (e < 0 ? -3 : 3);
        else if ((i < j) != upper)
          e = T(NAN);
        else
          e /= T(order);
      }
  }
};

// One right-hand side in plain steps, rows as they lie in memory.
struct Model {
  const Triangle<double>& a;
  bool transposed, forward;
  double* x;

  double at(int i, int k) const { return transposed ? a(k, i) : a(i, k); }
  int first(int from, int m, int done, int rows) const { return from + (forward ? done : m - done - rows); }

  void straight(int from, int rows) const {
    for (int s = 0; s < rows; ++s) {
      const int i = first(from, rows, s, 1);
      for (int r = 0; r < s; ++r) {
        const int k = first(from, rows, r, 1);
        x[i] -= at(i, k) * x[k];
      }
      if (!a.unit) x[i] /= at(i, i);
    }
  }
  void subtract(int from, int depth, int to, int rows) const {
    for (int i = to; i < to + rows; ++i) {
      double even = 0, odd = 0;
      for (int k = from; k < from + depth; k += 2) even += at(i, k) * x[k], odd += at(i, k + 1) * x[k + 1];
      x[i] -= even + odd;
    }
  }
  void halves(int from, int rows) const {
    if (rows == 4) return straight(from, 4);
    const int half = rows / 2, early = first(from, rows, 0, half), late = first(from, rows, half, half);
    halves(early, half), subtract(early, half, late, half), halves(late, half);
  }
  void fours(int from, int m) const {
    int done = 0;
    for (int rows : {32, 16, 8, 4})
      for (; m - done >= rows; done += rows) {
        const int i = first(from, m, done, rows), left = m - done - rows;
        halves(i, rows), subtract(i, rows, first(from, m, done + rows, left), left);
      }
  }
};

class Order : public testing::Test {
 public:
  Order() { spy().reset(); }
  ~Order() override { EXPECT_EQ(spy().faults(), ""); }

  // solve(a, b) against model(x) on each column, for both diagonals, alignments and two column counts.
  template <class Solve, class Steps>
  static void check(const Forms& f, int m, Solve solve, Steps steps) {
    for (bool unit : {false, true})
      for (int n : {1, 2, 5})
        for (int place : {0, 2}) {
          const bool aligned = place == 0;
          const Triangle<double> a(m, f.upper, unit, n % 3);
          const Matrix<double> b(m, n, m + (aligned ? m % 2 : n % 2 + 1), place), expected(m, n, b.ld);
          b.randomise(6), expected.randomise(6);
          for (int j = 0; j < n; ++j) steps(Model{a, f.transposed, f.upper == f.transposed, &expected(0, j)});
          solve(aligned, unit ? "u" : "N", a, b);
          ASSERT_TRUE(same(b.all(), expected.all()))
              << (f.upper ? "upper" : "lower") << (f.transposed ? " transposed " : " ") << m << " by " << n
              << (unit ? " unit" : "") << " place " << place;
        }
    EXPECT_TRUE(spy().scratch.empty());
  }
};

void run(Block solve, const char* diag, const Matrix<double>& a, const Matrix<double>& b) {
  call(solve, diag, &b.rows, &b.cols, a.data(), &a.ld, b.data(), &b.ld);
}

TEST_F(Order, FewRowsStraight) {
  for (const auto& f : all_forms) {
    for (int m : {1, 2, 3})
      check(
          f, m, [&](bool, const auto&... args) { run(f.few, args...); },
          [=](const Model& x) { x.straight(0, m); });
    const auto four = [&](bool, const char* diag, const auto& a, const auto& b) {
      call(f.four, diag, &b.cols, a.data(), &a.ld, b.data(), &b.ld);
    };
    check(f, 4, four, [](const Model& x) { x.straight(0, 4); });
  }
}

TEST_F(Order, FoursByHalvesAndTiles) {
  for (const auto& f : all_forms) {
    for (int size : {0, 1, 2})
      check(
          f, 8 << size, [&](bool aligned, const auto&... args) { run(f.exact[size][aligned], args...); },
          [=](const Model& x) { x.halves(0, 8 << size); });
    for (int m : {4, 8, 12, 16, 20, 28, 32, 36, 60, 64, 100})
      check(
          f, m, [&](bool aligned, const auto&... args) { run(f.by_4[aligned], args...); },
          [=](const Model& x) { x.fours(0, m); });
  }
}

// Each storey is the one below on its blocks, and a product for what lies between them.
TEST_F(Order, StoreysOfBlocks) {
  const double minus = -1, plus = 1;
  const int one = 1;
  for (const auto& f : all_forms) {
    const bool forward = f.upper == f.transposed;
    // The first `size` rows of the sweep by solve_first, the product, the others by solve_rest.
    const auto compose = [&](int m, int n, int size, Block solve_first, Block solve_rest, auto whole,
                             size_t products) {
      const Triangle<double> a(m, f.upper, false, 1);
      const Matrix<double> b(m, n, m + 1), expected(m, n, m + 1);
      b.randomise(7), expected.randomise(7);
      const int rest = m - size, i = forward ? 0 : rest, to = forward ? size : 0;
      solve_first("N", &size, &n, &a(i, i), &a.ld, &expected(i, 0), &b.ld);
      if (rest > 0) {
        orb_blas_xdgemm(f.transposed ? "T" : "N", "N", &rest, &n, &size, &minus,
                        f.transposed ? &a(i, to) : &a(to, i), &a.ld, &expected(i, 0), &b.ld, &plus,
                        &expected(to, 0), &b.ld);
        solve_rest("N", &rest, &n, &a(to, to), &a.ld, &expected(to, 0), &b.ld);
      }
      spy().reset();
      whole(a, b);
      ASSERT_TRUE(same(b.all(), expected.all())) << f.upper << f.transposed << ' ' << m << " by " << n;
      ASSERT_EQ(spy().scratch.size(), products) << m << " by " << n;
    };
    const auto plain = [&](const auto& a, const auto& b) { run(f.plain, "N", a, b); };
    const auto recursive = [&](const auto& a, const auto& b) { run(f.recursive, "N", a, b); };
    const auto top = [&](const auto& a, const auto& b) {
      call(f.top, "N", &b.rows, &b.cols, a.data(), &a.ld, b.data(), &b.ld, &one);
    };
    for (int m : {13, 17, 66, 255})
      for (int n : {1, 9, 129}) compose(m, n, m / 4 * 4, f.by_4[0], f.few, plain, 0);
    compose(256, 9, 256, f.plain, f.plain, recursive, 0);
    compose(257, 9, 256, f.plain, f.few, recursive, 0);  // the product of one row takes no scratch
    compose(300, 129, 256, f.plain, f.plain, recursive, 1);
    compose(600, 8, 256, f.plain, f.recursive, recursive, 2);
    compose(512, 9, 512, f.recursive, f.recursive, top, 1);
    compose(513, 9, 512, f.recursive, f.few, top, 1);
    compose(900, 8, 512, f.recursive, f.recursive, top, 3);
  }
}

// The unblocked sides: terms one by one in the order of the unknowns, then a division on the left and the
// reciprocal's multiplication on the right.
template <class T, class Solve>
void check_one_by_one(bool left, bool upper, bool transposed, bool unit, Solve solve) {
  for (int order : {1, 3, 4, 7, 20, 64, 70})
    for (int others : {1, 2, 9, 16, 37}) {
      const Triangle<T> a(order, upper, unit, 1);
      const int m = left ? order : others, n = left ? others : order;
      const Matrix<T> b(m, n, m + others % 3, others & 3), expected(m, n, b.ld);
      b.randomise(8), expected.randomise(8);
      const bool forward = (upper == transposed) == left;
      for (int l = 0; l < others; ++l) {
        const auto x = [&](int s) -> T& { return left ? expected(s, l) : expected(l, s); };
        for (int s = 0; s < order; ++s) {
          const int i = forward ? s : order - 1 - s;
          for (int r = 0; r < s; ++r) {
            const int k = forward ? r : order - 1 - r;
            x(i) -= (left == transposed ? a(k, i) : a(i, k)) * x(k);
          }
          if (!unit) x(i) = left ? x(i) / a(i, i) : x(i) * (1 / a(i, i));
        }
      }
      solve(a, b);
      ASSERT_TRUE(same(b.all(), expected.all()))
          << left << upper << transposed << unit << ' ' << m << " by " << n;
    }
}

template <class T, class Entry>
void check_right(Entry entry) {
  for (bool upper : {false, true})
    for (bool transposed : {false, true})
      for (bool unit : {false, true})
        check_one_by_one<T>(false, upper, transposed, unit, [=](const Matrix<T>& a, const Matrix<T>& b) {
          call(entry, "R", upper ? "U" : "L", transposed ? "T" : "N", unit ? "U" : "N", &b.rows, &b.cols,
               nullptr, a.data(), &a.ld, b.data(), &b.ld);
        });
}

TEST_F(Order, RightSideByReciprocals) {
  check_right<double>(orb_blas_dtrsm_i);
  check_right<float>(orb_blas_strsm_i);
}

TEST_F(Order, LeftSideByDivisions) {
  for (bool upper : {false, true})
    for (bool unit : {false, true}) {
      const char* const diag = unit ? "U" : "N";
      const auto finish = [=](auto entry, const auto& a, const auto& b, auto... uplo) {
        call(entry, uplo..., diag, &b.rows, &b.cols, a.data(), &a.ld, b.data(), &b.ld);
      };
      check_one_by_one<float>(true, upper, false, unit, [=](const auto& a, const auto& b) {
        finish(upper ? orb_blas_strsmlun : orb_blas_strsmlln, a, b);
      });
      check_one_by_one<float>(true, upper, true, unit, [=](const auto& a, const auto& b) {
        finish(orb_blas_strsmlt, a, b, upper ? "U" : "L");
      });
    }
}

// Blocks of 256, 128 and 64 columns in strips of rows: every product that is not too thin asks for scratch
// once.
TEST_F(Order, RightSideBlocks) {
  const auto products = [](auto entry, int m, int n) {
    const Triangle<double> a(n, true, false, 0);
    const Matrix<double> b(m, n, m);
    const double alpha = 1;
    b.randomise(9);
    spy().reset();
    call(entry, "R", "U", "N", "N", &m, &n, &alpha, a.data(), &a.ld, b.data(), &b.ld);
    return spy().scratch.size();
  };
  EXPECT_EQ(products(orb_blas_xdtrsm, 8, 64), 0u);
  EXPECT_EQ(products(orb_blas_xdtrsm, 8, 128), 1u);       // between two 64s
  EXPECT_EQ(products(orb_blas_xdtrsm, 8, 256), 3u);       // and between two 128s
  EXPECT_EQ(products(orb_blas_xdtrsm, 8, 512), 7u);       // and between two 256s
  EXPECT_EQ(products(orb_blas_xdtrsm, 1032, 512), 13u);   // strips of 1024 and 8 rows, all below in each
  EXPECT_EQ(products(orb_blas_dtrsm_l1, 2048, 256), 5u);  // two strips of two blocks, and between the blocks
  EXPECT_EQ(products(orb_blas_dtrsm_l2, 2048, 192), 2u);
  EXPECT_EQ(products(orb_blas_xdtrsm, 3, 512), 0u);  // too thin
}

}  // namespace
