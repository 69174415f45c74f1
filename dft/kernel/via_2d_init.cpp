// Tables of the route through two dimensions.
#include "dft/kernel/via_2d.h"

#include <string.h>

#include <bit>
#include <cmath>

#include "dft/kernel/root_of_unity.h"
#include "orb/dft_commit.h"
#include "serv/kernel/boundary.h"

namespace orb::dft {
namespace {

struct Factors {
  int at[32], count = 0;
  void take_all(int& n, int f) {
    for (; n % f == 0; n /= f) at[count++] = f;
  }
};

// Prime factors, smallest first.
Factors factors_of(int n) {
  Factors f;
  f.take_all(n, 2);
  f.take_all(n, 3);
  for (int step = 2, c = 5; (long long)(c)*c <= n; c += step, step = 6 - step) f.take_all(n, c);
  if (n > 1) f.at[f.count++] = n;
  return f;
}

// A divisor near the square root, 1 if there is none above it: the largest factors go first, to the smaller
// product while it stays within the root.
int divisor_near_root(int n) {
  constexpr int most = 65535;
  const double root = std::ceil(std::sqrt(double(n)));
  const int limit = root < most ? int(root) : most;
  const Factors f = factors_of(n);
  int a = 1, b = 1;
  for (int i = f.count - 1; i >= 0; --i)
    if (b >= a && (long long)(a)*f.at[i] <= limit)
      a *= f.at[i];
    else
      b *= f.at[i];
  return a < b ? a : b;
}

// Lines start on cache lines, but not at the same place of every page: columns would collide in the cache.
int padded(int count, int element_bytes) {
  unsigned bytes = (unsigned(count) * unsigned(element_bytes) + 63) & ~63u;
  if (bytes % 4096 == 0) bytes += 64;
  return int(bytes / unsigned(element_bytes));
}

template <class C>
bool make_twist(Via2d& via, int n) {
  via.twist_count = 1 << ((int(std::bit_width(unsigned(n))) - 1) / 2 + 1);
  via.twist_table = orb_serv_orb_malloc(2 * via.twist_count * int(sizeof(C)), 64);
  if (!via.twist_table) return false;
  C* table = static_cast<C*>(via.twist_table);
  for (int half = 0; half < 2; ++half)
    for (int j = 0; j < via.twist_count; ++j) {
      const long long k = half ? (long long)(j)*via.twist_count : j;
      const c64 w = root_of_unity(int(k % n), n);
      *table++ = {real_of<C>(w.re), real_of<C>(w.im)};
    }
  return true;
}

// A committed descriptor of one line. Its work memory is given back: each call brings its own.
int make_sub(DftiRecord** sub, int precision, int length) {
  if (const int status = orb_dft_create_descriptor_md(sub, precision, VAL_COMPLEX, 1, &length)) return status;
  const int status = precision == VAL_SINGLE ? orb_dft_commit_descriptor_core_s_c2c_1d(sub, 0)
                                             : orb_dft_commit_descriptor_core_d_c2c_1d(sub, 0);
  if ((*sub)->work_buffer) orb_serv_orb_free((*sub)->work_buffer);
  (*sub)->work_buffer = nullptr;
  return status;
}

void free_sub(DftiRecord* sub) {
  if (!sub) return;
  orb_dft_free_allocated_buffers(sub);
  orb_serv_orb_free(sub);
}

template <class C>
int fill(Via2d& via, int n, int precision) {
  if (!make_twist<C>(via, n)) return STATUS_MEMORY;
  if (const int status = make_sub(&via.sub_rows, precision, via.rows)) return status;
  if (via.rows != via.columns) return make_sub(&via.sub_columns, precision, via.columns);
  via.sub_columns = via.sub_rows;
  return STATUS_OK;
}

template <class C>
int init(DftiRecord* record) {
  const int n = record->length;
  const int m = std::has_single_bit(unsigned(n)) ? 1 << (record->log2_length / 2) : divisor_near_root(n);
  if (m == 1) return DFT_NO_FACTORISATION;
  if (record->free_parallel_data == free_via_2d) free_via_2d(record);
  auto* via = static_cast<Via2d*>(orb_serv_orb_malloc(int(sizeof(Via2d)), 16));
  if (!via) return STATUS_MEMORY;
  memset(via, 0, sizeof *via);
  record->parallel_data = via;
  record->free_parallel_data = free_via_2d;
  via->rows = m < n / m ? m : n / m;
  via->columns = n / via->rows;
  via->rows_padded = padded(via->rows, int(sizeof(C)));
  via->columns_padded = padded(via->columns, int(sizeof(C)));
  const int status = fill<C>(*via, n, record->precision);
  if (status) free_via_2d(record);
  return status;
}

}  // namespace

void free_via_2d(DftiRecord* record) {
  auto* via = static_cast<Via2d*>(record->parallel_data);
  record->parallel_data = nullptr;
  record->free_parallel_data = nullptr;
  if (!via) return;
  if (via->sub_columns != via->sub_rows) free_sub(via->sub_columns);
  free_sub(via->sub_rows);
  if (via->twist_table) orb_serv_orb_free(via->twist_table);
  orb_serv_orb_free(via);
}

}  // namespace orb::dft

ORB_EXPORT int orb_dft_xc_init_data_1d_via_2d(DftiRecord* record, DftiRecord*) {
  return orb::dft::init<orb::c32>(record);
}
ORB_EXPORT int orb_dft_xz_init_data_1d_via_2d(DftiRecord* record, DftiRecord*) {
  return orb::dft::init<orb::c64>(record);
}
