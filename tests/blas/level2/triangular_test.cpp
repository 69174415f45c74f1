// Triangular products and solves in every layout, within the bound of theory. What is not to be read is NaN:
// outside the triangle, and a unit diagonal.
#include "tests/blas/level2/operands.h"
#include "tests/support/spy.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto trmv = orb_blas_xstrmv;
  static constexpr auto tbmv = orb_blas_stbmv;
  static constexpr auto tpmv = orb_blas_stpmv;
  static constexpr auto trsv = orb_blas_strsv;
  static constexpr auto tbsv = orb_blas_stbsv;
  static constexpr auto tpsv = orb_blas_stpsv;
  static constexpr auto trmv_in = orb_blas_strmv_in;
  static constexpr auto gemv = orb_blas_xsgemv;
  static constexpr decltype(&orb_blas_strsv_lnn) inner[2][3][2] = {
      {{orb_blas_strsv_lnn, orb_blas_strsv_lnu},
       {orb_blas_strsv_ltn, orb_blas_strsv_ltu},
       {orb_blas_strsv_ltn, orb_blas_strsv_ltu}},
      {{orb_blas_strsv_unn, orb_blas_strsv_unu},
       {orb_blas_strsv_utn, orb_blas_strsv_utu},
       {orb_blas_strsv_utn, orb_blas_strsv_utu}}};
};
template <>
struct Entry<double> {
  static constexpr auto trmv = orb_blas_xdtrmv;
  static constexpr auto tbmv = orb_blas_dtbmv;
  static constexpr auto tpmv = orb_blas_dtpmv;
  static constexpr auto trsv = orb_blas_dtrsv;
  static constexpr auto tbsv = orb_blas_dtbsv;
  static constexpr auto tpsv = orb_blas_dtpsv;
  static constexpr auto trmv_in = orb_blas_dtrmv_in;
  static constexpr auto gemv = orb_blas_xdgemv;
  static constexpr decltype(&orb_blas_dtrsv_lnn) inner[2][3][2] = {
      {{orb_blas_dtrsv_lnn, orb_blas_dtrsv_lnu},
       {orb_blas_dtrsv_ltn, orb_blas_dtrsv_ltu},
       {orb_blas_dtrsv_ltn, orb_blas_dtrsv_ltu}},
      {{orb_blas_dtrsv_unn, orb_blas_dtrsv_unu},
       {orb_blas_dtrsv_utn, orb_blas_dtrsv_utu},
       {orb_blas_dtrsv_utn, orb_blas_dtrsv_utu}}};
};
template <>
struct Entry<c32> {
  static constexpr auto trmv = orb_blas_xctrmv;
  static constexpr auto tbmv = orb_blas_ctbmv;
  static constexpr auto tpmv = orb_blas_ctpmv;
  static constexpr auto trsv = orb_blas_ctrsv;
  static constexpr auto tbsv = orb_blas_ctbsv;
  static constexpr auto tpsv = orb_blas_ctpsv;
  static constexpr auto trmv_in = orb_blas_ctrmv_in;
  static constexpr auto gemv = orb_blas_xcgemv;
  static constexpr decltype(&orb_blas_ctrsv_lnn) inner[2][3][2] = {
      {{orb_blas_ctrsv_lnn, orb_blas_ctrsv_lnu},
       {orb_blas_ctrsv_ltn, orb_blas_ctrsv_ltu},
       {orb_blas_ctrsv_lcn, orb_blas_ctrsv_lcu}},
      {{orb_blas_ctrsv_unn, orb_blas_ctrsv_unu},
       {orb_blas_ctrsv_utn, orb_blas_ctrsv_utu},
       {orb_blas_ctrsv_ucn, orb_blas_ctrsv_ucu}}};
};
template <>
struct Entry<c64> {
  static constexpr auto trmv = orb_blas_xztrmv;
  static constexpr auto tbmv = orb_blas_ztbmv;
  static constexpr auto tpmv = orb_blas_ztpmv;
  static constexpr auto trsv = orb_blas_ztrsv;
  static constexpr auto tbsv = orb_blas_ztbsv;
  static constexpr auto tpsv = orb_blas_ztpsv;
  static constexpr auto trmv_in = orb_blas_ztrmv_in;
  static constexpr auto gemv = orb_blas_xzgemv;
  static constexpr decltype(&orb_blas_ztrsv_lnn) inner[2][3][2] = {
      {{orb_blas_ztrsv_lnn, orb_blas_ztrsv_lnu},
       {orb_blas_ztrsv_ltn, orb_blas_ztrsv_ltu},
       {orb_blas_ztrsv_lcn, orb_blas_ztrsv_lcu}},
      {{orb_blas_ztrsv_unn, orb_blas_ztrsv_unu},
       {orb_blas_ztrsv_utn, orb_blas_ztrsv_utu},
       {orb_blas_ztrsv_ucn, orb_blas_ztrsv_ucu}}};
};

struct Options {
  char uplo, trans, diag;
  bool upper() const { return (uplo | 0x20) == 'u'; }
  bool unit() const { return (diag | 0x20) == 'u'; }
  int op() const { return is_plain(trans) ? 0 : (trans | 0x20) == 't' ? 1 : 2; }
};
std::ostream& operator<<(std::ostream& out, const Options& s) { return out << s.uplo << s.trans << s.diag; }

template <class F>
void for_options(F f) {
  for (const char* uplo : {"Uu", "Ll"})
    for (const char* trans : {"Nn", "Tt", "Cc"})
      for (const char* diag : {"Nn", "Uu"})
        for (int lower_case : {0, 1}) f(Options{uplo[lower_case], trans[1 - lower_case], diag[lower_case]});
}

// Off the diagonal small enough for solves of this size.
template <class T>
Stored<T> triangle(Layout layout, const Options& s, int n, int reach = 0) {
  Stored<T> a = Stored<T>::triangle(layout, s.upper(), n, reach);
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i)
      if (i == j)
        a.at(i, j) = s.unit() ? not_a_number<T> : number<T>(1.5 - i % 3, i % 2 + 0.3);
      else if (a.has(i, j))
        a.at(i, j) = multiply(part_of<T>(1) / part_of<T>(n), a.at(i, j));
  return a;
}

template <class T>
class Triangular : public testing::Test {
 protected:
  Triangular() { spy().reset(); }
  // op(A) x, element i.
  static Sum product(const Options& s, const Stored<T>& a, const Vector<T>& x, int i) {
    Sum sum;
    for (int k = 0; k < a.size(); ++k) {
      const T e = s.op() == 0 ? a(i, k) : a(k, i);
      sum.add(i == k && s.unit() ? 1 : widened(s.op() == 2 ? conjugate(e) : e), widened(x.at(k)));
    }
    return sum;
  }
  template <class Run>
  static void check_product(const Options& s, const Stored<T>& a, int inc, Run run) {
    const int n = a.size();
    const Vector<T> x(n, inc, 1), start(n, inc, 1);
    run(x.data());
    for (int i = 0; i < n; ++i)
      ASSERT_TRUE(within(x.at(i), product(s, a, start, i), n))
          << s << ' ' << n << " by " << inc << ", element " << i;
    EXPECT_TRUE(gaps_whole(x, n, inc, 1));
  }
  // |b - op(A) x| <= (n + 2) u |op(A)| |x|, a backward error.
  template <class Run>
  static void check_solve(const Options& s, const Stored<T>& a, int inc, Run run) {
    const int n = a.size();
    const Vector<T> x(n, inc, 1), b(n, inc, 1);
    run(x.data());
    for (int i = 0; i < n; ++i)
      ASSERT_TRUE(within(b.at(i), product(s, a, x, i), n))
          << s << ' ' << n << " by " << inc << ", element " << i;
    EXPECT_TRUE(gaps_whole(x, n, inc, 1));
  }
};
TYPED_TEST_SUITE(Triangular, EveryType);

TYPED_TEST(Triangular, Whole) {
  using T = TypeParam;
  using E = Entry<T>;
  for_options([&](const Options& s) {
    for (int n : {0, 1, 2, 3, 4, 5, 7, 14, 32, 33, 64, 65, 131})
      for (int inc : {1, 2, -3}) {
        const Stored<T> a = triangle<T>(Layout::whole, s, n);
        const int ld = a.ld();
        for (auto trmv : {E::trmv, E::trmv_in})
          this->check_product(
              s, a, inc, [&](T* x) { call(trmv, &s.uplo, &s.trans, &s.diag, &n, a.data(), &ld, x, &inc); });
        spy().reset();
        this->check_solve(
            s, a, inc, [&](T* x) { call(E::trsv, &s.uplo, &s.trans, &s.diag, &n, a.data(), &ld, x, &inc); });
        ASSERT_EQ(spy().gemv_calls, std::max(0, (n + 31) / 32 - 1)) << s << ' ' << n;
        this->check_solve(s, a, inc, [&](T* x) {
          call(E::inner[s.upper()][s.op()][s.unit()], &n, a.data(), &ld, x, &inc);
        });
      }
  });
}

TYPED_TEST(Triangular, PackedAndBanded) {
  using T = TypeParam;
  using E = Entry<T>;
  for_options([&](const Options& s) {
    for (int n : {0, 1, 2, 3, 4, 5, 8, 13, 34})
      for (int inc : {1, -2}) {
        const Stored<T> p = triangle<T>(Layout::packed, s, n);
        this->check_product(s, p, inc,
                            [&](T* x) { call(E::tpmv, &s.uplo, &s.trans, &s.diag, &n, p.data(), x, &inc); });
        this->check_solve(s, p, inc,
                          [&](T* x) { call(E::tpsv, &s.uplo, &s.trans, &s.diag, &n, p.data(), x, &inc); });
        for (int k : {0, 1, 2, 5, 20, 40}) {
          const Stored<T> b = triangle<T>(Layout::band, s, n, k);
          const int ld = b.ld();
          const auto with = [&](auto f) {
            return [=, &s, &n, &k, &b, &ld, &inc](T* x) {
              call(f, &s.uplo, &s.trans, &s.diag, &n, &k, b.data(), &ld, x, &inc);
            };
          };
          this->check_product(s, b, inc, with(E::tbmv));
          this->check_solve(s, b, inc, with(E::tbsv));
          if constexpr (std::is_same_v<T, c32>)
            this->check_product(s, b, inc, with(orb_blas_ctbmv_f)),
                this->check_solve(s, b, inc, with(orb_blas_ctbsv_f)),
                this->check_solve(s, b, inc, with(orb_blas_ctbsv_vial1));
          if constexpr (std::is_same_v<T, c64>)
            this->check_product(s, b, inc, with(orb_blas_ztbmv_f)),
                this->check_solve(s, b, inc, with(orb_blas_ztbsv_f)),
                this->check_solve(s, b, inc, with(orb_blas_ztbsv_vial1));
        }
      }
  });
}

// Where the blocks of 64 are cut: the sweep starts with full ones.
TYPED_TEST(Triangular, BlocksOfTheProduct) {
  using T = TypeParam;
  using E = Entry<T>;
  const int n = 150, inc = 1, full = 64, partial = 22;
  const T one = number<T>(1);
  for_options([&](const Options& s) {
    const Stored<T> a = triangle<T>(Layout::whole, s, n);
    const int ld = a.ld();
    const Vector<T> x(n, inc, 1), want(n, inc, 1);
    const bool plain = s.op() == 0, from_front = s.upper() == plain;
    const auto block = [&](int at, int width, int done_from, int done) {
      if (done)
        E::gemv(&s.trans, plain ? &done : &width, plain ? &width : &done, &one,
                plain ? &a.at(0, 0) + done_from + at * ld : &a.at(0, 0) + at + done_from * ld, &ld,
                &want.at(at), &inc, &one, &want.at(done_from), &inc);
      E::trmv_in(&s.uplo, &s.trans, &s.diag, &width, &a.at(at, at), &ld, &want.at(at), &inc);
    };
    if (from_front)
      block(0, full, 0, 0), block(64, full, 0, 64), block(128, partial, 0, 128);
    else
      block(86, full, 0, 0), block(22, full, 86, 64), block(0, partial, 22, 128);
    call(E::trmv, &s.uplo, &s.trans, &s.diag, &n, a.data(), &ld, x.data(), &inc);
    EXPECT_EQ(x.image(), want.image()) << s;
  });
}

// The plain real solve takes the products off one by one: to the bit.
TYPED_TEST(Triangular, OrderOfThePlainSolve) {
  using T = TypeParam;
  if constexpr (!is_complex<T>)
    for (bool upper : {false, true})
      for (int n : {1, 4, 6, 11, 31}) {
        const Options s{upper ? 'U' : 'L', 'N', 'N'};
        const Stored<T> a = triangle<T>(Layout::whole, s, n);
        const int ld = a.ld(), inc = 1;
        const Vector<T> x(n, inc, 1), want(n, inc, 1);
        for (int turn = 0; turn < n; ++turn) {
          const int j = upper ? n - 1 - turn : turn;
          want.at(j) /= a(j, j);
          for (int i = upper ? 0 : j + 1; i < (upper ? j : n); ++i) want.at(i) -= want.at(j) * a(i, j);
        }
        call(Entry<T>::trsv, &s.uplo, &s.trans, &s.diag, &n, a.data(), &ld, x.data(), &inc);
        EXPECT_EQ(x.image(), want.image()) << s << ' ' << n;
      }
}

// No test for a zero diagonal; quotients of numbers near the ends of the range do not overflow on the way.
TYPED_TEST(Triangular, SingularAndExtreme) {
  using T = TypeParam;
  using R = part_of<T>;
  const int one = 1;
  T x = number<T>(-2), zero{};
  call(Entry<T>::inner[0][0][0], &one, &zero, &one, &x, &one);
  if constexpr (!is_complex<T>) {
    EXPECT_EQ(x, -INFINITY);
  } else {
    EXPECT_FALSE(isfinite(x.re));
    const R large = std::numeric_limits<R>::max() / 4;
    for (const T& d : {T{large, large / 2}, T{-large / 2, large}}) {
      x = d;
      call(Entry<T>::inner[1][1][0], &one, &d, &one, &x, &one);
      EXPECT_TRUE(same(x, T{1, 0}));
    }
  }
}

}  // namespace
