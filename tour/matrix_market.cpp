#include "tour/matrix_market.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <sstream>

#include "tour/report.h"

namespace orb::tour {
namespace {

std::vector<std::string> words_of(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}
std::string in_small_letters(std::string word) {
  for (char& c : word)
    if (c >= 'A' && c <= 'Z') c = char(c - 'A' + 'a');
  return word;
}

// The file line by line, with the place for messages.
class Lines {
 public:
  Lines(std::istream& in, const std::string& name) : in_(in), name_(name) {}

  [[noreturn]] void fail(const std::string& reason) const {
    throw BadFile(name_ + text(", line %d: ", number_) + reason);
  }
  bool next_line() {
    if (!std::getline(in_, line_)) {
      if (in_.bad()) throw BadFile(name_ + ": reading failed");
      return false;
    }
    ++number_;
    return true;
  }
  // The words of the next line that is neither empty nor a comment; none at the end.
  std::vector<std::string> next_words() {
    while (next_line()) {
      if (line_[0] == '%') continue;
      if (auto words = words_of(line_); !words.empty()) return words;
    }
    return {};
  }
  const std::string& line() const { return line_; }

  int count(const std::string& word, const char* what, int least) const {
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size() || value < least)
      fail("'" + word + "' is not " + what);
    return value;
  }
  // Fortran writes exponents with a D, and a plus sign before numbers, too.
  double number(const std::string& word) const {
    std::string plain = word;
    std::replace_if(
        plain.begin(), plain.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
    const char* begin = plain.data() + (plain[0] == '+' && plain[1] != '-');
    double value = 0;
    const auto [end, error] = std::from_chars(begin, plain.data() + plain.size(), value);
    if (error != std::errc() || end != plain.data() + plain.size() || !std::isfinite(value))
      fail("'" + word + "' is not a number");
    return value;
  }

 private:
  std::istream& in_;
  std::string name_, line_;
  int number_ = 0;
};

// The place of a word in a list of allowed ones.
int choice(const Lines& lines, const std::string& word, const std::vector<std::string>& allowed) {
  const auto found = std::find(allowed.begin(), allowed.end(), in_small_letters(word));
  if (found == allowed.end()) lines.fail("'" + word + "' is not known here");
  return int(found - allowed.begin());
}

class Reader {
 public:
  Reader(std::istream& in, const std::string& name) : lines_(in, name) {
    if (!lines_.next_line()) throw BadFile(name + ": the file is empty");
    read_banner();
    read_sizes();
    coordinate_ ? read_entries() : read_array();
    if (!lines_.next_words().empty()) lines_.fail("there is more behind the last entry");
  }
  MarketMatrix take() { return std::move(matrix_); }

 private:
  enum Field { real, integer, complex, pattern };

  void read_banner() {
    const auto words = words_of(lines_.line());
    if (words.empty() || in_small_letters(words[0]) != "%%matrixmarket")
      lines_.fail("the file does not begin with %%MatrixMarket");
    if (words.size() != 5) lines_.fail("%%MatrixMarket and four words are expected");
    choice(lines_, words[1], {"matrix"});
    coordinate_ = choice(lines_, words[2], {"coordinate", "array"}) == 0;
    field_ = Field(choice(lines_, words[3], {"real", "integer", "complex", "pattern"}));
    matrix_.symmetry =
        Symmetry(choice(lines_, words[4], {"general", "symmetric", "skew-symmetric", "hermitian"}));
    matrix_.is_complex = field_ == complex;
    if (field_ == pattern && !coordinate_) lines_.fail("an array has values, not a pattern");
    if (matrix_.symmetry == Symmetry::hermitian && field_ != complex)
      lines_.fail("a Hermitian matrix has complex values");
  }

  void read_sizes() {
    const auto words = next("the sizes");
    expect(words, coordinate_ ? 3 : 2);
    matrix_.rows = lines_.count(words[0], "a number of rows", 1);
    matrix_.columns = lines_.count(words[1], "a number of columns", 1);
    if (coordinate_) count_ = lines_.count(words[2], "a number of entries", 0);
    if (matrix_.symmetry != Symmetry::general && matrix_.rows != matrix_.columns)
      lines_.fail(text("a symmetric matrix is square, not %d x %d", matrix_.rows, matrix_.columns));
  }

  void read_entries() {
    for (int k = 0; k < count_; ++k) {
      const auto words = next(text("entry %d of %d", k + 1, count_).c_str());
      expect(words, 2 + values());
      const int row = index(words[0], "row", matrix_.rows),
                column = index(words[1], "column", matrix_.columns);
      if (matrix_.symmetry != Symmetry::general && row < column)
        lines_.fail("of a symmetric matrix only the lower triangle is given");
      if (matrix_.symmetry == Symmetry::skew && row == column)
        lines_.fail("a skew-symmetric matrix has no diagonal");
      matrix_.entries.push_back({row, column, value(words, 2)});
    }
  }

  // Column by column; of the symmetric kinds the lower triangle.
  void read_array() {
    for (int j = 0; j < matrix_.columns; ++j) {
      const int above = matrix_.symmetry == Symmetry::general ? 0
                        : matrix_.symmetry == Symmetry::skew  ? j + 1
                                                              : j;
      for (int i = above; i < matrix_.rows; ++i) {
        const auto words = next(text("element (%d, %d)", i + 1, j + 1).c_str());
        expect(words, values());
        matrix_.entries.push_back({i, j, value(words, 0)});
      }
    }
  }

  std::vector<std::string> next(const char* what) {
    auto words = lines_.next_words();
    if (words.empty()) lines_.fail(std::string("the file ends before ") + what);
    return words;
  }
  void expect(const std::vector<std::string>& words, int count) const {
    if (int(words.size()) != count) lines_.fail(text("%d words are expected, not %zu", count, words.size()));
  }
  int values() const { return field_ == pattern ? 0 : field_ == complex ? 2 : 1; }
  int index(const std::string& word, const char* what, int most) const {
    const int i = lines_.count(word, text("the number of a %s", what).c_str(), 1);
    if (i > most) lines_.fail(text("there is no %s %d", what, i));
    return i - 1;
  }
  std::complex<double> value(const std::vector<std::string>& words, std::size_t first) const {
    if (field_ == pattern) return 1;
    return {lines_.number(words[first]), field_ == complex ? lines_.number(words[first + 1]) : 0};
  }

  Lines lines_;
  MarketMatrix matrix_;
  bool coordinate_ = true;
  Field field_ = real;
  int count_ = 0;
};

}  // namespace

MarketMatrix read_market(std::istream& in, const std::string& name) { return Reader(in, name).take(); }

MarketMatrix read_market(const std::filesystem::path& file) {
  std::ifstream in(file);
  if (!in || std::filesystem::is_directory(file))
    throw BadFile(file.string() + ": the file cannot be opened");
  return read_market(in, file.string());
}

}  // namespace orb::tour
