#include "tour/gnuplot.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace orb::tour {

Drawn run_gnuplot(const std::filesystem::path& script) {
  std::string program = "gnuplot", file = script.string();
  char* arguments[] = {program.data(), file.data(), nullptr};
  pid_t child = 0;
  if (posix_spawnp(&child, "gnuplot", nullptr, nullptr, arguments, environ) != 0) return Drawn::no_gnuplot;
  int status = 0;
  if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) return Drawn::failed;
  if (WEXITSTATUS(status) == 127) return Drawn::no_gnuplot;
  return WEXITSTATUS(status) == 0 ? Drawn::yes : Drawn::failed;
}

}  // namespace orb::tour
