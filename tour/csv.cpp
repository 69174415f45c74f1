#include "tour/csv.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <string_view>

#include "tour/report.h"

namespace orb::tour {
namespace {

class Place {
 public:
  Place(const std::string& name, int line) : text_(name + text(", line %d: ", line)) {}
  [[noreturn]] void fail(const std::string& reason) const { throw BadFile(text_ + reason); }

 private:
  std::string text_;
};

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

double number(std::string_view field, const Place& place) {
  field = trimmed(field);
  if (field.empty()) place.fail("a value is missing");
  double value = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
  if (error != std::errc() || end != field.data() + field.size() || !std::isfinite(value))
    place.fail(text("'%.*s' is not a number", int(field.size()), field.data()));
  return value;
}

std::vector<double> numbers(std::string_view line, const Place& place) {
  std::vector<double> values;
  for (;;) {
    const auto comma = line.find(',');
    values.push_back(number(line.substr(0, comma), place));
    if (comma == line.npos) return values;
    line.remove_prefix(comma + 1);
  }
}

}  // namespace

Matrix read_csv(std::istream& in, const std::string& name) {
  std::vector<std::vector<double>> lines;
  for (std::string line; std::getline(in, line);) {
    const Place place(name, int(lines.size()) + 1);
    if (trimmed(line).empty()) place.fail("the line is empty");
    lines.push_back(numbers(line, place));
    if (lines.back().size() != lines[0].size())
      place.fail(
          text("there are %zu values here and %zu in the first line", lines.back().size(), lines[0].size()));
  }
  if (in.bad()) throw BadFile(name + ": reading failed");
  if (lines.empty()) throw BadFile(name + ": the file is empty");
  Matrix table(int(lines.size()), int(lines[0].size()));
  for (int i = 0; i < table.rows; ++i)
    for (int j = 0; j < table.columns; ++j) table(i, j) = lines[std::size_t(i)][std::size_t(j)];
  return table;
}

Matrix read_csv(const std::filesystem::path& file) {
  std::ifstream in(file);
  if (!in) throw BadFile(file.string() + ": the file cannot be opened");
  return read_csv(in, file.string());
}

}  // namespace orb::tour
