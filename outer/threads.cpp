#include "outer/threads.h"

#include <pthread.h>
#ifdef _OPENMP
#include <omp.h>
#endif

#include <atomic>

#include "outer/boundary.h"
#include "outer/environment.h"

namespace orb {
namespace {

constexpr int most_threads = 256;

constinit std::atomic<int> chosen{0};           // by orb_set_num_threads(), 0 if it has no say
constinit std::atomic<int> environment{-1};     // ORB_NUM_THREADS, 0 if it has no say, -1 until it is read
constinit std::atomic<bool> forked_off{false};  // the OpenMP run-time of this process waits for lost threads

int from_environment() {
  int n = environment.load(std::memory_order_relaxed);
  if (n < 0) {
    n = environment_number("ORB_NUM_THREADS", 1, most_threads, 0);
    environment.store(n, std::memory_order_relaxed);
  }
  return n;
}

#ifdef _OPENMP
bool serial_here() { return omp_in_parallel() || forked_off.load(std::memory_order_relaxed); }
int openmp_threads() { return omp_get_max_threads(); }
#else
bool serial_here() { return true; }
int openmp_threads() { return 1; }
#endif

}  // namespace

void threads_used() {
  static constinit pthread_once_t once = PTHREAD_ONCE_INIT;
  pthread_once(&once, [] {
    pthread_atfork(nullptr, nullptr, [] { forked_off.store(true, std::memory_order_relaxed); });
  });
}

}  // namespace orb

ORB_EXPORT void orb_set_num_threads(int threads) {
  const int n = threads < 1 ? 0 : threads < orb::most_threads ? threads : orb::most_threads;
  orb::chosen.store(n, std::memory_order_relaxed);
}

ORB_EXPORT int orb_get_max_threads(void) {
  if (orb::serial_here()) return 1;
  if (const int n = orb::chosen.load(std::memory_order_relaxed)) return n;
  if (const int n = orb::from_environment()) return n;
  const int n = orb::openmp_threads();
  return n < orb::most_threads ? n : orb::most_threads;
}
