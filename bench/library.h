// A numerical library as the benchmark sees it: a shared object opened by path, its routines found by name.
// Ours is one among the others.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orb::bench {

class Library {
 public:
  // Opens without putting its names before other libraries. The reason of a failure goes to `why`.
  static std::optional<Library> open(const std::string& name, const std::string& path, std::string& why);

  // The routine of that name, or null.
  template <class Function>
  Function* find(const std::string& symbol) const {
    return reinterpret_cast<Function*>(address(symbol));
  }

  std::string name;
  std::string path;
  std::string version;       // as the library tells it, or the file's own name
  double most_work = 1e300;  // larger calls are left out: a plain reference would take all the time

 private:
  void* address(const std::string& symbol) const;
  std::string own_version() const;
  void* handle_ = nullptr;
};

struct Missing {
  std::string name, reason;
};

struct Libraries {
  std::vector<Library> open;  // ours first, when it was found
  std::vector<Missing> missing;
  bool ours = false;  // whether the first of `open` is ours
};

// A library asked for on the command line.
struct Peer {
  std::string name, path;
};

// Ours from `path`, the peers known by name, and those in `more`. All are told to use that many threads.
Libraries open_libraries(const std::string& path, const std::vector<Peer>& more, int threads);

}  // namespace orb::bench
