// What is measured. A family of routines adds its cases in one file of its own and one row in cases.cpp.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/library.h"
#include "bench/rates.h"

namespace orb::bench {

// A case at work: it owns the operands, which all libraries share, so that all meet the same addresses.
class Experiment {
 public:
  virtual ~Experiment() = default;
  virtual bool offered_by(const Library&) const = 0;
  // Restores the operands and calls the routine until the engine has enough. Its calls may run into the
  // same operands again and again, which therefore stay in the caches and finite.
  virtual void time(const Library&, benchmark::State&) = 0;
  // The error of one call on fresh operands, over the bound that theory gives: right if it is at most 1.
  virtual double check(const Library&) = 0;
};

struct Case {
  std::string group;      // of the summary: one family and type
  std::string family;     // one chart
  std::string routine;    // for all types, as in "nrm2"
  std::string type;       // s d c z
  std::string entry;      // of this type, as in "dznrm2"
  std::string shape;      // lengths and options
  std::string alignment;  // of the operands, in bytes from a 64-byte boundary
  Work work;
  double footprint;  // bytes of all operands
  bool quick;        // belongs to the short run as well
  int abscissa;      // place on the routine's curve in the chart, or 0 for none
  std::function<std::unique_ptr<Experiment>()> set_up;

  std::string name() const { return entry + ' ' + shape + ' ' + alignment; }
};

// All cases of all families, in the order of the report.
std::vector<Case> all_cases();

void add_level1(std::vector<Case>&);
void add_gemm(std::vector<Case>&);
void add_level2(std::vector<Case>&);
void add_level3(std::vector<Case>&);
void add_sparse(std::vector<Case>&);
void add_signal(std::vector<Case>&);

}  // namespace orb::bench
