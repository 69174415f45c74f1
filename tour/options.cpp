#include "tour/options.h"

#include <charconv>

namespace orb::tour {

std::variant<Options, std::string> parse_options(const std::vector<std::string>& arguments, int last) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help") {
      options.help = true;
    } else if (argument == "--matrix") {
      if (++i == arguments.size() || arguments[i].empty()) return argument + " needs a file";
      options.matrix = arguments[i];
    } else if (argument == "--data" || argument == "--out") {
      if (++i == arguments.size() || arguments[i].empty()) return argument + " needs a folder";
      (argument == "--data" ? options.data : options.out) = arguments[i];
    } else {
      int number = 0;
      const char* end = argument.data() + argument.size();
      const auto parsed = std::from_chars(argument.data(), end, number);
      if (parsed.ec != std::errc() || parsed.ptr != end || number < 1 || number > last)
        return "there is no chapter '" + argument + "'; they run from 1 to " + std::to_string(last);
      options.chapters.push_back(number);
    }
  }
  if (!options.matrix.empty() && options.chapters.empty()) options.chapters = {sparse_chapter};
  return options;
}

}  // namespace orb::tour
