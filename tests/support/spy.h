// The outer layer that tests put in place of the real one: it supplies every service and upward entry, counts
// and records what the kernels ask for, puts red zones round every block and can refuse memory.
#pragma once

#include <string>
#include <vector>

#include "orb/services.h"

namespace orb::test {

struct MemoryRequest {
  int bytes, alignment;
  bool operator==(const MemoryRequest&) const = default;
};

struct Spy {
  std::vector<MemoryRequest> scratch;     // every orb_serv_allocate, in order
  std::vector<MemoryRequest> long_lived;  // every orb_serv_orb_malloc that was not refused
  int gemv_calls = 0, axpy_calls = 0, dot_calls = 0, lsame_calls = 0, lock_depth = 0;

  int l2cache = 0, cpu = 0;   // the answers to the queries
  int refuse_at = 0;          // the k-th request for long-lived memory from now on fails; 0: none does
  int refuse_scratch_at = 0;  // the same for scratch memory
  int threads = 1;            // at hand for descriptors
  int par_calls = 0;          // batches of transforms handed over to threads
  int message = 0;            // the last one asked for

  void reset();  // as at the start; blocks still held are forgotten
  int live_blocks() const;
  std::string faults() const;  // broken red zones, wrong frees, blocks never freed; empty if all is well
};

Spy& spy();

}  // namespace orb::test
