// Breakdowns 2 and 3: powers of two by straight code.
#include "dft/kernel/breakdown.h"
#include "dft/kernel/codelet.h"

namespace orb::dft {
namespace {

struct Codelets {
  int length;
  DftiCompute forward_apart, backward_apart, forward_in_place, backward_in_place;
};

template <class C, int n, bool forward>
ORB_ENTRY int apart(DftiRecord*, void* in, void* out, void*, void*) {
  codelet<n, forward>(static_cast<const C*>(in), static_cast<C*>(out));
  return STATUS_OK;
}
template <class C, int n, bool forward>
ORB_ENTRY int in_place(DftiRecord*, void* data, void*, void*, void*) {
  codelet<n, forward>(static_cast<const C*>(data), static_cast<C*>(data));
  return STATUS_OK;
}

template <class C, int n>
constexpr Codelets row = {n, apart<C, n, true>, apart<C, n, false>, in_place<C, n, true>,
                          in_place<C, n, false>};
constexpr Codelets end_of_table = {0, nullptr, nullptr, nullptr, nullptr};

constexpr Codelets bkd2_single[] = {row<c32, 2>,  row<c32, 4>,  row<c32, 8>, row<c32, 16>,
                                    row<c32, 32>, row<c32, 64>, end_of_table};
constexpr Codelets bkd2_double[] = {row<c64, 2>,  row<c64, 4>,  row<c64, 8>, row<c64, 16>,
                                    row<c64, 32>, row<c64, 64>, end_of_table};
constexpr Codelets bkd3_single[] = {row<c32, 16>, row<c32, 32>, row<c32, 64>, end_of_table};
constexpr Codelets bkd3_double[] = {row<c64, 8>,  row<c64, 16>,  row<c64, 32>,
                                    row<c64, 64>, row<c64, 128>, end_of_table};

const Codelets* find(const Codelets* table, int length) {
  for (; table->length; ++table)
    if (table->length == length) return table;
  return nullptr;
}

template <class T, const Codelets* table>
ORB_ENTRY double applicable(const DftiBreakdown*, DftiRecord* head) {
  return is_plain_line<T>(head) && scale_of<T, true>(head) == 1 && scale_of<T, false>(head) == 1 &&
         find(table, head->length);
}

template <const Codelets* table>
ORB_ENTRY int commit(const DftiBreakdown* self, DftiRecord* head) {
  take_over(self, head);
  const Codelets* c = find(table, head->length);
  if (!c) return give_up(head, DFT_GAVE_UP);
  if (head->placement == VAL_INPLACE) return finish(head, c->forward_in_place, c->backward_in_place);
  return finish(head, c->forward_apart, c->backward_apart);
}

int nothing_to_free(const DftiBreakdown*, DftiRecord*) { return STATUS_OK; }

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

#define CODELET_BREAKDOWN(name, T, table)                                            \
  extern "C" __attribute__((visibility("default"))) constexpr DftiBreakdown name = { \
      applicable<T, table>, commit<table>, nothing_to_free};
CODELET_BREAKDOWN(orb_dft_bkd2_c, float, bkd2_single)
CODELET_BREAKDOWN(orb_dft_bkd2_z, double, bkd2_double)
CODELET_BREAKDOWN(orb_dft_bkd3_c, float, bkd3_single)
CODELET_BREAKDOWN(orb_dft_bkd3_z, double, bkd3_double)
