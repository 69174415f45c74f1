// Where liborb.so looks for the kernel library and what it says if it finds none that suits; the environment.
// Each case is a process of its own.
#include <string.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "gtest/gtest.h"

namespace fs = std::filesystem;

namespace {

struct Outcome {
  int status;
  std::string text;
};

Outcome run(const std::string& command) {
  FILE* pipe = popen(("env -u ORB_KERNEL_PATH -u ORB_NUM_THREADS " + command + " 2>&1").c_str(), "r");
  Outcome outcome{};
  char line[512];
  while (fgets(line, sizeof line, pipe)) outcome.text += line;
  const int status = pclose(pipe);
  outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -status;
  return outcome;
}

class Loader : public testing::Test {
 protected:
  // A directory with no kernel library, but with liborb.so, once itself and once by a link under a BLAS name,
  // and with a file that is no library.
  Loader() {
    fs::create_directories(dir);
    fs::copy_file(LIBRARY, dir / "liborb.so");
    fs::create_symlink(LIBRARY, dir / "libblas.so.3");
    std::ofstream(dir / "text") << "not a library";
  }
  ~Loader() override { fs::remove_all(dir); }

  const fs::path dir = fs::temp_directory_path() / ("orb_loader_test_" + std::to_string(getpid()));
};

TEST_F(Loader, FindsTheKernelLibraryOrSaysWhy) {
  const std::string copy = (dir / "liborb.so").string(), kernels = KERNELS, other = OTHER_KERNELS,
                    kernel_dir = fs::path(kernels).parent_path().string(), place = "ORB_KERNEL_PATH=";
  const struct {
    const char* what;
    std::string environment, library, mode;
    int status;
    std::string text;
  } cases[] = {
      {"beside the library, hidden from all others", "", LIBRARY, "local", 0, "l2"},
      {"beside the library, visible to all", "", LIBRARY, "global", 0, "l2"},
      {"beside what a link leads to", "", (dir / "libblas.so.3").string(), "local", 0, "l2"},
      {"by a relative name, then elsewhere", "cd " + dir.string() + ";", "./libblas.so.3", "moved", 0, "l2"},
      {"named by file", place + kernels, copy, "local", 0, "l2"},
      {"named by directory", place + kernel_dir, copy, "global", 0, "l2"},
      {"in the library path", "LD_LIBRARY_PATH=" + kernel_dir, copy, "local", 0, "l2"},
      {"nowhere", "", copy, "local", 127,
       "orb: cannot find the kernel library liborb_t7.so: it is neither at " +
           copy.substr(0, copy.rfind('/')) + "/liborb_t7.so nor in the library path"},
      {"not where it is named, though beside", place + "/nowhere/k.so", LIBRARY, "local", 127,
       "orb: cannot load the kernel library /nowhere/k.so: "},
      {"not in the named directory", place + dir.string(), LIBRARY, "local", 127,
       "orb: cannot load the kernel library " + dir.string() + "/liborb_t7.so: "},
      {"no library", place + (dir / "text").string(), LIBRARY, "local", 127,
       "orb: cannot load the kernel library " + (dir / "text").string() + ": "},
      {"another class", place + other, LIBRARY, "local", 127,
       "orb: the kernel library " + other + " is for processor class 7, and this layer drives class 3"},
      {"not a kernel library", place + copy, copy, "local", 127,
       "orb: the kernel library " + copy + " has no entry dll_cpu_version"},
  };
  for (const auto& c : cases) {
    const bool shell = c.environment.ends_with(";");
    const Outcome o = run(shell ? "sh -c '" + c.environment + PROBE " " + c.library + " " + c.mode + "'"
                                : c.environment + " " PROBE " " + c.library + " " + c.mode);
    EXPECT_EQ(o.status, c.status) << c.what << "\n" << o.text;
    EXPECT_EQ(o.text.compare(0, c.text.size(), c.text), 0) << c.what << "\n" << o.text;
  }
}

TEST_F(Loader, TakesClassesAndThreadsFromTheEnvironment) {
  const struct {
    const char *environment, *text;
  } cases[] = {
      {"ORB_L2_CLASS=2 ORB_CPU_CLASS=0 ORB_NUM_THREADS=1", "l2 2 cpu 0 threads 1\n"},
      {"ORB_L2_CLASS=3 ORB_CPU_CLASS=4 ORB_NUM_THREADS=3", OPENMP ? "l2 3 cpu 4 threads 3\n" : "l2 3 cpu 4"},
      {"ORB_L2_CLASS=many", "orb: ORB_L2_CLASS is \"many\", which is no number from 0 to 99: ignored\nl2 "},
      {"ORB_NUM_THREADS=0",
       OPENMP ? "orb: ORB_NUM_THREADS is \"0\", which is no number from 1 to 256: ignored\nl2 " : "l2 "},
  };
  for (const auto& c : cases) {
    const Outcome o = run(std::string(c.environment) + " " PROBE " " LIBRARY " local");
    EXPECT_EQ(o.status, 0) << c.environment;
    EXPECT_EQ(o.text.compare(0, strlen(c.text), c.text), 0) << c.environment << "\n" << o.text;
  }
}

}  // namespace
