// Straight code for short real lines, chosen by length.
#include "dft/kernel/real_codelet.h"
#include "dft/kernel/record.h"
#include "orb/dft_real.h"

namespace orb::dft {
namespace {

// Where complex numbers are asked for, they stand as in the CCS format.
int format_of(const DftiRecord* r) {
  return r->conjugate_even_storage == VAL_COMPLEX_COMPLEX ? int(VAL_COMPLEX_FORMAT) : r->packed_format;
}

template <class T, int n, bool forward>
ORB_ENTRY int line(const void* in, void* out, DftiRecord* r, void*) {
  const T factor = scale_of<T, forward>(r);
  if constexpr (forward)
    real_forward<n>(static_cast<const T*>(in), static_cast<T*>(out), format_of(r), factor);
  else
    real_backward<n>(static_cast<const T*>(in), static_cast<T*>(out), format_of(r), factor);
  return STATUS_OK;
}

// By log2 of the length, from 1 on.
template <class T, bool forward>
constexpr DftiLine lines[] = {line<T, 2, forward>,  line<T, 4, forward>,  line<T, 8, forward>,
                              line<T, 16, forward>, line<T, 32, forward>, line<T, 64, forward>};

template <class T, bool forward>
int set(DftiRecord* r, DftiLine DftiRecord::*field) {
  if (r->length < 2 || r->length > 64 || r->length != 1 << r->log2_length) return STATUS_UNIMPLEMENTED;
  r->*field = lines<T, forward>[r->log2_length - 1];
  return STATUS_OK;
}

}  // namespace
}  // namespace orb::dft

ORB_EXPORT int orb_dft_set_codelet_sf(DftiRecord* record) {
  return orb::dft::set<float, true>(record, &DftiRecord::real_fwd_s);
}
ORB_EXPORT int orb_dft_set_codelet_sb(DftiRecord* record) {
  return orb::dft::set<float, false>(record, &DftiRecord::real_inv_s);
}
ORB_EXPORT int orb_dft_set_codelet_df(DftiRecord* record) {
  return orb::dft::set<double, true>(record, &DftiRecord::real_fwd_d);
}
ORB_EXPORT int orb_dft_set_codelet_db(DftiRecord* record) {
  return orb::dft::set<double, false>(record, &DftiRecord::real_inv_d);
}
