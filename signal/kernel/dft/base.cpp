// Exported: tables of roots of unity and of the recombination of even real lengths.
#include "signal/kernel/dft/base.h"

#include <math.h>

#include "orb/signal_any_length.h"
#include "signal/kernel/fft/recombine.h"

namespace orb::signal {

template <>
float* allocate_table(int count) {
  return t7_vspsMalloc_32f(count);
}
template <>
double* allocate_table(int count) {
  return t7_vspsMalloc_64f(count);
}
template <>
c32* allocate_table(int count) {
  return reinterpret_cast<c32*>(t7_vspsMalloc_32f(2 * count));
}
template <>
c64* allocate_table(int count) {
  return reinterpret_cast<c64*>(t7_vspsMalloc_64f(2 * count));
}

template <class T>
Table<T>::~Table() {
  if (block_) t7_vspsFree(block_);
}
template class Table<c32>;
template class Table<c64>;

namespace {

// cos and sin of 2 pi k / n for k up to n/2, which stands for 4 k / n of a quarter: past an eighth by the
// angle that is left, so that what the library computes lies in the first eighth.
struct Angle {
  double cosine, sine;
};
// Apart, since a compiler that sees both of one angle asks for a function of both, which the kernels' list of
// run-time functions does not have.
__attribute__((noinline)) double sine(double x) { return sin(x); }
__attribute__((noinline)) double cosine(double x) { return cos(x); }
Angle first_half(int k, int n) {
  const double unit = 6.283185307179586476925286766559 / n;
  if (8ll * k <= n) return {cosine(k * unit), sine(k * unit)};
  if (8ll * k <= 3ll * n) {
    const double rest = (n - 4ll * k) * 0.25 * unit;  // a quarter less the angle, of either sign
    return {sine(rest), cosine(rest)};
  }
  const double rest = (n - 2ll * k) * 0.5 * unit;
  return {-cosine(rest), sine(rest)};
}

}  // namespace

template <class C>
C* base_table(int n) {
  using T = real_of<C>;
  C* const table = allocate_table<C>(n);
  if (!table) return nullptr;
  // Computed: up to an eighth, a quarter or a half of the circle; the rest by symmetry.
  const int fraction = n % 4 == 0 ? 8 : n % 2 == 0 ? 4 : 2;
  for (int k = 0; k <= n / fraction; ++k) {
    const Angle a = first_half(k, n);
    table[k] = {T(a.cosine), T(-a.sine)};
  }
  if (fraction == 8)
    for (int k = n / 8 + 1; k <= n / 4; ++k) table[k] = {-table[n / 4 - k].im, -table[n / 4 - k].re};
  if (fraction >= 4)
    for (int k = n / 4 + 1; k <= n / 2; ++k) table[k] = {-table[n / 2 - k].re, table[n / 2 - k].im};
  for (int k = n / 2 + 1; k < n; ++k) table[k] = conj(table[n - k]);
  return table;
}
template c32* base_table(int);
template c64* base_table(int);

namespace {

// exp(-2 pi i k / n) from a base table of a multiple of n.
template <class C>
C* direct_table(int n, const C* base, int base_length) {
  C* const table = allocate_table<C>(n);
  if (table)
    for (int k = 0; k < n; ++k) table[k] = base[k * (base_length / n)];
  return table;
}

template <bool after, class C>
real_of<C>* recombination_table(int n, const C* base, int base_length) {
  using T = real_of<C>;
  T* const table = allocate_table<T>(n / 2 + 1);
  if (table)
    write_recombination(table, n / 2, [=](int k) {
      const C w = base[k * (base_length / n)];
      return after ? Pair<T>{w.re / 2, T(0.5) + w.im / 2} : Pair<T>{w.re, w.im};
    });
  return table;
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;

#define DFT_TABLES(base_name, direct_name, after_name, before_name, after_pass, before_pass, C, T) \
  ORB_EXPORT C* base_name(int n) { return base_table<C>(n); }                                      \
  ORB_EXPORT C* direct_name(int n, const C* base, int base_length) {                               \
    return direct_table(n, base, base_length);                                                     \
  }                                                                                                \
  ORB_EXPORT T* after_name(int n, const C* base, int base_length) {                                \
    return recombination_table<true>(n, base, base_length);                                        \
  }                                                                                                \
  ORB_EXPORT T* before_name(int n, const C* base, int base_length) {                               \
    return recombination_table<false>(n, base, base_length);                                       \
  }                                                                                                \
  ORB_EXPORT void after_pass(C* data, int half_n, int, const T* table) {                           \
    recombine(&data->re, half_n, table);                                                           \
  }                                                                                                \
  ORB_EXPORT void before_pass(const T* in, C* out, int half_n, int, const T* table) {              \
    separate(in, &out->re, half_n, table);                                                         \
  }
DFT_TABLES(t7_vsps_createTabDftBase_32f, t7_vsps_createTabDftDir_32f, t7_vsps_createTabDftFwdRec_32f,
           t7_vsps_createTabDftInvRec_32f, t7_vsps_rDftFwdRecombine_32f, t7_vsps_rDftInvRecombine_32f,
           orb_complex_float, float)
DFT_TABLES(t7_vsps_createTabDftBase_64f, t7_vsps_createTabDftDir_64f, t7_vsps_createTabDftFwdRec_64f,
           t7_vsps_createTabDftInvRec_64f, t7_vsps_rDftFwdRecombine_64f, t7_vsps_rDftInvRecombine_64f,
           orb_complex_double, double)
