// loader_probe LIBRARY local|global|moved: loads liborb.so like a scripting language would, and lets many
// threads make the first call at once: a matrix product with an edge column, for which the kernel library
// calls back, and a dot product. "moved" changes the directory between loading and calling. Then it prints
// what the queries say.
#include <dlfcn.h>
#include <pthread.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#include <thread>
#include <vector>

#include "orb/blas.h"

namespace {

void* library;
template <class F>
F find(const char* name) {
  return reinterpret_cast<F>(dlsym(library, name));
}

bool product_is_right() {
  const int m = 8, n = 9, k = 8, one = 1;
  const double alpha = 1, beta = 0;
  double a[m * k], b[k * n], c[m * n];
  for (double& v : a) v = 2;
  for (double& v : b) v = 3;
  const auto gemm = find<decltype(&dgemm_)>("dgemm_");
  const auto dot = find<decltype(&ddot_)>("ddot_");
  gemm("N", "N", &m, &n, &k, &alpha, a, &m, b, &k, &beta, c, &m);
  for (double v : c)
    if (v != 48) return false;
  return dot(&k, a, &one, b, &one) == 48;
}

}  // namespace

int main(int, char** argument) {
  library = dlopen(argument[1], RTLD_NOW | (strcmp(argument[2], "global") == 0 ? RTLD_GLOBAL : RTLD_LOCAL));
  if (!library) return puts(dlerror()), 2;
  if (strcmp(argument[2], "moved") == 0 && chdir("/") != 0) return 2;

  const int callers = 8;
  pthread_barrier_t together;
  pthread_barrier_init(&together, nullptr, callers);
  std::vector<char> right(callers);
  std::vector<std::thread> threads;
  for (char& r : right)
    threads.emplace_back([&together, &r] {
      pthread_barrier_wait(&together);
      r = product_is_right();
    });
  for (auto& t : threads) t.join();
  for (char r : right)
    if (!r) return puts("wrong result"), 1;

  const auto query = [](const char* name) { return find<int (*)()>(name)(); };
  printf("l2 %d cpu %d threads %d\n", query("orb_serv_l2cache"), query("orb_serv_cpu_detect"),
         query("orb_get_max_threads"));
  return 0;
}
