#include "bench/library.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>

namespace orb::bench {
namespace {

struct Known {
  const char* name;
  const char* serial;    // file under one of the library folders, or its whole path
  const char* threaded;  // the same for more than one thread, or null if there is none
  double most_work;
};

// The public libraries to stand beside. The plain reference leaves out what takes it longer than a moment.
constexpr Known known_peers[] = {
    {"openblas", "openblas-serial/libopenblas.so.0", "openblas-pthread/libopenblas.so.0", 1e300},
    {"blis", "blis-serial/libblis.so.4", "blis-pthread/libblis.so.4", 1e300},
    {"reference", "blas/libblas.so.3", nullptr, 1e8},
    {"plain loop", ORB_BENCH_PEERS "/libplain_sparse.so", nullptr, 1e300},
    {"eigen", ORB_BENCH_PEERS "/libeigen_sparse.so", nullptr, 1e300},
    {"fftw", "libfftw3.so.3", "libfftw3.so.3", 1e300},
    {"fftwf", "libfftw3f.so.3", "libfftw3f.so.3", 1e300},
};
constexpr const char* folders[] = {"/usr/lib/i386-linux-gnu", "/usr/lib32", "/usr/lib"};

std::string locate(const char* file) {
  for (const char* folder : folders) {
    const auto path = std::filesystem::path(folder) / file;
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored)) return path;
  }
  return {};
}

// Thread counts are read while a library is opened.
void set_thread_count(int threads) {
  const std::string count = std::to_string(threads);
  for (const char* variable :
       {"ORB_NUM_THREADS", "OMP_NUM_THREADS", "OPENBLAS_NUM_THREADS", "BLIS_NUM_THREADS"})
    setenv(variable, count.c_str(), 1);
}

}  // namespace

std::optional<Library> Library::open(const std::string& name, const std::string& path, std::string& why) {
  Library library;
  library.name = name;
  library.path = path;
  library.handle_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!library.handle_) {
    why = dlerror();
    return {};
  }
  library.version = library.own_version();
  return library;
}

void* Library::address(const std::string& symbol) const { return dlsym(handle_, symbol.c_str()); }

std::string Library::own_version() const {
  if (auto write = find<void(char*, int)>("orb_serv_getversionstring_c")) {
    char text[199] = {};
    write(text, 198);
    return text;
  }
  for (const char* entry : {"openblas_get_config", "bli_info_get_version_str"})
    if (auto tell = find<const char*()>(entry)) {
      std::string text = tell();
      if (auto core = find<const char*()>("openblas_get_corename")) text += std::string(", ") + core();
      return text;
    }
  std::error_code ignored;
  return std::filesystem::canonical(path, ignored).filename();
}

// All are opened, and their names bound, before the first routine is called: what one makes visible then is
// too late to be taken for another's.
Libraries open_libraries(const std::string& path, const std::vector<Peer>& more, int threads) {
  set_thread_count(threads);
  Libraries all;
  auto add = [&](const std::string& name, const std::string& file) {
    std::string why;
    auto library = Library::open(name, file, why);
    if (library) all.open.push_back(*library);
    if (!library) all.missing.push_back({name, why});
    return library.has_value();
  };
  all.ours = add("orb", path);
  for (const Known& peer : known_peers) {
    const char* file = threads > 1 ? peer.threaded : peer.serial;
    if (!file) {
      all.missing.push_back({peer.name, "has no threads"});
    } else if (const std::string found = locate(file); found.empty()) {
      all.missing.push_back({peer.name, std::string(file) + " is not installed"});
    } else if (add(peer.name, found)) {
      all.open.back().most_work = peer.most_work;
    }
  }
  for (const Peer& peer : more) add(peer.name, peer.path);
  return all;
}

}  // namespace orb::bench
