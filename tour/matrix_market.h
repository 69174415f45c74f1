// Sparse and dense matrices from files in Matrix Market form: R. F. Boisvert, R. Pozo, K. A. Remington, The
// Matrix Market exchange formats, NISTIR 5935 (1996).
#pragma once

#include <complex>
#include <filesystem>
#include <istream>
#include <string>
#include <vector>

#include "tour/csv.h"

namespace orb::tour {

enum class Symmetry { general, symmetric, skew, hermitian };

struct MarketEntry {
  int row, column;  // from 0
  std::complex<double> value;
};

// What the file says: of a symmetric kind the lower triangle alone, diagonal included (none if skew).
struct MarketMatrix {
  int rows = 0, columns = 0;
  bool is_complex = false;
  Symmetry symmetry = Symmetry::general;
  std::vector<MarketEntry> entries;
};

// Both formats (coordinate, array), all fields (real, integer, complex, pattern, whose entries count as 1)
// and all symmetries. Throws BadFile with the line and the reason.
MarketMatrix read_market(std::istream& in, const std::string& name);
MarketMatrix read_market(const std::filesystem::path& file);

}  // namespace orb::tour
