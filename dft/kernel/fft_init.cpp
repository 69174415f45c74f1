// Tables of the native radix-4 kernels: for n points, from the first 64-byte boundary behind the start of the
// table, the triples exp(-2 pi i j / n), its square and its cube for j below n / 4, and 128 bytes behind them
// the bit reversal of every index, a word each.
#include <bit>

#include "dft/kernel/root_of_unity.h"
#include "dft/kernel/tables.h"
#include "orb/dft_commit.h"
#include "serv/kernel/scratch.h"

namespace orb::dft {
namespace {

constexpr int gap = 128;    // bytes between coefficients and reversal
constexpr int slack = 512;  // bytes beside both, for alignment and the gap

template <class C>
void fill_coefficients(C* triple, int n) {
  for (int j = 0; j < n / 4; ++j)
    for (int power = 1; power <= 3; ++power) {
      const c64 w = root_of_unity(power * j, n);
      *triple++ = {real_of<C>(w.re), real_of<C>(w.im)};
    }
}

// Index k + 1 from index k: the carry runs down from the highest bit.
void fill_reversal(int* table, int n) {
  for (int k = 0, reversed = 0; k < n; ++k) {
    table[k] = reversed;
    int bit = n / 2;
    for (; bit > 0 && (reversed & bit); bit /= 2) reversed ^= bit;
    reversed |= bit;
  }
}

template <class C>
int init(DftiRecord* r) {
  const int n = r->length;
  if (n > longest_line(r->precision, std::has_single_bit(unsigned(n)))) return STATUS_LENGTH_LIMIT;
  const long long bytes = 3ll * n / 2 * int(sizeof(C)) + slack;
  if (r->twiddle_table) orb_serv_orb_free(r->twiddle_table);
  r->twiddle_table = bytes <= 0x7fffffff ? orb_serv_orb_malloc(int(bytes), 64) : nullptr;
  if (!r->twiddle_table) return STATUS_MEMORY;
  char* start = round_forward(r->twiddle_table, 64);
  fill_coefficients(reinterpret_cast<C*>(start), n);
  fill_reversal(reinterpret_cast<int*>(start + n / 4 * 3 * int(sizeof(C)) + gap), n);
  return STATUS_OK;
}

template <class C>
int init_or_release(DftiRecord* record, DftiRecord* head) {
  const int status = init<C>(record);
  if (status) orb_dft_free_allocated_buffers(head);
  return status;
}

}  // namespace
}  // namespace orb::dft

ORB_EXPORT int orb_dft_c_fft_init(DftiRecord* record, DftiRecord* head) {
  return orb::dft::init_or_release<orb::c32>(record, head);
}
ORB_EXPORT int orb_dft_z_fft_init(DftiRecord* record, DftiRecord* head) {
  return orb::dft::init_or_release<orb::c64>(record, head);
}
