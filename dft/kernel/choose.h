// Choice of the kernels of one dimension at commit. Each builds the tables that it needs and returns a
// status; a failure has released everything.
#pragma once

#include "orb/dft_record.h"

namespace orb::dft {

int choose_complex(DftiRecord* record, DftiRecord* head);
int choose_real(DftiRecord* record, DftiRecord* head);

}  // namespace orb::dft
