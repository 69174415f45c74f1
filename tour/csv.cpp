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

// What stands between the commas of a line, each part through `read`.
template <class Read>
auto fields(std::string_view line, Read read) {
  std::vector<decltype(read(line))> all;
  for (;;) {
    const auto comma = line.find(',');
    all.push_back(read(line.substr(0, comma)));
    if (comma == line.npos) return all;
    line.remove_prefix(comma + 1);
  }
}

// The lines from number `first` of the file on; all hold as many values as the first line of the file, if
// that is known to be `width`, and as the first of themselves otherwise.
Matrix read_rows(std::istream& in, const std::string& name, int first, std::size_t width) {
  std::vector<std::vector<double>> lines;
  for (std::string line; std::getline(in, line);) {
    const Place place(name, int(lines.size()) + first);
    if (trimmed(line).empty()) place.fail("the line is empty");
    lines.push_back(fields(line, [&](std::string_view field) { return number(field, place); }));
    if (width == 0) width = lines[0].size();
    if (lines.back().size() != width)
      place.fail(text("there are %zu values here and %zu in the first line", lines.back().size(), width));
  }
  if (in.bad()) throw BadFile(name + ": reading failed");
  if (lines.empty()) throw BadFile(name + (first == 1 ? ": the file is empty" : ": there are no numbers"));
  Matrix table(int(lines.size()), int(width));
  for (int i = 0; i < table.rows; ++i)
    for (int j = 0; j < table.columns; ++j) table(i, j) = lines[std::size_t(i)][std::size_t(j)];
  return table;
}

std::ifstream opened(const std::filesystem::path& file) {
  std::ifstream in(file);
  if (!in) throw BadFile(file.string() + ": the file cannot be opened");
  return in;
}

}  // namespace

Matrix read_csv(std::istream& in, const std::string& name) { return read_rows(in, name, 1, 0); }

Matrix read_csv(const std::filesystem::path& file) {
  auto in = opened(file);
  return read_csv(in, file.string());
}

NamedColumns read_named_csv(std::istream& in, const std::string& name) {
  std::string line;
  if (!std::getline(in, line)) throw BadFile(name + ": the file is empty");
  auto names = fields(line, [](std::string_view field) { return std::string(trimmed(field)); });
  Matrix values = read_rows(in, name, 2, names.size());
  return {std::move(names), std::move(values)};
}

NamedColumns read_named_csv(const std::filesystem::path& file) {
  auto in = opened(file);
  return read_named_csv(in, file.string());
}

}  // namespace orb::tour
