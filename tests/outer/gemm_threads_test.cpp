// Matrix products divided among threads: the same bits for every number of threads.
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xmmintrin.h>

#include <filesystem>
#include <thread>

#include "gtest/gtest.h"
#include "orb/blas.h"
#include "orb/orb.h"
#include "tests/outer/numbers.h"

using namespace orb::test;

namespace {

template <class T>
constexpr auto gemm = sgemm_;
template <>
constexpr auto gemm<double> = dgemm_;

// One product with full mantissas.
template <class T>
struct Product {
  char transa, transb;
  int m, n, k;
  T alpha = T(1) / 3, beta = T(5) / 7;
  int lda = (transa == 'N' ? m : k) + 1, ldb = (transb == 'N' ? k : n) + 3, ldc = m + 1;
  std::vector<T> a = fractions(lda * (transa == 'N' ? k : m), 1),
                 b = fractions(ldb * (transb == 'N' ? n : k), 2), c = fractions(ldc * n, 3);

  static std::vector<T> fractions(int n, unsigned seed) {
    std::vector<T> x(static_cast<size_t>(n));
    for (T& e : x) e = T(int(seed = seed * 1664525u + 1013904223u)) / T(3u << 29);
    return x;
  }
  std::vector<T> result(int threads) const {
    orb_set_num_threads(threads);
    auto out = c;
    gemm<T>(&transa, &transb, &m, &n, &k, &alpha, a.data(), &lda, b.data(), &ldb, &beta, out.data(), &ldc);
    orb_set_num_threads(0);
    return out;
  }
  testing::AssertionResult same_for(std::initializer_list<int> counts) const {
    const auto one = result(1);
    for (int threads : counts)
      if (const auto r = result(threads); memcmp(r.data(), one.data(), r.size() * sizeof(T)) != 0)
        return testing::AssertionFailure() << transa << transb << " " << m << " x " << n << " x " << k
                                           << " differs for " << threads << " threads";
    return testing::AssertionSuccess();
  }
};

template <class T>
class Threads : public testing::Test {};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Threads, Types);

TYPED_TEST(Threads, SameBitsForEveryCount) {
  const int shapes[][3] = {{72, 73, 75},   {130, 67, 83},  {200, 199, 131}, {7, 700, 80},   {8, 1001, 90},
                           {5, 2100, 130}, {1031, 33, 27}, {1601, 8, 129},  {1543, 15, 64}, {3, 900, 400},
                           {400, 900, 3},  {300, 7, 400},  {90, 90, 90},    {16, 640, 73},  {1024, 1024, 9},
                           {33, 2049, 50}, {40, 501, 40},  {501, 9, 160},   {2101, 10, 37}, {2101, 3, 97}};
  for (const auto& [m, n, k] : shapes)
    for (char transa : {'N', 'T'})
      for (char transb : {'N', 'T'})
        EXPECT_TRUE((Product<TypeParam>{transa, transb, m, n, k}.same_for({2, 3, 4, 31})));
}

// Callers of their own, and callers with rounding and subnormals set their way.
TYPED_TEST(Threads, ManyCallersAndTheirModes) {
  const Product<TypeParam> p{'N', 'N', 130, 131, 132};
  const auto expected = p.result(1);
  std::vector<std::thread> callers;
  for (int i = 0; i < 4; ++i) callers.emplace_back([&] { EXPECT_EQ(p.result(2), expected); });
  for (auto& t : callers) t.join();

  const unsigned before = _mm_getcsr();
  for (unsigned mode : {_MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO}) {
    _mm_setcsr(before | mode);
    EXPECT_TRUE(p.same_for({2, 3}));
    const auto changed = p.result(2);
    _mm_setcsr(before);
    EXPECT_NE(changed, expected);
  }
}

int threads_of_this_process() {
  const std::filesystem::directory_iterator tasks("/proc/self/task");
  return int(std::distance(begin(tasks), end(tasks)));
}

TEST(ThreadCount, FollowsTheCallAndItsBounds) {
  const int usual = orb_get_max_threads();
  EXPECT_GE(usual, 1);
  orb_set_num_threads(3);
  const int divided = orb_get_max_threads();
  EXPECT_EQ(divided, OPENMP ? 3 : 1);
  Product<double>{'N', 'N', 150, 150, 150}.result(3);
  EXPECT_GE(threads_of_this_process(), divided);
  orb_set_num_threads(100'000);
  EXPECT_LE(orb_get_max_threads(), 256);
  orb_set_num_threads(-4);
  EXPECT_EQ(orb_get_max_threads(), usual);
}

// A process forked off has lost the threads that its parent had started, and must not wait for them.
TEST(ThreadCount, IsOneInAForkedProcess) {
  const Product<double> p{'N', 'N', 150, 150, 150};
  const auto expected = p.result(2);
  const pid_t child = fork();
  if (child == 0) {
    alarm(20);
    orb_set_num_threads(2);
    _exit(orb_get_max_threads() == 1 && p.result(2) == expected ? 0 : 1);
  }
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
}

}  // namespace
