// Symmetric and Hermitian matrices in every layout, within the bound of theory. What the stored triangle does
// not have is NaN, as are the imaginary parts of a Hermitian diagonal.
#include "tests/blas/level2/operands.h"

using namespace orb::test;

namespace {

template <class T>
struct Entry;
template <>
struct Entry<float> {
  static constexpr auto mv = orb_blas_xssymv;
  static constexpr auto r2 = orb_blas_xssyr2;
  static constexpr auto r = orb_blas_xssyr;
  static constexpr auto mv_nb = orb_blas_ssymv_nb;
  static constexpr auto r2_nb = orb_blas_ssyr2_nb;
  static constexpr auto bmv = orb_blas_ssbmv;
  static constexpr auto pmv = orb_blas_sspmv;
  static constexpr auto pr = orb_blas_sspr;
  static constexpr auto pr2 = orb_blas_sspr2;
};
template <>
struct Entry<double> {
  static constexpr auto mv = orb_blas_xdsymv;
  static constexpr auto r2 = orb_blas_xdsyr2;
  static constexpr auto r = orb_blas_xdsyr;
  static constexpr auto mv_nb = orb_blas_dsymv_nb;
  static constexpr auto r2_nb = orb_blas_dsyr2_nb;
  static constexpr auto bmv = orb_blas_dsbmv;
  static constexpr auto pmv = orb_blas_dspmv;
  static constexpr auto pr = orb_blas_dspr;
  static constexpr auto pr2 = orb_blas_dspr2;
};
template <>
struct Entry<c32> {
  static constexpr auto mv = orb_blas_chemv;
  static constexpr auto r2 = orb_blas_cher2;
  static constexpr auto r = orb_blas_cher;
  static constexpr auto mv_nb = orb_blas_chemv_nb;
  static constexpr auto r2_nb = orb_blas_cher2_nb;
  static constexpr auto bmv = orb_blas_chbmv;
  static constexpr auto pmv = orb_blas_chpmv;
  static constexpr auto pr = orb_blas_chpr;
  static constexpr auto pr2 = orb_blas_chpr2;
};
template <>
struct Entry<c64> {
  static constexpr auto mv = orb_blas_zhemv;
  static constexpr auto r2 = orb_blas_zher2;
  static constexpr auto r = orb_blas_zher;
  static constexpr auto mv_nb = orb_blas_zhemv_nb;
  static constexpr auto r2_nb = orb_blas_zher2_nb;
  static constexpr auto bmv = orb_blas_zhbmv;
  static constexpr auto pmv = orb_blas_zhpmv;
  static constexpr auto pr = orb_blas_zhpr;
  static constexpr auto pr2 = orb_blas_zhpr2;
};

const int sizes[] = {0, 1, 2, 3, 4, 5, 6, 8, 9, 12, 15, 23, 40};

// The whole matrix that a stored triangle stands for.
template <class T>
T mirrored(const Stored<T>& a, int i, int j) {
  if (i != j) return a.has(i, j) ? a(i, j) : conjugate(a(j, i));
  T e = a(i, i);
  if constexpr (is_complex<T>) e.im = 0;
  return e;
}

template <class T>
Stored<T> symmetric(Layout layout, char uplo, int n, int reach = 0) {
  Stored<T> a = Stored<T>::triangle(layout, (uplo | 0x20) == 'u', n, reach);
  if constexpr (is_complex<T>)
    for (int i = 0; i < n; ++i) a.at(i, i).im = NAN;
  return a;
}

template <class T>
class Symmetric : public testing::Test {
 protected:
  const T alpha_ = number<T>(0.7, -0.3);

  // y = alpha A x + beta y by run(a, x, y).
  template <class Run>
  void check_product(const Stored<T>& a, int incx, int incy, T beta, Run run) const {
    const int n = a.size();
    const Vector<T> x(n, incx, 1), y(n, incy, 2), start(n, incy, 2);
    if (same(beta, T{}))
      for (int i = 0; i < n; ++i) y.at(i) = not_a_number<T>;
    run(x.data(), y.data());
    for (int i = 0; i < n; ++i) {
      Sum sum;
      sum.add(widened(beta), widened(start.at(i)));
      for (int k = 0; k < n; ++k)
        sum.add(widened(this->alpha_), widened(mirrored(a, i, k)), widened(x.at(k)));
      ASSERT_TRUE(within(y.at(i), sum, n))
          << "n " << n << ", strides " << incx << ' ' << incy << ", element " << i;
    }
    EXPECT_TRUE(gaps_whole(y, n, incy, 2));
  }

  // A += alpha x op(x)^T or A += alpha x op(y)^T + op(alpha) y op(x)^T by run(a, x, y).
  template <class Run>
  static void check_update(Stored<T> a, T alpha, bool hermitian, int incx, int incy, bool rank_two, Run run) {
    const int n = a.size();
    const Vector<T> x(n, incx, 1), y(n, incy, 2, 9);
    const std::vector<T> before = a.all();
    const auto opposite = [&](T e) { return widened(hermitian ? conjugate(e) : e); };
    std::vector<Sum> sums(size_t(n) * size_t(n));
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < n; ++i)
        if (a.has(i, j)) {
          Sum& sum = sums[size_t(i + j * n)];
          sum.add(widened(i == j && hermitian ? mirrored(a, i, i) : a(i, j)), 1);
          sum.add(widened(alpha), widened(x.at(i)), opposite(rank_two ? y.at(j) : x.at(j)));
          if (rank_two) sum.add(opposite(alpha), widened(y.at(i)), opposite(x.at(j)));
        }
    run(a, x.data(), y.data());
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < n; ++i)
        if (a.has(i, j)) {
          if (hermitian && i == j) sums[size_t(i + j * n)].value.imag(0);
          ASSERT_TRUE(within(a(i, j), sums[size_t(i + j * n)], 2)) << "n " << n << ", at " << i << ", " << j;
          if constexpr (is_complex<T>) {
            if (hermitian && i == j) {
              ASSERT_EQ(a(i, i).im, 0);
            }
          }
          a.at(i, j) = not_a_number<T>;
        }
    EXPECT_TRUE(same_elements(a.all(), std::vector<T>(before.size(), not_a_number<T>)))
        << "outside the triangle";
  }
};
TYPED_TEST_SUITE(Symmetric, EveryType);

TYPED_TEST(Symmetric, Products) {
  using T = TypeParam;
  using E = Entry<T>;
  const T* alpha = &this->alpha_;
  for (char uplo : {'U', 'u', 'L', 'l'})
    for (int n : sizes)
      for (int incx : {1, -2})
        for (int incy : {1, 3, -1}) {
          const T beta = incy == 3 ? number<T>(0) : number<T>(incy, 0.5);
          const Stored<T> a = symmetric<T>(Layout::whole, uplo, n), p = symmetric<T>(Layout::packed, uplo, n);
          const int ld = a.ld();
          this->check_product(a, incx, incy, beta, [&](const T* x, T* y) {
            call(E::mv, &uplo, &n, alpha, a.data(), &ld, x, &incx, &beta, y, &incy);
          });
          for (int nb : {0, 1, 6, 100})
            this->check_product(a, incx, incy, beta, [&](const T* x, T* y) {
              call(E::mv_nb, &uplo, &n, alpha, a.data(), &ld, x, &incx, &beta, y, &incy, &nb);
            });
          this->check_product(p, incx, incy, beta, [&](const T* x, T* y) {
            call(E::pmv, &uplo, &n, alpha, p.data(), x, &incx, &beta, y, &incy);
          });
          for (int k : {0, 1, 2, 3, 7, 50}) {
            const Stored<T> b = symmetric<T>(Layout::band, uplo, n, k);
            const int distance = b.ld();
            this->check_product(b, incx, incy, beta, [&](const T* x, T* y) {
              call(E::bmv, &uplo, &n, &k, alpha, b.data(), &distance, x, &incx, &beta, y, &incy);
            });
          }
        }
}

TYPED_TEST(Symmetric, Updates) {
  using T = TypeParam;
  using E = Entry<T>;
  const T* alpha = &this->alpha_;
  const part_of<T> real = part_of<T>(0.6);
  const T as_number = number<T>(real);
  for (char uplo : {'U', 'u', 'L', 'l'})
    for (int n : sizes)
      for (int incx : {1, -2})
        for (int incy : {1, 3}) {
          const auto whole = [&] { return symmetric<T>(Layout::whole, uplo, n); };
          const auto packed = [&] { return symmetric<T>(Layout::packed, uplo, n); };
          const int ld = whole().ld();
          this->check_update(whole(), as_number, true, incx, incy, false, [&](auto& a, const T* x, const T*) {
            call(E::r, &uplo, &n, &real, x, &incx, a.data(), &ld);
          });
          this->check_update(
              packed(), as_number, true, incx, incy, false,
              [&](auto& a, const T* x, const T*) { call(E::pr, &uplo, &n, &real, x, &incx, a.data()); });
          this->check_update(packed(), *alpha, true, incx, incy, true, [&](auto& a, const T* x, const T* y) {
            call(E::pr2, &uplo, &n, alpha, x, &incx, y, &incy, a.data());
          });
          std::vector<T> plain;
          this->check_update(whole(), *alpha, true, incx, incy, true, [&](auto& a, const T* x, const T* y) {
            call(E::r2, &uplo, &n, alpha, x, &incx, y, &incy, a.data(), &ld);
            plain = a.all();
          });
          for (int nb : {0, 1, 6, 100})  // the same bits for any block
            this->check_update(whole(), *alpha, true, incx, incy, true, [&](auto& a, const T* x, const T* y) {
              call(E::r2_nb, &uplo, &n, alpha, x, &incx, y, &incy, a.data(), &ld, &nb);
              EXPECT_TRUE(same_elements(a.all(), plain));
            });
          if constexpr (std::is_same_v<T, c32>)
            this->check_update(Stored<T>::triangle(Layout::packed, (uplo | 0x20) == 'u', n, 0), *alpha, false,
                               incx, incy, false, [&](auto& a, const T* x, const T*) {
                                 call(orb_blas_cspr, &uplo, &n, alpha, x, &incx, a.data());
                               });
        }
}

// Without rows, and with alpha 0 unless beta has work to do, nothing is read or written: null pointers.
TYPED_TEST(Symmetric, QuickReturns) {
  using T = TypeParam;
  using E = Entry<T>;
  const int none = 0, two = 2, one = 1;
  const T a = number<T>(2), zero = number<T>(-0.0, 0), unit = number<T>(1);
  const part_of<T> real = 2, no_real = 0;
  for (const auto& [n, alpha, beta, r] : {std::tuple{&none, &a, &a, &real}, {&two, &zero, &unit, &no_real}}) {
    call(E::mv, "U", n, alpha, nullptr, &two, nullptr, &one, beta, nullptr, &one);
    call(E::pmv, "U", n, alpha, nullptr, nullptr, &one, beta, nullptr, &one);
    call(E::bmv, "L", n, &one, alpha, nullptr, &two, nullptr, &one, beta, nullptr, &one);
    call(E::mv_nb, "L", n, alpha, nullptr, &two, nullptr, &one, beta, nullptr, &one, &two);
    call(E::r, "U", n, r, nullptr, &one, nullptr, &two);
    call(E::pr, "L", n, r, nullptr, &one, nullptr);
    call(E::r2, "U", n, alpha, nullptr, &one, nullptr, &one, nullptr, &two);
    call(E::pr2, "L", n, alpha, nullptr, &one, nullptr, &one, nullptr);
  }
}

}  // namespace
