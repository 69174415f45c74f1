// y = alpha op(A) x + beta y: to the bit against plain scalar models that add in the promised order.
#include "tests/blas/level2/operands.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto gemv = orb_blas_xsgemv;
  static constexpr auto gbmv = orb_blas_sgbmv;
};
template <>
struct Entry<double> {
  static constexpr auto gemv = orb_blas_xdgemv;
  static constexpr auto gbmv = orb_blas_dgbmv;
};
template <>
struct Entry<c32> {
  static constexpr auto gemv = orb_blas_xcgemv;
  static constexpr auto gbmv = orb_blas_cgbmv;
};
template <>
struct Entry<c64> {
  static constexpr auto gemv = orb_blas_xzgemv;
  static constexpr auto gbmv = orb_blas_zgbmv;
};

struct Case {
  char trans;
  int m, n, incx, incy;
  int place = 0;
  bool plain() const { return is_plain(trans); }
  int terms() const { return plain() ? n : m; }
  int length() const { return plain() ? m : n; }
};
std::ostream& operator<<(std::ostream& out, const Case& s) {
  return out << s.trans << ' ' << s.m << " by " << s.n << ", strides " << s.incx << ' ' << s.incy
             << ", place " << s.place;
}

// Column j times x: the first row, those up to a 16-byte boundary, lanes, the rest.
template <class T>
T real_dot(const Case& s, const Stored<T>& a, const Vector<T>& x, int j) {
  const int peel = peel_at<T>((s.place + int(sizeof(T) / 4)) % 4), w = 16 / int(sizeof(T));
  int i = 1;
  T sum = a(0, j) * x.at(0);
  if (s.incx == 1 && s.incy == 1 && s.m - 1 >= 9 && peel >= 0) {
    for (; i < 1 + peel; ++i) sum += a(i, j) * x.at(i);
    std::array<T, 4> lane{sum};
    for (; s.m - i >= w; i += w)
      for (int l = 0; l < w; ++l) lane[l] += a(i + l, j) * x.at(i + l);
    sum = sum_lanes(lane, w);
  }
  for (; i < s.m; ++i) sum += a(i, j) * x.at(i);
  return sum;
}

// Like and crossed products by themselves, single ones of even and odd rows apart.
template <class T>
T complex_dot(const Case& s, const Stored<T>& a, const Vector<T>& x, int j) {
  const bool apart = sizeof(T) == 8 && s.incx == 1 && s.incy == 1;
  part_of<T> rr[2] = {}, ii[2] = {}, ri[2] = {}, ir[2] = {};
  for (int i = 0; i < s.m; ++i) {
    const int to = apart && i < s.m / 2 * 2 ? i % 2 : 0;
    const T e = a(i, j), f = x.at(i);
    rr[to] += e.re * f.re, ii[to] += e.im * f.im, ri[to] += e.re * f.im, ir[to] += e.im * f.re;
  }
  const T like{rr[0] + rr[1], ii[0] + ii[1]}, crossed{ri[0] + ri[1], ir[0] + ir[1]};
  if (s.trans != 'T' && s.trans != 't') return {like.re + like.im, crossed.re - crossed.im};
  return {like.re - like.im, crossed.re + crossed.im};
}

template <class T>
void model(const Case& s, T alpha, const Stored<T>& a, const Vector<T>& x, const Vector<T>& y) {
  if (!s.plain()) {
    for (int j = 0; j < s.n; ++j)
      if constexpr (is_complex<T>)
        y.at(j) = add(y.at(j), multiply(alpha, complex_dot(s, a, x, j)));
      else
        y.at(j) = real_dot(s, a, x, j) * alpha + y.at(j);
  } else if constexpr (is_complex<T>) {
    for (int j = 0; j < s.n; j += 2)
      for (int i = 0; i < s.m; ++i) {
        const T t = multiply(alpha, x.at(j)), e = a(i, j);
        T p{t.re * e.re, t.re * e.im}, q{t.im * e.re, t.im * e.im};
        if (j + 1 < s.n) {
          const T t1 = multiply(alpha, x.at(j + 1)), e1 = a(i, j + 1);
          p = add(p, T{t1.re * e1.re, t1.re * e1.im}), q = add(q, T{t1.im * e1.re, t1.im * e1.im});
        }
        y.at(i) = add(y.at(i), T{p.re - q.im, p.im + q.re});
      }
  } else {
    for (int j = 0; j < s.n; ++j)
      for (int i = 0; i < s.m; ++i) y.at(i) += alpha * x.at(j) * a(i, j);
  }
}

template <class T>
class Gemv : public testing::Test {
 protected:
  const T alpha_ = number<T>(0.7, -0.3);
  static void run(const Case& s, T alpha, const Stored<T>& a, const T* x, T beta, T* y) {
    const int ld = a.ld();
    call(Entry<T>::gemv, &s.trans, &s.m, &s.n, &alpha, a.data(), &ld, x, &s.incx, &beta, y, &s.incy);
  }
  void check(const Case& s, T beta) const {
    const Stored<T> a(Layout::whole, s.m, s.n, s.m, s.n);
    const Vector<T> x(s.terms(), s.incx, s.place), y(s.length(), s.incy, 3 - s.place),
        want(s.length(), s.incy, 3 - s.place);
    for (int i = 0; i < s.length(); ++i) {
      T& e = want.at(i);
      e = same(beta, T{}) ? T{} : same(beta, number<T>(1)) ? e : multiply(beta, e);
      if (same(beta, T{})) y.at(i) = not_a_number<T>;
    }
    model(s, alpha_, a, x, want);
    run(s, alpha_, a, x.data(), beta, y.data());
    ASSERT_EQ(y.image(), want.image()) << s;
  }
};
TYPED_TEST_SUITE(Gemv, EveryType);

TYPED_TEST(Gemv, EveryEdgeLetterAndPlace) {
  using T = TypeParam;
  const T betas[] = {number<T>(0), number<T>(1), number<T>(-2, 0.5)};
  int turn = 0;
  for (char trans : {'N', 'n', 'T', 't', 'C', 'c', '?'})
    for (int m : {1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 19, 31, 40})
      for (int n : {1, 2, 3, 4, 5, 7, 8, 9})
        ++turn, this->check({trans, m, n, 1, 1, turn % 4}, betas[turn % 3]);
}

TYPED_TEST(Gemv, EveryStride) {
  using T = TypeParam;
  for (char trans : {'N', 'T', 'C'})
    for (int incx : {1, -1, 2, -3})
      for (int incy : {1, -1, 3, -2})
        for (int m : {1, 6, 17}) this->check({trans, m, 7, incx, incy}, number<T>(incy > 0 ? 0 : 3));
}

// Longer than what is kept in the cache at a time.
TYPED_TEST(Gemv, ManyRows) {
  for (char trans : {'N', 'T', 'C'}) this->check({trans, 4999, 6, 1, 1, 2}, number<TypeParam>(1));
}

// Alpha 0 reads neither A nor x: null pointers; and nothing at all is touched without rows or columns.
TYPED_TEST(Gemv, QuickReturns) {
  using T = TypeParam;
  const int one = 1;
  std::vector<T> y(5, not_a_number<T>);
  const auto gemv = [&](int m, int n, double alpha, double beta) {
    const T a = number<T>(alpha), b = number<T>(beta);
    call(Entry<T>::gemv, "N", &m, &n, &a, nullptr, &m, nullptr, &one, &b, y.data(), &one);
  };
  gemv(0, 5, 2, 0), gemv(5, 0, 2, 0), gemv(5, 5, -0.0, 1);
  EXPECT_TRUE(same_elements(y, std::vector<T>(5, not_a_number<T>)));
  gemv(5, 5, 0, 0);
  EXPECT_TRUE(same_elements(y, std::vector<T>(5, T{})));
}

TYPED_TEST(Gemv, Banded) {
  using T = TypeParam;
  const auto gbmv = [&](const Case& s, int kl, int ku, T beta) {
    const Stored<T> a(Layout::band, s.m, s.n, kl, ku);
    const Vector<T> x(s.terms(), s.incx, 0), y(s.length(), s.incy, 0), start(s.length(), s.incy, 0);
    const int ld = a.ld();
    call(Entry<T>::gbmv, &s.trans, &s.m, &s.n, &kl, &ku, &this->alpha_, a.data(), &ld, x.data(), &s.incx,
         &beta, y.data(), &s.incy);
    for (int i = 0; i < s.length(); ++i) {
      Sum sum;
      sum.add(widened(beta), widened(start.at(i)));
      for (int k = 0; k < s.terms(); ++k)
        sum.add(widened(this->alpha_), widened(op(s.trans, s.plain() ? a(i, k) : a(k, i))), widened(x.at(k)));
      ASSERT_TRUE(within(y.at(i), sum, s.terms())) << s << ", band " << kl << ' ' << ku << ", element " << i;
    }
    EXPECT_TRUE(gaps_whole(y, s.length(), s.incy, 0));
  };
  for (char trans : {'n', 't', 'c'})
    for (const auto& [m, n] : {std::array{1, 1}, {9, 9}, {30, 30}, {6, 40}, {40, 5}})
      for (const auto& [kl, ku] : {std::array{0, 0}, {2, 1}, {0, 5}, {17, 3}})
        for (int inc : {1, -2}) gbmv({trans, m, n, inc, 3 - inc}, kl, ku, number<T>(inc - 1, inc));
}

}  // namespace
