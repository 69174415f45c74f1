// The faces of the factorisations: each reaches the kernel of its name, and bad arguments are told in
// LAPACK's order before anything is touched.
#include <string>

#include "gtest/gtest.h"
#include "orb/blas.h"
#include "orb/lapack.h"
#include "tests/outer/numbers.h"

using namespace orb::test;

namespace {
std::string told;  // what the error handler of this program heard last
}

// This program's own handler, which must win over the library's.
extern "C" void xerbla_(const char* name, const int* place, size_t length) {
  told = std::string(name, length) + " " + std::to_string(*place);
}

namespace {

template <class T>
struct Names;
#define NAMES(T, R_, letter, capital_, ...)                                                \
  template <>                                                                              \
  struct Names<T> {                                                                        \
    using R = R_;                                                                          \
    static constexpr char capital = capital_;                                              \
    static constexpr auto potrf = orb_##letter##potrf;                                     \
    static constexpr auto sytrf = orb_##letter##sytrf;                                     \
    static constexpr auto gtsv = orb_##letter##gtsv;                                       \
    static constexpr auto lasr = orb_##letter##lasr;                                       \
    static constexpr auto larfx = orb_##letter##larfx;                                     \
    static void ptts2(int iuplo, int n, int nrhs, const R* d, const T* e, T* b, int ldb) { \
      (void)iuplo;                                                                         \
      call_face(orb_##letter##ptts2, __VA_ARGS__ n, nrhs, d, e, b, ldb);                   \
    }                                                                                      \
  };
NAMES(float, float, s, 'S')
NAMES(double, double, d, 'D')
NAMES(orb_complex_float, float, c, 'C', iuplo, )
NAMES(orb_complex_double, double, z, 'Z', iuplo, )

template <class T>
class Lapack : public testing::Test {
 protected:
  using R = typename Names<T>::R;
  void SetUp() override { told.clear(); }
  // The handler heard of argument `place` of this routine, or of nothing if place is 0.
  static void heard(const char* routine, int place, int info) {
    const std::string name = std::string(1, Names<T>::capital) + routine;
    EXPECT_EQ(told, place ? name + " " + std::to_string(place) : "");
    EXPECT_EQ(info, -place) << name;
    told.clear();
  }
};
using Types = testing::Types<float, double, orb_complex_float, orb_complex_double>;
TYPED_TEST_SUITE(Lapack, Types);

TYPED_TEST(Lapack, Factorisations) {
  using T = TypeParam;
  const struct {
    char uplo;
    int n, lda, lwork, potrf, sytrf;
  } cases[] = {{'x', -1, 0, 0, 1, 1}, {'l', -1, 0, 0, 2, 2}, {'U', 2, 1, 0, 4, 4}, {'U', 0, 0, 1, 4, 4},
               {'u', 1, 1, 0, 0, 7},  {'u', 1, 1, -2, 0, 7}, {'L', 1, 1, 1, 0, 0}, {'L', 0, 1, -1, 0, 0}};
  for (const auto& c : cases) {
    int info = 77, ipiv[2] = {};
    T x = number<T>(4), work[400] = {};
    call_face(Names<T>::potrf, &c.uplo, c.n, &x, c.lda, &info);
    this->heard("POTRF", c.potrf, info);
    EXPECT_EQ(wide(x), Wide(c.potrf == 0 && c.n == 1 ? 2 : 4));
    call_face(Names<T>::sytrf, &c.uplo, c.n, &x, c.lda, ipiv, work, c.lwork, &info);
    this->heard("SYTRF", c.sytrf, info);
    EXPECT_EQ(ipiv[0], c.sytrf == 0 && c.n == 1);
  }
}

TYPED_TEST(Lapack, TridiagonalSystems) {
  using T = TypeParam;
  const bool complex = is_complex<T>;
  const struct {
    int n, nrhs, ldb, gtsv, ptts2;
  } cases[] = {{-1, -1, 0, 1, 1}, {1, -1, 0, 2, 2}, {1, 1, 0, 7, 6}, {2, 1, 1, 7, 6}, {1, 1, 1, 0, 0}};
  for (const auto& c : cases) {
    int info = 77;
    const typename Names<T>::R real[2] = {2, 2};
    T d = number<T>(2), b = number<T>(6), *const none = nullptr;
    call_face(Names<T>::gtsv, c.n, c.nrhs, none, &d, none, &b, c.ldb, &info);
    this->heard("GTSV ", c.gtsv, info);
    EXPECT_EQ(wide(b), Wide(c.gtsv ? 6 : 3));
    b = number<T>(6);
    Names<T>::ptts2(1, c.n, c.nrhs, real, none, &b, c.ldb);
    const int place = c.ptts2 && complex ? c.ptts2 + 1 : c.ptts2;
    this->heard("PTTS2", place, -place);
    EXPECT_EQ(wide(b), Wide(c.ptts2 ? 6 : 3));
  }
  Names<T>::ptts2(2, 0, 0, nullptr, nullptr, nullptr, 1);
  this->heard("PTTS2", complex, -int(complex));
}

TYPED_TEST(Lapack, RotationsAndReflectors) {
  using T = TypeParam;
  const typename Names<T>::R c = 0, s = 1;
  const struct {
    char side, pivot, direct;
    int m, n, ld, lasr, larfx;
  } cases[] = {{'x', 'x', 'x', -1, -1, 0, 1, 1}, {'l', 'x', 'x', -1, -1, 0, 2, 2},
               {'r', 'v', 'x', 2, -1, 0, 3, 3},  {'R', 'T', 'f', -1, -1, 0, 4, 2},
               {'L', 'b', 'B', 2, -1, 0, 5, 3},  {'L', 'V', 'F', 2, 1, 1, 9, 7},
               {'L', 'V', 'F', 2, 1, 2, 0, 0}};
  for (const auto& k : cases) {
    const T v[2] = {number<T>(1), number<T>(1)}, tau = number<T>(1);
    T x[2] = {number<T>(1), number<T>(2)}, work[2];
    call_face(Names<T>::lasr, &k.side, &k.pivot, &k.direct, k.m, k.n, &c, &s, x, k.ld);
    this->heard("LASR ", k.lasr, -k.lasr);
    EXPECT_EQ(wide(x[0]), Wide(k.lasr ? 1 : 2));
    EXPECT_EQ(wide(x[1]), Wide(k.lasr ? 2 : -1));
    x[0] = number<T>(1), x[1] = number<T>(2);
    call_face(Names<T>::larfx, &k.side, k.m, k.n, v, tau, x, k.ld, work);
    this->heard("LARFX", k.larfx, -k.larfx);
    EXPECT_EQ(wide(x[0]), Wide(k.larfx ? 1 : -2));
    EXPECT_EQ(wide(x[1]), Wide(k.larfx ? 2 : -1));
  }
}

}  // namespace
