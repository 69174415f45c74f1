#include "bench/options.h"

#include <cstdlib>
#include <functional>

#ifndef ORB_BENCH_LIBRARY
#define ORB_BENCH_LIBRARY "liborb.so"
#endif
#ifndef ORB_BENCH_FOLDER
#define ORB_BENCH_FOLDER "."
#endif

namespace orb::bench {

const char usage[] =
    "orb-bench: speed beside the other libraries that are installed\n"
    "  --filter REGEX     only cases whose name matches, as in 'd gemm NN 64x' or 'dot n 1000 '\n"
    "  --quick            fewer cases, shorter repetitions: under a minute\n"
    "  --min-time SECONDS of one repetition (0.02, with --quick 0.005)\n"
    "  --repetitions N    of each library in each case, taken in turn (7)\n"
    "  --library PATH     our library\n"
    "  --peer NAME=PATH   one more library to stand beside; may be given again\n"
    "  --threads N        for all libraries (1)\n"
    "  --seed N           of the random order of the cases\n"
    "  --out DIR          where results.csv and the charts go\n";

namespace {

struct Reader {
  const char* name;
  std::function<bool(Options&, const std::string&)> read;  // false: not a value of this option
};

bool number(const std::string& text, double least, double most, double& value) {
  char* end = nullptr;
  value = std::strtod(text.c_str(), &end);
  return !text.empty() && !*end && value >= least && value <= most;
}

template <class Integer>
bool whole(const std::string& text, double least, Integer& value) {
  double real = 0;
  if (!number(text, least, 2e9, real) || real != double(Integer(real))) return false;
  value = Integer(real);
  return true;
}

bool peer(const std::string& text, std::vector<Peer>& peers) {
  const auto equals = text.find('=');
  if (equals == 0 || equals == std::string::npos || equals + 1 == text.size()) return false;
  peers.push_back({text.substr(0, equals), text.substr(equals + 1)});
  return true;
}

const Reader readers[] = {
    {"--filter", [](Options& o, const std::string& v) { return o.filter = v, true; }},
    {"--min-time", [](Options& o, const std::string& v) { return number(v, 1e-6, 60, o.min_time); }},
    {"--repetitions", [](Options& o, const std::string& v) { return whole(v, 1, o.repetitions); }},
    {"--library", [](Options& o, const std::string& v) { return o.library = v, !v.empty(); }},
    {"--peer", [](Options& o, const std::string& v) { return peer(v, o.peers); }},
    {"--threads", [](Options& o, const std::string& v) { return whole(v, 1, o.threads); }},
    {"--seed", [](Options& o, const std::string& v) { return whole(v, 0, o.seed); }},
    {"--out", [](Options& o, const std::string& v) { return o.folder = v, !v.empty(); }},
};

const Reader* reader_of(const std::string& name) {
  for (const Reader& reader : readers)
    if (name == reader.name) return &reader;
  return nullptr;
}

}  // namespace

std::variant<Options, std::string> parse_options(const std::vector<std::string>& arguments) {
  Options options{.library = ORB_BENCH_LIBRARY, .folder = ORB_BENCH_FOLDER};
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--help") {
      options.help = true;
    } else if (name == "--quick") {
      options.quick = true;
    } else if (const Reader* reader = reader_of(name)) {
      if (++i == arguments.size()) return name + " needs a value";
      if (!reader->read(options, arguments[i])) return name + " cannot be '" + arguments[i] + "'";
    } else {
      return "unknown option '" + name + "'";
    }
  }
  if (options.min_time == 0) options.min_time = options.quick ? 0.005 : 0.02;
  return options;
}

}  // namespace orb::bench
