// Where the scales of a descriptor stand. A scale is applied once, so one record carries it: the first whose
// length is above 1, or the head if there is none. Both widths are kept.
#pragma once

#include "orb/dfti.h"

namespace orb::dft {

struct Scale {
  float DftiRecord::*single;
  double DftiRecord::*wide;
};
inline Scale scale_of(int key) {
  if (key == CFG_FORWARD_SCALE) return {&DftiRecord::forward_scale_f, &DftiRecord::forward_scale_d};
  return {&DftiRecord::backward_scale_f, &DftiRecord::backward_scale_d};
}

inline DftiRecord* bearer_of_scale(DftiRecord* head) {
  for (DftiRecord* r = head; r; r = r->next)
    if (r->length != 1) return r;
  return head;
}

inline double read_scale(DftiRecord* head, int key) {
  const Scale scale = scale_of(key);
  const DftiRecord* bearer = bearer_of_scale(head);
  return head->precision == VAL_SINGLE ? double(bearer->*scale.single) : bearer->*scale.wide;
}

}  // namespace orb::dft
