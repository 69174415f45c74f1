// What the tour runs on: asked of the loader and of the libraries themselves.
#include <dlfcn.h>
#include <link.h>

#include <cstring>
#include <string>
#include <vector>

#include "orb/cblas.h"
#include "orb/orb.h"
#include "tour/chapter.h"

namespace orb::tour {
namespace {

// Files of the shared objects in this process whose names begin with liborb.
std::vector<std::string> loaded_libraries() {
  std::vector<std::string> files;
  dl_iterate_phdr(
      [](dl_phdr_info* object, std::size_t, void* list) {
        const char* slash = std::strrchr(object->dlpi_name, '/');
        if (std::strncmp(slash ? slash + 1 : object->dlpi_name, "liborb", 6) == 0)
          static_cast<std::vector<std::string>*>(list)->push_back(object->dlpi_name);
        return 0;
      },
      &files);
  return files;
}

// What the kernel library says that it was built for, or 0 if this file is another library.
int processor_class(const std::string& file) {
  void* handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (!handle) return 0;
  void* own = dlsym(handle, "dll_cpu_version");
  const int answer = own ? reinterpret_cast<int (*)()>(own)() : 0;
  dlclose(handle);
  return answer;
}

std::string class_name(int number) {
  return number == 3 ? "class 3, x86-32 with SSE2 and SSE3" : text("class %d", number);
}

}  // namespace

void introduce(Report& report) {
  const double x[] = {3, 4};
  cblas_dnrm2(2, x, 1);  // the kernel library is loaded at the first need of it
  report.paragraph(
      "orb: numerical kernels for 32-bit x86, at work on real data. A line that begins with [ok] is "
      "a check: it ends with the error and the bound that theory gives for it.");
  for (const std::string& file : loaded_libraries()) {
    const int number = processor_class(file);
    report.fact(number ? "kernels" : "outer layer", file + (number ? " (" + class_name(number) + ")" : ""));
  }
  report.fact("threads", text("up to %d", orb_get_max_threads()));
}

}  // namespace orb::tour
