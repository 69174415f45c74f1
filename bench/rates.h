// What one call of a routine moves or computes: the formulas behind every rate that is printed.
#pragma once

#include <cmath>
#include <cstddef>
#include <string_view>

namespace orb::bench {

enum class Unit { gflops, gbytes };

struct Work {
  double amount;  // operations or bytes of one call
  Unit unit;
};

constexpr std::string_view name_of(Unit unit) { return unit == Unit::gflops ? "GFLOP/s" : "GB/s"; }

// Billions of operations or bytes a second.
constexpr double rate(Work work, double seconds) { return work.amount / seconds * 1e-9; }

// Vectors read and written by one call count once each: y += alpha x reads x and y and writes y, three
// passes.
constexpr Work vector_traffic(int passes, double n, std::size_t element_bytes) {
  return {passes * n * double(element_bytes), Unit::gbytes};
}

// C = alpha A B + beta C: a product and a sum for each term. What alpha and beta cost is not counted.
constexpr Work product_operations(double m, double n, double k) { return {2 * m * n * k, Unit::gflops}; }

// The customary count of a complex transform of n numbers, whatever the method does.
inline Work transform_operations(double n) { return {5 * n * std::log2(n), Unit::gflops}; }

}  // namespace orb::bench
