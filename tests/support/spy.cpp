#include "tests/support/spy.h"

#include <stdarg.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>

#include <map>
#include <mutex>

namespace orb::test {
namespace {

constexpr unsigned char zone_byte = 0xA5;
constexpr unsigned char fresh_byte = 0xFF;  // NaN in every floating-point type: reading fresh memory shows
constexpr int zone = 128;

struct Block {
  unsigned char* raw;
  int bytes;
};

std::mutex guard;
std::map<void*, Block> blocks;
std::string wrong;
Spy the_spy;

bool zones_whole(const unsigned char* p, const Block& b) {
  for (const unsigned char* q = b.raw; q < p; ++q)
    if (*q != zone_byte) return false;
  for (int i = 0; i < zone; ++i)
    if (p[b.bytes + i] != zone_byte) return false;
  return true;
}

// Exactly `alignment`-aligned, never better: the alignment asked for is only a floor.
void* take(int bytes, int alignment) {
  std::lock_guard lock(guard);
  const size_t room = size_t(bytes) + 2 * size_t(zone) + 4 * size_t(alignment);
  auto* raw = static_cast<unsigned char*>(malloc(room));
  const uintptr_t unit = 2 * uintptr_t(alignment);
  auto* p = reinterpret_cast<unsigned char*>(
      ((reinterpret_cast<uintptr_t>(raw) + zone + unit) & ~(unit - 1)) + uintptr_t(alignment));
  memset(raw, zone_byte, room);
  memset(p, fresh_byte, size_t(bytes));
  blocks[p] = {raw, bytes};
  return p;
}

void give_back(void* p) {
  std::lock_guard lock(guard);
  const auto it = blocks.find(p);
  if (it == blocks.end()) {
    wrong += "freed a pointer that was never given out; ";
    return;
  }
  if (!zones_whole(static_cast<unsigned char*>(p), it->second)) wrong += "wrote outside a block; ";
  free(it->second.raw);
  blocks.erase(it);
}

template <class T>
struct Ops {
  static T mul(T a, T b) { return a * b; }
  static T add(T a, T b) { return a + b; }
  static T conj(T a) { return a; }
  static bool zero(T a) { return a == 0; }
};
template <class C>
struct ComplexOps {
  static C mul(C a, C b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
  static C add(C a, C b) { return {a.re + b.re, a.im + b.im}; }
  static C conj(C a) { return {a.re, -a.im}; }
  static bool zero(C a) { return a.re == 0 && a.im == 0; }
};
template <>
struct Ops<orb_complex_float> : ComplexOps<orb_complex_float> {};
template <>
struct Ops<orb_complex_double> : ComplexOps<orb_complex_double> {};

template <class T>
T* start(T* x, int n, int inc) {
  return inc < 0 ? x + (1 - n) * inc : x;
}

// y = alpha op(A) x + beta y, each element one running sum in rising index order.
template <class T>
void gemv(char trans, int m, int n, T alpha, const T* a, int lda, const T* x, int incx, T beta, T* y,
          int incy) {
  using O = Ops<T>;
  ++the_spy.gemv_calls;
  const bool plain = (trans | 0x20) == 'n', conjugate = (trans | 0x20) == 'c';
  const int rows = plain ? m : n, terms = plain ? n : m;
  x = start(x, terms, incx);
  y = start(y, rows, incy);
  for (int i = 0; i < rows; ++i, y += incy) {
    T sum{};
    for (int k = 0; k < terms; ++k) {
      const T e = plain ? a[i + k * lda] : a[k + i * lda];
      sum = O::add(sum, O::mul(conjugate ? O::conj(e) : e, x[k * incx]));
    }
    const T product = O::mul(alpha, sum);
    *y = O::zero(beta) ? product : O::add(product, O::mul(beta, *y));
  }
}

template <class T>
void axpy(int n, T alpha, const T* x, int incx, T* y, int incy) {
  using O = Ops<T>;
  ++the_spy.axpy_calls;
  if (n <= 0) return;
  x = start(x, n, incx);
  y = start(y, n, incy);
  for (int i = 0; i < n; ++i, x += incx, y += incy) *y = O::add(*y, O::mul(alpha, *x));
}

template <class T>
T dot(int n, const T* x, int incx, const T* y, int incy) {
  ++the_spy.dot_calls;
  T sum = 0;
  if (n <= 0) return sum;
  x = start(x, n, incx);
  y = start(y, n, incy);
  for (int i = 0; i < n; ++i, x += incx, y += incy) sum += *x * *y;
  return sum;
}

}  // namespace

Spy& spy() { return the_spy; }

void Spy::reset() {
  std::lock_guard lock(guard);
  for (const auto& [p, b] : blocks) free(b.raw);
  blocks.clear();
  wrong.clear();
  *this = Spy();
}

int Spy::live_blocks() const {
  std::lock_guard lock(guard);
  return int(blocks.size());
}

std::string Spy::faults() const {
  std::lock_guard lock(guard);
  std::string text = wrong;
  for (const auto& [p, b] : blocks) text += "kept a block of " + std::to_string(b.bytes) + " bytes; ";
  if (lock_depth != 0) text += "left the lock held; ";
  return text;
}

}  // namespace orb::test

using orb::test::spy;

extern "C" {

void* orb_serv_allocate(int bytes, int alignment) {
  spy().scratch.push_back({bytes, alignment});
  if (spy().refuse_scratch_at > 0 && --spy().refuse_scratch_at == 0) return nullptr;
  return orb::test::take(bytes, alignment);
}
void orb_serv_deallocate(void* block) { orb::test::give_back(block); }
void* orb_serv_orb_malloc(int bytes, int alignment) {
  if (spy().refuse_at > 0 && --spy().refuse_at == 0) return nullptr;
  spy().long_lived.push_back({bytes, alignment});
  return orb::test::take(bytes, alignment);
}
void orb_serv_orb_free(void* block) {
  if (block) orb::test::give_back(block);
}
void* (*i_malloc)(size_t) = malloc;
void (*i_free)(void*) = free;

int orb_serv_lsame(const char* a, const char* b, int, int) {
  ++spy().lsame_calls;
  return (*a | 0x20) == (*b | 0x20);
}
int orb_serv_cpu_detect(void) { return spy().cpu; }
int orb_serv_l2cache(void) { return spy().l2cache; }
void orb_serv_getversionstring(char* buffer, int length) {
  memset(buffer, ' ', size_t(length));
  memcpy(buffer, "spy 1.0", 7);
}
void orb_serv_getversionstring_c(char* buffer, int) { strcpy(buffer, "spy 1.0"); }
void orb_serv_lock(void) { ++spy().lock_depth; }
void orb_serv_unlock(void) { --spy().lock_depth; }
const char* orb_serv_orb_get_msg(int number, int, ...) {
  spy().message = number;
  return "a message";
}
void orb_serv_orb_print(int, int, int, ...) {}

#define SPY_GEMV(name, T)                                                                              \
  void name(const char* trans, const int* m, const int* n, const T* alpha, const T* a, const int* lda, \
            const T* x, const int* incx, const T* beta, T* y, const int* incy) {                       \
    orb::test::gemv(*trans, *m, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);                       \
  }
#define SPY_AXPY(name, T)                                                                       \
  void name(const int* n, const T* alpha, const T* x, const int* incx, T* y, const int* incy) { \
    orb::test::axpy(*n, *alpha, x, *incx, y, *incy);                                            \
  }
#define SPY_DOT(name, T)                                                           \
  T name(const int* n, const T* x, const int* incx, const T* y, const int* incy) { \
    return orb::test::dot(*n, x, *incx, y, *incy);                                 \
  }
SPY_GEMV(orb_blas_sgemv, float)
SPY_GEMV(orb_blas_dgemv, double)
SPY_GEMV(orb_blas_cgemv, orb_complex_float)
SPY_GEMV(orb_blas_zgemv, orb_complex_double)
SPY_AXPY(orb_blas_saxpy, float)
SPY_AXPY(orb_blas_daxpy, double)
SPY_AXPY(orb_blas_caxpy, orb_complex_float)
SPY_AXPY(orb_blas_zaxpy, orb_complex_double)
SPY_DOT(orb_blas_sdot, float)
SPY_DOT(orb_blas_ddot, double)
}
