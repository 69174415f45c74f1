// Tables of numbers from text files.
#pragma once

#include <filesystem>
#include <istream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tour/matrix.h"

namespace orb::tour {

// What is wrong with a file, and in which line.
class BadFile : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Lines of comma-separated finite numbers, all of one length; a line becomes a row. Throws BadFile.
Matrix read_csv(std::istream& in, const std::string& name);
Matrix read_csv(const std::filesystem::path& file);

// The same below a first line of names, as many as there are columns.
struct NamedColumns {
  std::vector<std::string> names;
  Matrix values;
};
NamedColumns read_named_csv(std::istream& in, const std::string& name);
NamedColumns read_named_csv(const std::filesystem::path& file);

}  // namespace orb::tour
