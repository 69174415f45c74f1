#include "bench/case.h"

namespace orb::bench {

std::vector<Case> all_cases() {
  std::vector<Case> cases;
  for (auto add_family : {add_level1, add_gemm, add_level2, add_level3, add_sparse, add_signal})
    add_family(cases);
  return cases;
}

}  // namespace orb::bench
